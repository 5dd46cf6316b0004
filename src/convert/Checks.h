#pragma once

#include "convert/ConversionOptions.h"
#include "text/Notice.h"

#include <optional>

namespace folioforge {

/// The checks of a run in their order: output folder, security, text pages, image pages, and in
/// merge mode the output name. Nothing when the run may start, else the one notice to show.
std::optional<Notice> checkConversion(const ConversionOptions &options);

/// The notice that the merged file's name is taken.
Notice nameExistsNotice();

} // namespace folioforge
