// SPDX-License-Identifier: Apache-2.0

#include "verify/PageReading.h"

#include "verify/ContentLexer.h"

#include <cmath>
#include <unordered_map>

namespace folioforge {
namespace {

using Kind = ContentToken::Kind;

/// `inner` first, then `outer`.
Matrix product(const Matrix &inner, const Matrix &outer) {
    return {inner.a * outer.a + inner.b * outer.c,
            inner.a * outer.b + inner.b * outer.d,
            inner.c * outer.a + inner.d * outer.c,
            inner.c * outer.b + inner.d * outer.d,
            inner.e * outer.a + inner.f * outer.c + outer.e,
            inner.e * outer.b + inner.f * outer.d + outer.f};
}

/// A text string of a PDF: UTF-16 behind its mark, else its bytes.
QString textString(const std::string &bytes) {
    return bytes.starts_with("\xFE\xFF") ? fromUtf16(std::string_view(bytes).substr(2))
                                         : QString::fromLatin1(bytes);
}

/// Follows the operators of a content (ISO 32000-1, annex A).
class Interpreter {
  public:
    Interpreter(const FontsByName &fonts, double fontSize)
        : m_fonts(fonts)
        , m_fontSize(fontSize) {}

    ReadPage read(std::string_view content) {
        ContentLexer lexer(content);
        m_operands.resize(1);
        while (lexer.next(m_operands[m_count])) {
            if (m_operands[m_count].kind != Kind::Word) {
                keepOperand();
                continue;
            }
            run(m_operands[m_count].text);
            if (m_operands[m_count].text == "ID") {
                lexer.passInlineImage();
            }
            m_count = 0;
        }
        m_page.text = m_text.text().toString();
        m_page.trace = m_text.finish();
        m_page.margins = m_margins.finish();
        return std::move(m_page);
    }

  private:
    struct State {
        Matrix matrix;
        std::optional<QRectF> clip;
    };
    struct Marked {
        bool isActualText = false;
        bool isArtifact = false;
    };
    using Operator = void (Interpreter::*)();

    void keepOperand() {
        constexpr std::size_t kMax = 1 << 16; // Of an array with many strings.
        m_count = std::min(m_count + 1, kMax);
        if (m_operands.size() <= m_count) {
            m_operands.resize(m_count + 1);
        }
    }

    void run(const std::string &word) {
        static const std::unordered_map<std::string, Operator> kOperators{
            {"BT", &Interpreter::beginText},
            {"ET", &Interpreter::nothing},
            {"TL", &Interpreter::setLeading},
            {"Td", &Interpreter::move},
            {"TD", &Interpreter::moveAndLead},
            {"'", &Interpreter::nextLineAndShow},
            {"Tj", &Interpreter::show},
            {"Tf", &Interpreter::setFont},
            {"BDC", &Interpreter::beginMarked},
            {"BMC", &Interpreter::beginMarked},
            {"EMC", &Interpreter::endMarked},
            {"q", &Interpreter::save},
            {"Q", &Interpreter::restore},
            {"cm", &Interpreter::transform},
            {"Do", &Interpreter::draw},
            {"re", &Interpreter::rectangle},
            {"W", &Interpreter::clip},
            {"n", &Interpreter::nothing},
            {"rg", &Interpreter::setColor},
            // What follows stands in pages of other programs alone.
            {"T*", &Interpreter::nextLine},
            {"TJ", &Interpreter::showArray},
            {"Tm", &Interpreter::setMatrix},
            {"\"", &Interpreter::nextLineAndShow}};
        const auto found = kOperators.find(word);
        if (found != kOperators.end()) {
            (this->*found->second)();
        } else {
            note(word);
        }
    }

    void note(const std::string &what) {
        if (m_page.strange.empty()) {
            m_page.strange = what;
        }
    }

    /// The operand `back` places before the operator; 0 for none.
    [[nodiscard]] double number(std::size_t back) const {
        const bool has = back <= m_count && m_operands[m_count - back].kind == Kind::Number;
        return has ? m_operands[m_count - back].number : 0;
    }
    [[nodiscard]] const ContentToken *operand(std::size_t back, Kind kind) const {
        const bool has = back <= m_count && m_operands[m_count - back].kind == kind;
        return has ? &m_operands[m_count - back] : nullptr;
    }

