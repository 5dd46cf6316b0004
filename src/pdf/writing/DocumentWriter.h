// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/PDFVersion.hh>

#include <cstdint>
#include <functional>

class QPDF;
class QPDFObjectHandle;
class QPDFWriter;

namespace folioforge {

struct Claims;
struct Encryption;
class ObjectStreams;
class OutputFile;

/// Makes `writer` encrypt its output. Throws Error when a password cannot be used.
void applyEncryption(QPDFWriter &writer, const Encryption &encryption);

/// In which form of the format a document is written.
struct DocumentForm {
    PDFVersion version;   ///< At least.
    bool classic = false; ///< Without object streams and cross-reference streams.
};

/// What the standards that a document claims demand of its form.
DocumentForm formFor(const Claims &claims);

/// Makes `writer` write that form.
void applyForm(QPDFWriter &writer, const DocumentForm &form);

/// The number that an object of a document has in the file that is written.
using NumberOf = std::function<int(const QPDFObjectHandle &)>;
/// Writes further objects behind those of a document.
using FurtherObjects = std::function<void(const NumberOf &, ObjectStreams &)>;

/// Writes `document` to `file`, compressed. The /ID follows from the bytes,
/// so that an unencrypted document is always written the same. A null `encryption` means none.
/// Where there are `further` objects, the form must not be the classic one. Gives
/// the CRC-32 of all bytes of the file. Throws Error.
std::uint32_t writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                            const DocumentForm &form, const FurtherObjects &further = {});

} // namespace folioforge
