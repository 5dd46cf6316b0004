// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QCoreApplication>
#include <QString>

namespace folioforge {

/// The setting that a notice speaks of.
enum class Setting {
    None,
    OutputFolder,
    OutputName,
    UserPassword,
    OwnerPassword,
    TextWidth,
    TextHeight,
    TextTop,
    TextLeft,
    TextBottom,
    TextRight,
    ImageWidth,
    ImageHeight,
    ImageTop,
    ImageLeft,
    ImageBottom,
    ImageRight
};

/// A notice for the user: the window shows it as a sheet, the command line prints it.
struct Notice {
    QString title;    ///< The message text, "Notice" for most.
    QString message;  ///< The informative text under it.
    QString advice{}; ///< What to do in the window, which says it after the message; may be empty.
    Setting setting = Setting::None; ///< The window leads there.

    /// What the window says under the title.
    [[nodiscard]] QString textInWindow() const {
        return advice.isEmpty() ? message : message + u' ' + advice;
    }

    bool operator==(const Notice &) const = default;
};

/// A notice with the usual title "Notice".
inline Notice notice(const QString &message, Setting setting = Setting::None) {
    return {QCoreApplication::translate("Notice", "Notice"), message, {}, setting};
}

} // namespace folioforge
