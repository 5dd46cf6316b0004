// SPDX-License-Identifier: Apache-2.0

#include "convert/TextRecorder.h"

#include "pdf/fonts/CharacterMap.h"

#include <utility>

namespace folioforge {

void TextRecorder::show(double x, double y, std::span<const Glyph> glyphs) {
    if (glyphs.empty() || m_font.faceCount() == 0) {
        return;
    }
    m_tracer.addText(std::exchange(m_reading, {}));
    m_tracer.beginRow(x, y);
    for (const Glyph &glyph : glyphs) {
        record(glyph);
    }
}

void TextRecorder::record(const Glyph &glyph) {
    constexpr char32_t kFirstSurrogate = 0xD800;
    m_tracer.addAdvance(glyph.advance);
    if (glyph.id == 0 || m_font.isMissing(glyph)) {
        m_tracer.addMissing();
    }
    if (m_isReadOtherwise) {
        return;
    }
    if (glyph.character > 0 && glyph.character < kFirstSurrogate) {
        m_tracer.addUnit(static_cast<char16_t>(glyph.character));
    } else {
        const QString text = m_font.textOf(glyph);
        m_tracer.addText(m_isWhole ? wholeText(text) : text);
    }
}

void TextRecorder::beginReading(QStringView text) {
    m_reading = text.toString();
    m_isReadOtherwise = true;
}

void TextRecorder::endReading() {
    m_reading.clear();
    m_isReadOtherwise = false;
}

} // namespace folioforge
