// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/readable/ReadableLayout.h"

#include <QString>

#include <span>
#include <vector>

namespace folioforge::test {

/// Glyphs that were shown at a time, and what they are read as.
struct ShownPiece {
    int page = 0;
    double x = 0;
    double y = 0;
    std::vector<Glyph> glyphs;
    QString readAs;
};

/// What was shown, and on how many pages.
struct ShownText {
    int pages = 0;
    std::vector<ShownPiece> pieces;
};

class PieceRecorder : public TextPageSink {
  public:
    void beginPage() override { ++shown.pages; }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        shown.pieces.push_back({shown.pages, x, y, {glyphs.begin(), glyphs.end()}, m_readAs});
    }
    void beginReading(QStringView text) override { m_readAs = text.toString(); }
    void endReading() override { m_readAs.clear(); }
    void endPage() override {}

    ShownText shown;

  private:
    QString m_readAs;
};

inline constexpr double kHeight = 842;
inline constexpr PageMargins kNoMargins{0, 0, 0, 0};

/// Of 1,000 points, so that what the hinting of others may do is small.
inline const FontCascade &large() {
    static const auto font = FontCascade::load({QStringLiteral("Liberation Sans")}, 1000);
    return *font;
}

inline const FontCascade &small() {
    static const auto font = FontCascade::load({QStringLiteral("Liberation Sans")}, 10);
    return *font;
}

inline ShownText readable(const QString &text, double width, const FontCascade &font = small(),
                          const ReadableStyle &style = {}) {
    PieceRecorder recorder;
    layOutReadable(onePiece(text), {width, kHeight}, kNoMargins, font, style, recorder);
    return recorder.shown;
}

} // namespace folioforge::test
