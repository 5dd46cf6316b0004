// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>
#include <QString>

namespace folioforge {

/// The text of a file's bytes in strict UTF-8, without a byte order mark at the start. A null
/// string when the bytes are not UTF-8, an empty one when there is no text.
QString decodeText(QByteArrayView bytes);
/// The same of bytes that do not begin their file, where the mark is a character as any other.
QString decodeRest(QByteArrayView bytes);

} // namespace folioforge
