// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

#include <memory>

struct UBreakIterator;

namespace folioforge {

/// Where a line may be broken (UAX #14, by ICU).
class LineBreaks {
  public:
    /// Throws Error where the data of ICU is missing.
    LineBreaks();

    /// Takes the text that is asked about, which is to live until the next call and to have less
    /// than 2^31 units.
    void setText(QStringView text);
    /// The last unit at or before `unit`, which is not the end, that may begin a row; 0 where there
    /// is none.
    [[nodiscard]] qsizetype lastAtOrBefore(qsizetype unit);

  private:
    struct Close {
        void operator()(UBreakIterator *breaks) const;
    };
    std::unique_ptr<UBreakIterator, Close> m_breaks;
    QStringView m_text;
    bool m_isSet = false; ///< Whether ICU has the text: most paragraphs fit into a row.
};

} // namespace folioforge
