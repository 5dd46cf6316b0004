// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <jxl/encode.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace folioforge::test {

/// A picture of 8 bits a sample with channels beside its colours, as libjxl's encoder takes it.
struct JpegXlPicture {
    int width = 0;
    int height = 0;
    QByteArray profile = {};    ///< sRGB where it is empty.
    bool asStored = true;       ///< Else its colours are turned into light that all screens know.
    QByteArray colors = {};     ///< Interleaved; as light, so that 255 is no ink.
    QByteArray opacity = {};    ///< None where it is empty.
    QByteArrayList blacks = {}; ///< Black inks, as light.
    float distance = 0;         ///< Of what is shown from what is given; 0 for none.
};

/// The file that libjxl makes of the picture; empty where it refuses to.
inline QByteArray jpegXlOf(const JpegXlPicture &picture) {
    const std::unique_ptr<JxlEncoder, decltype(&JxlEncoderDestroy)> encoder(
        JxlEncoderCreate(nullptr), JxlEncoderDestroy);
    JxlEncoder *const to = encoder.get();
    const qsizetype pixels = qsizetype{picture.width} * picture.height;
    struct Channel {
        JxlExtraChannelType type;
        const QByteArray &samples;
    };
    std::vector<Channel> channels;
    if (!picture.opacity.isEmpty()) {
        channels.push_back({JXL_CHANNEL_ALPHA, picture.opacity});
    }
    for (const QByteArray &black : picture.blacks) {
        channels.push_back({JXL_CHANNEL_BLACK, black});
    }
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = static_cast<uint32_t>(picture.width);
    info.ysize = static_cast<uint32_t>(picture.height);
    info.num_color_channels = static_cast<uint32_t>(picture.colors.size() / pixels);
    info.num_extra_channels = static_cast<uint32_t>(channels.size());
    info.alpha_bits = picture.opacity.isEmpty() ? 0 : 8;
    info.uses_original_profile = picture.asStored ? JXL_TRUE : JXL_FALSE;
    bool works = JxlEncoderSetCodestreamLevel(to, 10) == JXL_ENC_SUCCESS &&
                 JxlEncoderSetBasicInfo(to, &info) == JXL_ENC_SUCCESS;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        JxlExtraChannelInfo extra;
        JxlEncoderInitExtraChannelInfo(channels[i].type, &extra);
        works = works && JxlEncoderSetExtraChannelInfo(to, i, &extra) == JXL_ENC_SUCCESS;
    }
    if (picture.profile.isEmpty()) {
        JxlColorEncoding color{};
        JxlColorEncodingSetToSRGB(&color, info.num_color_channels == 1 ? JXL_TRUE : JXL_FALSE);
        works = works && JxlEncoderSetColorEncoding(to, &color) == JXL_ENC_SUCCESS;
    } else {
        const auto *const bytes = reinterpret_cast<const uint8_t *>(picture.profile.constData());
        const auto size = static_cast<size_t>(picture.profile.size());
        works = works && JxlEncoderSetICCProfile(to, bytes, size) == JXL_ENC_SUCCESS;
    }
    JxlEncoderFrameSettings *const frame = JxlEncoderFrameSettingsCreate(to, nullptr);
    JxlEncoderSetFrameLossless(frame, picture.distance == 0 ? JXL_TRUE : JXL_FALSE);
    JxlEncoderSetFrameDistance(frame, picture.distance);
    JxlPixelFormat format{info.num_color_channels, JXL_TYPE_UINT8, JXL_BIG_ENDIAN, 0};
    works = works &&
            JxlEncoderAddImageFrame(frame, &format, picture.colors.constData(),
                                    static_cast<size_t>(picture.colors.size())) == JXL_ENC_SUCCESS;
    format.num_channels = 1;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        works = works &&
                JxlEncoderSetExtraChannelBuffer(frame, &format, channels[i].samples.constData(),
                                                static_cast<size_t>(channels[i].samples.size()),
                                                static_cast<uint32_t>(i)) == JXL_ENC_SUCCESS;
    }
    JxlEncoderCloseInput(to);
    constexpr qsizetype kEnough = 1 << 22;
    QByteArray file(kEnough, '\0');
    auto *next = reinterpret_cast<uint8_t *>(file.data());
    auto left = static_cast<size_t>(file.size());
    works = works && JxlEncoderProcessOutput(to, &next, &left) == JXL_ENC_SUCCESS;
    file.chop(static_cast<qsizetype>(left));
    return works ? file : QByteArray();
}

} // namespace folioforge::test
