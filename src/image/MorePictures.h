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

} // namespace folioforge
