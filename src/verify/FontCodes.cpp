// SPDX-License-Identifier: Apache-2.0

#include "verify/FontCodes.h"

#include "error/Error.h"
#include "pdf/import/Entries.h"
#include "verify/ContentLexer.h"
#include "verify/StreamSums.h"
#include "verify/TextTrace.h"
#include "verify/Unpacking.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

using Kind = ContentToken::Kind;

std::string mapOf(const QPDFObjectHandle &stream) {
    constexpr std::size_t kMaxLength = 64 << 20;
    if (auto text = unpacked(stream, kMaxLength)) {
        return std::move(*text);
    }
    throw Error(Reasons::tr("a font is damaged"));
}

std::uint32_t numberOf(std::string_view bytes) {
    std::uint32_t number = 0;
    for (const char byte : bytes) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

QString textOf(std::string_view utf16) {
    static constexpr auto kBigEndian = QStringConverter::Utf16BE;
    return QStringDecoder(kBigEndian)(QByteArrayView(utf16.data(), std::ssize(utf16)));
}

/// Calls `take` with the strings of each entry of a section such as "beginbfchar": `count` of them.
/// Other operands are given as empty strings, arrays token by token.
template<typename Take>
void forEachEntry(ContentLexer &lexer, std::size_t count, const Take &take) {
    std::vector<ContentToken> entry;
    ContentToken token;
    bool isInArray = false;
    while (lexer.next(token) && token.kind != Kind::Word) {
        entry.push_back(token);
        isInArray = token.kind == Kind::BeginArray || (isInArray && token.kind != Kind::EndArray);
        if (!isInArray && entry.size() >= count) {
            take(entry);
            entry.clear();
        }
    }
}

/// The text of the code that stands `step` behind the first of a range.
QString nextText(QString text, std::uint32_t step) {
    if (!text.isEmpty()) {
        text.back() = QChar(static_cast<char16_t>(text.back().unicode() + step));
    }
    return text;
}

/// The character of a glyph's name: "uni20AC", "u1F600" or a letter by itself.
QString textOfName(const std::string &name) {
    constexpr int kHexadecimal = 16;
    const QString text = QString::fromLatin1(name.c_str() + 1);
    bool isNumber = false;
    const qsizetype start = text.startsWith(u"uni") ? 3 : 1;
    const auto code = text.sliced(std::min(start, text.size())).toUInt(&isNumber, kHexadecimal);
    if (isNumber && text.startsWith(u'u')) {
        const auto character = static_cast<char32_t>(code);
        return QString::fromUcs4(&character, 1);
    }
    return text.size() == 1   ? text
           : text == u"space" ? u" "_s
                              : QString(QChar::ReplacementCharacter);
}

/// The bytes of a stream without its filters. Throws Error where they are damaged.
qint64 wholeBytes(const QPDFObjectHandle &stream) {
    if (const auto sum = sumOf(stream, Unpacking::Samples)) {
        return sum->bytes;
    }
    throw Error(Reasons::tr("a font is damaged"));
}

/// Throws Error where what draws the glyphs of a simple font or of a descendant is damaged.
void requireWholeProgram(const QPDFObjectHandle &font) {
    const auto descriptor = entry(font, "/FontDescriptor");
    for (const char *key : {"/FontFile", "/FontFile2", "/FontFile3"}) {
        QPDFObjectHandle program = entry(descriptor, key);
        if (!program.isStream()) {
            continue;
        }
        const qint64 bytes = wholeBytes(program);
        const bool isTrueType = key == std::string_view("/FontFile2");
        QPDFObjectHandle stated = program.getDict().getKey("/Length1");
        QPDFObjectHandle kind = program.getDict().getKey("/Subtype");
        const bool hasKind = kind.isNameAndEquals("/CIDFontType0C") ||
                             kind.isNameAndEquals("/Type1C") || kind.isNameAndEquals("/OpenType");
        if ((isTrueType && stated.isInteger() && stated.getIntValue() != bytes) ||
            (key == std::string_view("/FontFile3") && !hasKind)) {
            throw Error(Reasons::tr("a font is damaged"));
        }
    }
    if (const auto map = entry(font, "/CIDToGIDMap"); QPDFObjectHandle(map).isStream()) {
        wholeBytes(map);
    }
}

bool isDeflatedAlone(QPDFObjectHandle stream) {
    static constexpr std::array<std::string_view, 7> kKeys{
        "/Filter", "/Length", "/Length1", "/Subtype", "/CMapName", "/Type", "/CIDSystemInfo"};
    const auto keys = stream.getDict().getKeys();
    return stream.getDict().getKey("/Filter").isNameAndEquals("/FlateDecode") &&
           std::ranges::all_of(keys, [](const std::string &key) {
               return std::ranges::find(kKeys, key) != kKeys.end();
           });
}

/// Whether all streams of a composite font are.
bool isDeflated(QPDFObjectHandle font) {
    const auto descendants = items(entry(font, "/DescendantFonts"));
    const auto descendant = descendants.empty() ? QPDFObjectHandle::newNull() : descendants.front();
    const auto descriptor = entry(descendant, "/FontDescriptor");
    std::vector<QPDFObjectHandle> parts{
        entry(font, "/Encoding"), entry(font, "/ToUnicode"), entry(descendant, "/CIDToGIDMap"),
        entry(descriptor, "/FontFile2"), entry(descriptor, "/FontFile3")};
    return std::ranges::all_of(
        parts, [](QPDFObjectHandle part) { return !part.isStream() || isDeflatedAlone(part); });
}

} // namespace

