// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"

#include <optional>
#include <vector>

namespace folioforge {

inline constexpr int kMaxObjectNumber = 8'388'607; ///< ISO 32000-1, annex C.

struct FoundObject {
    int number = 0;
    int generation = 0;
    qint64 offset = 0; ///< In the file, in bytes.
};

/// What a search through the bytes of a PDF finds, in their order.
struct FoundObjects {
    std::vector<FoundObject> objects;
    std::vector<qint64> trailers;         ///< Where the word before each trailer ends.
    std::vector<FoundObject> tables;      ///< Cross-reference streams.
    std::vector<FoundObject> collections; ///< Object streams.
    std::optional<FoundObject> catalog;   ///< The last one that stands in plain bytes.
    bool hasSecurityHandler = false;
};

/// Searches all of `file`. An object is found where its number begins a line, or stands behind the
/// end of the one before. Throws Error when the file cannot be read.
FoundObjects searchObjects(const FileVersion &file, SourceReader &reader);

} // namespace folioforge
