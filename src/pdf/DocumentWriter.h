// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "files/OutputFile.h"

#include <qpdf/PDFVersion.hh>
#include <qpdf/Pipeline.hh>

#include <cstdint>
#include <functional>
#include <optional>

class QPDF;
class QPDFObjectHandle;
class QPDFWriter;

namespace folioforge {

struct Claims;
struct Encryption;
class ObjectStreams;

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
    /// What counts as the checksum of the bytes so far.
    void setChecksum(std::uint32_t checksum) { m_checksum = checksum; }

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

/// The number that an object of a document has in the file that is written.
using ObjectNumbers = std::function<int(const QPDFObjectHandle &)>;
/// Writes further objects behind those of a document.
using FurtherObjects = std::function<void(const ObjectNumbers &, ObjectStreams &)>;

/// Writes `document` to `file`, compressed. The /ID follows from the bytes,
/// so that an unencrypted document is always written the same. A null `encryption` means none.
/// Where there are `further` objects, the form must not be the classic one. Gives
/// the CRC-32 of all bytes of the file. Throws Error.
std::uint32_t writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                            const DocumentForm &form, const FurtherObjects &further = {});

} // namespace folioforge