std::shared_ptr<const FontCodes> FontCodes::read(QPDFObjectHandle font) {
    auto codes = std::make_shared<FontCodes>();
    if (entry(font, "/Subtype").isNameAndEquals("/Type0")) {
        codes->readComposite(font);
    } else {
        codes->readSimple(font);
    }
    if (const auto map = entry(font, "/ToUnicode"); QPDFObjectHandle(map).isStream()) {
        codes->readUnicodeMap(mapOf(map));
    }
    codes->m_isAsEmbedded = isDeflated(font);
    codes->indexFirstBytes();
    return codes;
}

void FontCodes::readComposite(QPDFObjectHandle font) {
    auto encoding = entry(font, "/Encoding");
    if (encoding.isStream()) {
        readEncodingMap(mapOf(encoding));
    } else {
        m_codeSpace.push_back({2, 0, 0xFFFF, 0});
    }
    const auto descendants = items(entry(font, "/DescendantFonts"));
    if (!descendants.empty()) {
        requireWholeProgram(descendants.front());
        readCidWidths(descendants.front());
    }
}

void FontCodes::readSimple(QPDFObjectHandle font) {
    requireWholeProgram(font);
    m_codeSpace.push_back({1, 0, 0xFF, 0});
    m_defaultWidth = 0;
    const auto first = entry(font, "/FirstChar");
    auto code = static_cast<std::size_t>(
        QPDFObjectHandle(first).isInteger()
            ? std::clamp(QPDFObjectHandle(first).getIntValueAsInt(), 0, 255)
            : 0);
    for (QPDFObjectHandle width : items(entry(font, "/Widths"))) {
        if (code < m_widths.size() && width.isNumber()) {
            m_widths[code++] = static_cast<float>(width.getNumericValue());
        }
    }
    for (std::uint32_t i = 0; i < 256; ++i) {
        setText(i, QString(QChar(static_cast<char16_t>(i))));
    }
    const auto encoding = entry(font, "/Encoding");
    addDifferences(entry(encoding, "/Differences"));
}

void FontCodes::addDifferences(const QPDFObjectHandle &differences) {
    std::uint32_t code = 0;
    for (QPDFObjectHandle item : items(differences)) {
        if (item.isInteger()) {
            code = item.getUIntValueAsUInt() & 0xFFU;
        } else if (item.isName() && code < 256) {
            setText(code++, textOfName(item.getName()));
        }
    }
}

void FontCodes::readEncodingMap(const std::string &map) {
    constexpr std::size_t kMaxSpaces = 256;
    ContentLexer lexer(map);
    ContentToken token;
    while (lexer.next(token)) {
        if (token.kind != Kind::Word) {
            continue;
        }
        if (token.text == "begincodespacerange") {
            forEachEntry(lexer, 2, [&](const auto &entry) {
                requireModest();
                if (m_codeSpace.size() < kMaxSpaces) {
                    m_codeSpace.push_back({static_cast<unsigned>(entry[0].text.size()),
                                           numberOf(entry[0].text), numberOf(entry[1].text), 0});
                }
            });
        } else if (token.text == "begincidrange") {
            forEachEntry(lexer, 3, [&](const auto &entry) {
                addCids({static_cast<unsigned>(entry[0].text.size()), numberOf(entry[0].text),
                         numberOf(entry[1].text), static_cast<std::uint32_t>(entry[2].number)});
            });
        } else if (token.text == "begincidchar") {
            forEachEntry(lexer, 2, [&](const auto &entry) {
                const std::uint32_t code = numberOf(entry[0].text);
                addCids({static_cast<unsigned>(entry[0].text.size()), code, code,
                         static_cast<std::uint32_t>(entry[1].number)});
            });
        }
    }
}

void FontCodes::readUnicodeMap(const std::string &map) {
    ContentLexer lexer(map);
    ContentToken token;
    std::fill(m_units.begin(), m_units.end(), u'\0');
    while (lexer.next(token)) {
        if (token.kind == Kind::Word && token.text == "beginbfchar") {
            forEachEntry(lexer, 2, [&](const auto &entry) {
                setText(numberOf(entry[0].text), textOf(entry[1].text));
            });
        } else if (token.kind == Kind::Word && token.text == "beginbfrange") {
            forEachEntry(lexer, 3, [&](const auto &entry) {
                const std::uint32_t first = numberOf(entry[0].text);
                const std::uint32_t last =
                    std::min<std::uint32_t>(numberOf(entry[1].text), kCodes - 1);
                for (std::uint32_t code = first; code <= last; ++code) {
                    const std::uint32_t step = code - first;
                    if (entry[2].kind == Kind::String) {
                        setText(code, nextText(textOf(entry[2].text), step));
                    } else if (step + 3 < entry.size()) {
                        setText(code, textOf(entry[step + 3].text));
                    }
                }
            });
        }
    }
}

