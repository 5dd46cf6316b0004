// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <cstdint>
#include <string>

// Kept for callers alone: the program itself uses none of these.
//
// Conversions between Qt's strings (UTF-16), byte strings (UTF-8 or the C library's multibyte
// encoding) and wide strings (one 32-bit element for each code point). The names are given.
// On failure the output is empty or unchanged, or a status says so. Only std::bad_alloc is thrown.

namespace folioforge {

/// The text of a wide string; empty when it cannot be converted.
QString wstring_to_nsstring(const std::wstring &text);
/// The text of a byte string in UTF-8, zeros included; null when it is not UTF-8.
QString string_to_nsstring(const std::string &text);
/// UTF-8 of `text` up to its first zero; empty when it has half a surrogate pair.
void NSStringToSTLString(const QString &text, std::string &output);
/// UTF-8 of `text`, read in the encoding of the current C locale.
void NSStringToSTLString(const QString &text, std::wstring &output);

/// Turns "a" to "z" into capitals in place, up to the terminating zero.
void _strupr(char *text);

/// Converts from the encoding of the current C locale, up to the first zero. Empty for null or
/// invalid text. `length`, a count of elements, has no effect.
void MultiBytesToWideChar(const char *text, std::wstring &output, std::int32_t length);
/// Converts to the encoding of the current C locale, without a terminator. Returns 0 for success,
/// -1 for null text, and the bytes needed plus one when `buffer` is null, `size` is less than the
/// bytes needed or nothing was written. Text that cannot be converted needs -1 bytes: the result is
/// 0, and nothing is written.
std::int32_t WideCharToMultiBytes(const wchar_t *text, char *buffer, std::int32_t size);

/// Converts from UTF-8; `output` keeps its content when the input is not UTF-8.
void utf8string_to_wstring(const std::string &text, std::wstring &output);
/// Converts to UTF-8; `output` keeps its content when an element is no Unicode scalar value.
void wstring_to_utf8string(std::wstring text, std::string &output);
/// Empty, whatever `text` holds.
std::string UTF8_To_string(const std::string &text);

/// Whether a font name contains "bold" or "bd" in any case.
bool FindBoldString(const char *fontName);
/// Whether a font name contains "oblique" or "italic" in any case.
bool FindItalicString(const char *fontName);

/// Converts to the encoding of the locale "chs", or of the current one if there is none, and cuts
/// the output at two bytes an element plus one. Changes the locale of all threads meanwhile.
void WideStringToMultiBytesString(const std::wstring &text, std::string &output);
/// Converts from the encoding of the environment's locale, up to the first zero or invalid byte.
/// Leaves the process in the locale "C" and returns its name.
const char *MultiBytesStringToWideString(const std::string &text, std::wstring &output);

} // namespace folioforge
