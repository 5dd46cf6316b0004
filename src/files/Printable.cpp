// SPDX-License-Identifier: Apache-2.0

#include "files/Printable.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The joiners between letters, which are of the category of format marks but belong to words of
/// many scripts, and to emoji.
bool isJoiner(char32_t character) {
    return character == U'\u200C' || character == U'\u200D';
}

QString spelledOut(char32_t character) {
    constexpr int kHexadecimal = 16;
    constexpr char32_t kLastAscii = 0x7F;
    const QString digits = QString::number(character, kHexadecimal).rightJustified(2, u'0');
    return character <= kLastAscii ? u"\\x"_s + digits : u"\\u{"_s + digits + u'}';
}

} // namespace

bool isPrintable(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format:
        return isJoiner(character);
    default:
        return true;
    }
}

QString printable(const QString &text) {
    QString result;
    const auto characters = text.toUcs4(); // Half a character becomes the replacement character.
    for (const char32_t character : characters) {
        if (isPrintable(character)) {
            result += QChar::fromUcs4(character);
        } else {
            result += spelledOut(character);
        }
    }
    return result;
}

} // namespace folioforge
