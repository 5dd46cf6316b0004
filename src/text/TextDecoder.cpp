// SPDX-License-Identifier: Apache-2.0

#include "text/TextDecoder.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

QString decoded(QByteArrayView bytes, QStringDecoder::Flags flags) {
    // Stateless, so that a sequence that the end of the file cuts short is an error.
    QStringDecoder decode(QStringDecoder::Utf8, flags | QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    if (decode.hasError()) {
        return {};
    }
    return text.isNull() ? u""_s : text;
}

} // namespace

QString decodeText(QByteArrayView bytes) {
    return decoded(bytes, QStringDecoder::Flag::Default);
}

QString decodeRest(QByteArrayView bytes) {
    return decoded(bytes, QStringDecoder::Flag::ConvertInitialBom);
}

} // namespace folioforge
