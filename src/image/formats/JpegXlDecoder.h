// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "error/Warning.h"
#include "files/SourceFile.h"
#include "image/ImageHeader.h"
#include "image/formats/JpegXlLibrary.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace folioforge {

/// What the samples that a decoder gives mean.
struct JpegXlColor {
    QByteArray iccProfile; ///< Empty for sRGB.
    Warnings warnings;
};

/// libjxl over a view, which it reads piece by piece.
class JpegXlDecoder {
  public:
    /// `events` are those of libjxl at which step() returns. Throws std::bad_alloc.
    JpegXlDecoder(FileView file, int events);

    /// Goes on to the next event; JXL_DEC_NEED_MORE_INPUT where the file ends before it.
    JxlDecoderStatus step();

    [[nodiscard]] JxlBasicInfo basicInfo() const;
    /// The same of a picture that can be decoded. Throws Error, and std::bad_alloc where there may
    /// be too little memory.
    [[nodiscard]] JxlBasicInfo checkedInfo() const;
    /// At JXL_DEC_COLOR_ENCODING.
    [[nodiscard]] JpegXlColor color(const JxlBasicInfo &info) const;
    /// The place of the frame's samples, filled at JXL_DEC_FULL_IMAGE.
    [[nodiscard]] QByteArray takeSamples(const JxlPixelFormat &format) const;
    /// The place of the samples of one of the channels beside the colours and the opacity;
    /// likewise.
    [[nodiscard]] QByteArray takeChannel(const JxlPixelFormat &format, uint32_t channel) const;
    /// The channels with a black ink: of checkedInfo() no more than one, where the colours are
    /// cyan, magenta and yellow.
    [[nodiscard]] std::vector<uint32_t> blackChannels(const JxlBasicInfo &info) const;
    /// Fills the place with what was read of a frame; false where that gives no picture.
    [[nodiscard]] bool flush() const;

    [[nodiscard]] JxlDecoder *get() const { return m_decoder.get(); }

  private:
    struct Destroy {
        void operator()(JxlDecoder *decoder) const { jxl().Destroy(decoder); }
    };

    bool feed();
    void requireColors(const JxlBasicInfo &info) const;

    FileView m_file;
    qint64 m_at = 0;    ///< Behind the bytes that were handed over.
    QByteArray m_piece; ///< The last of these.
    std::unique_ptr<JxlDecoder, Destroy> m_decoder;
};

/// The size that the picture states, as it lies.
ImageHeader headerOf(const JxlBasicInfo &info);

Error damagedJpegXl();

} // namespace folioforge
