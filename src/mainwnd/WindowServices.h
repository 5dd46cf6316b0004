// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <chrono>

class QSettings;

namespace folioforge {

class Desktop;
class NotificationCenter;
class Notices;

/// What the main window uses of the system; tests pass their own. Everything outlives the window.
struct WindowServices {
    QSettings &settings;
    Desktop &desktop;
    Notices &notices;
    NotificationCenter &notifications;
    QString homeFolder; ///< Without a slash at its end.
    QString bundlePath; ///< "…/Folioforge.app", without a slash at its end.
    /// How long a run takes before its end is worth a notification.
    std::chrono::milliseconds longRun{10'000};
};

} // namespace folioforge
