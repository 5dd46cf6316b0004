#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <span>

#include <openjpeg.h>

namespace folioforge {

// OpenJPEG's objects as values that release themselves.

template<auto destroy> struct DestroyOpenJpeg {
    template<typename Object> void operator()(Object *object) const { destroy(object); }
};
using OpenJpegStream = std::unique_ptr<opj_stream_t, DestroyOpenJpeg<opj_stream_destroy>>;
using OpenJpegCodec = std::unique_ptr<opj_codec_t, DestroyOpenJpeg<opj_destroy_codec>>;
using OpenJpegImage = std::unique_ptr<opj_image_t, DestroyOpenJpeg<opj_image_destroy>>;

/// What a stream reads: `size` bytes, of which `read` fills its target from byte `at` on. It
/// returns the bytes read, fewer at the end; an Error it throws reads as the end.
struct OpenJpegSource {
    std::function<qint64(qint64 at, std::span<uchar> target)> read;
    qint64 size = 0;
    qint64 at = 0; ///< Where the stream reads next.
};

/// A stream over `source`, which must outlive it.
OpenJpegStream openJpegStream(OpenJpegSource &source);

/// A decoder that prints nothing, of a bare codestream or of a file of boxes around one.
OpenJpegCodec openJpegCodec(bool isCodestream);

} // namespace folioforge
