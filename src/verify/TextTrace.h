// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/Checksum.h"

#include <QStringView>

#include <QtGlobal>

#include <string>

namespace folioforge {

/// What is read on a page, in a few numbers: long texts have many pages.
struct TextTrace {
    quint64 characters = 1; ///< Checksum of the UTF-16 units in their order; that of none is 1.
    qint32 units = 0;
    qint32 missing = 0; ///< Of them, those for which no font has a glyph.
    qint32 rows = 0;
    double across = 0;  ///< Where the rows begin, from the left: points times the row's number.
    double down = 0;    ///< Likewise from below.
    double advance = 0; ///< Points, of all glyphs.

    /// Whether both are the same page but for what rounding does to lengths.
    [[nodiscard]] bool matches(const TextTrace &other) const;
};

/// Makes the trace of a page while it is drawn or read.
class TextTracer {
  public:
    /// A row begins at this point; one at the place of that before goes on with it.
    void beginRow(double x, double y);
    void addText(QStringView text);
    void addUnit(char16_t unit) { m_text += unit; }
    void addMissing() { ++m_trace.missing; }
    void addAdvance(double points) { m_trace.advance += points; }

    /// The characters so far.
    [[nodiscard]] QStringView text() const { return m_text; }
    /// The trace of the page; the next one begins.
    TextTrace finish();

  private:
    std::u16string m_text;
    TextTrace m_trace;
    double m_x = 0;
    double m_y = 0;
};

} // namespace folioforge
