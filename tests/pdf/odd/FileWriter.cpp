// SPDX-License-Identifier: Apache-2.0

#include "FileWriter.h"

#include "support/PhotoPage.h"

#include <algorithm>

namespace folioforge::test {

namespace {

/// The number in `width` bytes, the high one first.
QByteArray bigEndian(qsizetype number, int width) {
    QByteArray bytes(width, '\0');
    for (int i = width - 1; i >= 0; --i, number >>= 8) {
        bytes[i] = static_cast<char>(number & 0xFF);
    }
    return bytes;
}

/// Rows with PNG's Up filter: what each differs from the one above.
QByteArray upFiltered(const QByteArray &rows, int width) {
    QByteArray filtered;
    for (qsizetype at = 0; at < rows.size(); ++at) {
        if (at % width == 0) {
            filtered += '\2';
        }
        filtered += static_cast<char>(rows[at] - (at < width ? '\0' : rows[at - width]));
    }
    return filtered;
}

/// The first numbers and lengths of the runs of numbers in `section`.
template<typename Section> std::vector<std::pair<int, int>> runsOf(const Section &section) {
    std::vector<std::pair<int, int>> runs;
    for (const auto &[number, entry] : section) {
        if (runs.empty() || runs.back().first + runs.back().second != number) {
            runs.emplace_back(number, 0);
        }
        ++runs.back().second;
    }
    return runs;
}

} // namespace

FileWriter::FileWriter(QByteArray beginning, qsizetype offsetOfHeader)
    : m_bytes(std::move(beginning))
    , m_base(offsetOfHeader) {}

FileWriter &FileWriter::raw(const QByteArray &bytes) {
    m_bytes += bytes;
    return *this;
}

FileWriter &FileWriter::objectText(int number, const QByteArray &text) {
    m_section[number] = {1, position(), 0};
    return raw(text);
}

FileWriter &FileWriter::object(int number, const QByteArray &body, int generation) {
    objectText(number, QByteArray::number(number) + ' ' + QByteArray::number(generation) +
                           " obj\n" + body + "\nendobj\n");
    m_section[number].generation = generation;
    return *this;
}

FileWriter &FileWriter::objects(const PdfFixture &fixture) {
    for (const auto &[number, body] : fixture.objects()) {
        object(number, body);
    }
    return *this;
}

FileWriter &FileWriter::objectStream(int number,
                                     const std::vector<std::pair<int, QByteArray>> &objects,
                                     const QByteArray &keys) {
    QByteArray offsets;
    QByteArray bodies;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const auto &[inner, body] = objects[i];
        offsets += QByteArray::number(inner) + ' ' + QByteArray::number(bodies.size()) + ' ';
        bodies += body + ' ';
        m_section[inner] = {2, number, static_cast<int>(i)};
    }
    const QByteArray data = flate(offsets + bodies);
    return object(number, "<< /Type /ObjStm /Filter /FlateDecode /N " +
                              QByteArray::number(objects.size()) + " /First " +
                              QByteArray::number(offsets.size()) + " /Length " +
                              QByteArray::number(data.size()) + " " + keys + " >>\nstream\n" +
                              data + "\nendstream");
}

FileWriter &FileWriter::deleted(int number, int nextGeneration) {
    m_section[number] = {0, 0, nextGeneration};
    return *this;
}

QByteArray FileWriter::commonKeys() const {
    const QByteArray previous =
        m_previous < 0 ? QByteArray() : " /Prev " + QByteArray::number(m_previous);
    return "/Size " + QByteArray::number(m_size) + previous + " ";
}

void FileWriter::finishSection(qsizetype place) {
    raw("startxref\n" + QByteArray::number(place) + "\n%%EOF\n");
    m_previous = place;
    m_section.clear();
}

void FileWriter::writeTable(const Section &section, const QByteArray &lineEnd) {
    raw("xref\n");
    for (const auto &[first, count] : runsOf(section)) {
        raw(QByteArray::number(first) + ' ' + QByteArray::number(count) + '\n');
        for (int number = first; number < first + count; ++number) {
            const Entry &entry = section.at(number);
            raw(QByteArray::number(entry.place).rightJustified(10, '0') + ' ' +
                QByteArray::number(entry.generation).rightJustified(5, '0') +
                (entry.type == 1 ? " n" : " f") + lineEnd);
        }
    }
}

FileWriter &FileWriter::table(const QByteArray &trailerKeys, const QByteArray &lineEnd) {
    m_size = std::max(m_size, m_section.rbegin()->first + 1);
    const qsizetype place = position();
    writeTable(m_section, lineEnd);
    raw("trailer\n<< " + commonKeys() + trailerKeys + " >>\n");
    finishSection(place);
    return *this;
}

void FileWriter::writeXrefStream(int number, const Section &section, const XrefStreamForm &form) {
    QByteArray index;
    for (const auto &[first, count] : runsOf(section)) {
        index += QByteArray::number(first) + ' ' + QByteArray::number(count) + ' ';
    }
    QByteArray rows;
    for (const auto &[inner, entry] : section) {
        rows += bigEndian(entry.type, form.widths[0]) + bigEndian(entry.place, form.widths[1]) +
                bigEndian(entry.generation, form.widths[2]);
    }
    const int width = form.widths[0] + form.widths[1] + form.widths[2];
    const QByteArray data = form.predicted ? flate(upFiltered(rows, width)) : rows;
    const QByteArray filter = form.predicted
                                  ? "/Filter /FlateDecode /DecodeParms << /Predictor 12 /Columns " +
                                        QByteArray::number(width) + " >> "
                                  : QByteArray();
    QByteArray widths;
    for (const int fieldWidth : form.widths) {
        widths += QByteArray::number(fieldWidth) + ' ';
    }
    raw(QByteArray::number(number) + " 0 obj\n<< /Type /XRef /Root 1 0 R " + commonKeys() + filter +
        "/W [" + widths + "] /Index [" + index + "] /Length " + QByteArray::number(data.size()) +
        " " + form.keys + " >>\nstream\n" + data + "\nendstream\nendobj\n");
}

FileWriter &FileWriter::xrefStream(int number, const XrefStreamForm &form) {
    m_section[number] = {1, position(), 0};
    m_size = std::max(m_size, m_section.rbegin()->first + 1);
    const qsizetype place = position();
    writeXrefStream(number, m_section, form);
    finishSection(place);
    return *this;
}

FileWriter &FileWriter::hybrid(int number, const std::vector<int> &hidden) {
    Section inStream;
    for (const int one : hidden) {
        inStream[one] = m_section[one];
        m_section[one] = {0, 0, 65535};
    }
    const qsizetype stream = position();
    m_section[number] = {1, stream, 0};
    m_size = std::max(m_size, number + 1);
    writeXrefStream(number, inStream, {});
    table();
    const qsizetype place = position();
    raw("xref\n0 0\ntrailer\n<< " + commonKeys() + "/Root 1 0 R /XRefStm " +
        QByteArray::number(stream) + " >>\n");
    finishSection(place);
    return *this;
}

} // namespace folioforge::test
