// SPDX-License-Identifier: Apache-2.0

#include "strings/StringToolkit.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iconv.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr std::size_t kWideBytes = 4;
static_assert(sizeof(wchar_t) == kWideBytes, "wide strings hold whole code points");

/// What the C library returns for text it cannot convert.
constexpr auto kInvalid = static_cast<std::size_t>(-1);

/// An iconv converter that is closed on every path.
class Converter {
  public:
    Converter(const char *to, const char *from)
        : m_handle(iconv_open(to, from)) {}
    ~Converter() {
        if (isOpen()) {
            iconv_close(m_handle);
        }
    }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    /// Converts all of the input in one call. The room that is left in the output, or nothing on
    /// failure.
    std::optional<std::size_t> convert(char *input, std::size_t inputBytes, char *output,
                                       std::size_t room) {
        if (!isOpen() || iconv(m_handle, &input, &inputBytes, &output, &room) == kInvalid) {
            return std::nullopt;
        }
        return room;
    }

  private:
    [[nodiscard]] bool isOpen() const {
        return reinterpret_cast<std::intptr_t>(m_handle) != -1; // iconv_open's only error value
    }

    iconv_t m_handle;
};

/// Whether every element is a character number. glibc's converters also take numbers beyond
/// U+10FFFF, in up to six bytes, which no UTF-8 has.
bool isUnicode(const std::wstring &text) {
    return std::ranges::all_of(text, [](wchar_t element) {
        const auto code = static_cast<char32_t>(element);
        return code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    });
}

/// UTF-8 of `text`; null when a surrogate half stands alone.
QByteArray utf8CString(const QString &text) {
    QStringEncoder encode(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    QByteArray bytes = encode(text);
    return encode.hasError() ? QByteArray() : bytes;
}

/// Keeps what stands before the first zero.
template<typename String> void cutAtZero(String &text) {
    text.resize(std::min(text.find(typename String::value_type{}), text.size()));
}

std::string upperCased(const char *text) {
    std::string copy(text ? text : "");
    _strupr(copy.data());
    return copy;
}

} // namespace

QString wstring_to_nsstring(const std::wstring &text) {
    std::string bytes;
    wstring_to_utf8string(text, bytes);
    return string_to_nsstring(bytes);
}

QString string_to_nsstring(const std::string &text) {
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                    QStringDecoder::Flag::ConvertInitialBom);
    QString decoded = decode(QByteArrayView(text));
    if (decode.hasError()) {
        return {};
    }
    return decoded.isNull() ? u""_s : decoded;
}

void NSStringToSTLString(const QString &text, std::string &output) {
    output = utf8CString(text).constData();
}

void NSStringToSTLString(const QString &text, std::wstring &output) {
    // The length counts UTF-16 units, not bytes; callers rely on nothing else being passed.
    MultiBytesToWideChar(utf8CString(text).constData(), output,
                         static_cast<std::int32_t>(text.size()));
}

void _strupr(char *text) {
    constexpr char kCaseDistance = 'a' - 'A';
    for (; *text != 0; ++text) {
        if (*text >= 'a' && *text <= 'z') {
            *text = static_cast<char>(*text - kCaseDistance);
        }
    }
}

void MultiBytesToWideChar(const char *text, std::wstring &output, std::int32_t length) {
    output.clear();
    if (!text) {
        return;
    }
    const std::size_t count = std::mbstowcs(nullptr, text, static_cast<std::size_t>(length));
    if (count == 0 || count == kInvalid) {
        return;
    }
    std::wstring buffer(count + 1, L'\0');
    if (std::mbstowcs(buffer.data(), text, count) == 0) {
        return;
    }
    cutAtZero(buffer);
    output = std::move(buffer);
}

std::int32_t WideCharToMultiBytes(const wchar_t *text, char *buffer, std::int32_t size) {
    if (!text) {
        return -1;
    }
    const std::size_t count = std::wcstombs(nullptr, text, kWideBytes * std::wcslen(text));
    const auto need = static_cast<std::int32_t>(count);
    if (!buffer || size < need || count == kInvalid) {
        return need + 1;
    }
    // With room for the whole text and its end: where all that fits has no bytes, as tags have none
    // in ASCII, glibc looks at the byte before the room and may end the program.
    std::string bytes(std::max(count, std::wcslen(text)) + 1, '\0');
    const std::size_t written = std::wcstombs(bytes.data(), text, bytes.size());
    std::copy_n(bytes.data(), written, buffer);
    return written != 0 ? 0 : need + 1;
}

void utf8string_to_wstring(const std::string &text, std::wstring &output) {
    std::string input = text; // iconv asks for a mutable buffer
    std::wstring buffer(input.size() + 1, L'\0');
    Converter converter("UCS-4LE", "UTF-8");
    const auto room =
        converter.convert(input.data(), input.size(), reinterpret_cast<char *>(buffer.data()),
                          kWideBytes * buffer.size());
    if (!room) {
        return;
    }
    buffer.resize(buffer.size() - *room / kWideBytes);
    if (isUnicode(buffer)) {
        output = std::move(buffer);
    }
}

void wstring_to_utf8string(std::wstring text, std::string &output) {
    if (!isUnicode(text)) {
        return;
    }
    std::string buffer(kWideBytes * text.size(), '\0');
    Converter converter("UTF-8", "UCS-4LE");
    const auto room = converter.convert(reinterpret_cast<char *>(text.data()),
                                        kWideBytes * text.size(), buffer.data(), buffer.size());
    if (room) {
        buffer.resize(buffer.size() - *room);
        output = std::move(buffer);
    }
}

std::string UTF8_To_string([[maybe_unused]] const std::string &text) {
    return {};
}

bool FindBoldString(const char *fontName) {
    const std::string name = upperCased(fontName);
    return name.find("BOLD") != std::string::npos || name.find("BD") != std::string::npos;
}

bool FindItalicString(const char *fontName) {
    const std::string name = upperCased(fontName);
    const bool oblique = name.find("OBLIQUE") != std::string::npos;
    const bool italic = name.find("ITALIC") != std::string::npos;
    return oblique || italic;
}

void WideStringToMultiBytesString(const std::wstring &text, std::string &output) {
    const std::string saved = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "chs");
    std::string buffer(2 * text.size() + 1, '\0');
    std::wcstombs(buffer.data(), text.c_str(), buffer.size());
    cutAtZero(buffer);
    output = std::move(buffer);
    std::setlocale(LC_ALL, saved.c_str());
}

const char *MultiBytesStringToWideString(const std::string &text, std::wstring &output) {
    std::setlocale(LC_ALL, "");
    std::wstring buffer(text.size() + 1, L'\0');
    std::mbstowcs(buffer.data(), text.c_str(), buffer.size());
    cutAtZero(buffer);
    output = std::move(buffer);
    return std::setlocale(LC_ALL, "C");
}

} // namespace folioforge
