// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/PDFFileInfo.h"

#include <QString>

#include <cstddef>
#include <span>
#include <vector>

namespace folioforge {

/// The ascending orders of the list. Name, Size, Created and Modified compare the entry's metadata
/// keys; Natural compares lower-cased names with runs of digits as numbers.
enum class SortOrder { Name, Size, Created, Modified, Natural };

/// The positions of `entries` in `order`: element 0 is the position of the entry that comes first.
/// Sizes and dates are read from the file system once each, now. Entries whose value is missing
/// come first, and entries with equal values keep their order.
std::vector<std::size_t> arrangedOrder(std::span<const PDFFileInfo *const> entries,
                                       SortOrder order);

// ---- Kept for callers alone: nothing in the program calls this -------------------------------

/// Orders size texts of the forms "12 KB" and "1.5 MB" by their meaning: -1, 0 or 1.
int StringFileSizeSort(const QString &text, const QString &other);

} // namespace folioforge
