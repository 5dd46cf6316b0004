// SPDX-License-Identifier: Apache-2.0

#include "files/Checksum.h"

#include <libdeflate.h>

#include <cstddef>

namespace folioforge {

void Checksum::add(QByteArrayView bytes) {
    if (bytes.isEmpty()) {
        return; // The library takes no bytes for a question after the first value.
    }
    const auto size = static_cast<std::size_t>(bytes.size());
    m_crc = libdeflate_crc32(m_crc, bytes.data(), size);
    m_adler = libdeflate_adler32(m_adler, bytes.data(), size);
}

quint64 checksumOf(QByteArrayView bytes) {
    Checksum checksum;
    checksum.add(bytes);
    return checksum.value();
}

} // namespace folioforge
