// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/SourceInput.h"

#include <map>
#include <string>
#include <vector>

namespace folioforge {

/// Where an object stands: in the file or in an object stream.
struct ObjectPlace {
    qint64 offset = 0;  ///< Of the object, or of the object stream, in the file, in bytes.
    int generation = 0; ///< Of an object in the file.
    int collection = 0; ///< The number of the object stream; 0 where the object is in the file.
    int index = 0;      ///< In the object stream, from 0.
};

/// By the object's number.
using ObjectTable = std::map<int, ObjectPlace>;

/// The number of the first of the objects that addedTable() adds.
int firstAddedNumber(const ObjectTable &table);

/// What makes libqpdf read `table` in a file of `fileSize` bytes: a header that states `version`,
/// and behind the file the end of a stream and of an object, in case it is cut off there; objects
/// of the contents `added`; and a cross-reference stream whose trailer leads to a catalog without
/// pages.
AddedBytes addedTable(qint64 fileSize, const std::string &version, const ObjectTable &table,
                      const std::vector<std::string> &added);

/// So many bytes have to stand behind a file of `fileSize` bytes that libqpdf 12 takes objects with
/// numbers below `size`: it expects three bytes of each number.
qint64 gapFor(qint64 fileSize, qint64 size);

} // namespace folioforge
