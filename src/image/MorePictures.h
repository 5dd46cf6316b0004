// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"

namespace folioforge {

/// Adds that `count` more of a kind, such as "page", stand in the file beside the one that was
/// taken; nothing where there are none.
inline void addMorePictures(Warnings &warnings, qint64 count, QLatin1StringView kind) {
    if (count > 0) {
        warnings.push_back(
            {WarningCode::MorePictures,
             count == 1 ? QStringLiteral("1 further %1 is left out").arg(kind)
                        : QStringLiteral("%1 further %2s are left out").arg(count).arg(kind)});
    }
}

/// Adds that so many of an icon's pictures are damaged, one of which may be the largest; nothing
/// where none is.
inline void addUnreadablePictures(Warnings &warnings, int unreadable, int count) {
    if (unreadable > 0) {
        warnings.push_back({WarningCode::PictureDamaged,
                            QStringLiteral("%1 of the icon's %2 pictures cannot be read")
                                .arg(unreadable)
                                .arg(count)});
    }
}

} // namespace folioforge
