// SPDX-License-Identifier: Apache-2.0

#include "files/Spool.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/PartFiles.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace folioforge {

namespace {

constexpr qint64 kMemoryLimit = qint64{8} << 20;
constexpr qint64 kReadBytes = qint64{256} << 10;

} // namespace

FileDescriptor namelessFile(SystemCalls &calls) {
    constexpr mode_t kOwnerMode = S_IRUSR | S_IWUSR;
    const std::string folder = QFile::encodeName(QDir::tempPath()).toStdString();
    FileDescriptor file(
        uninterrupted([&] { return calls.openAnonymous(folder.c_str(), kOwnerMode); }), calls);
    if (!file.isOpen() && !folder.empty()) { // Empty where TMPDIR names no folder.
        const std::string path = partPath(folder, "spool");
        constexpr int kFlags = O_CREAT | O_EXCL | O_NOFOLLOW | O_RDWR | O_CLOEXEC;
        file = FileDescriptor(
            uninterrupted([&] { return calls.open(path.c_str(), kFlags, kOwnerMode); }), calls);
        if (file.isOpen()) {
            calls.unlink(path.c_str());
        }
    }
    if (!file.isOpen()) {
        const int reason = errno; // Translating may set it.
        throw systemError(Reasons::tr("Cannot create a temporary file"), reason);
    }
    return file;
}

void Spool::moveToFile(QByteArrayView data) {
    if (!m_file.isOpen()) {
        m_file = namelessFile(m_calls);
    }
    // Where this fails half way, the data is still in memory and its place is still there.
    if (!m_file.writeAt(m_fileSize, data)) {
        const int reason = errno;
        throw systemError(Reasons::tr("Cannot write a temporary file"), reason);
    }
    m_fileSize += data.size();
}

Spool::Place Spool::add(QByteArrayView data) {
    if (m_memory.size() + data.size() > kMemoryLimit) {
        moveToFile(m_memory);
        m_memory.resize(0); // Which keeps the block for what follows.
    }
    const Place place{size(), data.size()};
    if (data.size() > kMemoryLimit) {
        moveToFile(data);
    } else {
        m_memory.append(data);
    }
    return place;
}

void Spool::cutTo(qint64 size) {
    m_memory.resize(std::max<qint64>(size - m_fileSize, 0));
    m_fileSize = std::min(size, m_fileSize);
    m_window.clear();
    if (m_file.isOpen()) {
        // Also of a write that failed half way. Where this fails, what follows is written over it.
        m_calls.ftruncate(m_file.get(), m_fileSize);
    }
}

void Spool::readWindow(Place place) {
    // Streams are mostly read in the order in which they were added, many small ones in a row.
    const qint64 size = std::max(place.length, std::min(kReadBytes, m_fileSize - place.offset));
    m_window.resize(0);
    m_window.resize(size);
    m_windowStart = place.offset;
    const qint64 got = m_file.readAt(place.offset, m_window);
    if (got < size) {
        const int reason = got < 0 ? errno : EIO;
        m_window.clear();
        throw systemError(Reasons::tr("Cannot read a temporary file"), reason);
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
