// SPDX-License-Identifier: Apache-2.0

#include "pdf/tags/ObjectStreams.h"

#include "image/RowFilter.h"
#include "pdf/tags/StreamCipher.h"

#include <qpdf/Pipeline.hh>

namespace folioforge {

namespace {

/// Numbers count up from object to object and from member to member of a list. Each has a row of
/// its own, so that what a row is more than the one above it is nearly always the same: written as
/// that, by the predictor of PNG (ISO 32000-1, 7.4.4.4), it takes a fraction of the bytes.
constexpr qsizetype rowOf(ObjectStreams::Kind kind) {
    return kind == ObjectStreams::Lists ? 12 : 44;
}

/// Appends `piece` and fills up the row.
void appendPadded(QByteArray &rows, QByteArrayView piece, qsizetype row) {
    const qsizetype length = (piece.size() + row - 1) / row * row;
    rows.append(piece).append(length - piece.size(), ' ');
}

} // namespace

ObjectStreams::ObjectStreams(Pipeline &file, qint64 offset, CrossReferences &references,
                             const StreamCipher *cipher)
    : m_file(file)
    , m_offset(offset)
    , m_references(references)
    , m_cipher(cipher)
    , m_next(references.number() + 1) {}

void ObjectStreams::add(Kind kind, int number, std::string_view object) {
    constexpr int kMaxObjects = 1000;
    constexpr qsizetype kEnoughBytes = 1 << 16;
    constexpr QByteArrayView kMemberEnd("0 R ");
    Stream &stream = m_streams.at(kind);
    if (stream.count == kMaxObjects || stream.objects.size() >= kEnoughBytes) {
        writeStream(kind);
    }
    if (stream.count == 0) {
        stream.number = newNumber();
    }
    m_references.putInStream(number, stream.number, stream.count++);
    const QByteArray place =
        QByteArray::number(number) + ' ' + QByteArray::number(stream.objects.size()) + ' ';
    appendPadded(stream.places, place, rowOf(kind));
    QByteArrayView rest(object);
    while (!rest.isEmpty()) {
        const qsizetype member = kind == Lists ? rest.indexOf(kMemberEnd) : -1;
        const qsizetype length = member < 0 ? rest.size() : member + kMemberEnd.size();
        appendPadded(stream.objects, rest.first(length), rowOf(kind));
        rest = rest.sliced(length);
    }
}

void ObjectStreams::writeStream(Kind kind) {
    Stream &stream = m_streams.at(kind);
    QByteArray data;
    m_deflater.append(data, filterRowsUp(stream.places + stream.objects, rowOf(kind)));
    if (m_cipher) {
        data = m_cipher->encrypted(data);
    }
    m_references.putAt(stream.number, m_offset);
    write(QByteArray::number(stream.number) + " 0 obj\n<< /Type /ObjStm /Length " +
          QByteArray::number(data.size()) + " /N " + QByteArray::number(stream.count) + " /First " +
          QByteArray::number(stream.places.size()) +
          " /Filter /FlateDecode /DecodeParms << /Columns " + QByteArray::number(rowOf(kind)) +
          " /Predictor 12 >> >>\nstream\n" + data + "\nendstream\nendobj\n");
    stream = {};
}

void ObjectStreams::write(const QByteArray &bytes) {
    m_file.write(reinterpret_cast<const unsigned char *>(bytes.constData()),
                 static_cast<std::size_t>(bytes.size()));
    m_offset += bytes.size();
}

void ObjectStreams::finish() {
    for (const Kind kind : {Elements, Lists}) {
        if (m_streams.at(kind).count > 0) {
            writeStream(kind);
        }
    }
    write(m_references.section(m_offset));
}

} // namespace folioforge
