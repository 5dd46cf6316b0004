// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"

#include <QByteArrayView>

#include <qpdf/Pipeline.hh>

#include <cstdint>
#include <optional>

namespace folioforge {

class OutputFile;

/// Writes to a file, also what libqpdf pipes. The library writes in destructors, too, where an
/// exception would end the program: a failure is stored, and throwFailure() throws it.
class OutputPipeline final : public Pipeline {
  public:
    explicit OutputPipeline(OutputFile &file);

    void write(unsigned char const *data, size_t length) override;
    void finish() override {}
    /// The same as write().
    void append(QByteArrayView bytes);

    /// Bytes in the file.
    [[nodiscard]] qint64 position() const;
    /// Throws the Error of the first write that failed, if any.
    void throwFailure() const;
    /// CRC-32 of all bytes so far.
    [[nodiscard]] std::uint32_t checksum() const { return m_checksum; }

  private:
    OutputFile &m_file;
    std::optional<Error> m_failure;
    std::uint32_t m_checksum = 0;
};

} // namespace folioforge
