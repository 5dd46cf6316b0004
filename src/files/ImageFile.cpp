#include "files/ImageFile.h"

#include "error/Error.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

[[noreturn]] void throwSystemError(const QString &what, int code) {
    throw Error(what + u": "_s + QString::fromLocal8Bit(std::strerror(code)));
}

void requireRegularFile(const struct stat &status) {
    if (S_ISDIR(status.st_mode)) {
        throw Error(u"It is a folder, not an image file"_s);
    }
    if (!S_ISREG(status.st_mode)) {
        throw Error(u"It is not a regular file"_s);
    }
}

} // namespace

qint64 modifiedNanos(const struct stat &status) {
#ifdef __APPLE__
    const timespec &time = status.st_mtimespec;
#else
    const timespec &time = status.st_mtim;
#endif
    constexpr qint64 kNanosPerSecond = 1'000'000'000;
    return qint64{time.tv_sec} * kNanosPerSecond + qint64{time.tv_nsec};
}

ImageFile::ImageFile(QString path, int descriptor)
    : m_path(std::move(path))
    , m_descriptor(descriptor) {}

ImageFile::ImageFile(ImageFile &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_size(other.m_size)
    , m_modifiedNanos(other.m_modifiedNanos) {}

ImageFile::~ImageFile() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

ImageFile ImageFile::open(const QString &path) {
    const QString failed = u"The file cannot be opened"_s;
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0) {
        throwSystemError(failed, errno);
    }
    requireRegularFile(status);
    // Another file may have taken the name since stat(): without waiting, and asked again.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        throwSystemError(failed, errno);
    }
    ImageFile file(path, descriptor);
    if (::fstat(descriptor, &status) != 0) {
        throwSystemError(failed, errno);
    }
    requireRegularFile(status);
    file.m_size = status.st_size;
    file.m_modifiedNanos = folioforge::modifiedNanos(status);
    return file;
}

void ImageFile::requireUnchanged() const {
    struct stat status = {};
    if (::fstat(m_descriptor, &status) != 0 || status.st_size != m_size ||
        folioforge::modifiedNanos(status) != m_modifiedNanos) {
        throw Error(u"The file was changed while it was being converted"_s);
    }
}

qint64 ImageFile::readInto(qint64 at, std::span<uchar> target) const {
    size_t done = 0;
    while (done < target.size()) {
        const ssize_t got = ::pread(m_descriptor, target.data() + done, target.size() - done,
                                    static_cast<off_t>(at + static_cast<qint64>(done)));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            throwSystemError(u"The file cannot be read"_s, errno);
        }
        if (got == 0) {
            break;
        }
        done += static_cast<size_t>(got);
    }
    return static_cast<qint64>(done);
}

FileView ImageFile::view() const {
    return {*this, 0, m_size};
}

FileView::FileView(const ImageFile &file, qint64 offset, qint64 size)
    : m_file(&file)
    , m_offset(offset)
    , m_size(size) {}

qint64 FileView::readInto(qint64 at, std::span<uchar> target) const {
    if (at < 0 || at >= m_size) {
        return 0;
    }
    const auto wanted = std::min<qint64>(static_cast<qint64>(target.size()), m_size - at);
    return m_file->readInto(m_offset + at, target.first(static_cast<size_t>(wanted)));
}

QByteArray FileView::read(qint64 at, qint64 length) const {
    if (at < 0 || at >= m_size || length <= 0) {
        return {};
    }
    QByteArray bytes(std::min(length, m_size - at), Qt::Uninitialized);
    const qint64 got =
        readInto(at, {reinterpret_cast<uchar *>(bytes.data()), static_cast<size_t>(bytes.size())});
    bytes.truncate(got);
    return bytes;
}

QByteArray FileView::readExactly(qint64 at, qint64 length) const {
    QByteArray bytes = read(at, length);
    if (bytes.size() != length) {
        throw Error(u"The file ends too early"_s);
    }
    return bytes;
}

FileView FileView::part(qint64 at, qint64 length) const {
    if (at < 0 || length < 0 || at > m_size || length > m_size - at) {
        throw Error(u"The file ends too early"_s);
    }
    return {*m_file, m_offset + at, length};
}

} // namespace folioforge
