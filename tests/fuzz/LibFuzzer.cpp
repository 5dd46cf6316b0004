// SPDX-License-Identifier: Apache-2.0

// Gives libFuzzer the one target of a program.

#include "FuzzSupport.h"

namespace folioforge::fuzz {
// NOLINTNEXTLINE(readability-identifier-naming): the build puts the name of the target here
void FOLIOFORGE_FUZZ_TARGET(Bytes bytes);
} // namespace folioforge::fuzz

#ifdef FOLIOFORGE_LEAKS_OF_OTHERS
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming): the sanitizer's name
extern "C" const char *__lsan_default_suppressions() {
    return FOLIOFORGE_LEAKS_OF_OTHERS;
}
#endif

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    folioforge::fuzz::FOLIOFORGE_FUZZ_TARGET({data, size});
    return 0;
}
