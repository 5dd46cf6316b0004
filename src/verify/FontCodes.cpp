// SPDX-License-Identifier: Apache-2.0

#include "verify/FontCodes.h"

#include "error/Error.h"
#include "pdf/import/Entries.h"
#include "verify/ContentLexer.h"
#include "verify/FontStreams.h"
#include "verify/TextTrace.h"

#include <algorithm>
#include <string>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

using Kind = ContentToken::Kind;

std::uint32_t numberOf(std::string_view bytes) {
    std::uint32_t number = 0;
    for (const char byte : bytes) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

/// The text of a code in UTF-16.
QString textOf(std::string_view utf16) {
    constexpr std::size_t kMaxBytes = 128; // No ligature has so many.
    return fromUtf16(utf16.substr(0, kMaxBytes));
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

} // namespace

std::shared_ptr<const FontCodes> FontCodes::read(const QPDFObjectHandle &font) {
    auto codes = std::make_shared<FontCodes>();
    if (entry(font, "/Subtype").isNameAndEquals("/Type0")) {
        codes->readComposite(font);
    } else {
        codes->readSimple(font);
    }
    if (const auto map = entry(font, "/ToUnicode"); QPDFObjectHandle(map).isStream()) {
        codes->readUnicodeMap(characterMapIn(map));
    }
    codes->m_isAsEmbedded = hasPlainStreams(font);
    codes->indexFirstBytes();
    return codes;
}

void FontCodes::readComposite(const QPDFObjectHandle &font) {
    m_units.resize(kCodes);
    auto encoding = entry(font, "/Encoding");
    if (encoding.isStream()) {
        readEncodingMap(characterMapIn(encoding));
    } else {
        m_codeSpace.push_back({2, 0, 0xFFFF, 0});
    }
    const auto descendants = items(entry(font, "/DescendantFonts"));
    if (!descendants.empty()) {
        requireWholeProgram(descendants.front());
        readCidWidths(descendants.front());
    }
}

void FontCodes::readSimple(const QPDFObjectHandle &font) {
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
                const QString text = textOf(entry[2].text);
                for (std::uint32_t code = first; code <= last; ++code) {
                    const std::uint32_t step = code - first;
                    if (entry[2].kind == Kind::String) {
                        setText(code, nextText(text, step));
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
    requireModest();
    const bool hasUnit = code < m_units.size();
    if (hasUnit && text.size() == 1 && text[0] != u'\0') {
        m_units[code] = text[0].unicode();
    } else {
        if (hasUnit) {
            m_units[code] = 0;
        }
        m_texts.insert(code, text);
    }
}

/// The widths of /W: runs of the form "first [w w w]" and "first last w" (ISO 32000-1, 9.7.4.3).
void FontCodes::readCidWidths(const QPDFObjectHandle &cidFont) {
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
        if (code.value < m_units.size() && m_units[code.value] != 0) {
            tracer.addUnit(m_units[code.value]);
        } else {
            tracer.addText(m_texts.value(code.value));
        }
    }
    tracer.addAdvance(width * size * kThousandth);
}

} // namespace folioforge
