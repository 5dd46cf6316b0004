#include "image/Icns.h"

#include "image/Bytes.h"
#include "image/Jpeg2000.h"
#include "image/Png.h"
#include "image/QtImage.h"

#include <QBuffer>
#include <QImageReader>

#include <array>
#include <optional>

namespace folioforge {

namespace {

/// Entries whose content is no file of its own, by type, with the side of the square they fill.
struct ClassicEntry {
    const char *type;
    int side;
};
constexpr std::array<ClassicEntry, 14> kClassicEntries = {{{"it32", 128},
                                                           {"ih32", 48},
                                                           {"ich8", 48},
                                                           {"ich4", 48},
                                                           {"ich#", 48},
                                                           {"il32", 32},
                                                           {"icl8", 32},
                                                           {"icl4", 32},
                                                           {"ICN#", 32},
                                                           {"is32", 16},
                                                           {"ics8", 16},
                                                           {"ics4", 16},
                                                           {"ics#", 16},
                                                           {"icm#", 16}}};

/// The largest entry: a PNG or JPEG 2000 file with its decoder, or a classic entry for Qt.
struct Entry {
    ImageHeader header;
    std::optional<FileView> file;
    std::optional<Decoder> decoder;

    [[nodiscard]] qint64 area() const { return qint64(header.width) * header.height; }
};

std::optional<Entry> entryOf(const QByteArray &type, const FileView &content) {
    const QByteArray head = content.read(0, kSniffedBytes);
    for (const Decoder &decoder : {pngDecoder(), jpeg2000Decoder()}) {
        if (decoder.recognises(head)) {
            return Entry{decoder.readHeader(content), content, decoder};
        }
    }
    for (const ClassicEntry &known : kClassicEntries) {
        if (type == known.type) {
            Entry entry;
            entry.header.width = known.side;
            entry.header.height = known.side;
            return entry;
        }
    }
    return std::nullopt;
}

Entry largestEntry(const FileView &file) {
    constexpr qint64 kLead = 8;
    Entry largest;
    for (qint64 at = kLead; at + kLead <= file.size();) {
        const QByteArray lead = file.readExactly(at, kLead);
        const qint64 length = bigEndianAt<quint32>(lead, 4);
        if (length < kLead || length > file.size() - at) {
            break; // What came before a damaged entry can still be shown.
        }
        try {
            const auto entry = entryOf(lead.first(4), file.part(at + kLead, length - kLead));
            if (entry && entry->area() > largest.area()) {
                largest = *entry;
            }
        } catch (const Error &) {
            // A damaged entry leaves the others.
        }
        at += length;
    }
    if (largest.area() == 0) {
        throw Error(QStringLiteral("The icon file holds no picture that can be read"));
    }
    return largest;
}

bool recognises(QByteArrayView head) {
    return head.startsWith("icns");
}

ImageHeader readHeader(const FileView &file) {
    return largestEntry(file).header;
}

/// The largest frame of the classic entries, which Qt joins with their masks.
EncodedImage encodeClassic(const FileView &file) {
    QByteArray bytes = file.readExactly(0, file.size());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "icns");
    QImage largest;
    for (int i = 0; i < reader.imageCount(); ++i) {
        const QImage frame = reader.jumpToImage(i) ? reader.read() : QImage();
        const auto area = [](const QImage &image) {
            return qint64(image.width()) * image.height();
        };
        if (area(frame) > area(largest)) {
            largest = frame;
        }
    }
    if (largest.isNull()) {
        throw Error(QStringLiteral("The icon file holds no picture that can be read"));
    }
    return encodeRaster(rasterOf(largest));
}

EncodedImage encode(const FileView &file) {
    const Entry entry = largestEntry(file);
    return entry.decoder ? entry.decoder->encode(*entry.file) : encodeClassic(file);
}

} // namespace

Decoder icnsDecoder() {
    return {ImageFormat::Icns, {QLatin1StringView("icns")}, recognises, readHeader, encode};
}

} // namespace folioforge
