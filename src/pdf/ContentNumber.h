// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace folioforge {

/// `value` in fixed notation with at most so many decimals, without trailing zeros, with a point in
/// every locale (ISO 32000-1, 7.3.3).
std::string numberText(double value, int decimals = 5);

/// Appends `value` and a space to a content stream.
void appendNumber(std::string &content, double value);

} // namespace folioforge
