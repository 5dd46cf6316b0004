// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "filelist/PDFFileInfo.h"
#include "image/PdfImage.h"
#include "pdf/PDFContext.h"

#include <QString>

#include <stop_token>

namespace folioforge {

/// Adds the pages of a text entry to `context`: at least one, blank where the text is empty or not
/// valid. Returns what was lost in reading the text, empty for nothing. Ends at the next page once
/// `stop` is requested. Throws Error when the text cannot be read now.
QString addTextPage(const PDFFileInfo &entry, PDFContext &context, const ConversionOptions &options,
                    const std::stop_token &stop = {});

/// Adds one page with the image of `entry`, which is read through `calls`; says how the image was
/// embedded. Throws Error, no page begun, when the image cannot be read.
EmbeddedAs addImagePage(const PDFFileInfo &entry, PDFContext &context, const PageSetup &setup,
                        SystemCalls &calls = SystemCalls::system());

/// Adds every page of the entry's PDF unchanged and returns their number. Throws Error when it
/// cannot be opened.
int addPDFFile(const PDFFileInfo &entry, PDFContext &context);

} // namespace folioforge
