// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegXlDecoder.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/CicpProfile.h"
#include "image/Parallel.h"
#include "image/Raster.h"

#include <jxl/version.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <limits>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

/// Runs the pieces of libjxl's work on all cores, or on those threads that the system grants.
JxlParallelRetCode runPieces(void * /*runner*/, void *work, JxlParallelRunInit init,
                             JxlParallelRunFunction doPiece, uint32_t first, uint32_t end) {
    constexpr uint32_t kMaxThreads = 8;
    const uint32_t threads =
        std::clamp(std::min(std::thread::hardware_concurrency(), end - first), 1U, kMaxThreads);
    if (const JxlParallelRetCode refusal = init(work, threads); refusal != 0) {
        return refusal;
    }
    std::atomic<uint32_t> next = first;
    const auto run = [&](size_t thread) {
        for (uint32_t piece = next++; piece < end; piece = next++) {
            doPiece(work, piece, thread);
        }
    };
    std::vector<std::future<void>> others;
    try {
        for (uint32_t thread = 1; thread < threads; ++thread) {
            others.push_back(runAsync([&run, thread] { run(thread); }));
        }
    } catch (const std::bad_alloc &) { // No exception may pass through the library, and the
                                       // threads that there are do all pieces.
    }
    run(0);
    std::ranges::for_each(others, &std::future<void>::get);
    return 0;
}

bool isSrgb(const JxlColorEncoding &color) {
    return color.white_point == JXL_WHITE_POINT_D65 &&
           color.transfer_function == JXL_TRANSFER_FUNCTION_SRGB &&
           (color.color_space == JXL_COLOR_SPACE_GRAY ||
            (color.color_space == JXL_COLOR_SPACE_RGB && color.primaries == JXL_PRIMARIES_SRGB));
}

// Later versions have dropped an argument that none has used.
#if JPEGXL_NUMERIC_VERSION >= JPEGXL_COMPUTE_NUMERIC_VERSION(0, 9, 0)
template<typename Call, typename... Rest>
bool asks(Call call, const JxlDecoder *decoder, Rest... rest) {
    return call(decoder, rest...) == JXL_DEC_SUCCESS;
}
#else
template<typename Call, typename... Rest>
bool asks(Call call, const JxlDecoder *decoder, Rest... rest) {
    return call(decoder, nullptr, rest...) == JXL_DEC_SUCCESS;
}
#endif

QByteArray profileOf(const JxlDecoder *decoder) {
    constexpr size_t kMaxBytes = 1 << 25;
    size_t size = 0;
    if (!asks(jxl().GetICCProfileSize, decoder, JXL_COLOR_PROFILE_TARGET_DATA, &size) ||
        size > kMaxBytes) {
        return {};
    }
    QByteArray profile(static_cast<qsizetype>(size), '\0');
    auto *const target = reinterpret_cast<uint8_t *>(profile.data());
    const bool isThere =
        asks(jxl().GetColorAsICCProfile, decoder, JXL_COLOR_PROFILE_TARGET_DATA, target, size);
    return isThere ? profile : QByteArray();
}

/// Grey, or colours wider than those of usual screens.
JxlColorEncoding wideColor(const JxlBasicInfo &info) {
    JxlColorEncoding color{};
    color.color_space = info.num_color_channels == 1 ? JXL_COLOR_SPACE_GRAY : JXL_COLOR_SPACE_RGB;
    color.white_point = JXL_WHITE_POINT_D65;
    color.primaries = JXL_PRIMARIES_P3;
    color.transfer_function = JXL_TRANSFER_FUNCTION_SRGB;
    color.rendering_intent = JXL_RENDERING_INTENT_RELATIVE;
    return color;
}

/// Throws std::bad_alloc where there may be too little memory: where it ends inside libjxl 0.7, the
/// program ends.
void requireRoom(const JxlBasicInfo &info) {
    constexpr size_t kBytesOfSample = 20; // Of several copies, as measured.
    const size_t samples =
        size_t(info.xsize) * info.ysize * (info.num_color_channels + info.num_extra_channels);
    static_cast<void>(
        QByteArray(static_cast<qsizetype>(kBytesOfSample * samples), Qt::Uninitialized));
}

} // namespace

ImageHeader headerOf(const JxlBasicInfo &info) {
    constexpr uint32_t kMax = std::numeric_limits<int>::max();
    ImageHeader header;
    header.width = static_cast<int>(std::min(info.xsize, kMax));
    header.height = static_cast<int>(std::min(info.ysize, kMax));
    return header;
}

Error damagedJpegXl() {
    return Error(Reasons::tr("The JPEG XL file is damaged"));
}

JpegXlDecoder::JpegXlDecoder(FileView file, int events)
    : m_file(std::move(file))
    , m_decoder(jxl().Create(nullptr)) {
    if (!m_decoder) {
        throw std::bad_alloc();
    }
    jxl().SubscribeEvents(get(), events);
    jxl().SetParallelRunner(get(), runPieces, nullptr);
    jxl().SetUnpremultiplyAlpha(get(), JXL_TRUE);
    jxl().SetDecompressBoxes(get(), JXL_TRUE);
}

