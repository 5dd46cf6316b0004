// SPDX-License-Identifier: Apache-2.0

#include "text/TextDecoder.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace folioforge {

QString decodeText(QByteArrayView bytes) {
    // Stateless, so that a sequence that the end of the file cuts short is an error.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    if (decode.hasError()) {
        return {};
    }
    return text.isNull() ? u""_s : text;
}

} // namespace folioforge
