// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/archive/ArchiveLevel.h"
#include "pdf/fonts/FontObjects.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <vector>

namespace folioforge {

class StreamData;
struct DocumentInfo;
struct ImportedDocument;
struct ImportedOutputIntents;
struct PdfImage;

/// Sees to it that what goes into a document keeps a standard for archives. What does not throws
/// Error, or with a fallback takes the claim away. Warnings are kept until they are taken.
class ArchiveRules {
  public:
    explicit ArchiveRules(ArchiveOptions options);

    [[nodiscard]] ArchiveLevel level() const { return m_options.level; }

    /// Brings a picture for the page at `page`, from 0, into line.
    void keepPicture(PdfImage &image, int page);
    /// Looks at the size of a page that is drawn, in units.
    void keepPage(const QSizeF &size, int page);
    /// Looks at a source whose pages begin with the one at `page`, and that was encrypted or not;
    /// `before` are the output intents of the sources before it, null where none has any.
    void keepSource(const ImportedDocument &source, bool isEncrypted,
                    const ImportedOutputIntents *before, int page);
    /// Brings the document information into line. Throws Error where it is too long.
    void keepInfo(DocumentInfo &info) const;

    [[nodiscard]] FontRules fontRules() const;

    /// The warnings since the last call, each once.
    Warnings takeWarnings();
    /// The pages from the one at `page` on are not in the document.
    void rollBack(int page);
    /// Whether the document may claim to keep the standard.
    [[nodiscard]] bool areKept() const { return m_broken.empty(); }

  private:
    void forgo(const QString &reason, int page);
    void warn(Warning warning);

    ArchiveOptions m_options;
    QByteArray m_srgb;
    Warnings m_warnings;
    std::vector<int> m_broken; ///< Pages because of which the claim is not made.
};

/// The output intent for colours that are those of no device (ISO 32000-1, 14.11.5): sRGB.
QPDFObjectHandle srgbOutputIntent(StreamData &streams);

} // namespace folioforge
