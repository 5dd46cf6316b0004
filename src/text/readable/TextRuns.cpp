// SPDX-License-Identifier: Apache-2.0

#include "text/readable/TextRuns.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/uscript.h>
#include <unicode/utf16.h>

namespace folioforge {
namespace {

/// Whether a character takes part in any script: blanks, points, digits and combining marks.
bool isOfAnyScript(UScriptCode script) {
    return script == USCRIPT_COMMON || script == USCRIPT_INHERITED;
}

UScriptCode scriptOf(char32_t character) {
    UErrorCode error = U_ZERO_ERROR;
    return uscript_getScript(static_cast<UChar32>(character), &error);
}

/// Nothing to see, such as a joiner: no face needs to have it.
bool isInvisible(char32_t character) {
    return u_hasBinaryProperty(static_cast<UChar32>(character),
                               UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

bool isMark(char32_t character) {
    return (U_GET_GC_MASK(static_cast<UChar32>(character)) & U_GC_M_MASK) != 0;
}

/// The character that is a letter and a mark in one, such as "é"; 0 where there is none.
char32_t composed(char32_t letter, char32_t mark) {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *rules = unorm2_getNFCInstance(&error);
    const UChar32 whole = U_SUCCESS(error) ? unorm2_composePair(rules, static_cast<UChar32>(letter),
                                                                static_cast<UChar32>(mark))
                                           : U_SENTINEL;
    return whole < 0 ? 0 : static_cast<char32_t>(whole);
}

/// Cuts the units of one direction into runs.
class RunFinder {
  public:
    RunFinder(const FontCascade &font, std::vector<TextRun> &runs, MissingGlyphs &missing)
        : m_font(font)
        , m_runs(runs)
        , m_missing(missing) {}

    void add(QStringView paragraph, const DirectedRun &directed) {
        for (qsizetype at = directed.first; at < directed.end;) {
            const qsizetype first = at;
            char32_t character = paragraph[at++].unicode();
            if (U16_IS_LEAD(character) && at < directed.end) {
                character = U16_GET_SUPPLEMENTARY(character, paragraph[at++].unicode());
            }
            const std::uint16_t face = faceOf(character);
            const bool isAtTab = character == U'\t' || (first > 0 && paragraph[first - 1] == u'\t');
            if (first == directed.first || isAtTab || !joins(character, face)) {
                begin(first, character,
                      {first, at, directed.rightToLeft, face, scriptOf(character)});
            }
            m_runs.back().end = at;
            if (!isMark(character)) {
                m_base = {first, character == U'\t' ? U'\0' : character};
            }
        }
    }

  private:
    struct Base {
        qsizetype first = 0;
        char32_t character = 0;
    };

    /// The face that the character would have by itself.
    std::uint16_t faceOf(char32_t character) {
        const Glyph glyph = m_font.glyph(character);
        if (m_font.isMissing(glyph) && !isInvisible(character)) {
            m_missing.add(glyph);
        }
        return glyph.face;
    }

    bool has(std::uint16_t face, char32_t character) const {
        return m_font.face(face).glyph(character).has_value();
    }

    /// Whether the character goes into the last run, which takes its script if it has none yet.
    bool joins(char32_t character, std::uint16_t face) {
        TextRun &run = m_runs.back();
        const UScriptCode script = scriptOf(character);
        if (isOfAnyScript(script)) {
            return face == run.face || isInvisible(character) || has(run.face, character) ||
                   (isMark(character) && has(run.face, composed(m_base.character, character)));
        }
        if (face != run.face) {
            return false;
        }
        if (isOfAnyScript(static_cast<UScriptCode>(run.script))) {
            run.script = script;
        }
        return run.script == script;
    }

    /// Begins a run; with a mark its letter goes over to it, where the face of the mark has that.
    void begin(qsizetype first, char32_t character, TextRun run) {
        if (isMark(character) && m_base.character != 0 && !m_runs.empty() &&
            m_runs.back().first <= m_base.first && m_base.first < first &&
            has(run.face, m_base.character)) {
            run.first = m_base.first;
            run.script = scriptOf(m_base.character);
            m_runs.back().end = run.first;
            if (m_runs.back().first == run.first) {
                m_runs.pop_back();
            }
        }
        m_runs.push_back(run);
    }

    const FontCascade &m_font;
    std::vector<TextRun> &m_runs;
    MissingGlyphs &m_missing;
    Base m_base; ///< The last character that is no mark; none after a tab.
};

} // namespace

std::vector<TextRun> findRuns(QStringView paragraph, const std::vector<DirectedRun> &directed,
                              const FontCascade &font, MissingGlyphs &missing) {
    std::vector<TextRun> runs;
    RunFinder finder(font, runs, missing);
    for (const DirectedRun &run : directed) {
        finder.add(paragraph, run);
    }
    return runs;
}

} // namespace folioforge
