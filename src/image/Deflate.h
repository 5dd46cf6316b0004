// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>

struct libdeflate_compressor;
struct libdeflate_decompressor;

namespace folioforge {

/// How hard to look for repetitions.
enum class DeflateEffort {
    Full,
    Fast,    ///< Two thirds of the time, within a percent where there are few to find.
    Faster,  ///< Half the time, within two percent where there are few to find.
    Fastest, ///< For pages of text: half the time again for one percent more bytes.
};

/// Compresses one piece of bytes after another. Making one costs more than a page of text does.
class Deflater {
  public:
    /// Throws std::bad_alloc when there is no memory.
    explicit Deflater(DeflateEffort effort = DeflateEffort::Full);

    /// Appends `bytes` to `out` as a zlib stream (RFC 1950), the form of the PDF's FlateDecode.
    void append(QByteArray &out, QByteArrayView bytes);

  private:
    struct Free {
        void operator()(libdeflate_compressor *compressor) const;
    };
    std::unique_ptr<libdeflate_compressor, Free> m_compressor;
};

/// `bytes` as a zlib stream. Throws std::bad_alloc when there is no memory.
QByteArray deflateBytes(QByteArrayView bytes, DeflateEffort effort = DeflateEffort::Full);

/// The `size` bytes that the zlib stream `bytes` holds; throws Error when it is damaged or holds
/// another number of bytes.
QByteArray inflateBytes(QByteArrayView bytes, qsizetype size);

/// What could be unpacked of a damaged zlib stream.
struct InflatedPart {
    QByteArray bytes;
    bool isFaulty = false; ///< Some of the bytes may be wrong.
};

/// As many of the `size` bytes that the zlib stream `bytes` should hold as it gives. Throws
/// std::bad_alloc when there is no memory.
InflatedPart inflatePartly(QByteArrayView bytes, qsizetype size);

/// What the zlib stream `bytes` holds where the size is unknown; throws Error when it is damaged
/// or holds more than `limit` bytes.
QByteArray inflateUpTo(QByteArrayView bytes, qsizetype limit);

struct FreeDecompressor {
    void operator()(libdeflate_decompressor *decompressor) const;
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, FreeDecompressor>;

/// Looks for damage in one zlib stream after another. Making one costs more than to look at a page
/// of text.
class ZlibCheck {
  public:
    /// Streams that hold more than `limit` bytes count as whole. Throws std::bad_alloc.
    explicit ZlibCheck(qsizetype limit);

    /// Whether the stream `bytes` is cut off or does not match its checksum, which may be missing.
    /// Throws std::bad_alloc.
    bool isDamaged(QByteArrayView bytes);

  private:
    Decompressor m_decompressor;
    qsizetype m_limit;
    QByteArray m_unpacked; ///< Kept for the next stream.
};

} // namespace folioforge
