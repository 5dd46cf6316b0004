// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "pdf/import/PageTree.h"
#include "verify/FontCodes.h"
#include "verify/PageReading.h"
#include "verify/Record.h"
#include "verify/StreamSums.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace folioforge {

/// What the contents of a page are read from, taken out of its document: from here on any thread
/// may read them.
struct PageContents {
    struct Piece {
        std::shared_ptr<Buffer> deflated; ///< Null where `plain` has the data.
        std::string plain;
    };
    std::vector<Piece> pieces;
    std::shared_ptr<const FontsByName> fonts;
};

/// Reads the contents. `fontSize` as in readPage(). Throws Error.
ReadPage readContents(const PageContents &contents, double fontSize);

/// What of a page of a text is not as it was recorded, at `index`; empty where nothing is. Throws
/// Error.
QString textFault(const PageContents &contents, const TextRecord &record, std::size_t index);

/// What makes a page of `size` points another than its contents do; empty where nothing does.
QString frameFault(const SourcePage &page, QSizeF size);

/// Reads pages that were drawn here. Throws Error and what libqpdf throws.
class WrittenPages {
  public:
    [[nodiscard]] PageContents contentsOf(const SourcePage &page);
    /// What of a page with a picture, which is read again through `reader`, is not as it was
    /// recorded; empty where nothing is.
    QString pictureFault(const SourcePage &page, const PictureRecord &record, SourceReader &reader);

    /// The sums of the profiles that its pictures have.
    [[nodiscard]] KnownSums &profiles() { return m_profiles; }

  private:
    [[nodiscard]] std::shared_ptr<const FontsByName> fontsOf(const QPDFObjectHandle &resources);
    [[nodiscard]] std::shared_ptr<const FontCodes> fontOf(const QPDFObjectHandle &font);

    std::map<QPDFObjGen, std::shared_ptr<const FontCodes>> m_fonts;
    std::map<QPDFObjGen, std::shared_ptr<const FontsByName>> m_tables; ///< By resources.
    KnownSums m_profiles;
};

} // namespace folioforge
