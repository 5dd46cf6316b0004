#include "pdf/Spool.h"

#include "error/Error.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace folioforge {

namespace {

constexpr qint64 kMemoryLimit = qint64{8} << 20;

[[noreturn]] void fail(const QString &what) {
    throw Error(QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno))));
}

int openNameless(const QByteArray &folder) {
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

void Spool::writeAt(qint64 offset, QByteArrayView data) {
    while (!data.isEmpty()) {
        const ssize_t written =
            ::pwrite(m_fd, data.data(), static_cast<std::size_t>(data.size()), offset);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            fail(QStringLiteral("Cannot write a temporary file"));
        }
        data = data.sliced(written);
        offset += written;
    }
}

void Spool::moveToFile() {
    m_fd = openNameless(QFile::encodeName(QDir::tempPath()));
    if (m_fd < 0) {
        fail(QStringLiteral("Cannot create a temporary file"));
    }
    writeAt(0, m_memory);
    m_memory = {};
}

Spool::Place Spool::add(QByteArrayView data) {
    if (m_fd < 0 && m_size + data.size() > kMemoryLimit) {
        moveToFile();
    }
    if (m_fd >= 0) {
        writeAt(m_size, data);
    } else {
        m_memory.append(data);
    }
    const Place place{m_size, data.size()};
    m_size += data.size();
    return place;
}

QByteArray Spool::at(Place place) const {
    if (m_fd < 0) {
        return m_memory.sliced(place.offset, place.length);
    }
    QByteArray data(place.length, Qt::Uninitialized);
    qint64 done = 0;
    while (done < place.length) {
        const ssize_t got =
            ::pread(m_fd, data.data() + done, static_cast<std::size_t>(place.length - done),
                    place.offset + done);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            fail(QStringLiteral("Cannot read a temporary file"));
        }
        done += got;
    }
    return data;
}

} // namespace folioforge