/// A small file may name large ranges any number of times.
void FontCodes::requireModest() {
    constexpr int kMaxSteps = 1 << 21;
    if (++m_steps > kMaxSteps) {
        throw Error(Reasons::tr("a font is damaged"));
    }
}

void FontCodes::setText(std::uint32_t code, const QString &text) {
    constexpr qsizetype kMaxLength = 64; // Of a code; no ligature has so many.
    requireModest();
    if (code < kCodes && text.size() == 1 && text[0] != u'\0') {
        m_units[code] = text[0].unicode();
    } else {
        if (code < kCodes) {
            m_units[code] = 0;
        }
        m_texts.insert(code, text.left(kMaxLength));
    }
}

/// The widths of /W: runs of the form "first [w w w]" and "first last w" (ISO 32000-1, 9.7.4.3).
void FontCodes::readCidWidths(QPDFObjectHandle cidFont) {
    m_widths.assign(kCodes, -1);
    auto usual = entry(cidFont, "/DW");
    m_defaultWidth = usual.isNumber() ? usual.getNumericValue() : 1000;
    const auto put = [&](long long cid, QPDFObjectHandle width) {
        requireModest();
        if (cid >= 0 && cid < static_cast<long long>(kCodes) && width.isNumber()) {
            m_widths[static_cast<std::size_t>(cid)] = static_cast<float>(width.getNumericValue());
        }
    };
    const auto all = items(entry(cidFont, "/W"));
    for (std::size_t i = 0; i + 1 < all.size();) {
        QPDFObjectHandle first = all[i];
        QPDFObjectHandle second = all[i + 1];
        long long cid = first.isInteger() ? first.getIntValue() : -1;
        if (second.isArray()) {
            for (const auto &width : items(second)) {
                put(cid++, width);
            }
            i += 2;
            continue;
        }
        const long long last =
            second.isInteger() ? std::min<long long>(second.getIntValue(), kCodes) : -1;
        for (; i + 2 < all.size() && cid <= last; ++cid) {
            put(cid, all[i + 2]);
        }
        i += 3;
    }
}

FontCodes::Code FontCodes::nextCode(std::string_view codes) const {
    Code code;
    constexpr std::size_t kMaxLength = 4;
    for (std::size_t length = 1; length <= std::min(kMaxLength, codes.size()); ++length) {
        const std::uint32_t value = numberOf(codes.substr(0, length));
        for (const Range &range : m_codeSpace) {
            if (range.length == length && value >= range.first && value <= range.last) {
                return {value, range.length};
            }
        }
    }
    return {numberOf(codes.substr(0, 1)), 1};
}

std::uint32_t FontCodes::cidOf(const Code &code) const {
    if (m_cids.empty()) {
        return code.value;
    }
    const auto found = m_cids.lower_bound({code.length, code.value});
    const bool has = found != m_cids.end() && found->first.first == code.length &&
                     found->second.first <= code.value;
    return has ? found->second.cid + (code.value - found->second.first) : 0;
}

double FontCodes::widthOf(std::uint32_t cid) const {
    return cid < m_widths.size() && m_widths[cid] >= 0 ? static_cast<double>(m_widths[cid])
                                                       : m_defaultWidth;
}

void FontCodes::indexFirstBytes() {
    for (unsigned byte = 0; byte < m_oneByte.size(); ++byte) {
        const char first = static_cast<char>(byte);
        const Code code = nextCode({&first, 1});
        const bool isLonger = std::ranges::any_of(m_codeSpace, [&](const Range &range) {
            const unsigned shift = 8 * (range.length - 1);
            return range.length > 1 && byte >= range.first >> shift && byte <= range.last >> shift;
        });
        if (!isLonger && code.length == 1) {
            m_oneByte[byte] = {m_units[byte], static_cast<float>(widthOf(cidOf(code)))};
        }
    }
}

void FontCodes::show(std::string_view codes, double size, bool isRead, TextTracer &tracer) const {
    constexpr double kThousandth = 0.001;
    double width = 0;
    for (std::size_t at = 0; at < codes.size();) {
        if (const OneByte &known = m_oneByte[static_cast<unsigned char>(codes[at])];
            known.unit != 0) {
            width += static_cast<double>(known.width);
            ++at;
            if (isRead) {
                tracer.addUnit(known.unit);
            }
            continue;
        }
        const Code code = nextCode(codes.substr(at));
        at += code.length;
        width += widthOf(cidOf(code));
        if (!isRead) {
            continue;
        }
        if (code.value < kCodes && m_units[code.value] != 0) {
            tracer.addUnit(m_units[code.value]);
        } else {
            tracer.addText(m_texts.value(code.value));
        }
    }
    tracer.addAdvance(width * size * kThousandth);
}

} // namespace folioforge
