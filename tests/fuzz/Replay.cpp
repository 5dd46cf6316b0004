// Runs a fuzz target over every file of the folders that are named, where there is no libFuzzer.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int argc, char **argv) {
    int replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
            LLVMFuzzerTestOneInput(data.data(), data.size());
            ++replayed;
        }
    }
    std::printf("%d seeds replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
