// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/OutputPipeline.h"

#include "files/OutputFile.h"

#include <libdeflate.h>

namespace folioforge {

OutputPipeline::OutputPipeline(OutputFile &file)
    : Pipeline("output", nullptr)
    , m_file(file) {}

void OutputPipeline::write(unsigned char const *data, size_t length) {
    if (m_failure) {
        return;
    }
    m_checksum = libdeflate_crc32(m_checksum, data, length);
    try {
        m_file.write({reinterpret_cast<const char *>(data), length});
    } catch (const Error &error) {
        m_failure = error;
    }
}

void OutputPipeline::append(QByteArrayView bytes) {
    write(reinterpret_cast<const unsigned char *>(bytes.data()),
          static_cast<std::size_t>(bytes.size()));
}

qint64 OutputPipeline::position() const {
    return m_file.size();
}

void OutputPipeline::throwFailure() const {
    if (m_failure) {
        throw Error(*m_failure);
    }
}

} // namespace folioforge
