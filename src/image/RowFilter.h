// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

/// Rows with the PNG filter that suits each best (ISO 15948, 9.2), its number before each row: the
/// input of the compressor for a PDF's Predictor 15. `pixelBytes` is the distance in bytes to the
/// sample on the left.
QByteArray filterRows(const QByteArray &rows, qsizetype stride, int pixelBytes);

/// Rows each less the one above, likewise with the number of that filter before it.
QByteArray filterRowsUp(const QByteArray &rows, qsizetype stride);

/// The opposite, in place: undoes the filters of `height` rows of 1 + `stride` bytes and returns
/// the rows without the filter numbers. Throws Error on a filter number that does not exist.
QByteArray unfilterRows(QByteArray filtered, int height, qsizetype stride, int pixelBytes);

/// Gives the rows of `rowBytes` bytes, the filter number among them, no filter where theirs does
/// not exist: damaged ones may have any.
void dropUnknownFilters(QByteArray &filtered, qsizetype rowBytes);

} // namespace folioforge
