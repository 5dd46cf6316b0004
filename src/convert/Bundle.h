#pragma once

#include <QString>

namespace folioforge {

/// The running application's bundle: its programs lie in Contents/MacOS of it, on every system.
QString applicationBundlePath();

} // namespace folioforge
