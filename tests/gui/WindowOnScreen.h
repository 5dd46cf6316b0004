// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QRect>

#include <xcb/xcb.h>

#include <optional>

namespace folioforge::test {

/// Where a window is on the screen, in pixels.
struct WindowPlace {
    QRect inside; ///< Without its frame.
    QRect frame;  ///< With it.
};

/// Whether a window manager manages the windows of `display`.
bool hasWindowManager(const QByteArray &display);

/// Sends the window with the number `window` what a window manager sends when it is to close.
bool askToClose(const QByteArray &display, xcb_window_t window);

/// Where the window with the number `window` is; nothing where there is none.
std::optional<WindowPlace> placeOf(const QByteArray &display, xcb_window_t window);

} // namespace folioforge::test
