// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/writing/ObjectText.h"

#include <qpdf/PDFVersion.hh>

#include <cstdint>
#include <functional>

class QPDF;

namespace folioforge {

struct Claims;
struct Encryption;
class ObjectStreams;
class OutputFile;

/// In which form of the format a document is written.
struct DocumentForm {
    PDFVersion version;   ///< At least.
    bool classic = false; ///< Without object streams and cross-reference streams.
    bool archive = false; ///< Within the limits of PDF/A.
    bool repacks = false; ///< Streams with older lossless filters are compressed by Flate.
};

/// What the standards that a document claims demand of its form.
DocumentForm formFor(const Claims &claims);

/// Writes further objects behind those of a document.
using FurtherObjects = std::function<void(const NumberOf &, ObjectStreams &)>;

/// What is done while a document is written; each may be empty.
struct WriteSteps {
    FurtherObjects further;           ///< Not in the classic form.
    std::function<void()> eachObject; ///< Called when an object is written; may throw.
};

/// Writes `document` to `file`, compressed. The /ID follows from the bytes, so that an unencrypted
/// document is always written the same. A null `encryption` means none. Gives the CRC-32 of all
/// bytes of the file. Throws Error.
std::uint32_t writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                            const DocumentForm &form, const WriteSteps &steps = {});

} // namespace folioforge
