// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "error/Warning.h"
#include "filelist/PDFFileInfo.h"
#include "image/PdfImage.h"
#include "pdf/PDFContext.h"
#include "verify/Record.h"

#include <QString>

#include <stop_token>

namespace folioforge {

class PicturesAhead;

/// Adds the pages of a text entry to `context`: at least one, blank where the text is empty or not
/// valid. Returns what of the text is not on them. Ends at the next page once `stop` is requested.
/// Throws Error when the text cannot be read now, or there is no font to write it with.
///
/// What the pages show goes into `record`, here and below, where there is one.
Warnings addTextPage(const PDFFileInfo &entry, PDFContext &context,
                     const ConversionOptions &options, const std::stop_token &stop = {},
                     EntryRecord *record = nullptr);

/// Writes the header and the footer that `options` ask for on the pages of a text: `pages` of them
/// from `first` on, counted from 0, of a document that has all its pages. Returns what of them is
/// missing. Ends at the next page once `stop` is requested. Throws Error.
Warnings addMarginTexts(const PDFFileInfo &entry, int first, int pages, PDFContext &context,
                        const ConversionOptions &options, const std::stop_token &stop = {},
                        EntryRecord *record = nullptr);

/// How a picture became a page, or several.
struct WrittenImage {
    EmbeddedAs embeddedAs = EmbeddedAs::Recompressed; ///< Own bytes where those of all are.
    ImageKind kind = ImageKind::Png;                  ///< What the file is.
    Warnings warnings;                                ///< What of the file is not on the page.
};

/// Adds one page with the image of `entry`, one of `pictures`, or a page for each image of its file
/// where the options ask for all. Throws Error when none can be read.
WrittenImage addImagePages(const PDFFileInfo &entry, PDFContext &context,
                           const ConversionOptions &options, PicturesAhead &pictures,
                           EntryRecord *record = nullptr);

/// Adds the pages of the entry's PDF that it chooses. Throws Error when it cannot be opened.
AddedDocument addPDFFile(const PDFFileInfo &entry, PDFContext &context,
                         EntryRecord *record = nullptr);

} // namespace folioforge
