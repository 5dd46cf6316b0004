// SPDX-License-Identifier: Apache-2.0

// A text of any bytes under any page setup that passes the checks: it is decoded strictly, and its
// rows stand on pages in order.

#include "FuzzSupport.h"
#include "text/FontCascade.h"
#include "text/TextDecoder.h"
#include "text/TextPageLayout.h"

#include <cmath>
#include <limits>

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
        layOutText(text, getTextPageSize(setup), setup.margins, *font, sink);
        require(sink.isDone());
        require(getStringSize(text, *font).width() >= 0);
    }
}
