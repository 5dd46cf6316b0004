// SPDX-License-Identifier: Apache-2.0

#include "files/Checksum.h"

#include <libdeflate.h>

#include <cstddef>

namespace folioforge {

void Checksum::add(QByteArrayView bytes) {
    if (bytes.isEmpty()) {
        return; // The library takes no bytes for a question after the first value.
    }
    m_crc = crcWith(m_crc, bytes);
    m_adler = libdeflate_adler32(m_adler, bytes.data(), static_cast<std::size_t>(bytes.size()));
}

std::uint32_t crcWith(std::uint32_t crc, QByteArrayView bytes) {
    return bytes.isEmpty()
               ? crc
               : libdeflate_crc32(crc, bytes.data(), static_cast<std::size_t>(bytes.size()));
}

quint64 checksumOf(QByteArrayView bytes) {
    Checksum checksum;
    checksum.add(bytes);
    return checksum.value();
}

} // namespace folioforge
