#include "compress/JpxReader.h"

#include "error/Error.h"
#include "image/formats/OpenJpeg.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

struct DestroyInfo {
    void operator()(opj_codestream_info_v2_t *info) const { opj_destroy_cstr_info(&info); }
};

/// The bytes of `data`, as a decoder reads them.
OpenJpegSource sourceOf(std::string_view data) {
    const auto read = [data](qint64 at, std::span<uchar> target) {
        return static_cast<qint64>(data.copy(reinterpret_cast<char *>(target.data()), target.size(),
                                             static_cast<std::size_t>(at)));
    };
    return {read, static_cast<qint64>(data.size())};
}

Error damaged() {
    return Error(u"damaged JPEG 2000 data"_s);
}

bool isBareCodestream(std::string_view data) {
    return data.starts_with("\xff\x4f\xff\x51");
}

/// How many halvings keep the image at or above `scale`.
unsigned halvings(opj_codec_t *codec, double scale) {
    const std::unique_ptr<opj_codestream_info_v2_t, DestroyInfo> info(opj_get_cstr_info(codec));
    if (!info || !info->m_default_tile_info.tccp_info || scale >= 1) {
        return 0;
    }
    const unsigned most = info->m_default_tile_info.tccp_info->numresolutions;
    const auto wanted = static_cast<unsigned>(std::floor(std::log2(1 / std::max(scale, 1e-6))));
    return most > 0 ? std::min(wanted, most - 1) : 0;
}

void requireHandled(const opj_image_t &image) {
    if (image.numcomps != 1 && image.numcomps != 3 && image.numcomps != 4) {
        throw Error(u"JPEG 2000 data with %1 components"_s.arg(image.numcomps));
    }
    for (unsigned i = 0; i < image.numcomps; ++i) {
        const opj_image_comp_t &part = image.comps[i];
        if (part.w != image.comps[0].w || part.h != image.comps[0].h || part.dx != 1 ||
            part.dy != 1 || part.sgnd || part.prec < 8 || part.prec > 16 || part.alpha != 0) {
            throw Error(u"JPEG 2000 data of an unusual layout"_s);
        }
    }
}

/// The colours of the data itself are kept only where a device space says the same.
bool isPlainColor(const opj_image_t &image) {
    const bool plain = image.color_space == OPJ_CLRSPC_SRGB
                           ? image.numcomps == 3
                           : image.color_space == OPJ_CLRSPC_GRAY && image.numcomps == 1;
    return plain && image.icc_profile_len == 0;
}

PlanarImage toBytes(const opj_image_t &image) {
    PlanarImage target(static_cast<int>(image.comps[0].w), static_cast<int>(image.comps[0].h));
    target.addPlanes(static_cast<int>(image.numcomps));
    for (unsigned c = 0; c < image.numcomps; ++c) {
        const int *in = image.comps[c].data;
        const int shift = static_cast<int>(image.comps[c].prec) - 8;
        if (!in) {
            throw damaged();
        }
        const std::size_t pixels = target.planes[c].size();
        std::uint8_t *out = target.planes[c].row(0);
        for (std::size_t i = 0; i < pixels; ++i) {
            out[i] = static_cast<std::uint8_t>(std::clamp(in[i] >> shift, 0, 255));
        }
    }
    return target;
}

} // namespace

PlanarImage decodeJpx(std::string_view data, int width, int height, double scale, JpxColor color) {
    OpenJpegSource source = sourceOf(data);
    const OpenJpegStream stream = openJpegStream(source);
    const OpenJpegCodec codec = openJpegCodec(isBareCodestream(data));
    opj_image_t *header = nullptr;
    if (!opj_read_header(stream.get(), codec.get(), &header)) {
        throw damaged();
    }
    const OpenJpegImage image(header);
    requireHandled(*image);
    if (static_cast<qint64>(image->x1) - image->x0 != width ||
        static_cast<qint64>(image->y1) - image->y0 != height) {
        throw Error(u"JPEG 2000 data of another size than the image says"_s);
    }
    if (!opj_set_decoded_resolution_factor(codec.get(), halvings(codec.get(), scale)) ||
        !opj_decode(codec.get(), stream.get(), image.get()) ||
        !opj_end_decompress(codec.get(), stream.get())) {
        throw damaged();
    }
    // With the finest resolutions left out the components keep their first size until decoded.
    requireHandled(*image);
    if (image->color_space == OPJ_CLRSPC_SYCC ||
        (color == JpxColor::OfData && !isPlainColor(*image))) {
        throw Error(u"JPEG 2000 data of an unusual colour space"_s);
    }
    return toBytes(*image);
}

} // namespace folioforge
