#include "pdf/Spool.h"

#include "error/Error.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace folioforge {

namespace {

constexpr qint64 kMemoryLimit = qint64{8} << 20;
constexpr qint64 kWindowSize = qint64{256} << 10;

[[noreturn]] void fail(const QString &what) {
    throw Error(QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno))));
}

int openNameless(const QByteArray &folder) {
    if (folder.isEmpty()) { // TMPDIR names a folder that does not exist.
        errno = ENOENT;
        return -1;
    }
#ifdef O_TMPFILE
    const int fd =
        ::open(folder.constData(), O_TMPFILE | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (fd >= 0) {
        return fd;
    }
#endif
    QByteArray name = folder + "/folioforge-XXXXXX";
    const int named = ::mkostemp(name.data(), O_CLOEXEC);
    if (named >= 0) {
        ::unlink(name.constData());
    }
    return named;
}

} // namespace

Spool::~Spool() {
    if (m_fd >= 0) {
        ::close(m_fd);
    }
}

void Spool::moveToFile(QByteArrayView data) {
    if (m_fd < 0) {
        m_fd = openNameless(QFile::encodeName(QDir::tempPath()));
    }
    if (m_fd < 0) {
        fail(QStringLiteral("Cannot create a temporary file"));
    }
    while (!data.isEmpty()) {
        const ssize_t written =
            ::pwrite(m_fd, data.data(), static_cast<std::size_t>(data.size()), m_fileSize);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            fail(QStringLiteral("Cannot write a temporary file"));
        }
        data = data.sliced(written);
        m_fileSize += written;
    }
}

Spool::Place Spool::add(QByteArrayView data) {
    if (m_memory.size() + data.size() > kMemoryLimit) {
        moveToFile(m_memory);
        m_memory.resize(0); // Which keeps the block for what follows.
    }
    const Place place{m_fileSize + m_memory.size(), data.size()};
    if (data.size() > kMemoryLimit) {
        moveToFile(data);
    } else {
        m_memory.append(data);
    }
    return place;
}

void Spool::readWindow(Place place) {
    // Streams are asked for mostly in the order in which they came, many small ones in a row.
    const qint64 size = std::max(place.length, std::min(kWindowSize, m_fileSize - place.offset));
    m_window.resize(0);
    m_window.resize(size);
    m_windowStart = place.offset;
    qint64 done = 0;
    while (done < size) {
        const ssize_t got = ::pread(m_fd, m_window.data() + done,
                                    static_cast<std::size_t>(size - done), place.offset + done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            m_window.clear();
            fail(QStringLiteral("Cannot read a temporary file"));
        }
        done += got;
    }
}

QByteArrayView Spool::at(Place place) {
    if (place.offset >= m_fileSize) {
        return QByteArrayView(m_memory).sliced(place.offset - m_fileSize, place.length);
    }
    if (place.offset < m_windowStart ||
        place.offset + place.length > m_windowStart + m_window.size()) {
        readWindow(place);
    }
    return QByteArrayView(m_window).sliced(place.offset - m_windowStart, place.length);
}

} // namespace folioforge
