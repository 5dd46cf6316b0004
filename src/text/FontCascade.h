#pragma once

#include "text/Glyph.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <cstddef>
#include <memory>
#include <vector>

struct hb_face_t;

namespace folioforge {

/// One font file opened for measuring and embedding.
class FontFace {
  public:
    virtual ~FontFace() = default;

    /// The HarfBuzz face; owned by this object and valid as long as it.
    [[nodiscard]] virtual hb_face_t *hbFace() const = 0;
    [[nodiscard]] virtual QString family() const = 0;
    /// PostScript name, fit for a PDF font name.
    [[nodiscard]] virtual QByteArray postScriptName() const = 0;
    [[nodiscard]] virtual unsigned unitsPerEm() const = 0;
};

/// The text font: the named family where the system has it, else a cascade of free fonts that
/// together cover its scripts. The first face gives the row height.
class FontCascade {
  public:
    /// Opens the faces for `family` at `size` points. Never fails: with no font at all, glyphs
    /// measure and draw as nothing.
    static std::shared_ptr<const FontCascade> load(const QString &family, double size);

    virtual ~FontCascade() = default;

    [[nodiscard]] virtual double size() const = 0;
    [[nodiscard]] virtual double ascent() const = 0;  ///< Points, of the first face.
    [[nodiscard]] virtual double descent() const = 0; ///< Points, positive, of the first face.
    [[nodiscard]] virtual double leading() const = 0; ///< Points, of the first face.
    /// Ascent + descent + leading, summed in double precision and stored as a 32-bit float.
    [[nodiscard]] float rowHeight() const {
        return static_cast<float>(ascent() + descent() + leading());
    }

    [[nodiscard]] virtual std::size_t faceCount() const = 0;
    [[nodiscard]] virtual const FontFace &face(std::size_t index) const = 0;

    /// The glyph of one character: from the first face that covers it, else glyph 0 of the first.
    [[nodiscard]] virtual Glyph glyph(char32_t character) const = 0;
};

} // namespace folioforge
