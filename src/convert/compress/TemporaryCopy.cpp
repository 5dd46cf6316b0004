#include "convert/compress/TemporaryCopy.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace folioforge {

namespace {

Error failure(const QString &what, const QString &path, int code) {
    return Error(
        QStringLiteral("%1 %2: %3").arg(what, path, QString::fromLocal8Bit(std::strerror(code))));
}

} // namespace

TemporaryCopy::TemporaryCopy(const QString &folder, const QString &path)
    : m_pipeline(*this) {
    const QFileInfo source(path);
    m_path = QStringLiteral("%1/%2").arg(folder, source.fileName());
    for (int n = 1; !create(m_path); ++n) {
        if (errno != EEXIST) {
            throw failure(QStringLiteral("Cannot create the temporary file"), m_path, errno);
        }
        m_path = QStringLiteral("%1/%2(%3).pdf").arg(folder, source.completeBaseName()).arg(n);
    }
}

TemporaryCopy::~TemporaryCopy() {
    if (m_file) {
        std::fclose(m_file);
    }
    if (!m_finished) {
        QFile::remove(m_path);
    }
}

bool TemporaryCopy::create(const QString &path) {
    const int descriptor = open(QFile::encodeName(path).constData(),
                                O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (descriptor < 0) {
        return false;
    }
    m_file = fdopen(descriptor, "w+b");
    return m_file != nullptr;
}

void TemporaryCopy::fail() {
    m_failure = failure(QStringLiteral("Cannot write the temporary file"), m_path, errno).reason();
}

void TemporaryCopy::Sink::write(const unsigned char *data, std::size_t size) {
    if (m_copy.m_failure) {
        return;
    }
    if (std::fwrite(data, 1, size, m_copy.m_file) != size) {
        m_copy.fail();
    }
    m_copy.m_size += static_cast<qint64>(size);
}

void TemporaryCopy::throwFailure() const {
    if (m_failure) {
        throw Error(*m_failure);
    }
}

void TemporaryCopy::becomeCopyOf(const QString &source) {
    QFile original(source);
    if (!original.open(QIODevice::ReadOnly)) {
        throw Error(QStringLiteral("Cannot read %1: %2").arg(source, original.errorString()));
    }
    std::rewind(m_file);
    m_size = 0;
    if (ftruncate(fileno(m_file), 0) != 0) {
        fail();
    }
    constexpr std::size_t kBlock = 1 << 16;
    std::array<char, kBlock> block{};
    qint64 count = 0;
    while ((count = original.read(block.data(), block.size())) > 0) {
        m_pipeline.write(reinterpret_cast<const unsigned char *>(block.data()),
                         static_cast<std::size_t>(count));
    }
    if (count < 0) {
        throw Error(QStringLiteral("Cannot read %1: %2").arg(source, original.errorString()));
    }
    throwFailure();
}

void TemporaryCopy::finish() {
    throwFailure();
    std::FILE *file = std::exchange(m_file, nullptr);
    if (std::fflush(file) != 0 || std::ferror(file)) {
        fail();
    }
    if (std::fclose(file) != 0) {
        fail();
    }
    throwFailure();
    m_finished = true;
}

} // namespace folioforge
