#pragma once

#include <string>

namespace folioforge {

/// Appends `value` and a space to a content stream: fixed notation, at most five decimals, no
/// zeros at the end and never the locale's decimal sign (ISO 32000-1, 7.3.3).
void appendNumber(std::string &content, double value);

} // namespace folioforge
