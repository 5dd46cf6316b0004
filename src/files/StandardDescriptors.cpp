#include "files/StandardDescriptors.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace folioforge {

void fillStandardDescriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(fd, F_GETFD) < 0) {
            // The lowest free descriptor is taken, which is this one; for the wrong direction, so
            // that nobody is told of an input or a success that never was.
            ::open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

} // namespace folioforge