    void nothing() {}
    void beginText() {
        m_line = {};
        m_isMoved = true;
    }
    void setLeading() { m_leading = number(1); }
    void moveBy(double x, double y) {
        m_line = product({1, 0, 0, 1, x, y}, m_line);
        m_isMoved = true;
    }
    void move() { moveBy(number(2), number(1)); }
    void moveAndLead() {
        m_leading = -number(1);
        move();
    }
    void nextLine() { moveBy(0, -m_leading); }
    void nextLineAndShow() {
        nextLine();
        show();
    }
    void setMatrix() {
        note("Tm");
        m_line = {number(6), number(5), number(4), number(3), number(2), number(1)};
        m_isMoved = true;
    }
    void setFont() {
        const ContentToken *name = operand(2, Kind::Name);
        m_size = number(1);
        if (m_fontSize > 0 && std::abs(m_size - m_fontSize) > 0.0001) {
            note("Tf");
        }
        const auto font = name != nullptr ? m_fonts.find(name->text) : m_fonts.end();
        m_font = font != m_fonts.end() ? font->second.get() : nullptr;
    }
    void setColor() {
        if (number(1) != 0 || number(2) != 0 || number(3) != 0) {
            note("rg");
        }
    }

    [[nodiscard]] bool isInMargin() const { return m_artifacts > 0; }
    TextTracer &tracer() { return isInMargin() ? m_margins : m_text; }

    void beginRow() {
        if (m_isMoved) {
            const Matrix place = product(m_line, m_state.matrix);
            tracer().beginRow(place.e, place.f);
            m_isMoved = false;
        }
    }
    void showString(const std::string &codes) {
        if (m_font != nullptr) {
            m_font->show(codes, m_size, m_actualTexts == 0, tracer());
        } else {
            note("Tj");
        }
    }
    void show() {
        beginRow();
        if (const ContentToken *codes = operand(1, Kind::String)) {
            showString(codes->text);
        }
    }
    void showArray() {
        note("TJ");
        beginRow();
        for (std::size_t i = 0; i < m_count; ++i) {
            if (m_operands[i].kind == Kind::String) {
                showString(m_operands[i].text);
            }
        }
    }

    void beginMarked() {
        Marked marked;
        for (std::size_t i = 0; i < m_count; ++i) {
            const bool isName = m_operands[i].kind == Kind::Name;
            marked.isArtifact =
                marked.isArtifact || (i == 0 && isName && m_operands[i].text == "Artifact");
            if (isName && m_operands[i].text == "ActualText" && i + 1 < m_count &&
                m_operands[i + 1].kind == Kind::String) {
                if (m_actualTexts == 0) {
                    tracer().addText(textString(m_operands[i + 1].text));
                }
                marked.isActualText = true;
            }
        }
        m_actualTexts += marked.isActualText ? 1 : 0;
        m_artifacts += marked.isArtifact ? 1 : 0;
        m_marked.push_back(marked);
    }
    void endMarked() {
        if (m_marked.empty()) {
            note("EMC");
            return;
        }
        m_actualTexts -= m_marked.back().isActualText ? 1 : 0;
        m_artifacts -= m_marked.back().isArtifact ? 1 : 0;
        m_marked.pop_back();
    }

    void save() {
        constexpr std::size_t kDeepest = 10'000;
        if (m_saved.size() < kDeepest) {
            m_saved.push_back(m_state);
        } else {
            note("q");
        }
    }
    void restore() {
        if (m_saved.empty()) {
            note("Q");
            return;
        }
        m_state = m_saved.back();
        m_saved.pop_back();
    }
    void transform() {
        m_state.matrix = product({number(6), number(5), number(4), number(3), number(2), number(1)},
                                 m_state.matrix);
    }
    void rectangle() { m_rectangle = QRectF(number(4), number(3), number(2), number(1)); }
    void clip() {
        m_state.clip = m_state.clip ? m_state.clip->intersected(m_rectangle) : m_rectangle;
    }
    void draw() {
        if (const ContentToken *name = operand(1, Kind::Name)) {
            m_page.pictures.push_back({name->text, m_state.matrix, m_state.clip});
        }
    }

    const FontsByName &m_fonts;
    double m_fontSize;
    ReadPage m_page;
    TextTracer m_text;
    TextTracer m_margins;
    std::vector<ContentToken> m_operands; ///< The first m_count, and the token behind them.
    std::size_t m_count = 0;
    const FontCodes *m_font = nullptr;
    double m_size = 0;
    double m_leading = 0;
    Matrix m_line; ///< Where the current line begins.
    bool m_isMoved = false;
    State m_state;
    std::vector<State> m_saved;
    QRectF m_rectangle;
    std::vector<Marked> m_marked;
    int m_actualTexts = 0;
    int m_artifacts = 0;
};

} // namespace

ReadPage readPage(std::string_view content, const FontsByName &fonts, double fontSize) {
    return Interpreter(fonts, fontSize).read(content);
}

} // namespace folioforge
