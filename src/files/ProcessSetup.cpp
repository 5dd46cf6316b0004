// SPDX-License-Identifier: Apache-2.0

#include "files/ProcessSetup.h"

#include <fcntl.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace folioforge {

namespace {

void fillStandardDescriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) < 0) {
            // The system takes the lowest free descriptor, which is this one. It is opened for the
            // wrong direction, so that reads and writes there fail instead of seeming to succeed.
            ::open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

} // namespace

void prepareProcess() {
    fillStandardDescriptors();
    std::signal(SIGXFSZ, SIG_IGN);
}

void forbidCoreDumps() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_CORE, &limit) == 0) {
        limit.rlim_cur = 0;
        ::setrlimit(RLIMIT_CORE, &limit);
    }
#ifdef __linux__
    // Programs that take dumps through a pipe get them whatever the limit.
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

} // namespace folioforge
