// SPDX-License-Identifier: Apache-2.0

#include "image/formats/OpenJpeg.h"

#include "error/Error.h"

#include <openjpeg.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace folioforge {

namespace {

template<auto destroy> struct Destroy {
    template<typename Object> void operator()(Object *object) const { destroy(object); }
};
struct DestroyInfo {
    void operator()(opj_codestream_info_v2_t *info) const { opj_destroy_cstr_info(&info); }
};
using Stream = std::unique_ptr<opj_stream_t, Destroy<opj_stream_destroy>>;
using Codec = std::unique_ptr<opj_codec_t, Destroy<opj_destroy_codec>>;
using Image = std::unique_ptr<opj_image_t, Destroy<opj_image_destroy>>;

constexpr OPJ_SIZE_T kEnd = static_cast<OPJ_SIZE_T>(-1);

/// The source and where the library reads next.
struct Position {
    Jpeg2000Source source;
    qint64 at = 0;
};

OPJ_SIZE_T readBytes(void *target, OPJ_SIZE_T size, void *data) {
    auto &position = *static_cast<Position *>(data);
    try {
        const qint64 got = position.source.read(position.at, {static_cast<uchar *>(target), size});
        position.at += got;
        return got == 0 ? kEnd : static_cast<OPJ_SIZE_T>(got);
    } catch (...) {
        return kEnd; // No exception may pass through the library.
    }
}

OPJ_BOOL seekTo(OPJ_OFF_T at, void *data) {
    auto &position = *static_cast<Position *>(data);
    if (at < 0 || at > position.source.size) {
        return OPJ_FALSE;
    }
    position.at = at;
    return OPJ_TRUE;
}

OPJ_OFF_T skipBytes(OPJ_OFF_T size, void *data) {
    const auto &position = *static_cast<Position *>(data);
    const OPJ_OFF_T step = std::min<OPJ_OFF_T>(size, position.source.size - position.at);
    return step > 0 && seekTo(position.at + step, data) == OPJ_TRUE ? step : -1;
}

void ignoreMessage(const char * /*message*/, void * /*data*/) {}

Stream streamOver(Position &position) {
    Stream stream(opj_stream_default_create(OPJ_TRUE));
    if (!stream) {
        throw std::bad_alloc();
    }
    opj_stream_set_user_data(stream.get(), &position, nullptr);
    opj_stream_set_user_data_length(stream.get(), static_cast<OPJ_UINT64>(position.source.size));
    opj_stream_set_read_function(stream.get(), readBytes);
    opj_stream_set_skip_function(stream.get(), skipBytes);
    opj_stream_set_seek_function(stream.get(), seekTo);
    return stream;
}

/// A decoder that prints nothing.
Codec codecFor(bool isCodestream) {
    Codec codec(opj_create_decompress(isCodestream ? OPJ_CODEC_J2K : OPJ_CODEC_JP2));
    if (!codec) {
        throw std::bad_alloc();
    }
    opj_set_info_handler(codec.get(), ignoreMessage, nullptr);
    opj_set_warning_handler(codec.get(), ignoreMessage, nullptr);
    opj_set_error_handler(codec.get(), ignoreMessage, nullptr);
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    if (opj_setup_decoder(codec.get(), &parameters) != OPJ_TRUE) {
        throw std::bad_alloc();
    }
    return codec;
}

/// How many halvings keep the picture at or above `scale`.
unsigned halvings(opj_codec_t *codec, double scale) {
    const std::unique_ptr<opj_codestream_info_v2_t, DestroyInfo> info(opj_get_cstr_info(codec));
    if (!info || !info->m_default_tile_info.tccp_info || scale >= 1) {
        return 0;
    }
    const unsigned resolutions = info->m_default_tile_info.tccp_info->numresolutions;
    const auto wanted = static_cast<unsigned>(std::floor(std::log2(1 / std::max(scale, 1e-6))));
    return resolutions > 0 ? std::min(wanted, resolutions - 1) : 0;
}

} // namespace

struct OpenJpegPicture::Library {
    Position position;
    Stream stream;
    Codec codec;
    Image image;
};

OpenJpegPicture::OpenJpegPicture(std::unique_ptr<Library> library)
    : m_library(std::move(library)) {}
OpenJpegPicture::OpenJpegPicture(OpenJpegPicture &&) noexcept = default;
OpenJpegPicture &OpenJpegPicture::operator=(OpenJpegPicture &&) noexcept = default;
OpenJpegPicture::~OpenJpegPicture() = default;

std::optional<OpenJpegPicture> OpenJpegPicture::open(const Jpeg2000Source &source,
                                                     bool isCodestream) {
    auto library = std::make_unique<Library>();
    library->position.source = source;
    library->stream = streamOver(library->position);
    library->codec = codecFor(isCodestream);
    opj_image_t *image = nullptr;
    const bool isRead =
        opj_read_header(library->stream.get(), library->codec.get(), &image) == OPJ_TRUE;
    library->image.reset(image);
    return isRead ? std::optional(OpenJpegPicture(std::move(library))) : std::nullopt;
}

qint64 OpenJpegPicture::width() const {
    return qint64(m_library->image->x1) - m_library->image->x0;
}

qint64 OpenJpegPicture::height() const {
    return qint64(m_library->image->y1) - m_library->image->y0;
}

Jpeg2000Color OpenJpegPicture::color() const {
    switch (m_library->image->color_space) {
    case OPJ_CLRSPC_SRGB:
        return Jpeg2000Color::Srgb;
    case OPJ_CLRSPC_GRAY:
        return Jpeg2000Color::Gray;
    case OPJ_CLRSPC_SYCC:
        return Jpeg2000Color::Ycc;
    default:
        return Jpeg2000Color::Other;
    }
}

bool OpenJpegPicture::hasProfile() const {
    return m_library->image->icc_profile_len != 0;
}

int OpenJpegPicture::componentCount() const {
    return static_cast<int>(m_library->image->numcomps);
}

Jpeg2000Component OpenJpegPicture::component(int index) const {
    const opj_image_comp_t &part = m_library->image->comps[index];
    const std::size_t samples = part.data == nullptr ? 0 : std::size_t(part.w) * part.h;
    return {static_cast<int>(part.w), static_cast<int>(part.h),     static_cast<int>(part.prec),
            part.sgnd != 0,           part.dx != 1 || part.dy != 1, part.alpha != 0,
            {part.data, samples}};
}

bool OpenJpegPicture::isThere() {
    return true;
}

void OpenJpegPicture::allowGaps() {
    opj_decoder_set_strict_mode(m_library->codec.get(), OPJ_FALSE);
}

void OpenJpegPicture::useAllCores() {
    if (opj_has_thread_support() == OPJ_TRUE) {
        opj_codec_set_threads(m_library->codec.get(), std::min(opj_get_num_cpus(), 8));
    }
}

bool OpenJpegPicture::reduceTo(double scale) {
    opj_codec_t *codec = m_library->codec.get();
    return opj_set_decoded_resolution_factor(codec, halvings(codec, scale)) == OPJ_TRUE;
}

bool OpenJpegPicture::decode() {
    return opj_decode(m_library->codec.get(), m_library->stream.get(), m_library->image.get()) ==
           OPJ_TRUE;
}

bool OpenJpegPicture::finish() {
    return opj_end_decompress(m_library->codec.get(), m_library->stream.get()) == OPJ_TRUE;
}

} // namespace folioforge
