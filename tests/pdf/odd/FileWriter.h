// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfFixture.h"

#include <QByteArray>

#include <array>
#include <map>
#include <utility>
#include <vector>

namespace folioforge::test {

/// How a cross-reference stream (ISO 32000-1, 7.5.8) is laid out.
struct XrefStreamForm {
    std::array<int, 3> widths{1, 4, 2}; ///< Bytes of the fields; 0 leaves a field out.
    bool predicted = false;             ///< Flate with PNG's Up predictor, else plain bytes.
    QByteArray keys;                    ///< Further entries of its dictionary.
};

/// Writes a PDF from front to back. Every table() or xrefStream() ends a section: it lists the
/// objects written since the one before and refers to that.
class FileWriter {
  public:
    /// `offsetOfHeader` bytes of the beginning do not count in offsets.
    explicit FileWriter(QByteArray beginning = "%PDF-1.7\n", qsizetype offsetOfHeader = 0);

    FileWriter &raw(const QByteArray &bytes);
    FileWriter &object(int number, const QByteArray &body, int generation = 0);
    /// An object whose text, from its number to "endobj", is given.
    FileWriter &objectText(int number, const QByteArray &text);
    FileWriter &objects(const PdfFixture &fixture);
    /// The objects as an object stream (7.5.7) with `keys` in its dictionary.
    FileWriter &objectStream(int number, const std::vector<std::pair<int, QByteArray>> &objects,
                             const QByteArray &keys = {});
    /// Marks an object of an earlier section as deleted.
    FileWriter &deleted(int number, int nextGeneration = 1);

    /// `lineEnd` stands at the end of each entry, two bytes.
    FileWriter &table(const QByteArray &trailerKeys = "/Root 1 0 R",
                      const QByteArray &lineEnd = " \n");
    FileWriter &xrefStream(int number, const XrefStreamForm &form = {});
    /// Two sections that make a hybrid-reference file (7.5.8.4): a table in which those of `hidden`
    /// are free, and an empty one that names the cross-reference stream `number`, which has them.
    FileWriter &hybrid(int number, const std::vector<int> &hidden);

    [[nodiscard]] QByteArray bytes() const { return m_bytes; }
    [[nodiscard]] qsizetype position() const { return m_bytes.size() - m_base; }

  private:
    struct Entry {
        int type = 0; ///< 0 free, 1 in the file, 2 in an object stream.
        qsizetype place = 0;
        int generation = 0; ///< Or the index in the object stream.
    };
    using Section = std::map<int, Entry>;

    void writeTable(const Section &section, const QByteArray &lineEnd);
    void writeXrefStream(int number, const Section &section, const XrefStreamForm &form);
    void finishSection(qsizetype place);
    [[nodiscard]] QByteArray commonKeys() const;

    QByteArray m_bytes;
    qsizetype m_base = 0;
    Section m_section{{0, {0, 0, 65535}}};
    int m_size = 1;
    qsizetype m_previous = -1;
};

} // namespace folioforge::test
