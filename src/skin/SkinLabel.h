// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace folioforge {

/// Whether a skin becomes wider for longer words, or its words smaller.
enum class SkinWidth { Grows, Stays };

/// The drawing `svg` of a skin with the words `label` in place of its own, which are outlines and
/// English. In a window that is read from right to left, they stand on the left of the picture. A
/// drawing that shows these words or none stays as it is.
QByteArray withLabel(const QByteArray &svg, const QString &label, SkinWidth width);

} // namespace folioforge
