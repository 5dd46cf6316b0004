#pragma once

#include "error/Error.h"
#include "files/OutputFile.h"

#include <qpdf/Pipeline.hh>

#include <cstdint>
#include <optional>

namespace folioforge {

/// Brings the library's bytes to an output file. The library also writes while it unwinds, where
/// throwing would end the program: a failure is kept until it can be thrown.
class OutputPipeline final : public Pipeline {
  public:
    explicit OutputPipeline(OutputFile &file);

    void write(unsigned char const *data, size_t length) override;
    void finish() override {}

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
