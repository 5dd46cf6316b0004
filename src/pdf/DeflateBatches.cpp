// SPDX-License-Identifier: Apache-2.0

#include "pdf/DeflateBatches.h"

#include "image/Parallel.h"

#include <memory>
#include <utility>

namespace folioforge {

void DeflateBatches::add(const QPDFObjGen &stream, QByteArrayView bytes) {
    // Starting a thread takes no time beside compressing this much.
    constexpr qsizetype kBatchBytes = 1 << 18;
    m_batch.bytes.append(bytes);
    m_batch.pieces.push_back({stream, bytes.size()});
    if (m_batch.bytes.size() < kBatchBytes) {
        return;
    }
    storeRunning();
    m_running = runAsync([this, batch = std::make_shared<Batch>(std::exchange(m_batch, {}))] {
        return compressed(*batch, m_deflater);
    });
}

void DeflateBatches::wait() {
    storeRunning();
    store(compressed(std::exchange(m_batch, {}), m_deflater));
}

void DeflateBatches::drop() {
    if (m_running.valid()) {
        m_running.wait(); // It uses the deflater.
        m_running = {};
    }
    m_batch = {};
}

DeflateBatches::Batch DeflateBatches::compressed(const Batch &batch, Deflater &deflater) {
    Batch result;
    result.bytes.reserve(batch.bytes.size());
    result.pieces.reserve(batch.pieces.size());
    QByteArrayView rest = batch.bytes;
    for (const Piece &piece : batch.pieces) {
        const qsizetype start = result.bytes.size();
        deflater.append(result.bytes, rest.first(piece.length));
        result.pieces.push_back({piece.stream, result.bytes.size() - start});
        rest = rest.sliced(piece.length);
    }
    return result;
}

void DeflateBatches::storeRunning() {
    if (m_running.valid()) {
        store(m_running.get());
    }
}

void DeflateBatches::store(const Batch &batch) {
    QByteArrayView rest = batch.bytes;
    for (const Piece &piece : batch.pieces) {
        m_store(piece.stream, rest.first(piece.length));
        rest = rest.sliced(piece.length);
    }
}

} // namespace folioforge
