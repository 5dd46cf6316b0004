// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArrayView>
#include <QtEndian>

#include <type_traits>

namespace folioforge {

/// The big-endian number of type T at byte `at`; throws Error when the bytes end before it.
template<typename T> T bigEndianAt(QByteArrayView bytes, qsizetype at) {
    if (at < 0 || at > bytes.size() - static_cast<qsizetype>(sizeof(T))) {
        throw fileEndsTooEarly();
    }
    return qFromBigEndian<T>(bytes.data() + at);
}

/// The little-endian number of type T at byte `at`; throws Error when the bytes end before it.
template<typename T> T littleEndianAt(QByteArrayView bytes, qsizetype at) {
    if (at < 0 || at > bytes.size() - static_cast<qsizetype>(sizeof(T))) {
        throw fileEndsTooEarly();
    }
    return qFromLittleEndian<T>(bytes.data() + at);
}

/// The sample at `index` of a row of samples of `bits` bits each, 8 at most, the first in the high
/// bits.
inline int packedSample(const uchar *row, qsizetype index, int bits) {
    const qsizetype bit = index * bits;
    const auto shift = static_cast<int>(8 - bits - bit % 8);
    return (row[bit / 8] >> shift) & ((1 << bits) - 1);
}

} // namespace folioforge
