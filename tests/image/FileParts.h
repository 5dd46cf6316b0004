// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/ByteOrder.h"

#include <QByteArray>

namespace folioforge::test {

/// A box of a JPEG 2000 or JPEG XL file.
inline QByteArray box(const char *type, const QByteArray &content) {
    return big(quint32(content.size() + 8)) + type + content;
}

/// A segment of a JPEG behind its length.
inline QByteArray segment(uchar marker, const QByteArray &content) {
    return QByteArray(1, '\xFF') + char(marker) + big(quint16(content.size() + 2)) + content;
}

/// A resource of Photoshop, without a name.
inline QByteArray photoshopResource(quint16 number, const QByteArray &content) {
    return "8BIM" + big(number) + QByteArray(2, '\0') + big(quint32(content.size())) + content +
           QByteArray(content.size() % 2, '\0');
}

} // namespace folioforge::test
