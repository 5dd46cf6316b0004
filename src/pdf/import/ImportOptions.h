// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentInfo.h"
#include "pdf/PageChoice.h"
#include "pdf/archive/ArchiveLevel.h"

#include <optional>

namespace folioforge {

/// What a source document is to the document that is made.
enum class ImportScope {
    WholeDocument, ///< All of it.
    OneOfSeveral   ///< A part of it.
};

/// What the document that is made is to be, as far as it matters to its sources.
struct ImportOptions {
    ImportScope scope = ImportScope::OneOfSeveral;
    DocumentInfo info;
    bool encrypted = false;
    PageChoice pages;
    int firstPage = 0;                        ///< How many pages stand before those of the source.
    std::optional<ArchiveLevel> archive = {}; ///< The standard that is kept.
};

} // namespace folioforge
