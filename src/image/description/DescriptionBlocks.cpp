// SPDX-License-Identifier: Apache-2.0

#include "image/description/DescriptionBlocks.h"

#include "files/SourceFile.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/formats/JpegSegments.h"

namespace folioforge {

namespace {

constexpr qint64 kMaxBytes = 1 << 20;
constexpr QByteArrayView kExifLead("Exif\0\0", 6);

/// The blocks of a TIFF file, or of an Exif block, which is one (TIFF 6.0, section 2).
void readTiff(const FileView &file, DescriptionBlocks &blocks) {
    enum DescriptionTag : quint16 { ImageDescription = 270, Xmp = 700, Iptc = 33723 };
    constexpr qint64 kEntry = 12;
    constexpr quint16 kClassic = 42;
    const QByteArray head = file.readExactly(0, 8);
    const bool little = head.startsWith("II");
    const auto half = [&](const QByteArray &bytes, qsizetype at) {
        return little ? littleEndianAt<quint16>(bytes, at) : bigEndianAt<quint16>(bytes, at);
    };
    const auto word = [&](const QByteArray &bytes, qsizetype at) {
        return little ? littleEndianAt<quint32>(bytes, at) : bigEndianAt<quint32>(bytes, at);
    };
    if (half(head, 2) != kClassic) {
        return;
    }
    const qint64 directory = word(head, 4);
    const int count = half(file.readExactly(directory, 2), 0);
    for (int i = 0; i < count; ++i) {
        const QByteArray entry = file.readExactly(directory + 2 + i * kEntry, kEntry);
        const quint16 tag = half(entry, 0);
        constexpr quint16 kLong = 4; // Some writers keep IPTC in words.
        const qint64 length = word(entry, 4) * (half(entry, 2) == kLong ? qint64(4) : qint64(1));
        if ((tag != ImageDescription && tag != Xmp && tag != Iptc) || length > kMaxBytes) {
            continue;
        }
        const QByteArray value =
            length <= 4 ? entry.sliced(8, length) : file.readExactly(word(entry, 8), length);
        (tag == Xmp ? blocks.xmp : tag == Iptc ? blocks.iptc : blocks.exif) = value;
    }
}

/// The data sets among the resources that Photoshop keeps beside a picture.
QByteArray iptcOf(QByteArrayView resources) {
    constexpr quint16 kIptc = 0x0404;
    for (qsizetype at = 0; resources.sliced(at).startsWith("8BIM");) {
        const auto id = bigEndianAt<quint16>(resources, at + 4);
        const qsizetype name = 1 + bigEndianAt<uchar>(resources, at + 6);
        const qsizetype lengthAt = at + 6 + name + name % 2;
        const qsizetype length = bigEndianAt<quint32>(resources, lengthAt);
        const qsizetype begin = lengthAt + 4;
        const qsizetype there = std::min(length, resources.size() - begin);
        if (id == kIptc) {
            return resources.sliced(begin, there).toByteArray();
        }
        at = std::min(begin + there + there % 2, resources.size());
    }
    return {};
}

void readExif(QByteArrayView block, DescriptionBlocks &blocks) {
    readTiff(FileView(block.toByteArray()), blocks);
}

void readJpeg(const FileView &file, DescriptionBlocks &blocks) {
    constexpr uchar kApp13 = 0xED;
    constexpr QByteArrayView kXmpLead("http://ns.adobe.com/xap/1.0/\0", 29);
    constexpr QByteArrayView kPhotoshopLead("Photoshop 3.0\0", 14);
    JpegSegments segments(file);
    while (const auto segment = segments.next()) {
        const QByteArrayView content = segment->content;
        if (segment->marker == Sos) {
            break;
        }
        if (segment->marker == App1 && content.startsWith(kExifLead)) {
            readExif(content.sliced(kExifLead.size()), blocks);
        } else if (segment->marker == App1 && content.startsWith(kXmpLead)) {
            blocks.xmp = content.sliced(kXmpLead.size()).toByteArray();
        } else if (segment->marker == kApp13 && content.startsWith(kPhotoshopLead)) {
            blocks.iptc = iptcOf(content.sliced(kPhotoshopLead.size()));
        }
    }
}

/// What stands in front of the next zero of `rest`, which then begins behind it.
QByteArrayView takeWord(QByteArrayView &rest) {
    const qsizetype end = rest.indexOf('\0');
    const QByteArrayView word = rest.first(end < 0 ? rest.size() : end);
    rest = rest.sliced(std::min(word.size() + 1, rest.size()));
    return word;
}

/// A chunk of text of a PNG (ISO 15948, 11.3.4).
void readPngText(QByteArrayView type, QByteArrayView chunk, DescriptionBlocks &blocks) {
    const QByteArrayView keyword = takeWord(chunk);
    const bool isXmp = keyword == "XML:com.adobe.xmp";
    if (!isXmp && keyword != "Description") {
        return;
    }
    bool isPacked = type == "zTXt";
    if (type == "iTXt") {
        isPacked = bigEndianAt<uchar>(chunk, 0) != 0;
        chunk = chunk.sliced(std::min<qsizetype>(2, chunk.size()));
        takeWord(chunk); // The language.
        takeWord(chunk); // The keyword in it.
    } else if (isPacked) {
        chunk = chunk.sliced(std::min<qsizetype>(1, chunk.size()));
    }
    const QByteArray text = isPacked ? inflateUpTo(chunk, kMaxBytes) : chunk.toByteArray();
    if (isXmp) {
        blocks.xmp = text;
    } else {
        blocks.text = type == "iTXt" ? QString::fromUtf8(text) : QString::fromLatin1(text);
    }
}

void readPng(const FileView &file, DescriptionBlocks &blocks) {
    constexpr qint64 kSignature = 8;
    constexpr qint64 kLead = 8;
    for (qint64 at = kSignature; at + kLead <= file.size();) {
        const QByteArray lead = file.readExactly(at, kLead);
        const qint64 length = bigEndianAt<quint32>(lead, 0);
        const QByteArrayView type = QByteArrayView(lead).sliced(4);
        const bool isText = type == "tEXt" || type == "zTXt" || type == "iTXt";
        if (isText && length <= kMaxBytes) {
            readPngText(type, file.readExactly(at + kLead, length), blocks);
        } else if (type == "eXIf" && length <= kMaxBytes) {
            readExif(file.readExactly(at + kLead, length), blocks);
        }
        at += kLead + length + 4;
    }
}

void readWebp(const FileView &file, DescriptionBlocks &blocks) {
    constexpr qint64 kFirst = 12;
    constexpr qint64 kLead = 8;
    for (qint64 at = kFirst; at + kLead <= file.size();) {
        const QByteArray lead = file.readExactly(at, kLead);
        const qint64 length = littleEndianAt<quint32>(lead, 4);
        if (lead.startsWith("XMP ") && length <= kMaxBytes) {
            blocks.xmp = file.readExactly(at + kLead, length);
        } else if (lead.startsWith("EXIF") && length <= kMaxBytes) {
            const QByteArray block = file.readExactly(at + kLead, length);
            readExif(block.startsWith(kExifLead) ? QByteArrayView(block).sliced(kExifLead.size())
                                                 : QByteArrayView(block),
                     blocks);
        }
        at += kLead + length + length % 2;
    }
}

void readBlocks(const FileView &file, DescriptionBlocks &blocks) {
    const QByteArray head = file.read(0, 12);
    if (head.startsWith("\xFF\xD8")) {
        readJpeg(file, blocks);
    } else if (head.startsWith("\x89PNG")) {
        readPng(file, blocks);
    } else if (head.startsWith("II*") || head.startsWith(QByteArrayView("MM\0*", 4))) {
        readTiff(file, blocks);
    } else if (head.startsWith("RIFF") && head.endsWith("WEBP")) {
        readWebp(file, blocks);
    }
}

} // namespace

DescriptionBlocks readDescriptionBlocks(const FileView &file) {
    DescriptionBlocks blocks;
    try {
        readBlocks(file, blocks);
    } catch (const Error &) {
        // Of a damaged file what stands before the damage counts.
    }
    return blocks;
}

} // namespace folioforge
