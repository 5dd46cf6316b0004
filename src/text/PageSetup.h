// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Notice.h"

#include <QSizeF>
#include <QStringView>

#include <optional>

namespace folioforge {

/// Rows of the text page-size choice.
enum TextPageSizeMode { TextPageA3 = 0, TextPageA4 = 1, TextPageA5 = 2, TextPageCustom = 3 };

/// Rows of the image page-size choice.
enum ImagePageSizeMode { ImagePageFollowsImage = 0, ImagePageCustom = 1 };

/// The most that a margin may have, in points.
inline constexpr qint64 kMaxMargin = 256;

/// The shortest and the longest side of a page that every reader shows, in points (ISO 32000-1,
/// annex C).
inline constexpr int kShortestSide = 3;
inline constexpr int kMaxSide = 14'400;

/// Page margins in whole PDF points (1/72 inch).
struct PageMargins {
    qint64 left = 0;
    qint64 right = 0;
    qint64 top = 0;
    qint64 bottom = 0;
};

/// Page size and margins as the options panel or the arguments give them, unchecked.
struct PageSetup {
    int sizeMode = 0;        ///< A row of TextPageSizeMode or ImagePageSizeMode.
    qint64 customWidth = 0;  ///< Points; used by the custom mode alone.
    qint64 customHeight = 0; ///< Points; used by the custom mode alone.
    PageMargins margins;
};

/// The leading integer of `text` after white space, with an optional sign; 0 when there is none.
/// Values outside the 64-bit range are clamped to its ends.
qint64 integerValue(QStringView text);

/// Page size in points of a text page: A3, A4, A5 or custom; 0 x 0 for any other row.
QSizeF getTextPageSize(const PageSetup &setup);

/// Page size in points of an image page: custom in row 1; 0 x 0, "as the image", for any other.
QSizeF getImagePageSize(const PageSetup &setup);

/// Nothing when the text page settings are valid, else the one notice to show.
std::optional<Notice> checkTextPageSizeSettings(const PageSetup &setup);

/// Nothing when the image page settings are valid, else the one notice to show.
std::optional<Notice> checkImagePageSizeSettings(const PageSetup &setup);

} // namespace folioforge
