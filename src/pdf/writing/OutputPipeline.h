// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>

#include <qpdf/Pipeline.hh>

#include <atomic>
#include <cstdint>
#include <exception>
#include <future>
#include <string>

namespace folioforge {

class OutputFile;

/// Writes to a file, also what libqpdf pipes, while its caller goes on with what follows. The
/// library hides what is thrown at it: a failure is stored, and throwFailure() and drain() throw
/// it.
class OutputPipeline final : public Pipeline {
  public:
    explicit OutputPipeline(OutputFile &file);

    void write(unsigned char const *data, size_t length) override;
    void finish() override {}
    /// The same as write().
    void append(QByteArrayView bytes);

    /// Bytes so far.
    [[nodiscard]] qint64 position() const { return m_position; }
    /// Throws what a write has thrown, if any: Error or std::bad_alloc.
    void throwFailure();
    /// Writes what is left and returns the CRC-32 of all bytes so far. Throws likewise.
    std::uint32_t drain();

  private:
    void beginBlock();
    void writeBlock() noexcept;
    void wait();

    OutputFile &m_file;
    qint64 m_position;
    std::string m_filling; ///< Takes what comes.
    std::string m_block;   ///< The bytes before those, being written.
    std::uint32_t m_checksum = 0;
    std::exception_ptr m_failure;
    std::atomic<bool> m_hasFailed = false; ///< May be asked while a block is written.
    std::future<void> m_writing;           ///< Of the block; behind all that it uses.
};

} // namespace folioforge
