#pragma once

#include "error/Error.h"
#include "files/OutputFile.h"

#include <qpdf/Pipeline.hh>

#include <cstdint>
#include <optional>
#include <string>

class QPDF;
class QPDFWriter;

namespace folioforge {

struct Encryption;

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

/// Makes `writer` encrypt what it writes. Throws Error where a password cannot be used.
void applyEncryption(QPDFWriter &writer, const Encryption &encryption);

/// Writes `document` to `file`: object streams, compressed, with an /ID that follows from the
/// bytes, so that the same document is written the same. Throws Error.
void writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                   const std::string &minimumVersion);

} // namespace folioforge
