// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "convert/ConversionOptions.h"
#include "error/Notice.h"

#include <optional>
#include <vector>

namespace folioforge {

// Each check gives nothing when the settings are valid, else the one notice to show.

/// The output folder: chosen, existing and writable.
std::optional<Notice> checkOutputFolder(const QString &folder);

/// The passwords: entered, such as an encrypted document can hold, and two different ones there.
std::optional<Notice> checkSecuritySettings(const SecuritySettings &settings);

/// The passwords: none in a PDF for archives, which every reader must be able to open.
std::optional<Notice> checkArchive(const ConversionOptions &options);

/// The name of the merged file: entered, no folder's and free. Single mode asks for none.
std::optional<Notice> checkMergedFile(const ConversionOptions &options);

/// What the checks of a run find, in their order: output folder, security, archive, text pages,
/// image pages and the merged file.
std::vector<Notice> faultsOf(const ConversionOptions &options);

/// The notice that a folder chosen for output cannot be written to. It speaks of no setting: the
/// folder has not become the output folder.
Notice folderNotWritableNotice();

/// The notice that the merged file's name is taken.
Notice nameExistsNotice();

} // namespace folioforge
