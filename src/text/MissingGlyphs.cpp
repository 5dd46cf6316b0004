// SPDX-License-Identifier: Apache-2.0

#include "text/MissingGlyphs.h"

#include "error/Reasons.h"

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
        return Reasons::tr("private use");
    case QChar::Other_NotAssigned:
        return Reasons::tr("unassigned");
    default:
        break;
    }
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(static_cast<UChar32>(character), &status);
    if (U_FAILURE(status) || script <= USCRIPT_INHERITED) { // Symbols and marks of many scripts.
        return Reasons::tr("other");
    }
    return QString::fromLatin1(uscript_getName(script)).replace(u'_', u' ');
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
        const QString text =
            m_count == 1
                ? Reasons::tr("1 character has no glyph in any font and is shown as a box: %1")
                : Reasons::tr("%n characters have no glyph in any font and are shown as boxes: %1",
                              nullptr, static_cast<int>(m_count));
        warnings.push_back({WarningCode::MissingGlyphs, text.arg(Reasons::listed(scripts))});
    }
    if (m_halves > 0) {
        const auto count = static_cast<int>((m_halves + 1) / 2);
        const QString text =
            count == 1 ? Reasons::tr("1 character is split between two rows and shown as boxes")
                       : Reasons::tr("%n characters are split between two rows and shown as boxes",
                                     nullptr, count);
        warnings.push_back({WarningCode::MissingGlyphs, text});
    }
    return warnings;
}

} // namespace folioforge
