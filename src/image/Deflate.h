#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace folioforge {

/// How hard to look for repetitions.
enum class DeflateEffort {
    Full,
    Less,   ///< Two thirds of the time, within a percent where there are few to find.
    Little, ///< Half the time, within two percent where there are few to find.
};

/// `bytes` as a zlib stream (RFC 1950), the form of the PDF's FlateDecode. Throws Error when there
/// is no memory.
QByteArray deflateBytes(QByteArrayView bytes, DeflateEffort effort = DeflateEffort::Full);

/// The `size` bytes that the zlib stream `bytes` holds; throws Error when it is damaged or holds
/// another number of bytes.
QByteArray inflateBytes(QByteArrayView bytes, qsizetype size);

/// What the zlib stream `bytes` holds where the size is unknown; throws Error when it is damaged
/// or holds more than `limit` bytes.
QByteArray inflateUpTo(QByteArrayView bytes, qsizetype limit);

} // namespace folioforge
