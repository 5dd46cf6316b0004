// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Deflate.h"

#include <qpdf/QPDFObjGen.hh>

#include <functional>
#include <future>
#include <vector>

namespace folioforge {

/// Compresses many small streams, a batch of them at a time, on another core than its caller's.
/// Use it from one thread.
class DeflateBatches {
  public:
    /// Stores the compressed data of a stream. It is called on the thread that calls add() and
    /// wait(), in the order in which the streams were added.
    using Store = std::function<void(const QPDFObjGen &stream, QByteArrayView compressed)>;

    explicit DeflateBatches(Store store)
        : m_store(std::move(store)) {}

    /// Takes a copy of `bytes`. What `store` throws about earlier streams comes out here or in
    /// wait().
    void add(const QPDFObjGen &stream, QByteArrayView bytes);
    /// Waits until every stream that was added is stored.
    void wait();
    /// Forgets the streams that are not stored yet.
    void drop();

  private:
    struct Piece {
        QPDFObjGen stream;
        qsizetype length = 0;
    };
    /// Streams one after another, as they came or compressed.
    struct Batch {
        QByteArray bytes;
        std::vector<Piece> pieces;
    };

    static Batch compressed(const Batch &batch, Deflater &deflater);
    void store(const Batch &batch);
    /// Waits for the batch that is being compressed, if any, and stores it.
    void storeRunning();

    Store m_store;
    Deflater m_deflater{DeflateEffort::Fastest}; ///< Used by one batch at a time.
    Batch m_batch;                               ///< Takes what add() brings.
    std::future<Batch> m_running;                ///< The batch before it, being compressed.
};

} // namespace folioforge
