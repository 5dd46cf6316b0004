// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/FontEmbedder.h"

#include "pdf/fonts/FontSubset.h"

#include <qpdf/QPDF.hh>

#include <set>

namespace folioforge {

namespace {
/// Pages of 256 characters that cover all of Unicode, kNoCharacter, and the forms of letters.
constexpr std::size_t kCharacterPages = (FontCascade::kFirstForm + FontCascade::kMaxForms) / 256;

void appendByte(GlyphCode &code, unsigned byte) {
    auto letter = static_cast<char>(byte);
    if (letter == '(' || letter == ')' || letter == '\\') {
        code.bytes[code.length++] = '\\';
    } else if (letter == '\r') { // A bare carriage return in a string reads as a line feed.
        code.bytes[code.length++] = '\\';
        letter = 'r';
    }
    code.bytes[code.length++] = letter;
}

GlyphCode escapedCode(std::uint16_t font, std::uint16_t code, bool twoBytes) {
    constexpr unsigned kByte = 0xFF;
    GlyphCode escaped{font, 0, {}};
    if (twoBytes) {
        appendByte(escaped, code >> 8U);
    }
    appendByte(escaped, code & kByte);
    return escaped;
}

} // namespace

FontEmbedder::FontEmbedder(QPDF &document, StreamData &streams,
                           std::shared_ptr<const FontCascade> cascade, std::string prefix)
    : m_document(document)
    , m_streams(streams)
    , m_cascade(std::move(cascade))
    , m_prefix(std::move(prefix))
    , m_codes(kCharacterPages) {}

std::string FontEmbedder::resourceName(std::uint16_t font) const {
    return '/' + m_prefix + std::to_string(font);
}

FontEmbedder::Face &FontEmbedder::faceOf(const Glyph &glyph) {
    const auto known = m_faces.find(glyph.face);
    return known != m_faces.end()
               ? known->second
               : m_faces.emplace(glyph.face, Face{GlyphCids::read(m_cascade->face(glyph.face)), {}})
                     .first->second;
}

std::optional<GlyphCode> FontEmbedder::addCode(std::uint16_t font, const Face &face,
                                               const Glyph &glyph) {
    CodeTable &table = m_fonts[font - 1U].table;
    const QString text = m_cascade->textOf(glyph);
    if (face.cids) {
        const std::uint16_t cid = face.cids->of(glyph.id);
        return table.addAt(cid, glyph.id, text) ? std::optional(escapedCode(font, cid, true))
                                                : std::nullopt;
    }
    const auto code = table.add(glyph.id, text);
    return code ? std::optional(escapedCode(font, *code, *code > CodeTable::kLastOneByte))
                : std::nullopt;
}

GlyphCode FontEmbedder::addCode(const Glyph &glyph) {
    Face &face = faceOf(glyph);
    std::optional<GlyphCode> code;
    for (const std::uint16_t font : face.fonts) {
        if ((code = addCode(font, face, glyph))) {
            break;
        }
    }
    if (!code) {
        m_fonts.push_back({CodeTable(face.cids ? CodeTable::Form::TwoByte : CodeTable::Form::Mixed),
                           m_document.makeIndirectObject(QPDFObjectHandle::newDictionary())});
        face.fonts.push_back(static_cast<std::uint16_t>(m_fonts.size()));
        code = addCode(face.fonts.back(), face, glyph);
    }
    auto &page = m_codes[glyph.character / kPageSize];
    if (!page) {
        page = std::make_unique<Page>();
    }
    return (*page)[glyph.character % kPageSize] = code.value();
}

void FontEmbedder::embed(FontRules rules) {
    for (const auto &[number, face] : m_faces) {
        std::set<std::uint16_t> glyphs;
        for (const std::uint16_t font : face.fonts) {
            for (const CodeEntry &entry : m_fonts[font - 1U].table.entries()) {
                glyphs.insert(entry.glyph);
            }
        }
        const FontFace &opened = m_cascade->face(number);
        const FontSubset subset = makeFontSubset(opened, face.cids, glyphs);
        FaceObjects objects(m_document, m_streams, opened, subset, rules);
        for (const std::uint16_t font : face.fonts) {
            objects.fillFont(m_fonts[font - 1U].object, m_fonts[font - 1U].table);
        }
    }
}

} // namespace folioforge
