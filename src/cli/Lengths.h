// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/PageSetup.h"

#include <QByteArrayList>
#include <QSizeF>
#include <QString>

#include <optional>

namespace folioforge {

/// A length such as "72", "72pt", "25.4mm", "2.54cm" or "1in" in points of 1/72 inch; nothing where
/// `text` is none.
std::optional<double> pointsOf(QStringView text);

/// The letters at the end of `text`, such as "mm" of "210mm".
QStringView unitOf(QStringView text);

/// The nearest whole number of points, as pages are measured; ends of the range beyond it.
qint64 wholePoints(double points);

/// The names of papers that paperSize() knows, without those on their sides.
QByteArrayList paperNames();

/// The size in points of a paper, upright: "A0" to "A10" and "B0" to "B10" (ISO 216), "C5" and "DL"
/// (ISO 269), "JIS-B4" and "JIS-B5" (JIS P 0138; also "JB4" and "JB5"), "Letter", "Legal",
/// "Tabloid" and "Executive" (ANSI and its kin). With "^T" or "-landscape" behind its name it lies
/// on its side. Nothing where `name` is none of them, in upper or lower case.
std::optional<QSizeF> paperSize(QStringView name);

} // namespace folioforge
