// SPDX-License-Identifier: Apache-2.0

#include "cli/PipedInputs.h"

#include "error/Error.h"
#include "files/PathNames.h"
#include "files/SourceFile.h"
#include "files/Spool.h"
#include "image/ImageFormat.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Reads what comes through standard input or a pipe.
class PipeReader {
  public:
    explicit PipeReader(const QByteArray &path)
        : m_pipe(open(path)) {
        if (!m_pipe.isOpen()) {
            throw systemError(u"Cannot open it"_s);
        }
    }

    /// How many bytes were put into `piece`; 0 at the end. Throws Error.
    std::size_t read(std::span<char> piece) {
        while (true) {
            const ssize_t got = ::read(m_pipe.get(), piece.data(), piece.size());
            if (got > 0 || (got == 0 && m_hasWriter)) {
                m_hasWriter = true;
                return static_cast<std::size_t>(got);
            }
            if (got == 0) {
                waitForWriter();
            } else if (errno == EAGAIN) {
                m_hasWriter = true;
                wait(-1);
            } else if (errno != EINTR) {
                throw systemError(u"Cannot read it"_s);
            }
        }
    }

  private:
    /// A named pipe without a writer would let its opener wait for ever.
    FileDescriptor open(const QByteArray &path) {
        if (path == "-") {
            return FileDescriptor(::dup(STDIN_FILENO));
        }
        // As the pipe of a command is. Its end is the end of what the command writes.
        std::error_code ignored;
        m_hasWriter = std::filesystem::canonical(path.toStdString(), ignored).empty();
        const int waits = m_hasWriter ? 0 : O_NONBLOCK;
        return FileDescriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC | waits));
    }

    void waitForWriter() {
        constexpr int kTries = 40;
        constexpr int kMilliseconds = 50;
        if (++m_tries > kTries) {
            throw Error(u"No program writes to this pipe"_s);
        }
        wait(kMilliseconds);
    }

    void wait(int milliseconds) {
        pollfd state{m_pipe.get(), POLLIN, 0};
        ::poll(&state, 1, milliseconds);
    }

    bool m_hasWriter = true;
    int m_tries = 0;
    FileDescriptor m_pipe;
};

/// A file without a name that holds all that comes from `path`.
FileDescriptor copyOf(const QByteArray &path) {
    PipeReader pipe(path);
    FileDescriptor copy = namelessFile(SystemCalls::system());
    std::vector<char> piece(1 << 16);
    while (const std::size_t got = pipe.read(piece)) {
        if (!copy.write(std::span(piece).first(got))) {
            throw systemError(u"Cannot write a temporary file"_s);
        }
    }
    return copy;
}

/// An extension that stands for what the bytes of `file`, at `path`, are.
QByteArray typeOf(const FileDescriptor &file, const QString &path) {
    std::array<char, 1024> head{}; // Where readers look for the mark of a PDF.
    const qint64 length = std::max<qint64>(0, file.readAt(0, head));
    if (std::string_view(head.data(), static_cast<std::size_t>(length)).find("%PDF-") !=
        std::string_view::npos) {
        return "pdf";
    }
    try {
        formatOf(SourceFile::open(path).view());
        return "png"; // Which one of the pictures it is, their bytes tell.
    } catch (const Error &) {
        return "txt";
    }
}

} // namespace

bool PipedInputs::isPiped(const QByteArray &path) {
    struct stat status {};
    return path == "-" || (::stat(path.constData(), &status) == 0 && S_ISFIFO(status.st_mode));
}

QString PipedInputs::fileOf(const QByteArray &path) {
    m_files.push_back(copyOf(path));
    const FileDescriptor &file = m_files.back();
    const QString place = u"/dev/fd/%1"_s.arg(file.get());
    const QString name = path == "-" ? u"stdin"_s : lastPathComponent(QString::fromUtf8(path));
    const QByteArray type = path == "-" && !m_type.isEmpty() ? m_type : typeOf(file, place);
    QString link =
        m_links.linkTo(QFile::encodeName(place), name + u'.' + QString::fromLatin1(type));
    if (link.isEmpty()) {
        throw systemError(u"Cannot make a temporary file"_s);
    }
    return link;
}

} // namespace folioforge
