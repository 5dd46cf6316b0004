#pragma once

#include <QString>

#include <cstdint>
#include <string>

/// Conversions between Qt's strings (UTF-16), byte strings (UTF-8 or the C library's multibyte
/// encoding) and wide strings (one 32-bit element for each code point), under names that callers
/// of long standing use. Failure shows as an empty or an unchanged output or as a status; nothing
/// throws but for want of memory.
namespace folioforge {

/// The text of a wide string; empty when it cannot be converted.
QString wstring_to_nsstring(const std::wstring &text);
/// The text of a byte string in UTF-8, zeros included; null when it is not UTF-8.
QString string_to_nsstring(const std::string &text);
/// UTF-8 of `text` up to its first zero; empty when a surrogate half makes it inconvertible.
void NSStringToSTLString(const QString &text, std::string &output);
/// UTF-8 of `text`, read in the encoding of the current C locale.
void NSStringToSTLString(const QString &text, std::wstring &output);

/// Raises "a" to "z" in place, up to the terminating zero; all other bytes stay.
void _strupr(char *text);

/// Converts from the encoding of the current C locale, up to the first zero. Empty for null or
/// invalid text. The C library ignores `length`, a count of elements, when it counts.
void MultiBytesToWideChar(const char *text, std::wstring &output, std::int32_t length);
/// Converts to the encoding of the current C locale. -1 for null text; the bytes needed plus one
/// when `buffer` is null or `size` is less than the bytes needed, or nothing was written; 0 for
/// success. Writes no terminator and asks no room for one. Text that cannot be converted needs
/// -1 bytes: 0 is returned and nothing written.
std::int32_t WideCharToMultiBytes(const wchar_t *text, char *buffer, std::int32_t size);

/// Converts from UTF-8; `output` keeps its content when the input is not UTF-8.
void utf8string_to_wstring(const std::string &text, std::wstring &output);
/// Converts to UTF-8; `output` keeps its content when an element is no Unicode scalar value.
void wstring_to_utf8string(std::wstring text, std::string &output);
/// Empty, whatever `text` holds.
std::string UTF8_To_string(const std::string &text);

/// Whether "bold" or "bd" stands anywhere in a font name, in any case.
bool FindBoldString(const char *fontName);
/// Whether "oblique" or "italic" stands anywhere in a font name, in any case.
bool FindItalicString(const char *fontName);

/// Converts to the encoding of the locale "chs", or of the current one where there is no such, in
/// at most two bytes an element plus one; what needs more is cut at a character. The locale is
/// changed meanwhile, for all threads.
void WideStringToMultiBytesString(const std::wstring &text, std::string &output);
/// Converts from the encoding of the environment's locale, up to the first zero or invalid byte,
/// and leaves the process in the locale "C". Gives the name that selecting it returned.
const char *MultiBytesStringToWideString(const std::string &text, std::wstring &output);

} // namespace folioforge
