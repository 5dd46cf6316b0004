// SPDX-License-Identifier: Apache-2.0

#include "verify/Group4Reading.h"

#include "files/Checksum.h"
#include "pdf/import/Entries.h"

#include <qpdf/Buffer.hh>

#include <QByteArray>
#include <QtEndian>

#include <tiffio.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <vector>

namespace folioforge {
namespace {

/// A file in memory that libtiff reads, and whether it has complained.
struct MemoryFile {
    QByteArray bytes;
    qsizetype at = 0;
    bool isDamaged = false;
};

MemoryFile &fileBehind(thandle_t handle) {
    return *static_cast<MemoryFile *>(handle);
}

tmsize_t readFile(thandle_t handle, void *target, tmsize_t size) {
    MemoryFile &file = fileBehind(handle);
    const auto got =
        std::clamp<qsizetype>(file.bytes.size() - file.at, 0, static_cast<qsizetype>(size));
    std::copy_n(file.bytes.constData() + file.at, got, static_cast<char *>(target));
    file.at += got;
    return got;
}

tmsize_t refuseToWrite(thandle_t /*handle*/, void * /*source*/, tmsize_t /*size*/) {
    return -1;
}

toff_t seekFile(thandle_t handle, toff_t offset, int whence) {
    MemoryFile &file = fileBehind(handle);
    const qsizetype base = whence == SEEK_END   ? file.bytes.size()
                           : whence == SEEK_CUR ? file.at
                                                : 0;
    file.at = base + static_cast<qsizetype>(offset);
    return static_cast<toff_t>(file.at);
}

int closeFile(thandle_t /*handle*/) {
    return 0;
}

toff_t fileSize(thandle_t handle) {
    return static_cast<toff_t>(fileBehind(handle).bytes.size());
}

int noteDamage(TIFF * /*tiff*/, void *file, const char * /*module*/, const char * /*format*/,
               va_list /*arguments*/) {
    static_cast<MemoryFile *>(file)->isDamaged = true;
    return 1;
}

struct Free {
    void operator()(TIFF *tiff) const { TIFFClose(tiff); }
    void operator()(TIFFOpenOptions *options) const { TIFFOpenOptionsFree(options); }
};

void append(QByteArray &bytes, quint16 value) {
    std::array<char, 2> raw{};
    qToLittleEndian(value, raw.data());
    bytes.append(raw.data(), raw.size());
}

void append(QByteArray &bytes, quint32 value) {
    std::array<char, 4> raw{};
    qToLittleEndian(value, raw.data());
    bytes.append(raw.data(), raw.size());
}

/// The data of one strip with what TIFF 6.0 wants before them: a header and a directory.
QByteArray asTiff(QByteArrayView strip, int width, int height) {
    constexpr quint16 kLong = 4;
    const std::vector<std::pair<quint16, quint32>> tags{
        {TIFFTAG_IMAGEWIDTH, width},
        {TIFFTAG_IMAGELENGTH, height},
        {TIFFTAG_BITSPERSAMPLE, 1},
        {TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4},
        {TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE},
        {TIFFTAG_STRIPOFFSETS, 0}, // Set below.
        {TIFFTAG_SAMPLESPERPIXEL, 1},
        {TIFFTAG_ROWSPERSTRIP, height},
        {TIFFTAG_STRIPBYTECOUNTS, static_cast<quint32>(strip.size())}};
    constexpr quint32 kHeader = 8;
    constexpr quint32 kEntry = 12;
    const quint32 data = kHeader + 2 + kEntry * static_cast<quint32>(tags.size()) + 4;
    QByteArray bytes("II\x2A\0", 4);
    append(bytes, kHeader);
    append(bytes, static_cast<quint16>(tags.size()));
    for (const auto &[tag, value] : tags) {
        append(bytes, tag);
        append(bytes, kLong);
        append(bytes, quint32{1});
        append(bytes, tag == TIFFTAG_STRIPOFFSETS ? data : value);
    }
    append(bytes, quint32{0});
    return bytes.append(strip);
}

std::unique_ptr<TIFF, Free> open(MemoryFile &file) {
    const std::unique_ptr<TIFFOpenOptions, Free> options(TIFFOpenOptionsAlloc());
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), noteDamage, &file);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), noteDamage, &file);
    return std::unique_ptr<TIFF, Free>(
        TIFFClientOpenExt("strip", "rm", &file, readFile, refuseToWrite, seekFile, closeFile,
                          fileSize, nullptr, nullptr, options.get()));
}

/// Gives the rows one after another to `take`; false where they are damaged.
template<typename Take>
bool forEachRow(QPDFObjectHandle image, int width, int height, const Take &take) {
    const auto data = image.getRawStreamData();
    MemoryFile file;
    file.bytes = asTiff({reinterpret_cast<const char *>(data->getBuffer()),
                         static_cast<qsizetype>(data->getSize())},
                        width, height);
    const auto tiff = open(file);
    if (!tiff) {
        return false;
    }
    std::vector<char> row(static_cast<std::size_t>(TIFFScanlineSize(tiff.get())));
    for (int y = 0; y < height; ++y) {
        if (TIFFReadScanline(tiff.get(), row.data(), static_cast<quint32>(y), 0) < 0) {
            return false;
        }
        take(QByteArrayView(row.data(), std::ssize(row)));
    }
    return !file.isDamaged;
}

} // namespace

std::optional<quint64> group4Checksum(const QPDFObjectHandle &image, int width, int height) {
    Checksum checksum;
    const bool isWhole =
        forEachRow(image, width, height, [&](QByteArrayView row) { checksum.add(row); });
    return isWhole ? std::optional(checksum.value()) : std::nullopt;
}

std::string group4Rows(QPDFObjectHandle image, int width, int height) {
    const QPDFObjectHandle parameters = onlyItem(image.getDict().getKey("/DecodeParms"));
    const auto numberIn = [&](const char *key, int usual) {
        QPDFObjectHandle number = entry(parameters, key);
        return number.isInteger() ? number.getIntValueAsInt() : usual;
    };
    constexpr int kUsualColumns = 1728;
    const bool isGroup3 = numberIn("/K", 0) >= 0;
    if (isGroup3 || numberIn("/Columns", kUsualColumns) != width ||
        numberIn("/Rows", height) != height || isTrue(entry(parameters, "/EncodedByteAlign"))) {
        return {};
    }
    const bool blackIsOne = isTrue(entry(parameters, "/BlackIs1"));
    std::string rows;
    const bool isWhole = forEachRow(image, width, height, [&](QByteArrayView row) {
        for (const char byte : row) {
            rows += blackIsOne ? byte : static_cast<char>(~byte);
        }
    });
    return isWhole ? rows : std::string();
}

} // namespace folioforge
