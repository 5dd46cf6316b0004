#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "text/Notice.h"

#include <QString>

#include <optional>
#include <span>
#include <vector>

namespace folioforge {

/// Hears how far a run is; called on the thread that converts.
class ConversionObserver {
  public:
    virtual ~ConversionObserver() = default;
    /// The progress bar's value: 0 to 50 while pages are made, 50 to 100 in the compression pass.
    virtual void progressChanged(float value) = 0;
    /// The entry at `index` of this PDF is done; `written` is false when its pages failed.
    virtual void entryDone(std::size_t index, bool written) = 0;
};

/// How one entry of a PDF went.
struct EntryOutcome {
    bool written = false;
    int pages = 0;
    QString message;    ///< The reason when it was not written, or a warning.
    QString embeddedAs; ///< For images: how they were embedded; empty for others.
};

/// How the writing of one PDF went.
struct PDFOutcome {
    CloseResult close;
    std::vector<EntryOutcome> entries;
};

/// The checks of a run in their order: output folder, security, text pages, image pages, and in
/// merge mode the output name. Nothing when the run may start, else the one notice to show.
std::optional<Notice> checkConversion(const ConversionOptions &options);

/// Path of the merged file: folder/name with ".pdf" where the name lacks it.
QString mergedFilePath(const ConversionOptions &options);

/// The first free path for the PDF of `fileName` in `folder`: name.pdf, name(1).pdf, ...
QString singleFilePath(const QString &folder, const QString &fileName);

/// The notice that the merged file's name is taken.
Notice nameExistsNotice();

/// Writes the PDF of `entries` in their order to `path`. An entry whose pages cannot be written is
/// left out and reported; the others go on. In single mode a name that is taken meanwhile gives way
/// to the next free one; the path used is in the outcome.
PDFOutcome createPDF(std::span<const PDFFileInfo *const> entries, const QString &path,
                     const ConversionOptions &options, ConversionObserver *observer = nullptr);

} // namespace folioforge
