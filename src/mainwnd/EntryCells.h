// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QVariant>

namespace folioforge {

class PDFFileInfo;

/// What the list shows of `entry` in `column` (of FilesArray::Column) under `role`: texts, tool
/// tip, mark and look, and what a screen reader says of it. An invalid variant where that is
/// nothing.
QVariant entryCell(const PDFFileInfo &entry, int column, int role);

} // namespace folioforge
