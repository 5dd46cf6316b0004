#pragma once

#include "files/OutputFile.h"

#include <functional>
#include <string>

class QPDF;
class QPDFWriter;

namespace folioforge {

struct Encryption;

/// Makes `writer` encrypt what it writes. Throws Error where a password cannot be used.
void applyEncryption(QPDFWriter &writer, const Encryption &encryption);

/// Writes `document` to `file`: object streams, compressed, with an /ID that follows from the
/// bytes, so that the same document is written the same. Throws Error.
void writeDocument(QPDF &document, OutputFile &file, const Encryption *encryption,
                   const std::string &minimumVersion);

} // namespace folioforge
