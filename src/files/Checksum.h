// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace folioforge {

/// Tells changed bytes from unchanged ones at the speed of memory: CRC-32 beside Adler-32. It is no
/// protection from bytes that someone makes to have a certain checksum.
class Checksum {
  public:
    void add(QByteArrayView bytes);
    /// CRC-32 in the upper half.
    [[nodiscard]] quint64 value() const { return quint64{m_crc} << 32U | m_adler; }

  private:
    std::uint32_t m_crc = 0;
    std::uint32_t m_adler = 1;
};

/// The CRC-32 of bytes with the CRC-32 `crc`, 0 for none, and `bytes` behind them.
std::uint32_t crcWith(std::uint32_t crc, QByteArrayView bytes);

/// The value of the Checksum of `bytes`.
quint64 checksumOf(QByteArrayView bytes);

} // namespace folioforge
