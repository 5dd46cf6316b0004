// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"

#include <memory>

class QPDF;

namespace folioforge {

/// Opens a document whose table of objects is of no use: searches the file for objects, for those
/// inside object streams too, and for the trailer, or in a file that is cut off for the last
/// catalog. The library's own search walks the page tree with recursion, takes pages out of it, and
/// does so in one version and not in another. Null when the document is encrypted. Throws Error
/// when there is nothing to open, and what libqpdf throws.
std::unique_ptr<QPDF> openBySearch(const FileVersion &file,
                                   const std::shared_ptr<SourceReader> &reader);

} // namespace folioforge
