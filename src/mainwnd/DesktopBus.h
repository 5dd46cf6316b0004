// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

namespace folioforge {

// What the desktop is told over its bus. Nothing is waited for, and nothing happens where the
// desktop has no bus or the build does not know it (NoDesktopBus.cpp).

/// Shows `text` as a notification, which leads to the application.
void sendNotification(const QString &text);

/// Shows `share` (0 to 1) on the application's place in the task bar; nothing takes it away.
void sendProgress(std::optional<double> share);

} // namespace folioforge
