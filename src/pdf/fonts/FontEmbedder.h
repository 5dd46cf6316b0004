// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/fonts/CodeTable.h"
#include "pdf/fonts/FontObjects.h"
#include "pdf/fonts/GlyphCids.h"
#include "text/FontCascade.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class StreamData;

/// A glyph as a content stream shows it.
struct GlyphCode {
    static constexpr std::size_t kMaxLength = 4; ///< Two bytes, both escaped.

    std::uint16_t font = 0;             ///< Fonts are numbered from 1.
    std::uint16_t length = 0;           ///< Of `bytes`.
    std::array<char, kMaxLength> bytes; ///< The code, escaped for a literal string.
};

/// The fonts of one document. Gives the glyphs of a cascade their codes while pages are drawn and
/// embeds each face that was used at the end, with the glyphs that were used.
class FontEmbedder {
  public:
    /// Fonts for `document`, their streams made by `streams`; resource names start with `prefix`.
    FontEmbedder(QPDF &document, StreamData &streams, std::shared_ptr<const FontCascade> cascade,
                 std::string prefix);

    /// The code of a glyph of the cascade, which has at least one face. Throws Error when the face
    /// cannot be read.
    GlyphCode codeOf(const Glyph &glyph) {
        const auto &page = m_codes[glyph.character / kPageSize];
        if (page) {
            const GlyphCode known = (*page)[glyph.character % kPageSize];
            if (known.font != 0) {
                return known;
            }
        }
        return addCode(glyph);
    }
    [[nodiscard]] const FontCascade &cascade() const { return *m_cascade; }

    /// The resource name of a font, with its slash: "/F1" for the first.
    [[nodiscard]] std::string resourceName(std::uint16_t font) const;
    /// The object of a font; empty before embed().
    [[nodiscard]] const QPDFObjectHandle &object(std::uint16_t font) const {
        return m_fonts[font - 1U].object;
    }

    /// Fills the objects of the fonts. Call it once, after the last codeOf(). Throws Error when a
    /// face cannot be embedded.
    void embed(FontRules rules);

  private:
    static constexpr std::size_t kPageSize = 256;
    using Page = std::array<GlyphCode, kPageSize>;
    struct Font {
        CodeTable table;
        QPDFObjectHandle object;
    };

    struct Face {
        std::optional<GlyphCids> cids;
        std::vector<std::uint16_t> fonts; ///< Their numbers.
    };

    GlyphCode addCode(const Glyph &glyph);
    std::optional<GlyphCode> addCode(std::uint16_t font, const Face &face, const Glyph &glyph);
    Face &faceOf(const Glyph &glyph);

    QPDF &m_document;
    StreamData &m_streams;
    std::shared_ptr<const FontCascade> m_cascade;
    std::string m_prefix;
    std::vector<std::unique_ptr<Page>> m_codes; ///< By character.
    std::vector<Font> m_fonts;
    std::map<std::uint16_t, Face> m_faces;
};

} // namespace folioforge
