// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Signatures.h"

#include "image/Bytes.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

constexpr qsizetype kBrandBytes = 4;

/// Whether the box at the start of a file (ISO 14496-12, 4.3) names one of `brands`.
template<std::size_t count>
bool hasBrand(QByteArrayView head, const std::array<QByteArrayView, count> &brands) {
    constexpr qsizetype kFirstBrand = 8; // Behind the length of the box and its name.
    constexpr qsizetype kVersion = 12;
    if (head.size() < kFirstBrand + kBrandBytes || head.sliced(4, 4) != "ftyp") {
        return false;
    }
    const auto end = std::min<qsizetype>(head.size(), bigEndianAt<quint32>(head, 0));
    for (qsizetype at = kFirstBrand; at + kBrandBytes <= end; at += kBrandBytes) {
        if (at != kVersion && std::ranges::find(brands, head.sliced(at, 4)) != brands.end()) {
            return true;
        }
    }
    return false;
}

} // namespace

bool isExr(QByteArrayView head) {
    return head.startsWith("\x76\x2F\x31\x01");
}

bool isHeif(QByteArrayView head) {
    return isHeifSequence(head) ||
           hasBrand(head,
                    std::array<QByteArrayView, 6>{"heic", "heix", "heim", "heis", "mif1", "avif"});
}

bool isHeifSequence(QByteArrayView head) {
    return hasBrand(head, std::array<QByteArrayView, 4>{"hevc", "hevx", "msf1", "avis"});
}

bool isJpegXl(QByteArrayView head) {
    return head.startsWith("\xFF\x0A") ||
           head.startsWith(QByteArrayView("\0\0\0\x0CJXL \r\n\x87\n", 12));
}

bool isWebp(QByteArrayView head) {
    return head.startsWith("RIFF") && head.size() >= 12 && head.sliced(8, 4) == "WEBP";
}

} // namespace folioforge
