// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCatalog.h"
#include "text/FontFace.h"

#include <QString>
#include <QStringList>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <tuple>
#include <vector>

namespace folioforge {

/// The `character` of a glyph that stands for none, such as that of half a surrogate pair.
inline constexpr char32_t kNoCharacter = 0x110000;

/// One glyph of a row as it is measured and drawn.
struct Glyph {
    std::uint16_t id = 0;   ///< Glyph id in its face; 0 draws the face's missing-glyph box.
    std::uint16_t face = 0; ///< Index of the face in the FontCascade.
    char32_t character = kNoCharacter; ///< The character it stands for.
    double advance = 0;                ///< Points at the cascade's size.

    bool operator==(const Glyph &) const = default;
};

/// How far letters reach from their baseline, in points.
struct RowReach {
    double ascent = 0;
    double descent = 0; ///< Positive.
};

/// The text font: the named families if the system has them, then a cascade of free fonts that
/// together cover the scripts of the world. The first face gives the row height. Another face is
/// opened when a character needs it. Glyphs are cached. Use it from any thread.
class FontCascade {
  public:
    /// The faces for the first of `families`, then for the others, at `size` points. Never fails:
    /// without any font, glyphs have no width and draw nothing.
    static std::shared_ptr<const FontCascade> load(const QStringList &families, double size);

    /// Points.
    [[nodiscard]] double size() const { return m_size; }
    [[nodiscard]] double ascent() const;  ///< Points, of the first face.
    [[nodiscard]] double descent() const; ///< Points, positive, of the first face.
    [[nodiscard]] double leading() const; ///< Points, of the first face.
    /// Ascent + descent + leading, summed in double precision and stored as a 32-bit float.
    [[nodiscard]] float rowHeight() const {
        return static_cast<float>(ascent() + descent() + leading());
    }

    /// The same font, with a glyph in place of the missing-glyph box for what no face has: a
    /// character that looks like one. Made at the first call.
    [[nodiscard]] std::shared_ptr<const FontCascade> withoutBoxes() const;
    /// Whether a glyph shows that no face has its character.
    [[nodiscard]] bool isMissing(const Glyph &glyph) const {
        return glyph.id == m_missing.id && glyph.face == m_missing.face &&
               glyph.character != m_missingAs;
    }

    /// The number of faces, opened or not; 0 on a system without fonts.
    [[nodiscard]] std::size_t faceCount() const { return m_faces.size(); }
    /// The face of that index, as in Glyph::face. Throws Error when its file has become unreadable.
    [[nodiscard]] const FontFace &face(std::size_t index) const;
    /// What that face wants to have as room. Throws Error likewise.
    [[nodiscard]] RowReach reach(std::size_t index) const;

    /// The glyph of one character from the first face that covers it, else glyph 0 of the first
    /// face. A control character that the first face lacks has the glyph of a blank.
    [[nodiscard]] Glyph glyph(char32_t character) const {
        const char32_t ascii = character - kFirstAscii;
        return ascii < m_ascii.size() ? m_ascii[ascii] : cachedGlyph(character);
    }
    /// The glyph of a printable ASCII character, as nearly all of a large text are; null for other
    /// characters, and where no face has all of them.
    [[nodiscard]] const Glyph *asciiGlyph(char16_t unit) const {
        const std::size_t ascii = static_cast<std::size_t>(unit) - kFirstAscii;
        return ascii < m_asciiDrawn ? &m_ascii[ascii] : nullptr;
    }
    /// Glyph `id` of `face` where shaping chose it for `text`: it stands for several characters, or
    /// for one of them by another form. Its character is past Unicode. Throws Error when there are
    /// kMaxForms already.
    [[nodiscard]] Glyph form(std::uint16_t face, std::uint16_t id, const QString &text) const;
    static constexpr char32_t kFirstForm = 0x110100;
    static constexpr char32_t kMaxForms = 0x10000;
    /// The text that a glyph stands for; empty for half of a surrogate pair.
    [[nodiscard]] QString textOf(const Glyph &glyph) const;
    /// What half of a surrogate pair draws: the missing-glyph box, or what stands for it.
    [[nodiscard]] Glyph missingGlyph() const { return m_missing; }

  private:
    struct Face {
        explicit Face(CatalogFont entry)
            : font(std::move(entry)) {}
        CatalogFont font;
        std::unique_ptr<const FontFace> opened;
        bool unreadable = false;
    };
    static constexpr std::size_t kPageSize = 256;
    struct Page {
        std::array<Glyph, kPageSize> glyphs;
        std::array<std::atomic<bool>, kPageSize> known{}; ///< Set behind the glyph.
    };
    static constexpr char32_t kNoGlyph = 0xFFFFFFFF;
    static constexpr char32_t kFirstAscii = 0x20;
    static constexpr char32_t kLastAscii = 0x7E;

    enum class Missing { Box, Character };
    FontCascade(const QStringList &families, double size, Missing missing);

    void chooseMissing();

    const FontFace *openFace(std::size_t index) const;
    [[nodiscard]] Glyph cachedGlyph(char32_t character) const;
    const Glyph &addGlyph(char32_t character) const;
    [[nodiscard]] Glyph findGlyph(char32_t character) const;
    [[nodiscard]] Glyph glyphOf(std::size_t face, std::uint16_t id, char32_t character) const;
    [[nodiscard]] double points(int fontUnits) const;

    QStringList m_families;
    double m_size = 0;
    const FontFace *m_first = nullptr;
    Glyph m_missing;
    char32_t m_missingAs = kNoGlyph; ///< The character whose glyph m_missing is; none of a box.
    std::array<Glyph, kLastAscii - kFirstAscii + 1> m_ascii;
    std::size_t m_asciiDrawn = 0; ///< All of m_ascii, or none where one of them would be a box.

    mutable std::mutex m_mutex; ///< Guards the faces and the forms; glyphs are added under it.
    mutable std::vector<Face> m_faces;
    mutable std::deque<Page> m_pages;
    mutable std::vector<std::atomic<Page *>> m_pageOf; ///< By the number of the page; may be null.
    mutable std::map<std::tuple<std::uint16_t, std::uint16_t, QString>, char32_t> m_forms;
    mutable std::vector<QString> m_formTexts; ///< By character, from kFirstForm on.
    mutable std::shared_ptr<const FontCascade> m_withoutBoxes;
};

/// The font of text pages, "Arial Unicode MS" at 14 points. It is loaded at first use and kept, so
/// that a thousand small documents load it once.
std::shared_ptr<const FontCascade> textFont();

} // namespace folioforge
