// SPDX-License-Identifier: Apache-2.0

#include "cli/StandardOutput.h"

#include "cli/OptionValues.h"
#include "files/FileDescriptor.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <span>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Waits where the reader of a pipe does not. False on failure.
bool writeOut(std::span<const char> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            pollfd state{STDOUT_FILENO, POLLOUT, 0};
            ::poll(&state, 1, -1);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace

void requireNoTerminal() {
    if (::isatty(STDOUT_FILENO) == 1) {
        throw ArgumentFault(
            u"--merge: no PDF is written to a terminal; send it on with \"|\" or \">\""_s);
    }
}

void moveToStandardOutput(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    const FileDescriptor file(::open(name.constData(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen()) {
        throw systemError(u"Cannot open the PDF"_s);
    }
    // From here on it has no name, and goes with the process however that ends.
    ::unlink(name.constData());
    std::vector<char> piece(1 << 20);
    qint64 at = 0;
    while (const qint64 got = file.readAt(at, piece)) {
        if (got < 0) {
            throw systemError(u"Cannot read the PDF"_s);
        }
        if (!writeOut(std::span(piece).first(static_cast<std::size_t>(got)))) {
            throw systemError(u"Standard output cannot be written"_s);
        }
        at += got;
    }
}

} // namespace folioforge
