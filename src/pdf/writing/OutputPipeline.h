// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/writing/BlockPipeline.h"

#include <QByteArrayView>

#include <atomic>
#include <cstdint>
#include <exception>
#include <future>
#include <iterator>
#include <string>

namespace folioforge {

class OutputFile;

/// Writes to a file, also what libqpdf pipes, while its caller goes on with what follows. The
/// library hides what is thrown at it: a failure is stored, and throwFailure() and drain() throw
/// it.
class OutputPipeline final : public BlockPipeline {
  public:
    explicit OutputPipeline(OutputFile &file);

    /// The same as write().
    void append(QByteArrayView bytes);

    /// Bytes so far.
    [[nodiscard]] qint64 position() const { return m_blockStart + std::ssize(m_block); }
    /// Throws what a write has thrown, if any: Error or std::bad_alloc.
    void throwFailure();
    /// Writes what is left and returns the CRC-32 of all bytes so far. Throws likewise.
    std::uint32_t drain();

  private:
    void takeBlock() override;
    void beginNext();
    void writeBlock() noexcept;
    void wait();

    OutputFile &m_file;
    qint64 m_blockStart;   ///< Where the block stands in the file.
    std::string m_written; ///< The block before it, which is being written.
    std::uint32_t m_checksum = 0;
    std::exception_ptr m_failure;
    std::atomic<bool> m_hasFailed = false; ///< May be asked while a block is written.
    std::future<void> m_writing;           ///< Of that block; behind all that it uses.
};

} // namespace folioforge
