// SPDX-License-Identifier: Apache-2.0

#include "text/FontCascade.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <QChar>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {
/// Pages of 256 characters that cover all of Unicode.
constexpr std::size_t kUnicodePages = 0x1100;
} // namespace

std::shared_ptr<const FontCascade> FontCascade::load(const QStringList &families, double size) {
    return std::shared_ptr<const FontCascade>(new FontCascade(families, size, Missing::Box));
}

std::shared_ptr<const FontCascade> FontCascade::withoutBoxes() const {
    const std::lock_guard lock(m_mutex);
    if (!m_withoutBoxes) {
        m_withoutBoxes.reset(new FontCascade(m_families, m_size, Missing::Character));
    }
    return m_withoutBoxes;
}

FontCascade::FontCascade(const QStringList &families, double size, Missing missing)
    : m_families(families)
    , m_size(size)
    , m_pageOf(kUnicodePages) {
    for (CatalogFont &font : findTextFonts(families)) {
        // The first face gives the row height, so it must open.
        if (Face face(std::move(font));
            !m_faces.empty() ||
            (face.opened = FontFace::open(face.font.path(), face.font.index()))) {
            m_faces.push_back(std::move(face));
        }
    }
    if (!m_faces.empty()) {
        m_first = m_faces.front().opened.get();
        m_missing = glyphOf(0, 0, kNoCharacter);
        if (missing == Missing::Character) {
            chooseMissing();
        }
    }
    for (char32_t character = kFirstAscii; character <= kLastAscii; ++character) {
        m_ascii[character - kFirstAscii] = findGlyph(character);
    }
    if (std::none_of(m_ascii.begin(), m_ascii.end(),
                     [this](const Glyph &glyph) { return isMissing(glyph); })) {
        m_asciiDrawn = m_ascii.size();
    }
}

void FontCascade::chooseMissing() {
    for (const char32_t character : {U'\u25A1', U'\uFFFD', U'?'}) {
        if (const Glyph glyph = findGlyph(character); glyph.id != 0) {
            m_missing = glyph;
            m_missing.character = kNoCharacter;
            m_missingAs = character;
            return;
        }
    }
}

double FontCascade::points(int fontUnits) const {
    return fontUnits * m_size / m_first->unitsPerEm();
}

double FontCascade::ascent() const {
    return m_first ? points(m_first->extents().ascent) : 0;
}

double FontCascade::descent() const {
    return m_first ? points(m_first->extents().descent) : 0;
}

double FontCascade::leading() const {
    return m_first ? points(m_first->extents().leading) : 0;
}

const FontFace &FontCascade::face(std::size_t index) const {
    const std::lock_guard lock(m_mutex);
    if (const FontFace *face = openFace(index)) {
        return *face;
    }
    throw Error(Reasons::tr("the font %1 cannot be read")
                    .arg(QFile::decodeName(m_faces.at(index).font.path())));
}

RowReach FontCascade::reach(std::size_t index) const {
    const FontFace &opened = face(index);
    const FontExtents &extents = opened.extents();
    const double scale = m_size / opened.unitsPerEm();
    return {extents.ascent * scale, extents.descent * scale};
}

const FontFace *FontCascade::openFace(std::size_t index) const {
    Face &face = m_faces.at(index);
    if (!face.opened && !face.unreadable) {
        face.opened = FontFace::open(face.font.path(), face.font.index());
        face.unreadable = !face.opened;
    }
    return face.opened.get();
}

Glyph FontCascade::cachedGlyph(char32_t character) const {
    const std::size_t number = character / kPageSize;
    if (number >= m_pageOf.size()) {
        return m_missing;
    }
    // Every character of a text in another script comes here: a lock takes as long as all else.
    const Page *page = m_pageOf[number];
    const std::size_t slot = character % kPageSize;
    return page && page->known[slot] ? page->glyphs[slot] : addGlyph(character);
}

const Glyph &FontCascade::addGlyph(char32_t character) const {
    const std::lock_guard lock(m_mutex);
    Page *page = m_pageOf[character / kPageSize];
    if (!page) {
        page = &m_pages.emplace_back();
        m_pageOf[character / kPageSize] = page;
    }
    const std::size_t slot = character % kPageSize;
    if (!page->known[slot]) {
        page->glyphs[slot] = findGlyph(character);
        page->known[slot] = true;
    }
    return page->glyphs[slot];
}

Glyph FontCascade::findGlyph(char32_t character) const {
    // Where a font after the first has a control character, it shows a box with letters in it.
    const bool isControl = QChar::category(character) == QChar::Other_Control;
    const std::size_t faces = std::min<std::size_t>(m_faces.size(), isControl ? 1 : m_faces.size());
    for (std::size_t i = 0; i < faces; ++i) {
        // The catalog omits control characters, so the first face is asked itself.
        if (i > 0 && !m_faces[i].font.covers(character)) {
            continue;
        }
        const FontFace *face = openFace(i);
        if (const auto id = face ? face->glyph(character) : std::nullopt) {
            return glyphOf(i, *id, character);
        }
    }
    if (isControl) {
        return findGlyph(U' '); // Its character too: readers drop the text of a control character.
    }
    Glyph missing = m_missing;
    missing.character = character;
    return missing;
}

Glyph FontCascade::form(std::uint16_t face, std::uint16_t id, const QString &text) const {
    const std::lock_guard lock(m_mutex);
    const auto known = m_forms.find({face, id, text});
    if (known != m_forms.end()) {
        return glyphOf(face, id, known->second);
    }
    if (m_formTexts.size() == kMaxForms) {
        throw Error(Reasons::tr("The text has too many different forms of letters"));
    }
    const auto next = static_cast<char32_t>(kFirstForm + m_formTexts.size());
    m_formTexts.push_back(text); // Before the form: one without a text would get another's.
    m_forms.emplace(std::tuple(face, id, text), next);
    return glyphOf(face, id, next);
}

QString FontCascade::textOf(const Glyph &glyph) const {
    if (glyph.character >= kFirstForm) {
        const std::lock_guard lock(m_mutex);
        return m_formTexts.at(glyph.character - kFirstForm);
    }
    return glyph.character < kNoCharacter ? QString::fromUcs4(&glyph.character, 1) : QString();
}

Glyph FontCascade::glyphOf(std::size_t face, std::uint16_t id, char32_t character) const {
    const FontFace &opened = *m_faces[face].opened;
    return {id, static_cast<std::uint16_t>(face), character,
            opened.advance(id) * m_size / opened.unitsPerEm()};
}

std::shared_ptr<const FontCascade> textFont() {
    constexpr double kPoints = 14;
    static const auto font = FontCascade::load({u"Arial Unicode MS"_s}, kPoints);
    return font;
}

} // namespace folioforge
