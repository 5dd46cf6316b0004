// SPDX-License-Identifier: Apache-2.0

#include "compress/ContentScanner.h"

#include "compress/Resources.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include <qpdf/Pl_QPDFTokenizer.hh>

namespace folioforge {

namespace {

constexpr std::size_t kMaxNestingDepth = 2000;

/// Runs over the tokens of one content stream, keeping the transformation matrix alone.
class Scanner : public QPDFObjectHandle::TokenFilter {
  public:
    explicit Scanner(const QPDFObjectHandle &resources)
        : m_resources(resources) {}

    void handleToken(const QPDFTokenizer::Token &token) override {
        switch (token.getType()) {
        case QPDFTokenizer::tt_integer:
        case QPDFTokenizer::tt_real:
            pushNumber(std::strtod(token.getValue().c_str(), nullptr));
            break;
        case QPDFTokenizer::tt_name:
            m_name = token.getValue();
            break;
        case QPDFTokenizer::tt_word:
            run(token.getValue());
            m_count = 0;
            m_name.clear();
            break;
        default:
            break;
        }
    }

    std::map<QPDFObjGen, DrawnStream> drawn;

  private:
    void pushNumber(double value) {
        if (m_count == m_numbers.size()) {
            std::shift_left(m_numbers.begin(), m_numbers.end(), 1);
            --m_count;
        }
        m_numbers[m_count++] = value;
    }

    void run(const std::string &word) {
        if (word == "q") {
            save();
        } else if (word == "Q") {
            restore();
        } else if (word == "cm" && m_count == m_numbers.size() && m_unsaved == 0) {
            m_matrix =
                Matrix2x2{m_numbers[0], m_numbers[1], m_numbers[2], m_numbers[3]}.then(m_matrix);
        } else if (word == "Do") {
            draw(resource(m_resources, "/XObject", m_name), m_matrix);
        } else if (word == "gs") {
            setState(resource(m_resources, "/ExtGState", m_name));
        } else if (word == "scn" || word == "SCN") {
            // A pattern's cell is laid into the space of the content that holds it, whatever the
            // matrix.
            draw(resource(m_resources, "/Pattern", m_name), Matrix2x2());
        }
    }

    void save() {
        // Deeper levels are counted alone, so that "q" over and over claims no memory. What changes
        // within them is not followed, and so undone with the last of them.
        if (m_saved.size() < kMaxNestingDepth) {
            m_saved.push_back(m_matrix);
        } else {
            ++m_unsaved;
        }
    }

    void restore() {
        if (m_unsaved > 0) {
            --m_unsaved;
        } else if (!m_saved.empty()) {
            m_matrix = m_saved.back();
            m_saved.pop_back();
        }
    }

    void setState(QPDFObjectHandle state) {
        if (state.isDictionary() && state.getKey("/SMask").isDictionary()) {
            draw(state.getKey("/SMask").getKey("/G"), m_matrix);
        }
    }

    void draw(QPDFObjectHandle object, const Matrix2x2 &matrix) {
        if (!object.isStream()) {
            return;
        }
        DrawnStream &stream = drawn[object.getObjGen()];
        stream.object = object;
        if (m_unsaved > 0) {
            stream.unclear = true;
        } else if (stream.sizes.size() <= ContentDraws::kMaxSizes) {
            stream.sizes.insert(matrix);
        }
    }

    const QPDFObjectHandle &m_resources;
    Matrix2x2 m_matrix;
    std::vector<Matrix2x2> m_saved;
    std::size_t m_unsaved = 0;
    std::array<double, 6> m_numbers = {};
    std::size_t m_count = 0;
    std::string m_name;
};

} // namespace

std::map<QPDFObjGen, DrawnStream> scanContent(const std::string &text,
                                              const QPDFObjectHandle &resources) {
    Scanner scanner(resources);
    Pl_QPDFTokenizer tokenizer("content", &scanner);
    tokenizer.writeString(text);
    tokenizer.finish();
    return std::move(scanner.drawn);
}

} // namespace folioforge
