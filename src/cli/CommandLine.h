// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"

namespace folioforge {

/// Exit statuses of the program.
enum ExitStatus { AllConverted = 0, SomeFailed = 1, WrongUsage = 2 };

/// Converts what the arguments name and reports it; returns the exit status.
ExitStatus runConversion(Arguments arguments);

} // namespace folioforge
