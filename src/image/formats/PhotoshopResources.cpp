// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PhotoshopResources.h"

#include "image/Bytes.h"

namespace folioforge {

void forEachPhotoshopResource(QByteArrayView resources,
                              const std::function<void(quint16, QByteArrayView)> &visit) {
    const auto even = [](qsizetype length) { return length + length % 2; };
    constexpr qsizetype kMinBytes = 12;
    for (qsizetype at = 0; at + kMinBytes <= resources.size();) {
        const auto id = bigEndianAt<quint16>(resources, at + 4);
        at += 6 + even(1 + bigEndianAt<uchar>(resources, at + 6));
        if (at + 4 > resources.size()) {
            break;
        }
        const qsizetype length = bigEndianAt<quint32>(resources, at);
        at += 4;
        if (length > resources.size() - at) {
            break;
        }
        visit(id, resources.sliced(at, length));
        at += even(length);
    }
}

} // namespace folioforge
