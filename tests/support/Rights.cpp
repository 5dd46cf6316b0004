// SPDX-License-Identifier: Apache-2.0

#include "support/Rights.h"

#include <thread>

#ifdef __linux__
#include <array>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace folioforge::test {

void withoutRightsOfRoot(const std::function<void()> &action) {
    std::thread([&action] {
#ifdef __linux__
        // A thread has capabilities of its own, and these never come back to it.
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
        ::syscall(SYS_capset, &header, none.data());
#endif
        action();
    }).join();
}

} // namespace folioforge::test
