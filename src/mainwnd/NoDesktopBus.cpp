// SPDX-License-Identifier: Apache-2.0

// Compiled where the build finds no desktop bus; elsewhere DesktopBus.cpp is.

#include "mainwnd/DesktopBus.h"

namespace folioforge {

void sendNotification(const QString & /*text*/) {}

void sendProgress(std::optional<double> /*share*/) {}

} // namespace folioforge
