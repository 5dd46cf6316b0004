// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/ImageHeader.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <new>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

struct FreeOptions {
    void operator()(TIFFOpenOptions *options) const { TIFFOpenOptionsFree(options); }
};

} // namespace

TiffFile::TiffFile(const FileView &file, qint64 directory, std::optional<char> padding)
    : m_state(new State{file, {}, 0, {}, 0, 0})
    , m_directory(directory) {
    const std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
    if (!options) {
        throw std::bad_alloc();
    }
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), keepMessage, m_state.get());
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), countWarning, m_state.get());
    constexpr tmsize_t kMaxBytesAtOnce = kMaxImagePixels * 8;
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), kMaxBytesAtOnce);
    // m: no mapping, since a file that shrinks while mapped ends the process. h: no directory yet.
    m_handle.reset(TIFFClientOpenExt("image", directory == 0 ? "rm" : "rhm", m_state.get(), read,
                                     refuseWrite, seek, close, size, nullptr, nullptr,
                                     options.get()));
    if (!m_handle || (directory != 0 &&
                      TIFFSetSubDirectory(m_handle.get(), static_cast<uint64_t>(directory)) == 0)) {
        fail();
    }
    // Not before: the directory may tell of gigabytes behind the end.
    m_state->padding = padding;
}

int TiffFile::number(uint32_t tag, int missing) const {
    uint16_t value = 0;
    return TIFFGetFieldDefaulted(handle(), tag, &value) == 1 ? value : missing;
}

void TiffFile::fail() const {
    throw Error(tiffReason(m_state->message));
}

QString tiffReason(const QString &message) {
    struct Cause {
        QLatin1StringView sign; ///< A part of what libtiff says; the first that fits counts.
        const char *words;
    };
    static constexpr std::array kCauses{
        Cause{"can not handle"_L1, QT_TRANSLATE_NOOP("Reasons", "its form is not supported")},
        Cause{"is not supported"_L1, QT_TRANSLATE_NOOP("Reasons", "its form is not supported")},
        Cause{"not supported"_L1, QT_TRANSLATE_NOOP("Reasons", "its form is not supported")},
        Cause{"Cannot handle zero"_L1, QT_TRANSLATE_NOOP("Reasons", "it has no pixels")},
        Cause{"memory"_L1, QT_TRANSLATE_NOOP("Reasons", "it is larger than any picture")},
        Cause{"directory"_L1, QT_TRANSLATE_NOOP("Reasons", "its directory is damaged")},
        Cause{"Read error"_L1, QT_TRANSLATE_NOOP("Reasons", "it is cut off")},
        Cause{"Not enough data"_L1, QT_TRANSLATE_NOOP("Reasons", "it is cut off")},
    };
    const auto cause = std::ranges::find_if(
        kCauses, [&](const Cause &known) { return message.contains(known.sign); });
    const QString damaged = Reasons::tr("The TIFF file is damaged");
    return cause == kCauses.end()
               ? damaged
               : Reasons::tr("The TIFF file cannot be read: %1").arg(Reasons::tr(cause->words));
}

tmsize_t TiffFile::read(thandle_t handle, void *target, tmsize_t size) {
    auto &state = *static_cast<State *>(handle);
    try {
        const qint64 got = state.file.readInto(
            state.at, {static_cast<uchar *>(target), static_cast<size_t>(size)});
        if (state.padding && got < size) {
            std::memset(static_cast<char *>(target) + got, *state.padding,
                        static_cast<size_t>(size - got));
            state.at += size;
            return size;
        }
        state.at += got;
        return got;
    } catch (...) {
        return -1; // No exception may pass through the library.
    }
}

tmsize_t TiffFile::refuseWrite(thandle_t /*handle*/, void * /*source*/, tmsize_t /*size*/) {
    return -1;
}

toff_t TiffFile::seek(thandle_t handle, toff_t offset, int whence) {
    auto &state = *static_cast<State *>(handle);
    const qint64 base = whence == SEEK_END ? state.file.size() : whence == SEEK_CUR ? state.at : 0;
    state.at = base + static_cast<qint64>(offset);
    return static_cast<toff_t>(state.at);
}

int TiffFile::close(thandle_t /*handle*/) {
    return 0;
}

toff_t TiffFile::size(thandle_t handle) {
    return static_cast<toff_t>(static_cast<State *>(handle)->file.size());
}

int TiffFile::keepMessage(TIFF * /*tif*/, void *data, const char * /*module*/, const char *format,
                          va_list arguments) {
    auto &state = *static_cast<State *>(data);
    ++state.errors;
    if (state.message.isEmpty()) {
        char text[256];
        std::vsnprintf(text, sizeof text, format, arguments);
        state.message = QString::fromUtf8(text);
    }
    return 1;
}

int TiffFile::countWarning(TIFF * /*tif*/, void *data, const char * /*module*/,
                           const char * /*format*/, va_list /*arguments*/) {
    ++static_cast<State *>(data)->warnings;
    return 1;
}

} // namespace folioforge
