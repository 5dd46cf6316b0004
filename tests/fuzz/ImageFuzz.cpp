// The image readers with any bytes: an image in order or a reason, and not a word printed.

#include "error/Error.h"
#include "image/EncodedImage.h"

#include <QByteArray>
#include <QLatin1StringView>
#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

using namespace folioforge;

namespace {

void require(bool held) {
    if (!held) {
        std::abort();
    }
}

void refuseMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/,
                   const QString &message) {
    std::fprintf(stderr, "printed: %s\n", qPrintable(message));
    std::abort();
}

/// A file in memory whose name ends as wanted.
class MemoryFile {
  public:
    MemoryFile(const char *name, const std::uint8_t *data, std::size_t size)
        : m_descriptor(::memfd_create(name, MFD_CLOEXEC))
        , m_link(QStringLiteral("/tmp/folioforge-fuzz-%1.%2")
                     .arg(::getpid())
                     .arg(QLatin1StringView(name))) {
        require(::write(m_descriptor, data, size) == static_cast<ssize_t>(size));
        const QByteArray target = "/proc/self/fd/" + QByteArray::number(m_descriptor);
        ::unlink(qPrintable(m_link));
        require(::symlink(target.constData(), qPrintable(m_link)) == 0);
    }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;
    ~MemoryFile() {
        ::unlink(qPrintable(m_link));
        ::close(m_descriptor);
    }

    [[nodiscard]] const QString &path() const { return m_link; }

  private:
    int m_descriptor;
    QString m_link;
};

void requireInOrder(const EncodedImage &image, qint64 fileSize) {
    require(image.width > 0 && image.height > 0);
    require(image.data.isEmpty() != image.slices.empty());
    require(image.palette.size() <= 768 && image.palette.size() % 3 == 0);
    require(image.color != ImageColor::Indexed || !image.palette.isEmpty());
    require(std::ranges::all_of(image.slices, [&](const FileSlice &slice) {
        return slice.offset >= 0 && slice.length >= 0 && slice.offset + slice.length <= fileSize;
    }));
    if (image.softMask) {
        require(image.softMask->width == image.width && image.softMask->height == image.height);
        requireInOrder(*image.softMask, fileSize);
    }
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    qInstallMessageHandler(refuseMessage);
    // Only these two have no signature that is plain in itself.
    const bool isBitmap = size > 0 && data[0] == 'B';
    const MemoryFile file(isBitmap ? "bmp" : "tga", data, size);
    try {
        const ImageHeader header = readImageHeader(file.path());
        constexpr qint64 kPixels = 1 << 22; // Enough to find faults, few enough to go on.
        if (qint64(header.width) * header.height <= kPixels) {
            const EncodedImage image = encodeImage(file.path());
            requireInOrder(image, static_cast<qint64>(size));
        }
    } catch (const Error &error) {
        require(!error.reason().isEmpty());
    }
    return 0;
}
