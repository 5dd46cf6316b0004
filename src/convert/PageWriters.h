#pragma once

#include "filelist/PDFFileInfo.h"
#include "image/PdfImage.h"
#include "pdf/PDFContext.h"
#include "text/PageSetup.h"

#include <stop_token>

namespace folioforge {

/// Adds the pages of a text entry to `context`: at least one, blank where the text is empty or
/// could not be read. Ends at the next page once `stop` is requested.
void addTextPage(const PDFFileInfo &entry, PDFContext &context, const PageSetup &setup,
                 const std::stop_token &stop = {});

/// Adds one page with the image of `entry`; says how the image was embedded. Throws Error, no page
/// begun, when the image cannot be read.
EmbeddedAs addImagePage(const PDFFileInfo &entry, PDFContext &context, const PageSetup &setup);

/// Adds every page of the entry's PDF unchanged and returns their number. Throws Error when it
/// cannot be opened.
int addPDFFile(const PDFFileInfo &entry, PDFContext &context);

} // namespace folioforge
