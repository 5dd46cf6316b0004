// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Exif.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/ArgbImage.h"
#include "image/formats/Chunks.h"
#include "image/formats/Signatures.h"

#include <webp/decode.h>
#include <webp/demux.h>

#include <QSysInfo>

#include <algorithm>
#include <new>
#include <utility>

namespace folioforge {

namespace {

/// The order of the channels in memory that makes a number of each pixel.
constexpr WEBP_CSP_MODE kArgbMode =
    QSysInfo::ByteOrder == QSysInfo::LittleEndian ? MODE_BGRA : MODE_ARGB;

[[noreturn]] void refuseDamaged() {
    throw Error(Reasons::tr("The WebP file is damaged"));
}

/// What the chunks of a file say.
struct WebpMetadata {
    ImageHeader header;
    bool isAnimated = false;
    QByteArray iccProfile;
};

/// The picture's size, with alpha as the picture has it.
WebPBitstreamFeatures featuresOf(const QByteArray &bytes) {
    WebPBitstreamFeatures features;
    if (WebPGetFeatures(reinterpret_cast<const uint8_t *>(bytes.constData()),
                        static_cast<size_t>(bytes.size()), &features) != VP8_STATUS_OK) {
        refuseDamaged();
    }
    return features;
}

/// A size of 24 bits at byte `at`, stored as one less.
int canvasSide(QByteArrayView bytes, qsizetype at) {
    return 1 + littleEndianAt<quint16>(bytes, at) + (littleEndianAt<uchar>(bytes, at + 2) << 16);
}

void readExifChunk(QByteArrayView block, ImageHeader &header) {
    const ExifMetadata exif = readExif(block);
    header.orientation = exif.orientation;
    header.horizontalDpi = exif.horizontalDpi;
    header.verticalDpi = exif.verticalDpi;
}

/// Reads what stands beside the picture of an extended file.
void readFurtherChunks(const FileView &file, WebpMetadata &metadata) {
    constexpr qint64 kMaxBytes = 1 << 25;
    WebpChunks chunks(file);
    while (const auto chunk = chunks.next()) {
        if (chunk->length <= kMaxBytes && chunk->type == "ICCP") {
            metadata.iccProfile = file.read(chunk->at, chunk->length);
        } else if (chunk->length <= kMaxBytes && chunk->type == "EXIF") {
            readExifChunk(file.read(chunk->at, chunk->length), metadata.header);
        }
    }
}

WebpMetadata readMetadata(const FileView &file) {
    constexpr qsizetype kFirstChunk = 12;
    constexpr uchar kAnimation = 0x02;
    const QByteArray head = file.read(0, kSniffedBytes);
    if (!isWebp(head)) {
        refuseDamaged();
    }
    WebpMetadata metadata;
    if (QByteArrayView(head).sliced(kFirstChunk).startsWith("VP8X")) {
        metadata.isAnimated = (littleEndianAt<uchar>(head, 20) & kAnimation) != 0;
        metadata.header.width = canvasSide(head, 24);
        metadata.header.height = canvasSide(head, 27);
        readFurtherChunks(file, metadata);
    } else {
        const WebPBitstreamFeatures features = featuresOf(head);
        metadata.header.width = features.width;
        metadata.header.height = features.height;
    }
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

/// The file, which libwebp reads in one piece. No picture takes more than its largest pixels.
QByteArray bytesOf(const FileView &file) {
    constexpr qint64 kMaxBytes = 1 << 30;
    if (file.size() > kMaxBytes) {
        throw Error(Reasons::tr("The WebP file is too large"));
    }
    return file.readExactly(0, file.size());
}

/// Decodes as many rows as there are into `image` and gives their number.
int decodeRows(const QByteArray &bytes, ArgbImage &image) {
    auto *const target = reinterpret_cast<uint8_t *>(image.pixels.data());
    const auto size = image.pixels.size() * sizeof(Argb);
    const std::unique_ptr<WebPIDecoder, decltype(&WebPIDelete)> decoder(
        WebPINewRGB(kArgbMode, target, size, image.width * int(sizeof(Argb))), WebPIDelete);
    if (!decoder) {
        throw std::bad_alloc();
    }
    const VP8StatusCode status =
        WebPIUpdate(decoder.get(), reinterpret_cast<const uint8_t *>(bytes.constData()),
                    static_cast<size_t>(bytes.size()));
    if (status == VP8_STATUS_OUT_OF_MEMORY) {
        throw std::bad_alloc();
    }
    int rows = 0;
    const bool hasRows = WebPIDecGetRGB(decoder.get(), &rows, nullptr, nullptr, nullptr) != nullptr;
    return status == VP8_STATUS_OK ? image.height : hasRows ? rows : 0;
}

PdfImage stillPicture(const FileView &file, const WebpMetadata &metadata) {
    const QByteArray bytes = bytesOf(file);
    const WebPBitstreamFeatures features = featuresOf(bytes);
    const ImageHeader &header = metadata.header;
    if (features.width != header.width || features.height != header.height) {
        refuseDamaged();
    }
    ArgbImage image{header.width, header.height, features.has_alpha != 0, {}, metadata.iccProfile};
    image.pixels.resize(static_cast<size_t>(header.width) * static_cast<size_t>(header.height));
    const int rows = decodeRows(bytes, image);
    if (rows == 0) {
        refuseDamaged();
    }
    PdfImage picture = encodeRaster(rasterOf(image), header);
    if (rows < header.height) {
        picture.warnings.push_back(cutOffPicture(header.height - rows, header.height));
    }
    return picture;
}

/// Reads the pictures of an animation, each as it is seen, of another file the only one.
class WebpPictureReader : public PictureReader {
  public:
    explicit WebpPictureReader(const FileView &file)
        : m_metadata(readMetadata(file))
        , m_file(file)
        , m_decoder(nullptr, WebPAnimDecoderDelete) {}

    std::optional<PdfImage> next() override {
        const bool isFirst = !std::exchange(m_hasBegun, true);
        if (!m_metadata.isAnimated) {
            return isFirst ? std::optional(stillPicture(m_file, m_metadata)) : std::nullopt;
        }
        if (isFirst) {
            open();
        }
        if (!m_decoder || WebPAnimDecoderHasMoreFrames(m_decoder.get()) == 0) {
            return std::nullopt;
        }
        return nextFrame();
    }

    /// The pictures of the animation behind the first.
    [[nodiscard]] qint64 countFurther() const {
        WebPAnimInfo info;
        const bool isKnown = m_decoder && WebPAnimDecoderGetInfo(m_decoder.get(), &info) != 0;
        return isKnown ? qint64(info.frame_count) - 1 : 0;
    }

  private:
    void open() {
        // libwebp holds the canvas twice.
        constexpr qint64 kMaxPixels = 100'000'000;
        const ImageHeader &header = m_metadata.header;
        if (qint64(header.width) * header.height > kMaxPixels) {
            throw Error(Reasons::tr("The animation is too large (%1 x %2 pixels)")
                            .arg(header.width)
                            .arg(header.height));
        }
        m_bytes = bytesOf(m_file);
        const WebPData data{reinterpret_cast<const uint8_t *>(m_bytes.constData()),
                            static_cast<size_t>(m_bytes.size())};
        WebPAnimDecoderOptions options;
        WebPAnimDecoderOptionsInit(&options);
        options.color_mode = MODE_BGRA;
        m_decoder.reset(WebPAnimDecoderNew(&data, &options));
        WebPAnimInfo info;
        if (!m_decoder || WebPAnimDecoderGetInfo(m_decoder.get(), &info) == 0 ||
            int(info.canvas_width) != header.width || int(info.canvas_height) != header.height) {
            m_decoder.reset();
            refuseDamaged();
        }
    }

    PdfImage nextFrame() {
        uint8_t *canvas = nullptr;
        int milliseconds = 0;
        if (WebPAnimDecoderGetNext(m_decoder.get(), &canvas, &milliseconds) == 0) {
            m_decoder.reset(); // What stands behind builds on this frame.
            refuseDamaged();
        }
        const ImageHeader &header = m_metadata.header;
        ArgbImage image{header.width, header.height, true, {}, m_metadata.iccProfile};
        image.pixels.resize(static_cast<size_t>(header.width) * static_cast<size_t>(header.height));
        for (Argb &pixel : image.pixels) {
            pixel = qFromLittleEndian<Argb>(canvas);
            canvas += sizeof(Argb);
        }
        return encodeRaster(rasterOf(image), header);
    }

    WebpMetadata m_metadata;
    FileView m_file;
    QByteArray m_bytes;
    std::unique_ptr<WebPAnimDecoder, decltype(&WebPAnimDecoderDelete)> m_decoder;
    bool m_hasBegun = false;
};

ImageHeader readHeader(const FileView &file) {
    return readMetadata(file).header;
}

PdfImage toPdfImage(const FileView &file) {
    WebpPictureReader reader(file);
    std::optional<PdfImage> image = reader.next();
    if (!image) {
        refuseDamaged();
    }
    addMorePictures(image->warnings, reader.countFurther(), kFurtherFrames);
    return std::move(*image);
}

std::unique_ptr<PictureReader> readAll(const FileView &file) {
    return std::make_unique<WebpPictureReader>(file);
}

} // namespace

ImageFormat webpFormat() {
    return {ImageKind::Webp, {QLatin1StringView("webp")},
            isWebp,          readHeader,
            toPdfImage,      nullptr,
            readAll,         addWebpBlocks};
}

} // namespace folioforge
