// SPDX-License-Identifier: Apache-2.0

#include "verify/ContentLexer.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace folioforge {
namespace {

enum class Class : unsigned char { Regular, Blank, Delimiter };

constexpr std::array<Class, 256> makeClasses() {
    std::array<Class, 256> classes{};
    for (const char blank : {'\0', '\t', '\n', '\f', '\r', ' '}) {
        classes[static_cast<unsigned char>(blank)] = Class::Blank;
    }
    for (const char delimiter : {'(', ')', '<', '>', '[', ']', '{', '}', '/', '%'}) {
        classes[static_cast<unsigned char>(delimiter)] = Class::Delimiter;
    }
    return classes;
}
constexpr std::array<Class, 256> kClasses = makeClasses();

Class classOf(char byte) {
    return kClasses[static_cast<unsigned char>(byte)];
}

/// The value of a hexadecimal digit; -1 for another character.
int digitOf(char byte) {
    if (byte >= '0' && byte <= '9') {
        return byte - '0';
    }
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool isOctal(char byte) {
    return byte >= '0' && byte <= '7';
}

} // namespace

bool isRegular(char byte) {
    return classOf(byte) == Class::Regular;
}

void ContentLexer::passBlanks() {
    while (!isAtEnd()) {
        if (m_content[m_at] == '%') {
            m_at = std::min(m_content.find_first_of("\r\n", m_at), m_content.size());
        } else if (classOf(m_content[m_at]) != Class::Blank) {
            return;
        } else {
            ++m_at;
        }
    }
}

bool ContentLexer::next(ContentToken &token) {
    passBlanks();
    if (isAtEnd()) {
        return false;
    }
    token.text.clear();
    if (classOf(m_content[m_at]) == Class::Delimiter) {
        if (!readDelimiter(token)) {
            token.kind = ContentToken::Kind::Word;
            token.text = m_content[m_at++];
        }
    } else if (readNumber(token.number)) {
        token.kind = ContentToken::Kind::Number;
    } else {
        token.kind = ContentToken::Kind::Word;
        readWord(token.text);
    }
    return true;
}

bool ContentLexer::readDelimiter(ContentToken &token) {
    using Kind = ContentToken::Kind;
    const char first = m_content[m_at];
    const bool isDouble = m_at + 1 < m_content.size() && m_content[m_at + 1] == first;
    switch (first) {
    case '(':
        token.kind = Kind::String;
        readString(token.text);
        return true;
    case '/':
        token.kind = Kind::Name;
        readName(token.text);
        return true;
    case '[':
    case ']':
        token.kind = first == '[' ? Kind::BeginArray : Kind::EndArray;
        ++m_at;
        return true;
    case '<':
        token.kind = isDouble ? Kind::BeginDictionary : Kind::String;
        isDouble ? void(m_at += 2) : readHexadecimal(token.text);
        return true;
    case '>':
        token.kind = Kind::EndDictionary;
        m_at += isDouble ? 2 : 0;
        return isDouble;
    default:
        return false;
    }
}

void ContentLexer::readString(std::string &text) {
    int depth = 1;
    for (++m_at; !isAtEnd();) {
        const auto end = std::min(m_content.find_first_of("()\\\r", m_at), m_content.size());
        text.append(m_content.substr(m_at, end - m_at));
        m_at = end;
        if (isAtEnd()) {
            return;
        }
        const char byte = m_content[m_at++];
        if (byte == '\\') {
            readEscape(text);
            continue;
        }
        if (byte == '\r') { // A line end in a string reads as a line feed.
            m_at += !isAtEnd() && m_content[m_at] == '\n' ? 1 : 0;
            text += '\n';
            continue;
        }
        depth += byte == '(' ? 1 : -1;
        if (depth == 0) {
            return;
        }
        text += byte;
    }
}

void ContentLexer::readEscape(std::string &text) {
    constexpr std::string_view kLetters = "nrtbf";
    constexpr std::string_view kMeant = "\n\r\t\b\f";
    constexpr int kMaxDigits = 3;
    if (isAtEnd()) {
        return;
    }
    const char byte = m_content[m_at];
    if (isOctal(byte)) {
        unsigned value = 0;
        for (int i = 0; i < kMaxDigits && !isAtEnd() && isOctal(m_content[m_at]); ++i) {
            value = value * 8 + static_cast<unsigned>(m_content[m_at++] - '0');
        }
        text += static_cast<char>(value);
        return;
    }
    ++m_at;
    if (byte == '\r' || byte == '\n') { // The line goes on.
        m_at += byte == '\r' && !isAtEnd() && m_content[m_at] == '\n' ? 1 : 0;
        return;
    }
    const auto letter = kLetters.find(byte);
    text += letter == std::string_view::npos ? byte : kMeant[letter];
}

void ContentLexer::readHexadecimal(std::string &text) {
    int half = -1;
    for (++m_at; !isAtEnd() && m_content[m_at] != '>'; ++m_at) {
        const int digit = digitOf(m_content[m_at]);
        if (digit >= 0 && half >= 0) {
            text += static_cast<char>(half * 16 + digit);
            half = -1;
        } else if (digit >= 0) {
            half = digit;
        }
    }
    m_at += isAtEnd() ? 0 : 1;
    if (half >= 0) {
        text += static_cast<char>(half * 16);
    }
}

void ContentLexer::readName(std::string &text) {
    for (++m_at; !isAtEnd() && isRegular(m_content[m_at]); ++m_at) {
        const bool isCoded = m_content[m_at] == '#' && m_at + 2 < m_content.size() &&
                             digitOf(m_content[m_at + 1]) >= 0 && digitOf(m_content[m_at + 2]) >= 0;
        text += isCoded ? static_cast<char>(digitOf(m_content[m_at + 1]) * 16 +
                                            digitOf(m_content[m_at + 2]))
                        : m_content[m_at];
        m_at += isCoded ? 2 : 0;
    }
}

/// Reads a number as contents write it, without an exponent. What it cannot read stays.
bool ContentLexer::readNumber(double &number) {
    std::size_t at = m_at;
    const bool isNegative = m_content[at] == '-';
    at += isNegative || m_content[at] == '+' ? 1 : 0;
    double value = 0;
    double unit = 0; // Of the next digit behind the point.
    bool hasDigit = false;
    for (; at < m_content.size() && isRegular(m_content[at]); ++at) {
        const char byte = m_content[at];
        if (byte == '.' && unit == 0) {
            unit = 0.1;
        } else if (byte < '0' || byte > '9') {
            return false;
        } else if (unit == 0) {
            value = value * 10 + (byte - '0');
            hasDigit = true;
        } else {
            value += unit * (byte - '0');
            unit /= 10;
            hasDigit = true;
        }
    }
    if (hasDigit) {
        m_at = at;
        number = isNegative ? -value : value;
    }
    return hasDigit;
}

void ContentLexer::readWord(std::string &text) {
    const std::size_t start = m_at;
    // The operators ' and " are letters here, and regular characters end at a delimiter.
    while (!isAtEnd() && isRegular(m_content[m_at])) {
        ++m_at;
    }
    text.assign(m_content.substr(start, m_at - start));
}

void ContentLexer::passInlineImage() {
    while (!isAtEnd()) {
        const auto found = m_content.find("EI", m_at);
        if (found == std::string_view::npos) {
            m_at = m_content.size();
            return;
        }
        m_at = found + 2;
        const bool begins = found > 0 && classOf(m_content[found - 1]) == Class::Blank;
        if (begins && (isAtEnd() || classOf(m_content[m_at]) == Class::Blank)) {
            return;
        }
    }
}

QString fromUtf16(std::string_view bytes) {
    QStringDecoder decoder(QStringConverter::Utf16BE, QStringConverter::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(bytes.data(), std::ssize(bytes)));
}

} // namespace folioforge
