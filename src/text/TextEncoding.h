// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>
#include <QString>

namespace folioforge {

/// The encoding that the bytes themselves tell.
inline constexpr QStringView kTellingEncoding(u"auto");

/// Whether `name` is kTellingEncoding or an encoding that ICU knows, such as "utf-16" or
/// "windows-1252".
bool isTextEncoding(const QString &name);

/// A text that was read in one of many encodings.
struct DecodedText {
    QString text;
    QString guess; ///< Its encoding where only the frequency of its bytes tells that; else empty.
};

/// The text of bytes in `encoding`, without a byte order mark. With kTellingEncoding a byte order
/// mark counts first, then whether the bytes are UTF-8, then how often each byte occurs. Throws
/// Error where the bytes are not of the encoding, or do not tell one.
DecodedText decodeText(QByteArrayView bytes, const QString &encoding);

} // namespace folioforge
