#pragma once

namespace folioforge {

/// Sees to it that file names are read as UTF-8 whatever locale the caller runs in; to be called
/// before the first use of Qt.
void useUtf8FileNames();

} // namespace folioforge
