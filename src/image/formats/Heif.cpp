// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/CicpProfile.h"
#include "image/Exif.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/ChannelRows.h"
#include "image/formats/HeifFile.h"
#include "image/formats/Signatures.h"

#include <array>
#include <memory>
#include <span>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

constexpr size_t kMaxMetadata = 1 << 25;

/// Throws Error where the system grants no thread: libde265 would wait for its own for ever.
void requireThread() {
    try {
        std::thread([] {}).join();
    } catch (const std::system_error &) {
        throw Error(Reasons::tr("The system grants no thread, which HEIC and AVIF files take"));
    }
}

/// The picture's first item of a type, of `content` where that is not empty; nothing where there is
/// none.
QByteArray itemOf(const heif_image_handle *handle, const char *type, QByteArrayView content) {
    constexpr int kMaxItems = 16;
    std::array<heif_item_id, kMaxItems> ids{};
    const int count =
        heif().image_handle_get_list_of_metadata_block_IDs(handle, type, ids.data(), kMaxItems);
    for (const heif_item_id id : std::span(ids).first(static_cast<size_t>(count))) {
        const size_t size = heif().image_handle_get_metadata_size(handle, id);
        if (size <= kMaxMetadata &&
            (content.isEmpty() ||
             content == heif().image_handle_get_metadata_content_type(handle, id))) {
            QByteArray item(static_cast<qsizetype>(size), '\0');
            requireHeif(heif().image_handle_get_metadata(handle, id, item.data()));
            return item;
        }
    }
    return {};
}

/// What the picture's EXIF item holds.
QByteArray exifItemOf(const heif_image_handle *handle) {
    return itemOf(handle, "Exif", {});
}

/// libheif turns and mirrors the pixels as the file says; what EXIF says of that is the same.
ImageHeader headerOf(const heif_image_handle *handle) {
    ImageHeader header;
    header.width = heif().image_handle_get_width(handle);
    header.height = heif().image_handle_get_height(handle);
    const QByteArray item = exifItemOf(handle);
    const ExifMetadata exif = readExif(exifBlockOf(item));
    header.horizontalDpi = exif.horizontalDpi;
    header.verticalDpi = exif.verticalDpi;
    return checkedHeader(header);
}

CicpColor colorOf(const heif_color_profile_nclx &nclx) {
    return {{{{nclx.color_primary_red_x, nclx.color_primary_red_y},
              {nclx.color_primary_green_x, nclx.color_primary_green_y},
              {nclx.color_primary_blue_x, nclx.color_primary_blue_y},
              {nclx.color_primary_white_x, nclx.color_primary_white_y}}},
            nclx.color_primaries,
            nclx.transfer_characteristics};
}

/// Adds what the file says of the meaning of its colours.
void readColor(const heif_image_handle *handle, Raster &raster, Warnings &warnings) {
    const size_t size = heif().image_handle_get_raw_color_profile_size(handle);
    if (size > 0 && size <= kMaxMetadata) {
        raster.iccProfile = QByteArray(static_cast<qsizetype>(size), '\0');
        requireHeif(heif().image_handle_get_raw_color_profile(handle, raster.iccProfile.data()));
        return;
    }
    heif_color_profile_nclx *given = nullptr;
    if (heif().image_handle_get_nclx_color_profile(handle, &given).code != heif_error_Ok) {
        return;
    }
    const std::unique_ptr<heif_color_profile_nclx, ReleaseHeif> nclx(given);
    raster.iccProfile = profileOf(colorOf(*nclx));
    warnOfHighRange(nclx->transfer_characteristics, warnings);
}

heif_chroma chromaOf(bool isDeep, bool hasAlpha) {
    if (isDeep) {
        return hasAlpha ? heif_chroma_interleaved_RRGGBBAA_BE : heif_chroma_interleaved_RRGGBB_BE;
    }
    return hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
}

