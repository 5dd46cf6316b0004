// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/CompressionPass.h"
#include "convert/Checks.h"
#include "convert/ConversionOptions.h"
#include "convert/OutputName.h"
#include "error/Warning.h"
#include "filelist/PDFFileInfo.h"
#include "image/PdfImage.h"
#include "verify/Verification.h"

#include <QElapsedTimer>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace folioforge {

/// Hears how far a run is; called on the thread that converts.
class ConversionObserver {
  public:
    ConversionObserver() = default;
    ConversionObserver(const ConversionObserver &) = delete;
    ConversionObserver &operator=(const ConversionObserver &) = delete;
    virtual ~ConversionObserver() = default;

    /// The progress of the PDF: 0 to 50 while pages are made, 50 to 100 in the compression pass.
    virtual void progressChanged(float value) = 0;
    /// The entry at `index` of this PDF is done; `written` is false when its pages failed.
    virtual void entryDone(std::size_t index, bool written) = 0;
    /// The compression pass wrote the page at `pageIndex`, from 0, of `pageCount`.
    virtual void endPageWrite(int pageIndex, int pageCount);
};

/// How one entry of a PDF went.
struct EntryOutcome {
    bool written = false;
    int pages = 0;
    QSizeF pageSize;    ///< Of its first page in points, 0 x 0 without one; of a dry run alone.
    double seconds = 0; ///< How long its pages took.
    QString reason;     ///< Why it was not written.
    Warnings warnings;  ///< What of it was lost though it was written.
    std::optional<EmbeddedAs> embeddedAs; ///< How an image was embedded; nothing for others.
    std::optional<DocumentParts> parts;   ///< Of a PDF; nothing for others.
    std::optional<EntryVerification> verification; ///< What came of it, where it was asked for.

    /// The reason and the warnings, as sentences.
    [[nodiscard]] QStringList remarks() const;
};

/// How the writing of one PDF went.
struct PDFOutcome {
    CloseResult close;
    std::vector<EntryOutcome> entries; ///< One for each entry that was begun.

    [[nodiscard]] bool isWritten() const { return close.status == CloseResult::Status::Written; }
    /// The pages of all entries.
    [[nodiscard]] int pages() const;
    /// Why the PDF is missing, where no entry's own reason and no notice says it.
    [[nodiscard]] QString problem() const;
};

/// The encryption that the passwords and boxes ask for; null for an unprotected document. A user
/// password alone is the owner's too and refuses nothing; a ticked box refuses its permission.
std::unique_ptr<Encryption> encryptionFor(const SecuritySettings &security);

/// Writes the PDF of `entries` in their order to `path`. An entry whose pages cannot be written is
/// left out and reported; the others go on. Where the options let a file be replaced, that of the
/// path is, in one step. Otherwise in single mode a name that is taken meanwhile gives way
/// to the next free one; the path used is in the outcome.
///
/// Without a single page no file is written, nor in a dry run, which counts as written. Once `stop`
/// is requested the run ends at the next page or entry, or where bytes that go into the PDF as they
/// are would be read or written, and leaves no file, save for one that was whole already. Never
/// throws: whatever fails is in the outcome.
PDFOutcome createPDF(std::span<const PDFFileInfo *const> entries, const QString &path,
                     const ConversionOptions &options, ConversionObserver *observer = nullptr,
                     const std::stop_token &stop = {});

/// The time since the start of `timer`.
inline double secondsOf(const QElapsedTimer &timer) {
    constexpr double kNanoseconds = 1e9;
    return static_cast<double>(timer.nsecsElapsed()) / kNanoseconds;
}

/// The progress when every page of a PDF is written, and when it is compressed.
inline constexpr float kPagesShare = 50;
inline constexpr float kFull = 100;

/// The progress of the PDF once the compression pass wrote the page at `pageIndex`, from 0.
float compressionProgress(int pageIndex, int pageCount);

} // namespace folioforge
