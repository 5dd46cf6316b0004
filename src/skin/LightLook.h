// SPDX-License-Identifier: Apache-2.0

#pragma once

class QApplication;

namespace folioforge {

/// Gives the application its own light colours and style, whatever theme the desktop has.
void applyLightLook(QApplication &application);

} // namespace folioforge
