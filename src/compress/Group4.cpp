// SPDX-License-Identifier: Apache-2.0

#include "compress/Group4.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <memory>
#include <new>

#include <tiffio.h>

namespace folioforge {

namespace {

/// The TIFF file in memory that libtiff writes a picture into.
struct MemoryFile {
    std::string bytes;
    toff_t at = 0;
};

tmsize_t readMemory(thandle_t handle, void *target, tmsize_t size) {
    auto &file = *static_cast<MemoryFile *>(handle);
    const auto room = static_cast<tmsize_t>(file.bytes.size() - file.at);
    const tmsize_t got = std::min(size, room);
    std::copy_n(file.bytes.data() + file.at, got, static_cast<char *>(target));
    file.at += static_cast<toff_t>(got);
    return got;
}

tmsize_t writeMemory(thandle_t handle, void *source, tmsize_t size) {
    auto &file = *static_cast<MemoryFile *>(handle);
    try {
        const toff_t end = file.at + static_cast<toff_t>(size);
        file.bytes.resize(std::max<std::size_t>(file.bytes.size(), end));
        std::copy_n(static_cast<const char *>(source), size, file.bytes.data() + file.at);
        file.at = end;
        return size;
    } catch (const std::bad_alloc &) {
        return -1; // No exception may pass through the library.
    }
}

toff_t seekMemory(thandle_t handle, toff_t offset, int whence) {
    auto &file = *static_cast<MemoryFile *>(handle);
    const toff_t base = whence == SEEK_END ? file.bytes.size() : whence == SEEK_CUR ? file.at : 0;
    return file.at = std::min<toff_t>(base + offset, file.bytes.size());
}

int closeMemory(thandle_t /*handle*/) {
    return 0;
}

toff_t sizeOfMemory(thandle_t handle) {
    return static_cast<MemoryFile *>(handle)->bytes.size();
}

int sayNothing(TIFF * /*tif*/, void * /*data*/, const char * /*module*/, const char * /*format*/,
               va_list /*arguments*/) {
    return 1;
}

struct FreeTiff {
    void operator()(TIFF *tiff) const { TIFFCleanup(tiff); } // Its directory is of no use.
    void operator()(TIFFOpenOptions *options) const { TIFFOpenOptionsFree(options); }
};

/// The data of the one strip of `file`.
std::string stripOf(TIFF *tiff, const MemoryFile &file) {
    uint64_t *offset = nullptr;
    uint64_t *length = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_STRIPOFFSETS, &offset) != 1 ||
        TIFFGetField(tiff, TIFFTAG_STRIPBYTECOUNTS, &length) != 1) {
        throw std::bad_alloc();
    }
    return file.bytes.substr(*offset, *length);
}

/// Runs of bits that are 0 are white to Group 4, which has the shorter codes for them.
std::string encodeRows(std::string &rows, int width, int height) {
    MemoryFile file;
    const std::unique_ptr<TIFFOpenOptions, FreeTiff> options(TIFFOpenOptionsAlloc());
    if (!options) {
        throw std::bad_alloc();
    }
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), sayNothing, nullptr);
    const std::unique_ptr<TIFF, FreeTiff> tiff(
        TIFFClientOpenExt("group4", "w", &file, readMemory, writeMemory, seekMemory, closeMemory,
                          sizeOfMemory, nullptr, nullptr, options.get()));
    if (!tiff) {
        throw std::bad_alloc();
    }
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, width);
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, height);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, height);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 1);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
    TIFFSetField(tiff.get(), TIFFTAG_FILLORDER, FILLORDER_MSB2LSB);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
    if (TIFFWriteEncodedStrip(tiff.get(), 0, rows.data(), static_cast<tmsize_t>(rows.size())) < 0) {
        throw std::bad_alloc();
    }
    return stripOf(tiff.get(), file);
}

} // namespace

Group4 encodeGroup4(std::string rows, int width, int height) {
    std::size_t ones = 0;
    for (const char byte : rows) {
        ones += static_cast<std::size_t>(std::popcount(static_cast<unsigned char>(byte)));
    }
    constexpr std::size_t kBits = 8;
    const bool isInverted = ones > rows.size() * kBits / 2;
    if (isInverted) {
        for (char &byte : rows) {
            byte = static_cast<char>(~byte);
        }
    }
    return {encodeRows(rows, width, height), !isInverted};
}

} // namespace folioforge
