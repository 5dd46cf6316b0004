// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/formats/IcnsPixels.h"

#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// An entry that can be shown: a PNG or JPEG 2000 file with its format, or a classic icon.
struct Candidate {
    ImageHeader header;
    int bits = 0;
    FileView content;
    std::optional<ImageFormat> format;
    std::optional<ClassicIcon> classic;

    /// Larger is better, then deeper.
    [[nodiscard]] std::tuple<qint64, int> rank() const {
        return {qint64(header.width) * header.height, bits};
    }
};

std::vector<IcnsEntry> entriesOf(const FileView &file) {
    constexpr qint64 kLead = 8;
    constexpr size_t kMaxEntries = 1000; // There are about 40 types.
    std::vector<IcnsEntry> entries;
    for (qint64 at = kLead; at + kLead <= file.size() && entries.size() < kMaxEntries;) {
        const QByteArray lead = file.readExactly(at, kLead);
        const qint64 length = bigEndianAt<quint32>(lead, 4);
        if (length < kLead || length > file.size() - at) {
            break; // What came before a damaged entry can still be shown.
        }
        entries.push_back({lead.first(4), file.part(at + kLead, length - kLead)});
        at += length;
    }
    return entries;
}

std::optional<Candidate> candidateOf(const IcnsEntry &entry) {
    const QByteArray head = entry.content.read(0, kSniffedBytes);
    for (const ImageFormat &format : {pngFormat(), jpeg2000Format()}) {
        if (format.recognises(head)) {
            constexpr int kDeeperThanClassic = 64;
            return Candidate{format.readHeader(entry.content), kDeeperThanClassic, entry.content,
                             format, std::nullopt};
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

Candidate largestOf(const std::vector<IcnsEntry> &entries) {
    std::optional<Candidate> largest;
    for (const IcnsEntry &entry : entries) {
        try {
            const auto candidate = candidateOf(entry);
            if (candidate && (!largest || candidate->rank() > largest->rank())) {
                largest = candidate;
            }
        } catch (const Error &) {
            // A damaged entry leaves the others.
        }
    }
    if (!largest) {
        throw Error(u"The icon file holds no picture that can be read"_s);
    }
    return *largest;
}

bool recognises(QByteArrayView head) {
    return head.startsWith("icns");
}

ImageHeader readHeader(const FileView &file) {
    return largestOf(entriesOf(file)).header;
}

PdfImage toPdfImage(const FileView &file) {
    const std::vector<IcnsEntry> entries = entriesOf(file);
    const Candidate largest = largestOf(entries);
    if (largest.format) {
        return largest.format->toPdfImage(largest.content);
    }
    return encodeRaster(decodeClassicIcon(*largest.classic, largest.content, entries),
                        largest.header);
}

} // namespace

ImageFormat icnsFormat() {
    return {ImageKind::Icns, {QLatin1StringView("icns")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
