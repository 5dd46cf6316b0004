// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/ChannelRows.h"
#include "image/formats/JpegXlDecoder.h"
#include "image/formats/JpegXlFile.h"
#include "image/formats/Signatures.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace folioforge {

namespace {

/// Reads the frames of a file as a viewer shows them, of most files the only one.
class JpegXlPictureReader : public PictureReader {
  public:
    explicit JpegXlPictureReader(const FileView &file)
        : m_file(file)
        , m_header(readJpegXlHeader(file))
        , m_decoder(file, JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE) {}

    std::optional<PdfImage> next() override {
        m_samples.clear();
        while (!m_hasEnded) {
            switch (m_decoder.step()) {
            case JXL_DEC_BASIC_INFO:
                m_info = m_decoder.checkedInfo();
                requireSameSize();
                break;
            case JXL_DEC_COLOR_ENCODING:
                m_color = m_decoder.color(m_info);
                break;
            case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
                m_samples = m_decoder.takeSamples(format());
                takeBlack();
                break;
            case JXL_DEC_FULL_IMAGE:
                return picture();
            case JXL_DEC_NEED_MORE_INPUT:
                return partialPicture();
            case JXL_DEC_SUCCESS:
                m_hasEnded = true;
                break;
            default:
                m_hasEnded = true;
                throw damagedJpegXl();
            }
        }
        return std::nullopt;
    }

  private:
    /// The file may have been changed since its header was read.
    void requireSameSize() const {
        if (m_info.xsize != static_cast<uint32_t>(m_header.width) ||
            m_info.ysize != static_cast<uint32_t>(m_header.height)) {
            throw damagedJpegXl();
        }
    }
    [[nodiscard]] bool isDeep() const {
        return m_info.bits_per_sample > 8 || m_info.exponent_bits_per_sample > 0;
    }
    [[nodiscard]] bool hasAlpha() const { return m_info.alpha_bits > 0; }
    [[nodiscard]] JxlPixelFormat format() const {
        return {m_info.num_color_channels + (hasAlpha() ? 1 : 0),
                isDeep() ? JXL_TYPE_UINT16 : JXL_TYPE_UINT8, JXL_BIG_ENDIAN, 0};
    }

    void takeBlack() {
        for (const uint32_t channel : m_decoder.blackChannels(m_info)) {
            JxlPixelFormat alone = format();
            alone.num_channels = 1;
            m_black = m_decoder.takeChannel(alone, channel);
        }
    }

    /// Puts the black ink behind the others, and no longer as light: 0 is without ink.
    void addBlack() {
        const qsizetype bytes = isDeep() ? 2 : 1;
        const qsizetype colors = bytes * m_info.num_color_channels;
        const qsizetype alpha = hasAlpha() ? bytes : 0;
        QByteArray inks;
        inks.reserve(m_samples.size() + m_black.size());
        for (qsizetype at = 0, pixel = 0; at < m_samples.size(); at += colors + alpha) {
            const qsizetype first = inks.size();
            inks.append(m_samples.constData() + at, colors);
            inks.append(m_black.constData() + bytes * pixel++, bytes);
            std::for_each(inks.begin() + first, inks.end(),
                          [](char &byte) { byte = static_cast<char>(~byte); });
            inks.append(m_samples.constData() + at + colors, alpha);
        }
        m_samples = std::move(inks);
    }

    [[nodiscard]] PdfImage picture() {
        Raster raster;
        raster.width = m_header.width;
        raster.height = m_header.height;
        raster.bits = isDeep() ? 16 : 8;
        raster.color = m_info.num_color_channels == 1 ? ImageColor::Gray : ImageColor::Rgb;
        raster.iccProfile = m_color.iccProfile;
        if (!m_black.isEmpty()) {
            raster.color = ImageColor::Cmyk;
            addBlack();
        }
        if (hasAlpha()) {
            const auto *const bytes = reinterpret_cast<const uchar *>(m_samples.constData());
            storeChannels({bytes, m_samples.size() / raster.height, raster.bits, true}, raster);
            m_samples.clear();
        } else {
            raster.samples = std::exchange(m_samples, {});
        }
        PdfImage image = encodeRaster(std::move(raster), m_header);
        image.warnings = m_color.warnings;
        return image;
    }

    /// What can be shown of a frame that is cut off.
    std::optional<PdfImage> partialPicture() {
        m_hasEnded = true;
        // Of a channel beside the colours, as black is, libjxl 0.7 gives nothing.
        if (m_samples.isEmpty() || !m_black.isEmpty() || !m_decoder.flush() ||
            m_samples.count(m_samples.front()) == m_samples.size()) {
            throw damagedJpegXl();
        }
        PdfImage image = picture();
        image.warnings.push_back(partOfPicture());
        return image;
    }

    FileView m_file;
    ImageHeader m_header;
    JpegXlDecoder m_decoder;
    JxlBasicInfo m_info{};
    JpegXlColor m_color;
    QByteArray m_samples; ///< Of the frame that is being read.
    QByteArray m_black;   ///< Of its black ink, where it has one.
    bool m_hasEnded = false;
};

/// The JPEG file that a JPEG XL file was made of and can become again, where a PDF can hold its
/// bytes as they are.
std::optional<PdfImage> asJpeg(const FileView &file) {
    QByteArray jpeg = originalJpeg(file);
    if (jpeg.isEmpty()) {
        return std::nullopt;
    }
    try {
        PdfImage image = jpegFormat().toPdfImage(FileView(jpeg));
        const bool isAsItIs = image.slices.size() == 1 && image.slices.front().offset == 0 &&
                              image.slices.front().length == jpeg.size();
        if (!isAsItIs || !image.warnings.empty()) {
            return std::nullopt;
        }
        image.slices.clear();
        image.data = std::move(jpeg);
        return image;
    } catch (const Error &) {
        return std::nullopt; // The pixels can be decoded.
    }
}

PdfImage toPdfImage(const FileView &file) {
    if (auto image = asJpeg(file)) {
        return std::move(*image);
    }
    JpegXlPictureReader reader(file);
    std::optional<PdfImage> image = reader.next();
    if (!image) {
        throw damagedJpegXl();
    }
    addMorePictures(image->warnings, countJpegXlFrames(file) - 1, kFurtherFrames);
    return std::move(*image);
}

/// Of the JPEG file whose bytes go into the PDF.
std::vector<FileSlice> metadata(const FileView &file) {
    return jpegFormat().metadata(FileView(originalJpeg(file)));
}

/// What a JPEG said of itself may stand in what makes the file one again alone.
void describe(const FileView &file, DescriptionBlocks &blocks) {
    addJpegXlBlocks(file, blocks);
    const QByteArray jpeg = originalJpeg(file);
    addJpegBlocks(FileView(jpeg), blocks);
}

/// A file that is a JPEG holds one picture.
class OneJpeg : public PictureReader {
  public:
    explicit OneJpeg(PdfImage image)
        : m_image(std::move(image)) {}

    std::optional<PdfImage> next() override { return std::exchange(m_image, std::nullopt); }

  private:
    std::optional<PdfImage> m_image;
};

std::unique_ptr<PictureReader> readAll(const FileView &file) {
    if (auto image = asJpeg(file)) {
        return std::make_unique<OneJpeg>(std::move(*image));
    }
    return std::make_unique<JpegXlPictureReader>(file);
}

} // namespace

ImageFormat jpegXlFormat() {
    return {ImageKind::JpegXl, {QLatin1StringView("jxl")},
            isJpegXl,          readJpegXlHeader,
            toPdfImage,        metadata,
            readAll,           describe};
}

} // namespace folioforge
