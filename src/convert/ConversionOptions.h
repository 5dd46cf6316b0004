// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/QuartzFilter.h"
#include "convert/ImagePlacement.h"
#include "convert/PictureDescriptions.h"
#include "image/PdfImage.h"
#include "pdf/PDFContext.h"
#include "text/FontCascade.h"
#include "text/PageSetup.h"
#include "text/readable/ReadableLayout.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

class PDFFileInfo;
struct EntryOutcome;

/// Passwords and permission boxes as entered. A ticked box refuses its permission.
struct SecuritySettings {
    bool useUserPassword = false;
    QString userPassword;
    bool useOwnerPassword = false;
    QString ownerPassword;
    bool refusePrint = false; ///< Counts with an owner password alone, like the next.
    bool refuseCopy = false;
};

/// Whether the PDF of a run may take the place of a file of its name, which is never one that the
/// run is made of.
enum class Overwrite {
    Never, ///< A merged PDF is refused, any other takes a free name.
    Older, ///< Only of one that is older than the newest of its sources; else that stays.
    Always,
};

/// Which bookmarks a PDF has.
enum class Bookmarks {
    Sources, ///< Those of the PDFs that it is made of.
    Files,   ///< One for each file.
    Both,    ///< The first under the second.
    None
};

/// Whether a PDF has the bookmarks of its sources, and one for each file.
inline bool hasThoseOfSources(Bookmarks bookmarks) {
    return bookmarks == Bookmarks::Sources || bookmarks == Bookmarks::Both;
}
inline bool hasThoseOfFiles(Bookmarks bookmarks) {
    return bookmarks == Bookmarks::Files || bookmarks == Bookmarks::Both;
}

/// Everything one run reads from the options panel or the arguments, copied when the run starts.
struct ConversionOptions {
    QString outputFolder;
    bool merge = false;
    QString outputName; ///< Name of the merged file; merge mode only.
    DocumentInfo info;
    bool keepInfo = false; ///< The first source PDF gives what `info` lacks.
    Bookmarks bookmarks = Bookmarks::Sources;
    bool tagged = false;     ///< Texts and pictures are tagged; else only beside a PDF that is.
    bool accessible = false; ///< They are, and the PDF keeps PDF/UA-1.
    QString language;        ///< That of texts and descriptions, a language tag (BCP 47).
    PictureDescriptions
        descriptions; ///< Of a picture without one, what its file says, or its name.
    SecuritySettings security;
    InputPasswords inputPasswords;         ///< Of PDFs that are sources.
    std::optional<ArchiveOptions> archive; ///< The standard for archives that PDFs keep.
    PageSetup textPage{TextPageA4, 0, 0, {72, 72, 72, 72}};
    PageSetup imagePage;
    ImageLayout imageLayout;
    bool allPictures = false;   ///< Each page of a TIFF, each frame of a GIF is a page.
    bool stripMetadata = false; ///< Exif, XMP and comments of pictures do not go in.
    /// The font of text pages; null for textFont().
    std::shared_ptr<const FontCascade> textFont;
    QString textEncoding; ///< Of texts that are not read yet, as decodeText() takes it; else UTF-8.
    std::optional<ReadableStyle> readable; ///< Text is set as a person sets it.
    int maxTextPages = 0;  ///< Of an entry, for one who looks at a part of it; 0 for all.
    int compressIndex = 0; ///< 0 none, 1 "150m", 2 "96m", 3 "72l".
    std::optional<QuartzFilter> compressFilter; ///< In place of the filter of that row.
    bool compressGrey = false;                  ///< Pictures in colour become grey.
    Flush flush = Flush::Always;
    Overwrite overwrite = Overwrite::Never;
    bool verify = false; ///< Each page is held against its source before a PDF gets its name.
    /// A finished PDF that is held against the entries; that is then all that a dry run does.
    QString verifyOnly;
    /// Makes the manifest that is attached to a PDF, of the entries that it is made of and how they
    /// went; null for none. Called by the threads that write PDFs.
    std::function<QByteArray(std::span<const PDFFileInfo *const>,
                             const std::vector<EntryOutcome> &)>
        attachedManifest;
    bool dryRun = false; ///< Pages are made, and no document is written.
    /// What every file of the run is written through.
    std::reference_wrapper<SystemCalls> calls = SystemCalls::system();

    /// Whether a finished PDF is to be compressed.
    [[nodiscard]] bool compresses() const { return compressIndex != 0 || compressFilter; }
    /// Whether no PDF is written, nor is one held against the entries.
    [[nodiscard]] bool isTrial() const { return dryRun && verifyOnly.isEmpty(); }
    /// What becomes of what nobody needs to see a picture.
    [[nodiscard]] SourceMetadata sourceMetadata() const {
        return stripMetadata ? SourceMetadata::Strip : SourceMetadata::Keep;
    }
    /// Whether what pages have to show is recorded.
    [[nodiscard]] bool keepsRecord() const { return verify || !verifyOnly.isEmpty(); }
};

/// The system's language as a tag (BCP 47); English where the system has none.
QString systemLanguage();

} // namespace folioforge