JxlDecoderStatus JpegXlDecoder::step() {
    JxlDecoderStatus status = JXL_DEC_NEED_MORE_INPUT;
    do {
        status = jxl().ProcessInput(get());
    } while (status == JXL_DEC_NEED_MORE_INPUT && feed());
    return status;
}

/// Hands over the next piece with what was left of the last; false at the end of the file.
bool JpegXlDecoder::feed() {
    constexpr qint64 kPiece = 1 << 20;
    const auto left = static_cast<qint64>(jxl().ReleaseInput(get()));
    m_piece = m_file.read(m_at - left, left + kPiece);
    const qint64 further = m_piece.size() - left;
    if (further <= 0) {
        return false;
    }
    m_at += further;
    return jxl().SetInput(get(), reinterpret_cast<const uint8_t *>(m_piece.constData()),
                          static_cast<size_t>(m_piece.size())) == JXL_DEC_SUCCESS;
}

JxlBasicInfo JpegXlDecoder::basicInfo() const {
    JxlBasicInfo info{};
    if (jxl().GetBasicInfo(get(), &info) != JXL_DEC_SUCCESS) {
        throw damagedJpegXl();
    }
    return info;
}

JxlBasicInfo JpegXlDecoder::checkedInfo() const {
    const JxlBasicInfo info = basicInfo();
    requirePlausibleArea(checkedHeader(headerOf(info)), m_file.size());
    requireColors(info);
    requireRoom(info);
    return info;
}

void JpegXlDecoder::requireColors(const JxlBasicInfo &info) const {
    constexpr uint32_t kMaxFurther = 16;
    if (info.num_extra_channels > kMaxFurther) {
        throw Error(
            Reasons::tr("The JPEG XL file has %1 channels beside its colours, which are too many")
                .arg(info.num_extra_channels));
    }
    // With the inks as light libjxl gives colours of light for three of them, and a black beside
    // grey or another black would be lost.
    const auto blacks = blackChannels(info);
    if (!blacks.empty() && (info.uses_original_profile == JXL_FALSE || blacks.size() > 1 ||
                            info.num_color_channels != 3)) {
        throw Error(Reasons::tr("The JPEG XL file stores inks, which cannot be read"));
    }
}

std::vector<uint32_t> JpegXlDecoder::blackChannels(const JxlBasicInfo &info) const {
    std::vector<uint32_t> channels;
    for (uint32_t channel = 0; channel < info.num_extra_channels; ++channel) {
        JxlExtraChannelInfo extra{};
        if (jxl().GetExtraChannelInfo(get(), channel, &extra) == JXL_DEC_SUCCESS &&
            extra.type == JXL_CHANNEL_BLACK) {
            channels.push_back(channel);
        }
    }
    return channels;
}

JpegXlColor JpegXlDecoder::color(const JxlBasicInfo &info) const {
    JxlColorEncoding named{};
    const bool isNamed =
        asks(jxl().GetColorAsEncodedProfile, get(), JXL_COLOR_PROFILE_TARGET_ORIGINAL, &named);
    if (!isNamed && info.uses_original_profile == JXL_FALSE) {
        // Without being asked for more it would give light, of which 8 bits are too few.
        const JxlColorEncoding wide = wideColor(info);
        jxl().SetPreferredColorProfile(get(), &wide);
    }
    JpegXlColor color;
    if (asks(jxl().GetColorAsEncodedProfile, get(), JXL_COLOR_PROFILE_TARGET_DATA, &named)) {
        warnOfHighRange(named.transfer_function, color.warnings);
        if (isSrgb(named)) {
            return color;
        }
    }
    color.iccProfile = profileOf(get());
    return color;
}

QByteArray JpegXlDecoder::takeSamples(const JxlPixelFormat &format) const {
    size_t size = 0;
    if (jxl().ImageOutBufferSize(get(), &format, &size) != JXL_DEC_SUCCESS) {
        throw damagedJpegXl();
    }
    QByteArray samples(static_cast<qsizetype>(size), '\0');
    if (jxl().SetImageOutBuffer(get(), &format, samples.data(), size) != JXL_DEC_SUCCESS) {
        throw damagedJpegXl();
    }
    return samples;
}

QByteArray JpegXlDecoder::takeChannel(const JxlPixelFormat &format, uint32_t channel) const {
    size_t size = 0;
    if (jxl().ExtraChannelBufferSize(get(), &format, &size, channel) != JXL_DEC_SUCCESS) {
        throw damagedJpegXl();
    }
    QByteArray samples(static_cast<qsizetype>(size), '\0');
    if (jxl().SetExtraChannelBuffer(get(), &format, samples.data(), size, channel) !=
        JXL_DEC_SUCCESS) {
        throw damagedJpegXl();
    }
    return samples;
}

bool JpegXlDecoder::flush() const {
    return jxl().FlushImage(get()) == JXL_DEC_SUCCESS;
}

} // namespace folioforge
