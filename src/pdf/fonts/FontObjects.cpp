// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/FontObjects.h"

#include "pdf/ContentNumber.h"
#include "pdf/StreamData.h"
#include "pdf/fonts/CharacterMap.h"
#include "pdf/fonts/CodeTable.h"
#include "pdf/fonts/FontSubset.h"
#include "text/FontFace.h"

#include <qpdf/QPDF.hh>

#include <QCryptographicHash>

#include <algorithm>
#include <map>
#include <set>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// Six letters that differ between subsets of one font (ISO 32000-1, 9.6.4). The same subset always
/// gets the same.
std::string subsetTag(const QByteArray &program) {
    const QByteArray digest = QCryptographicHash::hash(program, QCryptographicHash::Sha1);
    std::string tag;
    for (qsizetype i = 0; i < 6; ++i) {
        tag += static_cast<char>('A' + static_cast<unsigned char>(digest[i]) % 26);
    }
    return tag;
}

/// Thousandths of an em, the unit of a font in a PDF.
Object thousandths(int fontUnits, const FontFace &face) {
    constexpr double kUnits = 1000;
    constexpr int kDecimals = 4;
    return Object::newReal(numberText(fontUnits * kUnits / face.unitsPerEm(), kDecimals));
}

/// The most common width of `widths` (by CID) that is a whole number of thousandths: readers take
/// no other /DW.
int commonWidth(const std::map<std::uint16_t, int> &widths, const FontFace &face) {
    constexpr int kUnits = 1000;
    std::map<int, int> counts{{0, 0}};
    for (const auto &[cid, width] : widths) {
        if (width * kUnits % static_cast<int>(face.unitsPerEm()) == 0) {
            ++counts[width];
        }
    }
    return std::max_element(
               counts.begin(), counts.end(),
               [](const auto &left, const auto &right) { return left.second < right.second; })
        ->first;
}

/// The /W array: for each run of CIDs the first one and the widths, without those that /DW gives.
Object widthArray(const std::map<std::uint16_t, int> &widths, int common, const FontFace &face) {
    Object array = Object::newArray();
    Object run = Object::newArray();
    int next = -1;
    for (const auto &[cid, width] : widths) {
        if (width == common) {
            continue;
        }
        if (cid != next) {
            run = Object::newArray();
            array.appendItem(Object::newInteger(cid));
            array.appendItem(run);
        }
        run.appendItem(thousandths(width, face));
        next = cid + 1;
    }
    return array;
}

/// The same where no array may have more than 8191 members (ISO 19005-1, 6.1.12): a run that is as
/// long as it may be goes over CIDs that no glyph has.
Object shortWidthArray(const std::map<std::uint16_t, int> &widths, int common,
                       const FontFace &face) {
    constexpr int kMax = 8191;
    if (widths.size() <= kMax / 2) { // Two members for each run.
        return widthArray(widths, common, face);
    }
    Object array = Object::newArray();
    for (int first = widths.begin()->first; first <= widths.rbegin()->first; first += kMax) {
        Object run = Object::newArray();
        for (int cid = first; cid < first + kMax && cid <= widths.rbegin()->first; ++cid) {
            const auto known = widths.find(static_cast<std::uint16_t>(cid));
            run.appendItem(thousandths(known == widths.end() ? common : known->second, face));
        }
        array.appendItem(Object::newInteger(first));
        array.appendItem(run);
    }
    return array;
}

/// The /CIDSet: a bit for each CID up to the largest, the first in the highest bit.
std::string cidSet(const std::set<std::uint16_t> &cids) {
    constexpr std::size_t kBits = 8;
    std::string bits(1, '\x80'); // The missing glyph.
    for (const std::uint16_t cid : cids) {
        const std::size_t byte = cid / kBits;
        bits.resize(std::max(bits.size(), byte + 1));
        bits[byte] = static_cast<char>(bits[byte] | (0x80U >> cid % kBits));
    }
    return bits;
}

/// The /CIDToGIDMap: two bytes for each CID up to the largest.
std::string glyphMap(const CodeTable &table, const FontSubset &subset) {
    std::string map;
    for (const CodeEntry &entry : table.entries()) {
        const std::size_t at = std::size_t{entry.code} * 2;
        const std::uint16_t id = subset.newIds.at(entry.glyph);
        map.resize(std::max(map.size(), at + 2));
        map[at] = static_cast<char>(id >> 8);
        map[at + 1] = static_cast<char>(id & 0xFF);
    }
    return map;
}

Object cidSystemInfo() {
    Object info = Object::newDictionary();
    info.replaceKey("/Registry", Object::newString("Adobe"));
    info.replaceKey("/Ordering", Object::newString("Identity"));
    info.replaceKey("/Supplement", Object::newInteger(0));
    return info;
}

void nameFont(Object font, const std::string &subtype, const std::string &baseName) {
    font.replaceKey("/Type", Object::newName("/Font"));
    font.replaceKey("/Subtype", Object::newName(subtype));
    font.replaceKey("/BaseFont", Object::newName('/' + baseName));
}

} // namespace

