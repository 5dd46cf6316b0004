// SPDX-License-Identifier: Apache-2.0

#include "pdf/tags/CrossReferences.h"

#include "image/Deflate.h"
#include "image/RowFilter.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <array>
#include <stdexcept>
#include <vector>

namespace folioforge {

namespace {

/// Of a row: the type of the entry, an offset up to a terabyte, an index.
constexpr qsizetype kType = 0;
constexpr qsizetype kSecond = 1;
constexpr qsizetype kThird = 6;
constexpr qsizetype kRow = 8;

std::runtime_error unknownSection() {
    return std::runtime_error("the cross-reference stream is not the library's");
}

/// The numbers of a cross-reference stream, three for each entry.
std::vector<std::array<quint64, 3>> entriesOf(QPDF &holder, QPDFObjectHandle dictionary,
                                              QByteArrayView data) {
    auto stream = holder.newStream(data.toByteArray().toStdString());
    stream.replaceDict(dictionary);
    const auto bytes = stream.getStreamData(qpdf_dl_generalized);
    const auto widths = dictionary.getKey("/W").getArrayAsVector();
    const auto *next = bytes->getBuffer();
    const auto *const end = next + bytes->getSize();
    std::vector<std::array<quint64, 3>> entries;
    while (next < end) {
        auto &entry = entries.emplace_back();
        for (std::size_t field = 0; field < entry.size(); ++field) {
            for (int i = QPDFObjectHandle(widths.at(field)).getIntValueAsInt(); i > 0; --i) {
                entry.at(field) = entry.at(field) << 8 | (next < end ? *next++ : 0U);
            }
        }
    }
    return entries;
}

/// The key with the reference that it holds; nothing where there is none. The library resolves
/// references, and these lead to nothing that it knows.
QByteArray referenceUnder(const char *key, QByteArrayView dictionary) {
    const auto begin = dictionary.indexOf(key);
    const auto end = begin < 0 ? begin : dictionary.indexOf('R', begin + qstrlen(key));
    return end < 0 ? QByteArray() : dictionary.sliced(begin, end + 1 - begin).toByteArray() + ' ';
}

} // namespace

CrossReferences::CrossReferences(const QByteArray &section)
    : m_number(section.left(section.indexOf(' ')).toInt()) {
    constexpr QByteArrayView kBegin("stream\n");
    const auto keys = section.indexOf("<<");
    const auto begin = section.indexOf(kBegin);
    if (keys < 0 || begin < keys) {
        throw unknownSection();
    }
    QPDF holder;
    auto dictionary =
        QPDFObjectHandle::parse(&holder, section.sliced(keys, begin - keys).toStdString());
    const auto length = dictionary.getKey("/Length").getIntValueAsInt();
    const auto data = QByteArrayView(section).sliced(begin + kBegin.size(), length);
    for (const auto &[type, second, third] : entriesOf(holder, dictionary, data)) {
        put(static_cast<int>(m_rows.size() / kRow), static_cast<int>(type), second, third);
    }
    if (m_rows.size() / kRow != m_number + 1) {
        throw unknownSection();
    }
    for (const char *key : {"/Root", "/Info", "/Encrypt"}) {
        m_keys += referenceUnder(key, section.sliced(keys, begin - keys));
    }
}

void CrossReferences::putAt(int number, qint64 offset) {
    put(number, 1, static_cast<quint64>(offset), 0);
}

void CrossReferences::putInStream(int number, int stream, int index) {
    put(number, 2, static_cast<quint64>(stream), static_cast<quint64>(index));
}

void CrossReferences::put(int number, int type, quint64 second, quint64 third) {
    const qsizetype end = (static_cast<qsizetype>(number) + 1) * kRow;
    if (m_rows.size() < end) {
        m_rows.append(end - m_rows.size(), '\0');
    }
    char *row = m_rows.data() + end - kRow;
    row[kType] = static_cast<char>(type);
    for (qsizetype i = kThird - 1; i >= kSecond; --i, second >>= 8) {
        row[i] = static_cast<char>(second);
    }
    for (qsizetype i = kRow - 1; i >= kThird; --i, third >>= 8) {
        row[i] = static_cast<char>(third);
    }
}

QByteArray CrossReferences::section(qint64 offset) {
    putAt(m_number, offset);
    const QByteArray size = QByteArray::number(m_rows.size() / kRow);
    const QByteArray data = deflateBytes(filterRowsUp(m_rows, kRow), DeflateEffort::Fast);
    const QByteArray id = '<' + QByteArray(32, '0') + '>';
    return QByteArray::number(m_number) + " 0 obj\n<< /Type /XRef /Length " +
           QByteArray::number(data.size()) +
           " /Filter /FlateDecode /DecodeParms << /Columns 8 /Predictor 12 >> /W [ 1 5 2 ] " +
           m_keys + "/Size " + size + " /ID [" + id + id + "] >>\nstream\n" + data +
           "\nendstream\nendobj\n\nstartxref\n" + QByteArray::number(offset) + "\n%%EOF\n";
}

} // namespace folioforge
