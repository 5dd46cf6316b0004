#pragma once

namespace folioforge::fuzz {

/// The extension of the one image format whose readers a target fuzzes. Each target brings its own:
/// the rest of them is compiled once.
extern const char *const kFuzzedExtension;

} // namespace folioforge::fuzz
