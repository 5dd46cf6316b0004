// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

enum class Shell { Bash, Zsh, Fish };

/// What `shell` reads to complete the options of the program and their values.
QByteArray completions(Shell shell);

} // namespace folioforge
