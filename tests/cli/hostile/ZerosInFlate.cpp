// SPDX-License-Identifier: Apache-2.0

#include "ZerosInFlate.h"

#include "support/ByteOrder.h"
namespace folioforge::test {

namespace {

/// Appends bits, the low one first, as Flate has them (RFC 1951, 3.1.1).
class BitWriter {
  public:
    explicit BitWriter(QByteArray &bytes)
        : m_bytes(bytes) {}

    void put(quint32 bits, int count) {
        m_waiting |= bits << m_count;
        for (m_count += count; m_count >= 8; m_count -= 8, m_waiting >>= 8U) {
            m_bytes += static_cast<char>(m_waiting & 0xFF);
        }
    }
    void flush() {
        if (m_count > 0) {
            put(0, 8 - m_count);
        }
    }

  private:
    QByteArray &m_bytes;
    quint32 m_waiting = 0;
    int m_count = 0;
};

} // namespace

QByteArray zerosInFlate(qint64 count) {
    constexpr qint64 kRun = 258;
    QByteArray data("\x78\x01", 2);
    BitWriter bits(data);
    bits.put(0b011, 3);      // The last block, with the fixed codes.
    bits.put(0b00001100, 8); // A zero.
    const qint64 runs = (count - 1) / kRun;
    for (qint64 i = 0; i < runs; ++i) {
        bits.put(0b10100011, 8); // The last 258 bytes once more:
        bits.put(0, 5);          // from one byte before.
    }
    for (qint64 rest = (count - 1) % kRun; rest > 0; --rest) {
        bits.put(0b00001100, 8);
    }
    bits.put(0, 7); // The end.
    bits.flush();
    constexpr qint64 kAdlerBase = 65521;
    return data + big(static_cast<quint32>((count % kAdlerBase) << 16 | 1));
}

} // namespace folioforge::test
