// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/OptionTable.h"

#include <vector>

namespace folioforge {

/// The options of documents for archives.
const std::vector<Option> &archiveOptions();

/// Puts what the options of `arguments` say of archives into their settings. Throws ArgumentFault
/// where they do not go together, and where the profile cannot be read or is none of inks.
void prepareArchive(Arguments &arguments);

} // namespace folioforge
