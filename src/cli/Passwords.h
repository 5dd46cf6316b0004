#pragma once

#include "cli/Arguments.h"

namespace folioforge {

/// Puts the passwords that the arguments or the environment name into `security`: the first line of
/// a file or of standard input, else FOLIOFORGE_USER_PASSWORD and FOLIOFORGE_OWNER_PASSWORD where
/// they are set and not empty. Standard input is read line by line, the user password first. Throws
/// ArgumentFault when a file cannot be read or a password is not valid UTF-8.
void readPasswords(const Arguments &arguments, SecuritySettings &security);

} // namespace folioforge
