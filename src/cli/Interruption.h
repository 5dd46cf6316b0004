#pragma once

namespace folioforge {

/// Lets the program end on SIGINT, SIGTERM and SIGHUP without leaving an unfinished file, by the
/// signal that asked for it. A reader of standard output that goes away does not end it.
void prepareForSignals();

} // namespace folioforge
