// SPDX-License-Identifier: Apache-2.0

// A text of any bytes under any page setup that passes the checks: it is decoded strictly, and its
// rows stand on pages in order.

#include "FuzzSupport.h"
#include "error/Error.h"
#include "text/FontCascade.h"
#include "text/TextDecoder.h"
#include "text/TextPageLayout.h"
#include "text/readable/ReadableLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

PageSetup setupOf(InputReader &input) {
    PageSetup setup;
    setup.sizeMode = input.byte() % 5;
    setup.customWidth = input.word();
    setup.customHeight = input.word();
    setup.margins = {input.byte(), input.byte(), input.byte(), input.byte()};
    return setup;
}

/// Requires of every row that it stands under the one before and draws glyphs there are.
class CheckingSink : public TextPageSink {
  public:
    explicit CheckingSink(std::size_t faces)
        : m_faces(faces) {}

    void beginPage() override {
        require(!m_isOpen);
        m_isOpen = true;
        m_lastY = std::numeric_limits<double>::infinity();
        ++pages;
    }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        require(m_isOpen && !glyphs.empty());
        require(std::isfinite(x) && x >= 0 && y < m_lastY);
        m_lastY = y;
        for (const Glyph &glyph : glyphs) {
            require(glyph.face < m_faces && glyph.advance >= 0);
        }
    }
    void endPage() override {
        require(m_isOpen);
        m_isOpen = false;
    }

    [[nodiscard]] bool isDone() const { return pages > 0 && !m_isOpen; }

    int pages = 0;

  private:
    std::size_t m_faces;
    bool m_isOpen = false;
    double m_lastY = 0;
};

/// Requires of readable pages that they are begun and ended in turn, and collects what is drawn.
class CollectingSink : public TextPageSink {
  public:
    explicit CollectingSink(const FontCascade &font)
        : m_font(font) {}

    void beginPage() override { require(!std::exchange(m_isOpen, true)); }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        require(m_isOpen && !glyphs.empty() && std::isfinite(x) && std::isfinite(y));
        for (const Glyph &glyph : glyphs) {
            require(glyph.face < m_font.faceCount());
            drawn += m_font.textOf(glyph);
        }
    }
    void beginReading(QStringView text) override {
        require(!text.isEmpty() && !std::exchange(m_isReading, true));
    }
    void endReading() override { require(std::exchange(m_isReading, false)); }
    void endPage() override { require(!m_isReading && std::exchange(m_isOpen, false)); }

    QString drawn;

  private:
    const FontCascade &m_font;
    bool m_isOpen = false;
    bool m_isReading = false;
};

/// The characters of a text in the order of their numbers, without those that end lines, blanks,
/// and controls, which are drawn as blanks.
QList<uint> visible(const QString &text) {
    QList<uint> characters = text.toUcs4();
    characters.removeIf([](char32_t character) {
        return character == U' ' || character == U'\u3000' || character == U'\u2028' ||
               character == U'\u2029' || QChar::category(character) == QChar::Other_Control;
    });
    std::ranges::sort(characters);
    return characters;
}

/// Every character of the text is drawn once, wherever that is.
void requireReadable(const QString &text, const PageSetup &setup) {
    static const auto font = FontCascade::load({u"Liberation Sans"_s}, 11);
    CollectingSink sink(*font);
    try {
        layOutReadable(onePiece(text), getTextPageSize(setup), setup.margins, *font, {}, sink);
    } catch (const Error &) {
        return; // The font remembers the forms of all inputs, and there is an end to that.
    }
    require(visible(sink.drawn) == visible(text));
}

/// The text without a byte order mark is what its bytes say, and nothing is where they say nothing.
QString decoded(const QByteArray &bytes) {
    static const QByteArray kByteOrderMark("\xEF\xBB\xBF");
    QString text = decodeText(bytes);
    const bool isMarked = bytes.startsWith(kByteOrderMark);
    require(text.isNull() || text.toUtf8() == (isMarked ? bytes.sliced(3) : bytes));
    return text;
}

} // namespace

FUZZ_TARGET(TextPages) {
    refuseMessages();
    InputReader input(bytes);
    const PageSetup setup = setupOf(input);
    const QString text = decoded(input.rest());
    if (!checkTextPageSizeSettings(setup)) {
        const auto font = textFont();
        CheckingSink sink(font->faceCount());
        layOutText(onePiece(text), getTextPageSize(setup), setup.margins, *font, sink);
        require(sink.isDone());
        require(getStringSize(text, *font).width() >= 0);
        requireReadable(text, setup);
    }
}
