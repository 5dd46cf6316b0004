// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/CharacterMap.h"

#include "pdf/fonts/CodeTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

namespace folioforge {
namespace {

std::string hex(std::uint32_t value, int digits) {
    static constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text(static_cast<std::size_t>(digits), '0');
    std::generate(text.rbegin(), text.rend(), [&value] {
        const char digit = kDigits[value & 0xFU];
        value >>= 4;
        return digit;
    });
    return text;
}

std::string codeText(const CodeTable &table, std::uint16_t code) {
    const bool twoBytes =
        table.form() == CodeTable::Form::TwoByte || code > CodeTable::kLastOneByte;
    return '<' + hex(code, twoBytes ? 4 : 2) + '>';
}

std::string utf16Text(const QString &text) {
    std::string digits;
    for (const QChar unit : text) {
        digits += hex(unit.unicode(), 4);
    }
    return '<' + digits + '>';
}

std::string head(std::string_view ordering, std::string_view name, int type,
                 const CodeTable &table) {
    std::string map = "/CIDInit/ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                      "/CIDSystemInfo<</Registry(Adobe)/Ordering(";
    map.append(ordering).append(")/Supplement 0>>def\n/CMapName/").append(name);
    map.append(" def\n/CMapType ").append(std::to_string(type)).append(" def\n");
    if (table.form() == CodeTable::Form::TwoByte) {
        map.append("1 begincodespacerange\n<0000><FFFF>\n");
    } else if (table.hasTwoByteCodes()) {
        map.append("2 begincodespacerange\n<00><BF>\n<C000><FFFF>\n");
    } else {
        map.append("1 begincodespacerange\n<00><FF>\n");
    }
    return map.append("endcodespacerange\n");
}

constexpr std::string_view kTail =
    "endcmap\nCMapName currentdict/CMap defineresource pop\nend\nend\n";

std::string unicodeMap(const CodeTable &table, std::vector<CodeEntry> entries) {
    std::ranges::sort(entries, {}, &CodeEntry::code);
    std::string map = head("UCS", "Adobe-Identity-UCS", 2, table);
    // Ranges would be shorter, but Ghostscript 10.0 misreads them.
    constexpr std::size_t kMaxInASection = 100;
    for (std::size_t from = 0; from < entries.size(); from += kMaxInASection) {
        const std::size_t to = std::min(from + kMaxInASection, entries.size());
        map.append(std::to_string(to - from)).append(" beginbfchar\n");
        for (std::size_t i = from; i < to; ++i) {
            map.append(codeText(table, entries[i].code));
            map.append(utf16Text(entries[i].text)).append("\n");
        }
        map.append("endbfchar\n");
    }
    return map.append(kTail);
}

} // namespace

std::string encodingMapName(const CodeTable &table) {
    return table.hasTwoByteCodes() ? "Folioforge-Mixed" : "Folioforge-Bytes";
}

std::string makeEncodingMap(const CodeTable &table) {
    std::string map = head("Identity", encodingMapName(table), 1, table);
    if (table.hasTwoByteCodes()) {
        map.append("2 begincidrange\n<00><BF> 0\n<C000><FFFF> 49152\nendcidrange\n");
    } else {
        map.append("1 begincidrange\n<00><FF> 0\nendcidrange\n");
    }
    return map.append(kTail);
}

std::string makeUnicodeMap(const CodeTable &table) {
    std::vector<CodeEntry> entries;
    std::ranges::copy_if(table.entries(), std::back_inserter(entries),
                         [](const CodeEntry &entry) { return !entry.text.isEmpty(); });
    return unicodeMap(table, std::move(entries));
}

QString wholeText(QString text) {
    constexpr char16_t kWordJoiner = 0x2060;
    text.replace(QChar(QChar::ByteOrderMark), QChar(kWordJoiner));
    text.replace(QChar(QChar::ByteOrderSwapped), QChar(QChar::ReplacementCharacter));
    text.replace(QChar(QChar::Null), QChar(QChar::ReplacementCharacter));
    return text.isEmpty() ? QString(QChar(kWordJoiner)) : text;
}

std::string makeWholeUnicodeMap(const CodeTable &table) {
    std::vector<CodeEntry> entries = table.entries();
    for (CodeEntry &entry : entries) {
        entry.text = wholeText(std::move(entry.text));
    }
    return unicodeMap(table, std::move(entries));
}

} // namespace folioforge
