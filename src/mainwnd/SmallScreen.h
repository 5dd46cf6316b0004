// SPDX-License-Identifier: Apache-2.0

#pragma once

class QMainWindow;

namespace folioforge {

class OptionsDrawer;
class OptionsSlide;

/// Lets the contents of `window`, which is not shown yet, scroll where its screen has no room for
/// them with `drawer` open. The window then stays within the screen, and what has the keyboard, and
/// the drawer when `slide` has opened it, come into view.
void scrollOnSmallScreen(QMainWindow &window, OptionsDrawer &drawer, OptionsSlide &slide);

} // namespace folioforge
