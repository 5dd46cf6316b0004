// SPDX-License-Identifier: Apache-2.0

#include "cli/Console.h"

#include "files/Printable.h"

#include <QStringList>

#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

bool write(std::FILE *stream, const QByteArray &bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size;
}

} // namespace

void Console::result(const QByteArray &line) {
    eraseProgress();
    // A reader that closes the pipe has read enough: no error.
    if ((!write(stdout, line + '\n') || std::fflush(stdout) != 0) && errno != EPIPE) {
        m_resultsArrived = false;
    }
}

bool Console::finishResults() {
    if (!m_resultsArrived) {
        complain(u"Standard output cannot be written"_s);
    }
    return m_resultsArrived;
}

void Console::complain(const QString &message) {
    writeMessage(u"folioforge-cli: "_s + message);
}

void Console::writeMessage(const QString &line) {
    eraseProgress();
    write(stderr, printable(line).toUtf8() + '\n');
}

void Console::showProgress(const QString &text) {
    eraseProgress();
    write(stderr, printable(text).toUtf8());
    std::fflush(stderr);
    m_progressShown = !text.isEmpty();
}

void Console::eraseProgress() {
    if (m_progressShown) {
        write(stderr, "\r\033[K");
        m_progressShown = false;
    }
}

} // namespace folioforge
