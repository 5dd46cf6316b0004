// SPDX-License-Identifier: Apache-2.0

#include "FuzzSupport.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace folioforge::fuzz {

namespace {

void refuseMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                   const QString &message) {
    std::fprintf(stderr, "printed: %s\n", qPrintable(message));
    std::abort();
}

} // namespace

void require(bool held) {
    if (!held) {
        std::abort();
    }
}

void refuseMessages() {
    qInstallMessageHandler(refuseMessage);
}

MemoryFile::MemoryFile(const QString &extension, Bytes bytes)
    : m_descriptor(::memfd_create("input", MFD_CLOEXEC))
    , m_path(freshPath(u"input."_s + extension)) {
    require(::write(m_descriptor, bytes.data(), bytes.size()) ==
            static_cast<ssize_t>(bytes.size()));
    const QByteArray target = "/proc/self/fd/" + QByteArray::number(m_descriptor);
    require(::symlink(target.constData(), qPrintable(m_path)) == 0);
}

MemoryFile::~MemoryFile() {
    ::unlink(qPrintable(m_path));
    ::close(m_descriptor);
}

QString freshPath(const QString &name) {
    static const QTemporaryDir folder;
    QString path = folder.filePath(name);
    QFile::remove(path);
    return path;
}

std::uint8_t InputReader::byte() {
    if (m_rest.empty()) {
        return 0;
    }
    const std::uint8_t first = m_rest.front();
    m_rest = m_rest.subspan(1);
    return first;
}

std::uint16_t InputReader::word() {
    constexpr int kByteBits = 8;
    const std::uint8_t low = byte();
    return static_cast<std::uint16_t>(byte() << kByteBits | low);
}

QByteArray InputReader::rest() const {
    return {reinterpret_cast<const char *>(m_rest.data()), static_cast<qsizetype>(m_rest.size())};
}

} // namespace folioforge::fuzz
