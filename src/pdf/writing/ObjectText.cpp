// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/ObjectText.h"

#include "pdf/writing/StreamCipher.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <charconv>

namespace folioforge {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// What a number or a name goes on with.
bool isRegular(char character) {
    constexpr std::string_view kOthers(" \n\t\r\f\0()<>[]{}/%", 17);
    return kOthers.find(character) == std::string_view::npos;
}

std::size_t endOfToken(std::string_view text, std::size_t at) {
    while (at < text.size() && isRegular(text[at])) {
        ++at;
    }
    return at;
}

/// The end of the string in parentheses that begins at `at`.
std::size_t endOfLiteral(std::string_view text, std::size_t at) {
    int depth = 0;
    for (; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++at;
        } else if (text[at] == '(') {
            ++depth;
        } else if (text[at] == ')' && --depth == 0) {
            return at + 1;
        }
    }
    return text.size();
}

std::size_t endOfHexadecimal(std::string_view text, std::size_t at) {
    const auto end = text.find('>', at);
    return end == std::string_view::npos ? text.size() : end + 1;
}

void appendString(std::string &out, std::string_view string, const StreamCipher &cipher) {
    const std::string bytes = QPDFObjectHandle::parse(std::string(string)).getStringValue();
    const QByteArray encrypted = cipher.encrypted({bytes.data(), std::ssize(bytes)});
    out.append("<").append(encrypted.toHex().constData()).append(">");
}

} // namespace

void appendObject(std::string &out, std::string_view object, ObjectNumbers &numbers,
                  const StreamCipher *cipher) {
    constexpr std::string_view kReference(" 0 R"); // What is written is of generation 0.
    std::size_t copied = 0;                        // Up to there all is in `out`.
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
            at = endOfToken(object, at);
            int number = 0;
            if (object.substr(at, kReference.size()) == kReference &&
                std::from_chars(object.data() + begin, object.data() + at, number).ptr ==
                    object.data() + at) {
                out.append(object, copied, begin - copied);
                out.append(std::to_string(numbers.numberOf(number)));
                copied = at;
                at += kReference.size();
            }
        } else if (first == '<' || first == '>') {
            at += 2;
        } else {
            at = isRegular(first) || first == '/' ? endOfToken(object, at + 1) : at + 1;
        }
    }
    out.append(object, copied);
}

} // namespace folioforge
