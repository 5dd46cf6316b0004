// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/OptionTable.h"

namespace folioforge {

/// The options of tags and what they say to those who do not see the pages.
const std::vector<Option> &accessibilityOptions();

/// Reads the file of --alt-file, and fills in the system's language where none is given. Throws
/// ArgumentFault.
void prepareTags(Arguments &arguments);

} // namespace folioforge
