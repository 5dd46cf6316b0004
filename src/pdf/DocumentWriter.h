// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "files/OutputFile.h"

#include <qpdf/PDFVersion.hh>
#include <qpdf/Pipeline.hh>

#include <cstdint>
#include <optional>

class QPDF;
class QPDFWriter;

namespace folioforge {

struct Claims;
struct Encryption;

/// Writes libqpdf's output to a file. The library also writes in destructors, where an exception
/// would end the program: a failure is stored, and throwFailure() throws it.
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

/// Makes `writer` encrypt its output. Throws Error when a password cannot be used.
void applyEncryption(QPDFWriter &writer, const Encryption &encryption);

/// In which form of the format a document is written.
struct DocumentForm {
    PDFVersion version;           ///< At least.
    bool classic = false;         ///< Without object streams and cross-reference streams.
    bool endsStreamLines = false; ///< A line end stands before each "endstream".
};

/// What the standards that a document claims demand of its form.
DocumentForm formFor(const Claims &claims);

/// Makes `writer` write that form.
void applyForm(QPDFWriter &writer, const DocumentForm &form);

/// Writes `document` to `file`, compressed. The /ID follows from the bytes,
/// so that an unencrypted document is always written the same. A null `encryption` means none.
/// Throws Error.
void writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                   const DocumentForm &form);

} // namespace folioforge
