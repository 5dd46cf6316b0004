// SPDX-License-Identifier: Apache-2.0

// Runs a fuzz target over every file of folders, where there is no libFuzzer:
//   fuzz_replay TARGET FOLDER...

#include "FuzzSupport.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string_view>
#include <vector>

// FuzzTargets.inc holds a line FUZZED(NAME) for each target; CMakeLists.txt writes it.
namespace folioforge::fuzz {
#define FUZZED(name) void fuzz##name(Bytes bytes);
#include "FuzzTargets.inc"
#undef FUZZED
} // namespace folioforge::fuzz

namespace {

using Fuzz = void (*)(folioforge::fuzz::Bytes);

Fuzz targetNamed(std::string_view wanted) {
    const std::map<std::string_view, Fuzz> targets{
#define FUZZED(name) {#name, folioforge::fuzz::fuzz##name},
#include "FuzzTargets.inc"
#undef FUZZED
    };
    const auto found = targets.find(wanted);
    return found == targets.end() ? nullptr : found->second;
}

int replay(Fuzz fuzz, const char *folder) {
    int replayed = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> content{std::istreambuf_iterator<char>(file), {}};
        fuzz(std::vector<std::uint8_t>(content.begin(), content.end()));
        ++replayed;
    }
    return replayed;
}

} // namespace

int main(int argc, char **argv) {
    const Fuzz fuzz = argc > 1 ? targetNamed(argv[1]) : nullptr;
    int replayed = 0;
    for (int i = 2; fuzz != nullptr && i < argc; ++i) {
        replayed += replay(fuzz, argv[i]);
    }
    std::printf("%d seeds replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
