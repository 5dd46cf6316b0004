// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/ObjectStreams.h"

#include "image/Parallel.h"
#include "image/RowFilter.h"
#include "pdf/writing/CrossReferences.h"
#include "pdf/writing/OutputPipeline.h"
#include "pdf/writing/StreamCipher.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace folioforge {

namespace {

/// Numbers count up from element to element and from member to member of a list. Each has a row of
/// its own, so that what a row is more than the one above it is nearly always the same: written as
/// that, by the predictor of PNG (ISO 32000-1, 7.4.4.4), it takes a fraction of the bytes. Other
/// objects have no rows.
constexpr std::size_t rowOf(ObjectStreams::Kind kind) {
    switch (kind) {
    case ObjectStreams::Elements:
        return 44;
    case ObjectStreams::Lists:
        return 12;
    case ObjectStreams::Objects:
        break;
    }
    return 1;
}

bool hasRows(ObjectStreams::Kind kind) {
    return rowOf(kind) > 1;
}

Deflater &made(std::optional<Deflater> &deflater, DeflateEffort effort) {
    return deflater ? *deflater : deflater.emplace(effort);
}

/// Appends `piece` and fills up the row.
void appendPadded(std::string &rows, std::string_view piece, std::size_t row) {
    const std::size_t length = (piece.size() + row - 1) / row * row;
    rows.append(piece).append(length - piece.size(), ' ');
}

} // namespace

ObjectStreams::ObjectStreams(OutputPipeline &file, CrossReferences &references,
                             const StreamCipher *cipher)
    : m_file(file)
    , m_references(references)
    , m_packer(cipher) {}

int ObjectStreams::newNumber() {
    return m_references.newNumber();
}

void ObjectStreams::add(Kind kind, int number, std::string_view object) {
    // There are readers that refuse all of a stream for one object that they cannot read.
    const int maxObjects = kind == Objects ? 100 : 1000;
    constexpr std::size_t kEnoughBytes = 1 << 16;
    constexpr std::string_view kMemberEnd("0 R ");
    Stream &stream = m_streams.at(kind);
    if (stream.count == maxObjects || stream.objects.size() >= kEnoughBytes) {
        endStream(kind);
    }
    if (stream.count == 0) {
        stream.kind = kind;
        stream.number = newNumber();
    }
    m_references.putInStream(number, stream.number, stream.count++);
    const std::string place =
        std::to_string(number) + ' ' + std::to_string(stream.objects.size()) + ' ';
    appendPadded(stream.places, place, rowOf(kind));
    const std::size_t list = object.rfind('['); // Before it may be a string that looks like one.
    std::size_t before = kind == Lists && list != std::string_view::npos ? list : object.size();
    while (!object.empty()) {
        const auto member = object.find(kMemberEnd, before);
        before = 0;
        const auto length =
            std::min(object.size(), member) + (member < object.size() ? kMemberEnd.size() : 0);
        appendPadded(stream.objects, object.substr(0, length), rowOf(kind));
        object.remove_prefix(length);
    }
    if (!hasRows(kind)) {
        stream.objects.append(1, '\n');
    }
}

std::vector<ObjectStreams::Packed>
ObjectStreams::Packer::packed(const std::vector<Stream> &streams) {
    std::vector<Packed> packed;
    packed.reserve(streams.size());
    for (const Stream &stream : streams) {
        packed.push_back({stream.number, this->packed(stream)});
    }
    return packed;
}

QByteArray ObjectStreams::Packer::packed(const Stream &stream) {
    const auto row = static_cast<qsizetype>(rowOf(stream.kind));
    QByteArray plain = QByteArray::fromStdString(stream.places + stream.objects);
    QByteArray parameters;
    if (hasRows(stream.kind)) {
        plain = filterRowsUp(plain, row);
        parameters = " /DecodeParms << /Predictor 12 /Columns " + QByteArray::number(row) + " >>";
    }
    QByteArray data;
    Deflater &deflater = stream.kind == Objects ? made(m_full, DeflateEffort::Full)
                                                : made(m_fastest, DeflateEffort::Fastest);
    deflater.append(data, plain);
    if (m_cipher) {
        data = m_cipher->encrypted(data);
    }
    return QByteArray::number(stream.number) + " 0 obj\n<< /Type /ObjStm /Length " +
           QByteArray::number(data.size()) + " /N " + QByteArray::number(stream.count) +
           " /First " + QByteArray::number(stream.places.size()) + " /Filter /FlateDecode" +
           parameters + " >>\nstream\n" + data + "\nendstream\nendobj\n";
}

void ObjectStreams::endStream(Kind kind) {
    constexpr std::size_t kStreamsOfAJob = 4;
    m_ended.push_back(std::exchange(m_streams.at(kind), {}));
    if (m_ended.size() == kStreamsOfAJob) {
        pack();
    }
}

void ObjectStreams::pack() {
    writePacked();
    m_packed = runAsync([this, streams = std::make_shared<std::vector<Stream>>(std::exchange(
                                   m_ended, {}))] { return m_packer.packed(*streams); });
}

void ObjectStreams::writePacked() {
    if (m_packed.valid()) {
        write(m_packed.get());
    }
}

void ObjectStreams::write(const std::vector<Packed> &streams) {
    for (const Packed &stream : streams) {
        m_references.putAt(stream.number, m_file.position());
        m_file.append(stream.object);
    }
}

void ObjectStreams::finish() {
    for (const Kind kind : {Objects, Elements, Lists}) {
        if (m_streams.at(kind).count > 0) {
            endStream(kind);
        }
    }
    writePacked();
    write(m_packer.packed(std::exchange(m_ended, {}))); // Too little for a thread of its own.
}

} // namespace folioforge
