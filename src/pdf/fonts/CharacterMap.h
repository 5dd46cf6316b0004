// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <string>

namespace folioforge {

class CodeTable;

/// The /Encoding of a composite font with a Mixed table: the CMap that makes each code the CID of
/// the same number (ISO 32000-1, 9.7.5).
std::string makeEncodingMap(const CodeTable &table);

/// The name of that CMap.
std::string encodingMapName(const CodeTable &table);

/// The /ToUnicode of a composite font: the CMap from codes to characters in UTF-16 (ISO 32000-1,
/// 9.10.3), without the codes that stand for no character.
std::string makeUnicodeMap(const CodeTable &table);

/// What a glyph that stands for `text` is read as where every code has characters, and none of
/// those that archives forbid: what stands for none or for an old mark of joining has U+2060, which
/// is not seen either.
QString wholeText(QString text);

/// The same map with every code, and with such characters.
std::string makeWholeUnicodeMap(const CodeTable &table);

} // namespace folioforge
