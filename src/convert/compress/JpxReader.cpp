#include "convert/compress/JpxReader.h"

#include "error/Error.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include <openjpeg.h>

namespace folioforge {

namespace {

struct CloseStream {
    void operator()(opj_stream_t *stream) const { opj_stream_destroy(stream); }
};
struct CloseCodec {
    void operator()(opj_codec_t *codec) const { opj_destroy_codec(codec); }
};
struct CloseImage {
    void operator()(opj_image_t *image) const { opj_image_destroy(image); }
};
struct CloseInfo {
    void operator()(opj_codestream_info_v2_t *info) const { opj_destroy_cstr_info(&info); }
};

/// A read position in memory, as OpenJPEG's stream callbacks want it.
struct Cursor {
    std::string_view data;
    std::size_t at = 0;
};

OPJ_SIZE_T readSome(void *buffer, OPJ_SIZE_T size, void *user) {
    auto *cursor = static_cast<Cursor *>(user);
    const std::size_t left = cursor->data.size() - cursor->at;
    if (left == 0) {
        return static_cast<OPJ_SIZE_T>(-1);
    }
    const std::size_t count = std::min<std::size_t>(size, left);
    std::memcpy(buffer, cursor->data.data() + cursor->at, count);
    cursor->at += count;
    return count;
}

OPJ_OFF_T skip(OPJ_OFF_T count, void *user) {
    auto *cursor = static_cast<Cursor *>(user);
    const auto left = static_cast<OPJ_OFF_T>(cursor->data.size() - cursor->at);
    if (count < 0 || left == 0) {
        return -1;
    }
    const OPJ_OFF_T step = std::min(count, left);
    cursor->at += static_cast<std::size_t>(step);
    return step;
}

OPJ_BOOL seek(OPJ_OFF_T position, void *user) {
    auto *cursor = static_cast<Cursor *>(user);
    if (position < 0 || static_cast<std::size_t>(position) > cursor->data.size()) {
        return OPJ_FALSE;
    }
    cursor->at = static_cast<std::size_t>(position);
    return OPJ_TRUE;
}

Error damaged() {
    return Error(QStringLiteral("damaged JPEG 2000 data"));
}

bool isBareCodestream(std::string_view data) {
    return data.starts_with("\xff\x4f\xff\x51");
}

/// How many halvings keep the image at or above `scale`.
unsigned halvings(opj_codec_t *codec, double scale) {
    const std::unique_ptr<opj_codestream_info_v2_t, CloseInfo> info(opj_get_cstr_info(codec));
    if (!info || !info->m_default_tile_info.tccp_info || scale >= 1) {
        return 0;
    }
    const unsigned most = info->m_default_tile_info.tccp_info->numresolutions;
    const auto wanted = static_cast<unsigned>(std::floor(std::log2(1 / std::max(scale, 1e-6))));
    return most > 0 ? std::min(wanted, most - 1) : 0;
}

void requireHandled(const opj_image_t &image) {
    if (image.numcomps != 1 && image.numcomps != 3 && image.numcomps != 4) {
        throw Error(QStringLiteral("JPEG 2000 data with %1 components").arg(image.numcomps));
    }
    for (unsigned i = 0; i < image.numcomps; ++i) {
        const opj_image_comp_t &part = image.comps[i];
        if (part.w != image.comps[0].w || part.h != image.comps[0].h || part.dx != 1 ||
            part.dy != 1 || part.sgnd || part.prec < 8 || part.prec > 16 || part.alpha != 0) {
            throw Error(QStringLiteral("JPEG 2000 data of an unusual layout"));
        }
    }
}

/// The colours of the data itself are kept only where a device space says the same.
bool isPlainColour(const opj_image_t &image) {
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

PlanarImage decodeJpx(std::string_view data, int width, int height, double scale,
                      JpxColour colour) {
    Cursor cursor{data};
    const std::unique_ptr<opj_stream_t, CloseStream> stream(opj_stream_default_create(OPJ_TRUE));
    const std::unique_ptr<opj_codec_t, CloseCodec> codec(
        opj_create_decompress(isBareCodestream(data) ? OPJ_CODEC_J2K : OPJ_CODEC_JP2));
    if (!stream || !codec) {
        throw damaged();
    }
    opj_stream_set_read_function(stream.get(), readSome);
    opj_stream_set_skip_function(stream.get(), skip);
    opj_stream_set_seek_function(stream.get(), seek);
    opj_stream_set_user_data(stream.get(), &cursor, nullptr);
    opj_stream_set_user_data_length(stream.get(), data.size());
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    opj_image_t *header = nullptr;
    if (!opj_setup_decoder(codec.get(), &parameters) ||
        !opj_read_header(stream.get(), codec.get(), &header)) {
        throw damaged();
    }
    const std::unique_ptr<opj_image_t, CloseImage> image(header);
    requireHandled(*image);
    if (static_cast<qint64>(image->x1) - image->x0 != width ||
        static_cast<qint64>(image->y1) - image->y0 != height) {
        throw Error(QStringLiteral("JPEG 2000 data of another size than the image says"));
    }
    if (!opj_set_decoded_resolution_factor(codec.get(), halvings(codec.get(), scale)) ||
        !opj_decode(codec.get(), stream.get(), image.get()) ||
        !opj_end_decompress(codec.get(), stream.get())) {
        throw damaged();
    }
    // With the finest resolutions left out the components keep their first size until decoded.
    requireHandled(*image);
    if (image->color_space == OPJ_CLRSPC_SYCC ||
        (colour == JpxColour::OfData && !isPlainColour(*image))) {
        throw Error(QStringLiteral("JPEG 2000 data of an unusual colour space"));
    }
    return toBytes(*image);
}

} // namespace folioforge
