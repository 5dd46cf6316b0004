// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// Whether `character` shows something on its line: false for what could move a terminal's cursor
/// or hide and turn the rest of a name, such as control characters and marks of direction.
bool isPrintable(char32_t character);

/// `text` on one line, with what is not printable spelled out as \xNN or \u{NNNN}, and halves of
/// characters, which a cut may leave, as replacement characters.
QString printable(const QString &text);

} // namespace folioforge