Raster rasterOf(HeifImage decoded, bool isDeep, bool hasAlpha) {
    Raster raster;
    raster.width = heif().image_get_width(decoded.get(), heif_channel_interleaved);
    raster.height = heif().image_get_height(decoded.get(), heif_channel_interleaved);
    ImageHeader size;
    size.width = raster.width;
    size.height = raster.height;
    checkedHeader(size); // The coded picture may claim another size than the file.
    raster.bits = isDeep ? 16 : 8;
    int stride = 0;
    const uint8_t *const plane =
        heif().image_get_plane_readonly(decoded.get(), heif_channel_interleaved, &stride);
    const int bits = heif().image_get_bits_per_pixel_range(decoded.get(), heif_channel_interleaved);
    if (plane == nullptr || bits < 8 || bits > 16 || (bits > 8) != isDeep) {
        throw Error(Reasons::tr("The HEIC or AVIF file is damaged"));
    }
    storeChannels({plane, stride, bits, hasAlpha}, raster);
    return raster;
}

PdfImage pictureOf(const FileView &file, const heif_image_handle *handle) {
    ImageHeader header = headerOf(handle);
    requirePlausibleArea(header, file.size());
    const bool isDeep = heif().image_handle_get_luma_bits_per_pixel(handle) > 8;
    const bool hasAlpha = heif().image_handle_has_alpha_channel(handle) != 0;
    requireThread();
    heif_image *image = nullptr;
    requireHeif(heif().decode_image(handle, &image, heif_colorspace_RGB, chromaOf(isDeep, hasAlpha),
                                    nullptr));
    HeifImage decoded(image);
    Warnings warnings;
    if (heif().image_get_decoding_warnings(image, 0, nullptr, 0) > 0) {
        warnings.push_back(faultyPicture());
    }
    Raster raster = rasterOf(std::move(decoded), isDeep, hasAlpha);
    if (heif().image_handle_is_premultiplied_alpha(handle) != 0) {
        unpremultiply(raster);
    }
    readColor(handle, raster, warnings);
    header.width = raster.width;
    header.height = raster.height;
    PdfImage picture = encodeRaster(std::move(raster), header);
    picture.warnings = std::move(warnings);
    return picture;
}

/// Says that the pictures of a sequence, which libheif does not read, are left out.
void addSequence(const FileView &file, Warnings &warnings) {
    if (isHeifSequence(file.read(0, kSniffedBytes))) {
        warnings.push_back(
            {WarningCode::MorePictures, Reasons::tr("Its moving pictures are left out")});
    }
}

class HeifPictureReader : public PictureReader {
  public:
    explicit HeifPictureReader(const FileView &file)
        : m_view(file)
        , m_file(file)
        , m_pictures(m_file.pictures()) {}

    std::optional<PdfImage> next() override {
        if (m_next == m_pictures.size()) {
            return std::nullopt;
        }
        const bool isFirst = m_next == 0;
        const HeifHandle handle = m_file.picture(m_pictures[m_next++]);
        PdfImage image = pictureOf(m_view, handle.get());
        if (isFirst) {
            addSequence(m_view, image.warnings);
        }
        return image;
    }

    [[nodiscard]] size_t left() const { return m_pictures.size() - m_next; }

  private:
    FileView m_view;
    HeifFile m_file;
    std::vector<heif_item_id> m_pictures;
    size_t m_next = 0;
};

ImageHeader readHeader(const FileView &file) {
    const HeifFile opened(file);
    return headerOf(opened.picture(opened.pictures().front()).get());
}

PdfImage toPdfImage(const FileView &file) {
    HeifPictureReader reader(file);
    PdfImage image = std::move(*reader.next());
    addMorePictures(image.warnings, static_cast<qint64>(reader.left()), kFurtherPictures);
    return image;
}

std::unique_ptr<PictureReader> readAll(const FileView &file) {
    return std::make_unique<HeifPictureReader>(file);
}

void describe(const FileView &file, DescriptionBlocks &blocks) {
    const HeifFile opened(file);
    const HeifHandle handle = opened.picture(opened.pictures().front());
    takeFirst(blocks.xmp, [&] {
        const QByteArray packet = itemOf(handle.get(), "mime", "application/rdf+xml");
        return packet.size() <= kMaxDescriptionBytes ? packet : QByteArray();
    });
    takeFirst(blocks.exif, [&] {
        const QByteArray item = exifItemOf(handle.get());
        return descriptionInExif(exifBlockOf(item));
    });
}

} // namespace

ImageFormat heifFormat() {
    return {ImageKind::Heif,
            {QLatin1StringView("heic"), QLatin1StringView("heif"), QLatin1StringView("avif")},
            isHeif,
            readHeader,
            toPdfImage,
            nullptr,
            readAll,
            describe};
}

} // namespace folioforge
