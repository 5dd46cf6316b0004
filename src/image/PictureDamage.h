// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Reasons.h"
#include "error/Warning.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace folioforge {

/// The warning for a picture that ends before its last row: `missing` of its `total` rows could not
/// be read, at least one. Where no row could be read the picture is refused instead. `words` speak
/// of what else a format counts.
inline Warning cutOffPicture(qint64 missing, qint64 total,
                             const char *words = QT_TRANSLATE_NOOP(
                                 "Reasons",
                                 "The picture is cut off: %1 % of its rows could not be read")) {
    // A loss is never said to be none, nor is what is there said to be nothing.
    const double share = 100.0 * static_cast<double>(missing) / static_cast<double>(total);
    const int percent = std::clamp(static_cast<int>(std::lround(share)), 1, 99);
    return {WarningCode::PictureDamaged, Reasons::tr(words).arg(percent)};
}

/// The warning for a picture whose rows are all there, but not as sharp as they were stored.
inline Warning coarsePicture() {
    return {WarningCode::PictureDamaged,
            Reasons::tr("The picture is cut off: its finer details could not be read")};
}

/// The warning for a picture of which some parts were read, and nobody tells how many.
inline Warning partOfPicture() {
    return {WarningCode::PictureDamaged,
            Reasons::tr("The picture is cut off: parts of it could not be read")};
}

/// The warning for a picture whose colours are all there, but not what makes parts of it
/// transparent.
inline Warning withoutMask() {
    return {WarningCode::PictureDamaged,
            Reasons::tr("The picture is cut off: its transparency could not be read")};
}

/// The warning for a picture whose rows are all there while its data has faults inside.
inline Warning faultyPicture() {
    return {WarningCode::PictureDamaged,
            Reasons::tr("The picture is damaged: parts of it may look wrong")};
}

} // namespace folioforge
