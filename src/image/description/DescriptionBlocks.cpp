// SPDX-License-Identifier: Apache-2.0

#include "image/description/DescriptionBlocks.h"

#include "files/SourceFile.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/Exif.h"
#include "image/XmpNames.h"
#include "image/formats/Chunks.h"
#include "image/formats/Jpeg2000.h"
#include "image/formats/JpegSegments.h"
#include "image/formats/PhotoshopResources.h"
#include "image/formats/PsdMetadata.h"

#include <algorithm>
#include <utility>

namespace folioforge {

namespace {

constexpr quint16 kImageDescription = 270;

/// What stands in front of the next zero of `rest`, which then begins behind it.
QByteArrayView takeWord(QByteArrayView &rest) {
    const qsizetype end = rest.indexOf('\0');
    const QByteArrayView word = rest.first(end < 0 ? rest.size() : end);
    rest = rest.sliced(std::min(word.size() + 1, rest.size()));
    return word;
}

/// The text of a chunk of a PNG (ISO 15948, 11.3.4), of which `rest` is what follows the keyword.
QByteArray pngText(QByteArrayView type, QByteArrayView rest) {
    bool isPacked = type == "zTXt";
    if (type == "iTXt") {
        isPacked = bigEndianAt<uchar>(rest, 0) != 0;
        rest = rest.sliced(std::min<qsizetype>(2, rest.size()));
        takeWord(rest); // The language.
        takeWord(rest); // The keyword in it.
    } else if (isPacked) {
        rest = rest.sliced(std::min<qsizetype>(1, rest.size()));
    }
    return isPacked ? inflateUpTo(rest, kMaxDescriptionBytes) : rest.toByteArray();
}

void addPngText(QByteArrayView type, QByteArrayView chunk, DescriptionBlocks &blocks) {
    const QByteArrayView keyword = takeWord(chunk);
    if (keyword == "XML:com.adobe.xmp") {
        takeFirst(blocks.xmp, [&] { return pngText(type, chunk); });
    } else if (keyword == "Description") {
        takeFirst(blocks.text, [&] {
            const QByteArray text = pngText(type, chunk);
            return type == "iTXt" ? QString::fromUtf8(text) : QString::fromLatin1(text);
        });
    }
}

/// A box of JPEG 2000 that another standard names by a number of 16 bytes.
void addUuidBox(const FileView &content, DescriptionBlocks &blocks) {
    constexpr qint64 kNumber = 16;
    constexpr QByteArrayView kXmpBox(
        "\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC", kNumber);
    constexpr QByteArrayView kIptcBox(
        "\x33\xC7\xA4\xD2\xB8\x1D\x47\x23\xA0\xBA\xF1\xA3\xE0\x97\xAD\x38", kNumber);
    const QByteArray number = content.read(0, kNumber);
    const auto rest = [&] { return content.read(kNumber, kMaxDescriptionBytes); };
    if (number == kXmpBox) {
        takeFirst(blocks.xmp, rest);
    } else if (number == kIptcBox) {
        takeFirst(blocks.iptc, rest);
    } else if (number == "JpgTiffExif->JP2") {
        takeFirst(blocks.exif, [&] { return descriptionInExif(rest()); });
    }
}

} // namespace

QByteArray descriptionInExif(QByteArrayView block) {
    return exifDirectory(block).bytes(kImageDescription, kMaxDescriptionBytes);
}

void addPhotoshopBlocks(QByteArrayView resources, DescriptionBlocks &blocks) {
    enum Resource : quint16 { Iptc = 1028, Exif = 1058, Xmp = 1060 };
    forEachPhotoshopResource(resources, [&](quint16 id, QByteArrayView data) {
        if (id == Iptc) {
            takeFirst(blocks.iptc, [&] { return data.toByteArray(); });
        } else if (id == Exif) {
            takeFirst(blocks.exif, [&] { return descriptionInExif(data); });
        } else if (id == Xmp) {
            takeFirst(blocks.xmp, [&] { return data.toByteArray(); });
        }
    });
}

void addJpegBlocks(const FileView &file, DescriptionBlocks &blocks) {
    constexpr uchar kApp13 = 0xED;
    constexpr QByteArrayView kXmpLead("http://ns.adobe.com/xap/1.0/\0", 29);
    constexpr QByteArrayView kPhotoshopLead("Photoshop 3.0\0", 14);
    QByteArray resources; // What is longer than a segment goes on in the next.
    JpegSegments segments(file);
    for (auto segment = segments.next(); segment && segment->marker != Sos;
         segment = segments.next()) {
        const QByteArrayView content = segment->content;
        if (segment->marker == App1 && content.startsWith(kExifLead)) {
            takeFirst(blocks.exif, [&] { return descriptionInExif(content); });
        } else if (segment->marker == App1 && content.startsWith(kXmpLead)) {
            takeFirst(blocks.xmp, [&] { return content.sliced(kXmpLead.size()).toByteArray(); });
        } else if (segment->marker == kApp13 && content.startsWith(kPhotoshopLead) &&
                   resources.size() < kMaxDescriptionBytes) {
            resources += content.sliced(kPhotoshopLead.size());
        }
    }
    addPhotoshopBlocks(resources, blocks);
}

void addJpeg2000Blocks(const FileView &file, DescriptionBlocks &blocks) {
    Jpeg2000Boxes boxes(file);
    while (const auto box = boxes.next()) {
        if (box->content.size() > kMaxDescriptionBytes) {
            continue;
        }
        if (box->type == "uuid") {
            addUuidBox(box->content, blocks);
        } else if (box->type == "xml ") {
            QByteArray xml = box->content.read(0, kMaxDescriptionBytes);
            if (xml.contains(kRdf)) { // Else no XMP.
                takeFirst(blocks.xmp, [&] { return std::move(xml); });
            }
        }
    }
}

void addPngBlocks(const FileView &file, DescriptionBlocks &blocks) {
    PngChunks chunks(file);
    while (const auto chunk = chunks.next()) {
        const QByteArray &type = chunk->type;
        const auto content = [&] { return file.readExactly(chunk->at, chunk->length); };
        if (chunk->length > kMaxDescriptionBytes) {
            continue;
        }
        if (type == "tEXt" || type == "zTXt" || type == "iTXt") {
            addPngText(type, content(), blocks);
        } else if (type == "eXIf") {
            takeFirst(blocks.exif, [&] { return descriptionInExif(content()); });
        }
    }
}

void addPsdBlocks(const FileView &file, DescriptionBlocks &blocks) {
    addPhotoshopBlocks(readPsdResources(file), blocks);
}

void addTiffBlocks(const FileView &file, DescriptionBlocks &blocks) {
    enum DescriptionTag : quint16 { Xmp = 700, Iptc = 33723 };
    const QByteArray head = file.read(0, 4);
    if (head != QByteArrayView("II*\0", 4) && head != QByteArrayView("MM\0*", 4)) {
        return;
    }
    const TiffDirectory directory(file);
    const auto bytes = [&](quint16 tag) { return directory.bytes(tag, kMaxDescriptionBytes); };
    blocks.xmp = bytes(Xmp);
    blocks.iptc = bytes(Iptc);
    blocks.exif = bytes(kImageDescription);
}

void addWebpBlocks(const FileView &file, DescriptionBlocks &blocks) {
    WebpChunks chunks(file);
    while (const auto chunk = chunks.next()) {
        const auto content = [&] { return file.readExactly(chunk->at, chunk->length); };
        if (chunk->length > kMaxDescriptionBytes) {
            continue;
        }
        if (chunk->type == "XMP ") {
            takeFirst(blocks.xmp, content);
        } else if (chunk->type == "EXIF") {
            takeFirst(blocks.exif, [&] { return descriptionInExif(content()); });
        }
    }
}

} // namespace folioforge
