// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

class QPDF;

namespace folioforge {

class CodeTable;
class FontFace;
class StreamData;
struct FontSubset;

/// What a standard asks of fonts.
struct FontRules {
    bool allUnicode = false; ///< Every code has characters.
    bool cidSets = false;    ///< Each font says which CIDs it has, and no array is long.
};

/// The PDF objects of one embedded face: its font program and descriptor, which all composite fonts
/// of the face share (ISO 32000-1, 9.7 and 9.9).
class FaceObjects {
  public:
    /// Adds the descriptor and the font program. `subset` is a subset of `face`; both must outlive
    /// this object.
    FaceObjects(QPDF &document, StreamData &streams, const FontFace &face, const FontSubset &subset,
                FontRules rules);

    /// Makes the dictionary `font` a composite font with the codes of `table`.
    void fillFont(QPDFObjectHandle font, const CodeTable &table);

  private:
    QPDFObjectHandle makeProgram();
    QPDFObjectHandle makeDescriptor();
    QPDFObjectHandle descriptorFor(const CodeTable &table);
    QPDFObjectHandle makeCidFont(const CodeTable &table);
    QPDFObjectHandle makeEncoding(const CodeTable &table);

    QPDF &m_document;
    StreamData &m_streams;
    const FontFace &m_face;
    const FontSubset &m_subset;
    FontRules m_rules;
    std::string m_baseName;
    QPDFObjectHandle m_descriptor;
};

} // namespace folioforge
