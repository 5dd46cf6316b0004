#pragma once

namespace folioforge {

/// Puts /dev/null where the caller closed standard input, output or error, so that no file opened
/// later takes that place and gets what is meant for it. Reading and writing there still fail.
/// Call it before anything else in a program.
void fillStandardDescriptors();

} // namespace folioforge
