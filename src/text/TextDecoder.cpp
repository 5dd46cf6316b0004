#include "text/TextDecoder.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace folioforge {

QString decodeText(QByteArrayView bytes) {
    // Stateless, or a sequence cut short by the end of the file would wait for its rest.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(bytes);
    if (decode.hasError()) {
        return {};
    }
    return text.isNull() ? u""_s : text;
}

} // namespace folioforge
