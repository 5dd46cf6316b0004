#include "image/formats/OpenJpeg.h"

#include "error/Error.h"

#include <algorithm>
#include <new>

namespace folioforge {

namespace {

constexpr OPJ_SIZE_T kEnd = static_cast<OPJ_SIZE_T>(-1);

OPJ_SIZE_T readBytes(void *target, OPJ_SIZE_T size, void *data) {
    auto &source = *static_cast<OpenJpegSource *>(data);
    try {
        const qint64 got = source.read(source.at, {static_cast<uchar *>(target), size});
        source.at += got;
        return got == 0 ? kEnd : static_cast<OPJ_SIZE_T>(got);
    } catch (const Error &) {
        return kEnd; // No exception may pass through the library.
    }
}

OPJ_BOOL seekTo(OPJ_OFF_T at, void *data) {
    auto &source = *static_cast<OpenJpegSource *>(data);
    if (at < 0 || at > source.size) {
        return OPJ_FALSE;
    }
    source.at = at;
    return OPJ_TRUE;
}

OPJ_OFF_T skipBytes(OPJ_OFF_T size, void *data) {
    const auto &source = *static_cast<OpenJpegSource *>(data);
    const OPJ_OFF_T step = std::min<OPJ_OFF_T>(size, source.size - source.at);
    return step > 0 && seekTo(source.at + step, data) == OPJ_TRUE ? step : -1;
}

void ignoreMessage(const char * /*message*/, void * /*data*/) {}

} // namespace

OpenJpegStream openJpegStream(OpenJpegSource &source) {
    OpenJpegStream stream(opj_stream_default_create(OPJ_TRUE));
    if (!stream) {
        throw std::bad_alloc();
    }
    opj_stream_set_user_data(stream.get(), &source, nullptr);
    opj_stream_set_user_data_length(stream.get(), static_cast<OPJ_UINT64>(source.size));
    opj_stream_set_read_function(stream.get(), readBytes);
    opj_stream_set_skip_function(stream.get(), skipBytes);
    opj_stream_set_seek_function(stream.get(), seekTo);
    return stream;
}

OpenJpegCodec openJpegCodec(bool isCodestream) {
    OpenJpegCodec codec(opj_create_decompress(isCodestream ? OPJ_CODEC_J2K : OPJ_CODEC_JP2));
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

} // namespace folioforge
