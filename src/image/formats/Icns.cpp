// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/formats/IcnsPixels.h"
#include "image/formats/IconPictures.h"

#include <optional>

namespace folioforge {

namespace {

/// An entry that can be shown: a PNG or JPEG 2000 file with its format, or a classic icon.
struct Candidate {
    ImageHeader header;
    int bits = 0;
    FileView content;
    std::optional<ImageFormat> format;
    std::optional<ClassicIcon> classic;
};

struct Entries {
    std::vector<IcnsEntry> all;
    bool isCutOff = false; ///< Others may have stood in the file.
};

Entries entriesOf(const FileView &file) {
    constexpr qint64 kLead = 8;          // Type and length, of the file and of each entry.
    constexpr size_t kMaxEntries = 1000; // There are about 40 types.
    const qint64 stated = bigEndianAt<quint32>(file.readExactly(0, kLead), 4);
    Entries entries{{}, stated > file.size()};
    for (qint64 at = kLead; at + kLead <= file.size() && entries.all.size() < kMaxEntries;) {
        const QByteArray lead = file.readExactly(at, kLead);
        const qint64 length = bigEndianAt<quint32>(lead, 4);
        if (length < kLead || length > file.size() - at) {
            // What came before a damaged entry can still be shown.
            entries.isCutOff = entries.isCutOff || at < stated;
            break;
        }
        entries.all.push_back({lead.first(4), file.part(at + kLead, length - kLead)});
        at += length;
    }
    return entries;
}

std::optional<Candidate> candidateOf(const IcnsEntry &entry) {
    const QByteArray head = entry.content.read(0, kSniffedBytes);
    for (const ImageFormat &format : {pngFormat(), jpeg2000Format()}) {
        if (format.recognises(head)) {
            constexpr int kJpeg2000Bits = 32; // Such entries have full colour and opacity.
            const int bits = format.kind == ImageKind::Png ? pngPixelBits(head) : kJpeg2000Bits;
            return Candidate{format.readHeader(entry.content), bits, entry.content, format,
                             std::nullopt};
        }
    }
    const auto classic = classicIconOf(entry.type);
    if (!classic) {
        return std::nullopt;
    }
    Candidate candidate{{}, classic->bits, entry.content, std::nullopt, classic};
    candidate.header.width = classic->width;
    candidate.header.height = classic->height;
    candidate.header = checkedHeader(candidate.header);
    return candidate;
}

/// The picture to show, and what is said of the others.
struct Choice {
    Candidate picture;
    Warnings warnings;
};

Choice largestOf(const std::vector<IcnsEntry> &entries) {
    LargestPicture<Candidate> largest;
    for (const IcnsEntry &entry : entries) {
        largest.offer([&] { return candidateOf(entry); });
    }
    return {largest.picture(),
            otherPictures(largest.readable() + largest.unreadable(), largest.unreadable())};
}

bool recognises(QByteArrayView head) {
    return head.startsWith("icns");
}

ImageHeader readHeader(const FileView &file) {
    return largestOf(entriesOf(file).all).picture.header;
}

PdfImage toPdfImage(const FileView &file) {
    const Entries entries = entriesOf(file);
    const auto [largest, warnings] = largestOf(entries.all);
    PdfImage image =
        largest.format
            ? largest.format->toPdfImage(largest.content)
            : encodeRaster(decodeClassicIcon(*largest.classic, largest.content, entries.all),
                           largest.header);
    image.warnings.insert(image.warnings.end(), warnings.begin(), warnings.end());
    if (entries.isCutOff) {
        image.warnings.push_back(
            {WarningCode::PictureDamaged,
             Reasons::tr("The icon file is cut off or damaged: there may be a larger "
                         "picture in the part that is missing")});
    }
    return image;
}

} // namespace

ImageFormat icnsFormat() {
    return {ImageKind::Icns, {QLatin1StringView("icns")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
