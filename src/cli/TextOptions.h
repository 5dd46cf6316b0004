// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/OptionTable.h"

#include <vector>

namespace folioforge {

/// The options that say how text is set.
const std::vector<Option> &textOptions();

/// Makes the font and the style that the options of `arguments` ask for. Throws ArgumentFault where
/// the system lacks a family, and where an option needs --text-layout=readable.
void prepareText(Arguments &arguments);

} // namespace folioforge
