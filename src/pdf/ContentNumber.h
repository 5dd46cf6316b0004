// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string>

namespace folioforge {

/// Appends `value` and a space to a content stream: in fixed notation with at most five decimals,
/// without trailing zeros, with a point in every locale (ISO 32000-1, 7.3.3).
void appendNumber(std::string &content, double value);

} // namespace folioforge
