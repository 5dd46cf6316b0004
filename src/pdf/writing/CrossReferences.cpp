// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/CrossReferences.h"

#include "image/Deflate.h"
#include "image/RowFilter.h"

namespace folioforge {

namespace {

/// Of a row: the type of the entry, an offset up to a terabyte, an index.
constexpr qsizetype kType = 0;
constexpr qsizetype kSecond = 1;
constexpr qsizetype kThird = 6;
constexpr qsizetype kRow = 8;
constexpr unsigned kBitsOfByte = 8;

/// The number between two of these bytes, the highest first.
quint64 numberIn(const QByteArray &rows, qsizetype begin, qsizetype end) {
    quint64 number = 0;
    for (qsizetype i = begin; i < end; ++i) {
        number = number << kBitsOfByte | static_cast<unsigned char>(rows[i]);
    }
    return number;
}

QByteArray ending(qint64 offset) {
    return "startxref\n" + QByteArray::number(offset) + "\n%%EOF\n";
}

} // namespace

CrossReferences::CrossReferences() {
    constexpr quint64 kHeadOfFreeList = 65535;
    m_rows.append(kRow, '\0');
    put(0, 0, 0, kHeadOfFreeList);
}

qsizetype CrossReferences::count() const {
    return m_rows.size() / kRow - 1;
}

int CrossReferences::newNumber() {
    m_rows.append(kRow, '\0');
    return static_cast<int>(count());
}

void CrossReferences::putAt(int number, qint64 offset) {
    put(number, 1, static_cast<quint64>(offset), 0);
}

void CrossReferences::putInStream(int number, int stream, int index) {
    put(number, 2, static_cast<quint64>(stream), static_cast<quint64>(index));
}

void CrossReferences::put(int number, int type, quint64 second, quint64 third) {
    char *row = m_rows.data() + number * kRow;
    row[kType] = static_cast<char>(type);
    for (qsizetype i = kThird - 1; i >= kSecond; --i, second >>= kBitsOfByte) {
        row[i] = static_cast<char>(second);
    }
    for (qsizetype i = kRow - 1; i >= kThird; --i, third >>= kBitsOfByte) {
        row[i] = static_cast<char>(third);
    }
}

QByteArray CrossReferences::size() const {
    return "/Size " + QByteArray::number(m_rows.size() / kRow);
}

QByteArray CrossReferences::endAsStream(qint64 offset, const QByteArray &keys) {
    const int number = newNumber();
    putAt(number, offset);
    QByteArray widths;
    for (const qsizetype width : {kSecond - kType, kThird - kSecond, kRow - kThird}) {
        widths += QByteArray::number(width) + ' ';
    }
    const QByteArray data = deflateBytes(filterRowsUp(m_rows, kRow), DeflateEffort::Fast);
    return QByteArray::number(number) + " 0 obj\n<< /Type /XRef /Length " +
           QByteArray::number(data.size()) +
           " /Filter /FlateDecode /DecodeParms << /Predictor 12 /Columns " +
           QByteArray::number(kRow) + " >> /W [ " + widths + "] " + size() + ' ' + keys +
           " >>\nstream\n" + data + "\nendstream\nendobj\n" + ending(offset);
}

QByteArray CrossReferences::endAsTable(qint64 offset, const QByteArray &keys) const {
    constexpr int kOffsetDigits = 10;
    constexpr int kGenerationDigits = 5;
    QByteArray text = "xref\n0 " + QByteArray::number(m_rows.size() / kRow) + '\n';
    for (qsizetype row = 0; row < m_rows.size(); row += kRow) {
        const quint64 second = numberIn(m_rows, row + kSecond, row + kThird);
        const quint64 third = numberIn(m_rows, row + kThird, row + kRow);
        text += QByteArray::number(second).rightJustified(kOffsetDigits, '0') + ' ' +
                QByteArray::number(third).rightJustified(kGenerationDigits, '0') +
                (m_rows[row + kType] == 0 ? " f \n" : " n \n");
    }
    return text + "trailer << " + size() + ' ' + keys + " >>\n" + ending(offset);
}

} // namespace folioforge
