// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

#include <memory>
#include <vector>

struct UBiDi;

namespace folioforge {

/// Units of a paragraph that are read in one direction.
struct DirectedRun {
    qsizetype first = 0;
    qsizetype end = 0;
    bool rightToLeft = false;
};

/// In which direction the units of a paragraph are read (Unicode's bidirectional algorithm, UAX #9,
/// by ICU). The first letter gives the direction of the paragraph.
class TextDirections {
  public:
    /// Whether `text` may need the algorithm: it has units of a right-to-left script or controls of
    /// direction. Else it is read from left to right.
    static bool matter(QStringView text);

    /// `paragraph` is to live as long as this and to have less than 2^31 units. Throws
    /// std::bad_alloc.
    explicit TextDirections(QStringView paragraph);

    [[nodiscard]] bool isRightToLeft() const; ///< Of the paragraph.
    /// All units, in their order.
    [[nodiscard]] std::vector<DirectedRun> logicalRuns() const;
    /// The units from `first` to before `end`, a row of the paragraph, from left to right.
    [[nodiscard]] std::vector<DirectedRun> visualRuns(qsizetype first, qsizetype end) const;

  private:
    struct Close {
        void operator()(UBiDi *bidi) const;
    };
    using Bidi = std::unique_ptr<UBiDi, Close>;
    static Bidi open();

    Bidi m_paragraph;
};

} // namespace folioforge
