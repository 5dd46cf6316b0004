// SPDX-License-Identifier: Apache-2.0

#include "text/MissingGlyphs.h"

#include <QChar>
#include <QStringList>

#include <unicode/uscript.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString scriptName(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_PrivateUse:
        return u"private use"_s;
    case QChar::Other_NotAssigned:
        return u"unassigned"_s;
    default:
        break;
    }
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &status);
    if (U_FAILURE(status) || script <= USCRIPT_INHERITED) { // Symbols and marks of many scripts.
        return u"other"_s;
    }
    return QString::fromLatin1(uscript_getName(script)).replace(u'_', u' ');
}

QString characters(qint64 count, const QString &one, const QString &many) {
    return count == 1 ? u"1 character "_s + one : u"%1 characters "_s.arg(count) + many;
}

} // namespace

MissingGlyphs::Script &MissingGlyphs::scriptOf(char32_t character) {
    const QString name = scriptName(character);
    const auto known = std::ranges::find(m_scripts, name, &Script::name);
    return known != m_scripts.end() ? *known : m_scripts.emplace_back(Script{name, {}, false});
}

void MissingGlyphs::add(const Glyph &glyph) {
    if (glyph.character == kNoCharacter) {
        ++m_halves;
        return;
    }
    ++m_count;
    constexpr std::size_t kNamed = 3;
    Script &script = scriptOf(glyph.character);
    if (std::ranges::find(script.first, glyph.character) != script.first.end()) {
        return;
    }
    if (script.first.size() == kNamed) {
        script.hasMore = true;
    } else {
        script.first.push_back(glyph.character);
    }
}

Warnings MissingGlyphs::warnings() const {
    Warnings warnings;
    QStringList scripts;
    for (const Script &script : m_scripts) {
        QStringList codes;
        for (const char32_t character : script.first) {
            constexpr int kHexadecimal = 16;
            constexpr int kDigits = 4;
            codes += u"U+"_s + QString::number(uint{character}, kHexadecimal)
                                   .toUpper()
                                   .rightJustified(kDigits, u'0');
        }
        if (script.hasMore) {
            codes += u"..."_s;
        }
        scripts += u"%1 (%2)"_s.arg(script.name, codes.join(u", "_s));
    }
    if (m_count > 0) {
        const QString what = u"no glyph in any font and "_s;
        warnings.push_back({WarningCode::MissingGlyphs,
                            characters(m_count, u"has "_s + what + u"is shown as a box: "_s,
                                       u"have "_s + what + u"are shown as boxes: "_s) +
                                scripts.join(u", "_s)});
    }
    if (m_halves > 0) {
        const QString where = u"split between two rows and shown as boxes"_s;
        warnings.push_back({WarningCode::MissingGlyphs,
                            characters((m_halves + 1) / 2, u"is "_s + where, u"are "_s + where)});
    }
    return warnings;
}

} // namespace folioforge
