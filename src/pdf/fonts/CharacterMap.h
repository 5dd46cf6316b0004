#pragma once

#include <string>

namespace folioforge {

class CodeTable;

/// The CMap by which each code of a Mixed table is the CID of the same number: the /Encoding of a
/// composite font (ISO 32000-1, 9.7.5).
std::string makeEncodingMap(const CodeTable &table);

/// The name that this CMap gives itself.
std::string encodingMapName(const CodeTable &table);

/// The CMap that leads from a table's codes to Unicode, beyond the BMP as UTF-16: /ToUnicode
/// (ISO 32000-1, 9.10.3). Codes that stand for no character are left out.
std::string makeUnicodeMap(const CodeTable &table);

} // namespace folioforge