FaceObjects::FaceObjects(QPDF &document, StreamData &streams, const FontFace &face,
                         const FontSubset &subset, FontRules rules)
    : m_document(document)
    , m_streams(streams)
    , m_face(face)
    , m_subset(subset)
    , m_rules(rules)
    , m_baseName(subsetTag(subset.program) + '+' + face.postScriptName().toStdString())
    , m_descriptor(makeDescriptor()) {}

Object FaceObjects::makeProgram() {
    Object dictionary = Object::newDictionary();
    if (m_subset.kind == FontSubset::Kind::Cff) {
        dictionary.replaceKey("/Subtype", Object::newName("/CIDFontType0C"));
    } else {
        dictionary.replaceKey("/Length1", Object::newInteger(m_subset.program.size()));
    }
    return m_streams.deflated(dictionary, m_subset.program);
}

Object FaceObjects::makeDescriptor() {
    constexpr int kSymbolic = 4;
    constexpr int kStemOfARegularFace = 80;
    const FontExtents extents = m_face.extents();
    const FontBox box = m_face.box();
    Object descriptor = Object::newDictionary();
    descriptor.replaceKey("/Type", Object::newName("/FontDescriptor"));
    descriptor.replaceKey("/FontName", Object::newName('/' + m_baseName));
    descriptor.replaceKey("/Flags", Object::newInteger(kSymbolic));
    descriptor.replaceKey(
        "/FontBBox",
        Object::newArray({thousandths(box.left, m_face), thousandths(box.bottom, m_face),
                          thousandths(box.right, m_face), thousandths(box.top, m_face)}));
    descriptor.replaceKey("/ItalicAngle", Object::newInteger(0));
    descriptor.replaceKey("/Ascent", thousandths(extents.ascent, m_face));
    descriptor.replaceKey("/Descent", thousandths(-extents.descent, m_face));
    descriptor.replaceKey("/CapHeight", thousandths(extents.ascent, m_face));
    descriptor.replaceKey("/StemV", Object::newInteger(kStemOfARegularFace));
    descriptor.replaceKey(m_subset.kind == FontSubset::Kind::Cff ? "/FontFile3" : "/FontFile2",
                          makeProgram());
    return m_document.makeIndirectObject(descriptor);
}

/// The descriptor for the font of a table. Fonts of one face have the same, save where it names
/// their CIDs.
Object FaceObjects::descriptorFor(const CodeTable &table) {
    if (!m_rules.cidSets) {
        return m_descriptor;
    }
    std::set<std::uint16_t> cids = m_subset.cids;
    if (m_subset.kind == FontSubset::Kind::TrueType) {
        for (const CodeEntry &entry : table.entries()) {
            cids.insert(entry.code);
        }
    }
    Object descriptor = m_descriptor.shallowCopy();
    descriptor.replaceKey("/CIDSet", m_streams.deflated(Object::newDictionary(), cidSet(cids)));
    return m_document.makeIndirectObject(descriptor);
}

Object FaceObjects::makeCidFont(const CodeTable &table) {
    std::map<std::uint16_t, int> widths;
    for (const CodeEntry &entry : table.entries()) {
        widths[entry.code] = m_face.advance(entry.glyph);
    }
    const int common = commonWidth(widths, m_face);
    const bool cff = m_subset.kind == FontSubset::Kind::Cff;
    Object font = Object::newDictionary();
    nameFont(font, cff ? "/CIDFontType0" : "/CIDFontType2", m_baseName);
    font.replaceKey("/CIDSystemInfo", cidSystemInfo());
    font.replaceKey("/FontDescriptor", descriptorFor(table));
    font.replaceKey("/DW",
                    Object::newInteger(common * 1000 / static_cast<int>(m_face.unitsPerEm())));
    font.replaceKey("/W", m_rules.cidSets ? shortWidthArray(widths, common, m_face)
                                          : widthArray(widths, common, m_face));
    if (!cff) {
        font.replaceKey("/CIDToGIDMap",
                        m_streams.deflated(Object::newDictionary(), glyphMap(table, m_subset)));
    }
    return m_document.makeIndirectObject(font);
}

Object FaceObjects::makeEncoding(const CodeTable &table) {
    if (table.form() == CodeTable::Form::TwoByte) {
        return Object::newName("/Identity-H");
    }
    Object dictionary = Object::newDictionary();
    dictionary.replaceKey("/Type", Object::newName("/CMap"));
    dictionary.replaceKey("/CMapName", Object::newName('/' + encodingMapName(table)));
    dictionary.replaceKey("/CIDSystemInfo", cidSystemInfo());
    return m_streams.deflated(dictionary, makeEncodingMap(table));
}

void FaceObjects::fillFont(Object font, const CodeTable &table) {
    nameFont(font, "/Type0", m_baseName);
    font.replaceKey("/Encoding", makeEncoding(table));
    font.replaceKey("/DescendantFonts", Object::newArray({makeCidFont(table)}));
    font.replaceKey("/ToUnicode", m_streams.deflated(Object::newDictionary(),
                                                     m_rules.allUnicode ? makeWholeUnicodeMap(table)
                                                                        : makeUnicodeMap(table)));
}

} // namespace folioforge
