// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"
#include "image/formats/JpegSegments.h"

#include <vector>

namespace folioforge {

/// How a JPEG file is put together.
struct JpegStructure {
    /// From its first marker to its end every segment is in order, and each component has its
    /// tables and a scan. Codes are not decoded: flaws among them are not found, save for stretches
    /// of zeros.
    bool isWhole = false;
    bool isDoubtful = false;       ///< It has data that no picture is likely to have.
    bool lacksEnd = false;         ///< Only the marker of the end is missing: the file may be cut.
    std::vector<FileSlice> strays; ///< Bytes that belong to no segment.
    std::vector<FileSlice> metadata; ///< No decoder needs any; also what follows the end.
};

enum class JpegWalk {
    Whole,   ///< To the end, over all coded data.
    Thrifty, ///< Of a large file that ends with the end marker only pieces of its only scan are
             ///< read.
};

/// Walks through `segments`, those of `file`, from the first one on.
JpegStructure readJpegStructure(const FileView &file, JpegSegments &segments, JpegWalk walk);

} // namespace folioforge
