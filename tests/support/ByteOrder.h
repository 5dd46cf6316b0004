// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QtEndian>

namespace folioforge::test {

/// The number's bytes, the high one first.
template<typename Integer> QByteArray big(Integer value) {
    QByteArray bytes(sizeof(Integer), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// The number's bytes, the low one first.
template<typename Integer> QByteArray little(Integer value) {
    QByteArray bytes(sizeof(Integer), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

} // namespace folioforge::test
