// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"

#include <string>

namespace folioforge {

/// What can stand behind the last byte of a PDF that is cut off before its trailer: the end of a
/// stream and of an object, and a trailer that leads to the last catalog in the file. Empty where
/// there is no catalog in plain bytes, or a security handler, which only a true trailer names.
/// Throws Error when the file cannot be read.
std::string lostTrailer(const FileVersion &file, SourceReader &reader);

} // namespace folioforge
