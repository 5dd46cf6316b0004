// SPDX-License-Identifier: Apache-2.0

#include "pdf/tags/ObjectStreams.h"

#include "pdf/tags/StreamCipher.h"

#include <qpdf/Pipeline.hh>

namespace folioforge {

ObjectStreams::ObjectStreams(Pipeline &file, qint64 offset, CrossReferences &references,
                             const StreamCipher *cipher)
    : m_file(file)
    , m_offset(offset)
    , m_references(references)
    , m_cipher(cipher)
    , m_next(references.number() + 1) {}

void ObjectStreams::add(int number, std::string_view object) {
    if (m_count == 0) {
        m_stream = newNumber();
    }
    m_references.putInStream(number, m_stream, m_count++);
    m_places.append(std::to_string(number)).append(" ");
    m_places.append(std::to_string(m_objects.size())).append(" ");
    m_objects.append(object).append("\n");
}

void ObjectStreams::mayBreak() {
    constexpr int kEnough = 500;
    constexpr std::size_t kEnoughBytes = std::size_t(64) << 10;
    if (m_count >= kEnough || m_objects.size() >= kEnoughBytes) {
        writeStream();
    }
}

void ObjectStreams::writeStream() {
    QByteArray data;
    m_deflater.append(data, QByteArray::fromStdString(m_places + m_objects));
    if (m_cipher) {
        data = m_cipher->encrypted(data);
    }
    m_references.putAt(m_stream, m_offset);
    write(QByteArray::number(m_stream) + " 0 obj\n<< /Type /ObjStm /Length " +
          QByteArray::number(data.size()) + " /N " + QByteArray::number(m_count) + " /First " +
          QByteArray::number(static_cast<qint64>(m_places.size())) +
          " /Filter /FlateDecode >>\nstream\n" + data + "\nendstream\nendobj\n");
    m_objects.clear();
    m_places.clear();
    m_count = 0;
}

void ObjectStreams::write(const QByteArray &bytes) {
    m_file.write(reinterpret_cast<const unsigned char *>(bytes.constData()),
                 static_cast<std::size_t>(bytes.size()));
    m_offset += bytes.size();
}

void ObjectStreams::finish() {
    if (m_count > 0) {
        writeStream();
    }
    write(m_references.section(m_offset));
}

} // namespace folioforge
