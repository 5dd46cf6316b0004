// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// A notice for the user: the window shows it as a sheet, the command line prints it.
struct Notice {
    QString title;    ///< The message text, "Notice" for most.
    QString message;  ///< The informative text under it.
    QString advice{}; ///< What to do in the window, which says it after the message; may be empty.

    /// What the window says under the title.
    [[nodiscard]] QString textInWindow() const {
        return advice.isEmpty() ? message : message + u' ' + advice;
    }

    bool operator==(const Notice &) const = default;
};

/// A notice with the usual title "Notice".
inline Notice notice(const QString &message, const QString &advice = {}) {
    return {QStringLiteral("Notice"), message, advice};
}

} // namespace folioforge
