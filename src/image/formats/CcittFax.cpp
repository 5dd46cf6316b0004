// SPDX-License-Identifier: Apache-2.0

#include "image/formats/CcittFax.h"

#include "error/Error.h"
#include "image/Raster.h"

#include <tiffio.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace folioforge {

namespace {

/// A TIFF file in memory: libtiff's encoder writes nothing else.
struct MemoryFile {
    QByteArray bytes;
    qsizetype position = 0;
};

MemoryFile &fileOf(thandle_t handle) {
    return *static_cast<MemoryFile *>(handle);
}

tmsize_t readMemory(thandle_t handle, void *target, tmsize_t size) {
    MemoryFile &file = fileOf(handle);
    const qsizetype got =
        std::clamp<qsizetype>(file.bytes.size() - file.position, 0, static_cast<qsizetype>(size));
    std::memcpy(target, file.bytes.constData() + file.position, static_cast<size_t>(got));
    file.position += got;
    return got;
}

tmsize_t writeMemory(thandle_t handle, void *source, tmsize_t size) {
    MemoryFile &file = fileOf(handle);
    if (file.bytes.size() < file.position + size) {
        file.bytes.resize(file.position + size);
    }
    std::memcpy(file.bytes.data() + file.position, source, static_cast<size_t>(size));
    file.position += size;
    return size;
}

toff_t seekMemory(thandle_t handle, toff_t offset, int whence) {
    MemoryFile &file = fileOf(handle);
    const qsizetype base = whence == SEEK_END   ? file.bytes.size()
                           : whence == SEEK_CUR ? file.position
                                                : 0;
    file.position = base + static_cast<qsizetype>(offset);
    return static_cast<toff_t>(file.position);
}

int closeMemory(thandle_t /*handle*/) {
    return 0;
}

toff_t sizeOfMemory(thandle_t handle) {
    return static_cast<toff_t>(fileOf(handle).bytes.size());
}

int ignoreMessage(TIFF * /*tif*/, void * /*data*/, const char * /*module*/, const char * /*format*/,
                  va_list /*arguments*/) {
    return 1;
}

struct CloseTiff {
    void operator()(TIFF *tif) const { TIFFClose(tif); }
};
struct FreeOptions {
    void operator()(TIFFOpenOptions *options) const { TIFFOpenOptionsFree(options); }
};
using TiffHandle = std::unique_ptr<TIFF, CloseTiff>;

TiffHandle openMemory(MemoryFile &file, const char *mode) {
    const std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), ignoreMessage, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), ignoreMessage, nullptr);
    return TiffHandle(TIFFClientOpenExt("memory", mode, &file, readMemory, writeMemory, seekMemory,
                                        closeMemory, sizeOfMemory, nullptr, nullptr,
                                        options.get()));
}

/// A file for one strip of that many rows; null where there is no memory for it.
TiffHandle beginStrip(MemoryFile &file, int width, int height) {
    TiffHandle tif = openMemory(file, "w");
    if (tif) {
        TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(width));
        TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(height));
        TIFFSetField(tif.get(), TIFFTAG_BITSPERSAMPLE, 1);
        TIFFSetField(tif.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
        TIFFSetField(tif.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
        TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
        TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, static_cast<uint32_t>(height));
    }
    return tif;
}

} // namespace

QByteArray encodeGroup4(const QByteArray &rows, int width, int height) {
    MemoryFile file;
    TiffHandle tif = beginStrip(file, width, height);
    if (!tif) {
        return {};
    }
    QByteArray copy = rows; // The encoder's interface takes a mutable pointer.
    // The strip is in the file now; writing the directory too would forget where.
    if (TIFFWriteEncodedStrip(tif.get(), 0, copy.data(), copy.size()) < 0) {
        return {};
    }
    const auto offset = static_cast<qsizetype>(TIFFGetStrileOffset(tif.get(), 0));
    const auto size = static_cast<qsizetype>(TIFFGetStrileByteCount(tif.get(), 0));
    tif.reset();
    return file.bytes.mid(offset, size);
}

QByteArray decodeGroup4(const QByteArray &data, int width, int height) {
    MemoryFile file;
    TiffHandle tif = beginStrip(file, width, height);
    QByteArray copy = data;
    const bool isWritten =
        tif && TIFFWriteRawStrip(tif.get(), 0, copy.data(), copy.size()) == copy.size();
    tif.reset(); // Which writes the directory.
    file.position = 0;
    tif = isWritten ? openMemory(file, "r") : nullptr;
    QByteArray rows = allocateRows(height, rowBytes(width, 1, 1));
    if (!tif || TIFFReadEncodedStrip(tif.get(), 0, rows.data(), rows.size()) != rows.size()) {
        throw notEnoughMemory();
    }
    return rows;
}

} // namespace folioforge
