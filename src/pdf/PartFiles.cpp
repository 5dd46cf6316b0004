#include "pdf/PartFiles.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <utility>

namespace folioforge {

namespace {

// One file is written at a time; the room to spare is for programs that run several engines. A
// signal handler may only touch lock-free atomics, so this cannot be a container.
std::array<std::atomic<const char *>, 16> partPaths{};
static_assert(std::atomic<const char *>::is_always_lock_free);

} // namespace

PartFile::PartFile(std::string path)
    : m_path(std::move(path)) {
    for (auto &slot : partPaths) {
        const char *expected = nullptr;
        if (slot.compare_exchange_strong(expected, m_path.c_str())) {
            return;
        }
    }
}

PartFile::~PartFile() {
    for (auto &slot : partPaths) {
        const char *expected = m_path.c_str();
        if (slot.compare_exchange_strong(expected, nullptr)) {
            return;
        }
    }
}

void removePartFiles() noexcept {
    for (auto &slot : partPaths) {
        if (const char *path = slot.load()) {
            ::unlink(path);
        }
    }
}

} // namespace folioforge
