// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// Throws ArgumentFault where standard output is a terminal, which no PDF is for.
void requireNoTerminal();

/// Writes the file at `path` to standard output and removes it. Throws Error where it cannot be
/// read, or all of it written.
void moveToStandardOutput(const QString &path);

} // namespace folioforge
