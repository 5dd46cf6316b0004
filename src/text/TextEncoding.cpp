// SPDX-License-Identifier: Apache-2.0

#include "text/TextEncoding.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "text/TextDecoder.h"

#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>

#include <algorithm>
#include <memory>

namespace folioforge {
namespace {

struct CloseConverter {
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

struct CloseDetector {
    void operator()(UCharsetDetector *detector) const { ucsdet_close(detector); }
};

/// Null where ICU does not know the encoding.
Converter converterOf(const QByteArray &encoding) {
    UErrorCode error = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding.constData(), &error));
    if (U_FAILURE(error)) {
        return nullptr;
    }
    // By itself ICU would put a replacement for what it cannot read.
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
    return U_SUCCESS(error) ? std::move(converter) : nullptr;
}

/// A null string where the bytes are not of the encoding.
QString converted(QByteArrayView bytes, const QByteArray &encoding) {
    const Converter converter = converterOf(encoding);
    QString text;
    const char *from = bytes.data();
    UErrorCode error = U_BUFFER_OVERFLOW_ERROR;
    for (qsizetype length = 0; converter && error == U_BUFFER_OVERFLOW_ERROR;) {
        text.resize(length + std::max<qsizetype>(bytes.end() - from, 1) + 16);
        auto *const start = reinterpret_cast<char16_t *>(text.data());
        char16_t *to = start + length;
        error = U_ZERO_ERROR;
        ucnv_toUnicode(converter.get(), &to, start + text.size(), &from, bytes.end(), nullptr, 1,
                       &error);
        length = to - start;
        if (error != U_BUFFER_OVERFLOW_ERROR) {
            text.truncate(length);
        }
    }
    if (U_FAILURE(error)) {
        return {};
    }
    constexpr char16_t kByteOrderMark = 0xFEFF;
    return text.startsWith(QChar(kByteOrderMark)) ? text.sliced(1) : text;
}

/// The encoding that a byte order mark names; empty without one.
QByteArray markedEncoding(QByteArrayView bytes) {
    UErrorCode error = U_ZERO_ERROR;
    const auto looked = static_cast<int32_t>(std::min<qsizetype>(bytes.size(), 4));
    const char *name = ucnv_detectUnicodeSignature(bytes.data(), looked, nullptr, &error);
    return name != nullptr ? QByteArray(name) : QByteArray();
}

/// The likeliest encoding by the frequency of bytes; empty where none is likely.
QByteArray likelyEncoding(QByteArrayView bytes) {
    constexpr qsizetype kEnough = 65'536;
    constexpr int32_t kLikely = 10; // Of 100; a short text of one language has little more.
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, CloseDetector> detector(ucsdet_open(&error));
    ucsdet_setText(detector.get(), bytes.data(),
                   static_cast<int32_t>(std::min(bytes.size(), kEnough)), &error);
    const UCharsetMatch *match = ucsdet_detect(detector.get(), &error);
    if (U_FAILURE(error) || match == nullptr || ucsdet_getConfidence(match, &error) < kLikely) {
        return {};
    }
    const char *name = ucsdet_getName(match, &error);
    return U_SUCCESS(error) ? QByteArray(name) : QByteArray();
}

QString requireText(QByteArrayView bytes, const QByteArray &encoding) {
    QString text = converted(bytes, encoding);
    if (text.isNull()) {
        throw Error(Reasons::tr("The text is not valid %1").arg(QString::fromLatin1(encoding)));
    }
    return text;
}

} // namespace

bool isTextEncoding(const QString &name) {
    return name == kTellingEncoding || converterOf(name.toLatin1()) != nullptr;
}

DecodedText decodeText(QByteArrayView bytes, const QString &encoding) {
    if (encoding != kTellingEncoding) {
        return {requireText(bytes, encoding.toLatin1()), {}};
    }
    if (const QByteArray marked = markedEncoding(bytes); !marked.isEmpty()) {
        return {requireText(bytes, marked), {}};
    }
    if (QString text = decodeText(bytes); !text.isNull()) {
        return {std::move(text), {}};
    }
    const QByteArray likely = likelyEncoding(bytes);
    QString text = likely.isEmpty() ? QString() : converted(bytes, likely);
    if (text.isNull()) {
        throw Error(Reasons::tr("The bytes do not tell the encoding of the text"));
    }
    return {std::move(text), QString::fromLatin1(likely)};
}

} // namespace folioforge
