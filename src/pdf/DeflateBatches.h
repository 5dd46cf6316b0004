#pragma once

#include "image/Deflate.h"

#include <qpdf/QPDFObjGen.hh>

#include <functional>
#include <future>
#include <vector>

namespace folioforge {

/// Compresses many small streams, a batch of them at a time, on another core than its caller's.
/// To be used from one thread.
class DeflateBatches {
  public:
    /// Takes the compressed data of a stream; called on the thread that calls add() and settle(),
    /// in the order in which the streams were added.
    using Keep = std::function<void(const QPDFObjGen &stream, QByteArrayView compressed)>;

    explicit DeflateBatches(Keep keep)
        : m_keep(std::move(keep)) {}

    /// Takes a copy of `bytes`. What `keep` throws about earlier streams comes out here or in
    /// settle().
    void add(const QPDFObjGen &stream, QByteArrayView bytes);
    /// Returns when every stream that was added has been kept.
    void settle();

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
    void keep(const Batch &batch);
    void keepRunning();

    Keep m_keep;
    Deflater m_deflater{DeflateEffort::Least}; ///< Used by one batch at a time.
    Batch m_batch;                             ///< Grows.
    std::future<Batch> m_running;              ///< The batch before it.
};

} // namespace folioforge
