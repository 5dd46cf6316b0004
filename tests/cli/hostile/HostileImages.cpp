// SPDX-License-Identifier: Apache-2.0

#include "HostileImages.h"

#include "ZerosInFlate.h"
#include "support/ByteOrder.h"

namespace folioforge::test {

namespace {

quint32 crcOf(const QByteArray &bytes) {
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= static_cast<uchar>(byte);
        for (int i = 0; i < 8; ++i) {
            crc = crc >> 1U ^ (crc & 1U ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

QByteArray pngChunk(const QByteArray &type, const QByteArray &data) {
    return big(static_cast<quint32>(data.size())) + type + data + big(crcOf(type + data));
}

/// `colorType` and eight bits a sample.
QByteArray pngStart(quint32 side, char colorType) {
    return "\x89PNG\r\n\x1A\n" +
           pngChunk("IHDR", big(side) + big(side) + '\x8' + colorType + QByteArray(3, '\0'));
}

QByteArray tiffOf(quint32 side, const QByteArray &strip) {
    constexpr quint32 kDirectory = 8;
    constexpr quint16 kShort = 3;
    constexpr quint16 kLong = 4;
    struct Entry {
        quint16 tag, type;
        quint32 value;
    };
    constexpr quint32 kEntries = 8;
    constexpr quint32 kStrip = kDirectory + 2 + 12 * kEntries + 4;
    const Entry entries[kEntries] = {
        {256, kLong, side}, {257, kLong, side},
        {258, kShort, 8},   {259, kShort, 8}, // Deflate
        {262, kShort, 1},   {273, kLong, kStrip},
        {278, kLong, side}, {279, kLong, static_cast<quint32>(strip.size())}};
    QByteArray file = "II*" + QByteArray(1, '\0') + little(kDirectory) + little(quint16{kEntries});
    for (const Entry &entry : entries) {
        file += little(entry.tag) + little(entry.type) + little(quint32{1}) + little(entry.value);
    }
    return file + little(quint32{0}) + strip;
}

} // namespace

QList<std::pair<const char *, QByteArray>> imageHeaders(quint32 side) {
    const auto narrow = static_cast<quint16>(side);
    const QByteArray jp2("\0\0\0\x0CjP  \r\n\x87\n\0\0\0\x14"
                         "ftypjp2 \0\0\0\0jp2 \0\0\0\x2Djp2h"
                         "\0\0\0\x16ihdr",
                         48);
    return {
        {"png", pngStart(side, 2) + pngChunk("IDAT", zerosInFlate(1000)) + pngChunk("IEND", {})},
        {"bmp", "BM" + QByteArray(12, '\0') + little(quint32{40}) + little(side) + little(side) +
                    little(quint16{1}) + little(quint16{24}) + QByteArray(24, '\0')},
        {"gif", "GIF89a" + little(narrow) + little(narrow) + QByteArray(3, '\0') + "," +
                    QByteArray(4, '\0') + little(narrow) + little(narrow) + QByteArray(9, '\2')},
        {"jpg", QByteArray("\xFF\xD8\xFF\xC0\0\x11\x08", 7) + big(narrow) + big(narrow) +
                    QByteArray("\3\1\x11\0\2\x11\0\3\x11\0", 10) +
                    QByteArray("\xFF\xDA\0\x0C\3\1\0\2\0\3\0\0\x3F\0\0\0\0", 17)},
        {"tga", QByteArray("\0\0\2\0\0\0\0\0\0\0\0\0", 12) + little(narrow) + little(narrow) +
                    QByteArray("\x18\0", 2) + QByteArray(100, '\0')},
        {"psd", QByteArray("8BPS\0\1\0\0\0\0\0\0\0\3", 14) + big(side) + big(side) +
                    QByteArray("\0\x8\0\3", 4) + QByteArray(100, '\0')},
        {"tif", tiffOf(side, zerosInFlate(1000))},
        {"jp2", jp2 + big(side) + big(side) + QByteArray("\0\3\7\7\0\0", 6) +
                    QByteArray("\0\0\0\x0F"
                               "colr\1\0\0\0\0\0\x10",
                               15)},
        {"webp", "RIFF" + little(quint32{22}) + "WEBPVP8X" + little(quint32{10}) +
                     QByteArray(4, '\0') + little(side - 1).first(3) + little(side - 1).first(3)},
    };
}

QByteArray transparentPng(qint64 side) {
    const qint64 bytes = side * (side * 4 + 1);
    return pngStart(static_cast<quint32>(side), 6) + pngChunk("IDAT", zerosInFlate(bytes)) +
           pngChunk("IEND", {});
}

QByteArray pngWithProfile(qint64 count) {
    return pngStart(1, 2) + pngChunk("iCCP", QByteArray("p\0\0", 3) + zerosInFlate(count)) +
           pngChunk("IDAT", zerosInFlate(4)) + pngChunk("IEND", {});
}

QByteArray deflatedTiff(qint64 side) {
    return tiffOf(static_cast<quint32>(side), zerosInFlate(side * side));
}

} // namespace folioforge::test
