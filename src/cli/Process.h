#pragma once

namespace folioforge {

/// Sees to it that file names are read as UTF-8 whatever locale the caller runs in; to be called
/// before the first use of Qt.
void useUtf8FileNames();

/// Lets the program end on SIGINT, SIGTERM and SIGHUP without leaving an unfinished file, by the
/// signal that asked for it. A reader of standard output that goes away does not end it.
void prepareForSignals();

} // namespace folioforge
