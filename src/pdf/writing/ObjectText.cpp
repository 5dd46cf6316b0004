// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/ObjectText.h"

#include "pdf/writing/StreamCipher.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>

namespace folioforge {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The end of the word that stands at `at`. The library puts a blank behind each.
std::size_t endOfToken(std::string_view text, std::size_t at) {
    return std::min(text.find_first_of(" ()<>[]/", at), text.size());
}

/// The end of the string in parentheses that begins at `at`; the library escapes those in it.
std::size_t endOfLiteral(std::string_view text, std::size_t at) {
    while (at < text.size() && text[at] != ')') {
        at += text[at] == '\\' ? 2 : 1;
    }
    return std::min(at + 1, text.size());
}

std::size_t endOfHexadecimal(std::string_view text, std::size_t at) {
    const auto end = text.find('>', at);
    return end == std::string_view::npos ? text.size() : end + 1;
}

/// The number that all of `digits` is; nothing where they are none.
std::optional<int> wholeNumber(std::string_view digits) {
    int number = 0;
    const char *const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

/// The reference, such as "12 0 R", that begins at `at`; nothing where there is none. `at` moves
/// behind it, or behind the first word.
std::optional<QPDFObjGen> readReference(std::string_view text, std::size_t &at) {
    constexpr std::string_view kEnd(" R");
    const std::size_t numberEnd = endOfToken(text, at);
    const auto number = wholeNumber(text.substr(at, numberEnd - at));
    at = numberEnd;
    if (!number || text.substr(at, 1) != " ") {
        return std::nullopt;
    }
    const std::size_t generationEnd = endOfToken(text, at + 1);
    const auto generation = wholeNumber(text.substr(at + 1, generationEnd - at - 1));
    if (!generation || text.substr(generationEnd, kEnd.size()) != kEnd) {
        return std::nullopt;
    }
    at = generationEnd + kEnd.size();
    return QPDFObjGen(*number, *generation);
}

void appendString(std::string &out, std::string_view string, const StreamCipher &cipher) {
    const std::string bytes = QPDFObjectHandle::parse(std::string(string)).getStringValue();
    const QByteArray encrypted = cipher.encrypted({bytes.data(), std::ssize(bytes)});
    out.append("<").append(encrypted.toHex().constData()).append(">");
}

} // namespace

void appendObject(std::string &out, std::string_view object, const NumberOf &numberOf,
                  const StreamCipher *cipher) {
    std::size_t copied = 0; // Up to there all is in `out`.
    std::size_t at = 0;
    while (at < object.size()) {
        const std::size_t begin = at;
        const char first = object[at];
        const bool isLiteral = first == '(';
        if (isLiteral || (first == '<' && object.substr(at, 2) != "<<")) {
            at = isLiteral ? endOfLiteral(object, at) : endOfHexadecimal(object, at);
            if (cipher) {
                out.append(object, copied, begin - copied);
                appendString(out, object.substr(begin, at - begin), *cipher);
                copied = at;
            }
        } else if (isDigit(first)) {
            if (const auto reference = readReference(object, at)) {
                out.append(object, copied, begin - copied);
                out.append(std::to_string(numberOf(*reference))).append(" 0 R");
                copied = at;
            }
        } else {
            at += first == '<' ? 2 : 1;
        }
    }
    out.append(object, copied);
}

} // namespace folioforge
