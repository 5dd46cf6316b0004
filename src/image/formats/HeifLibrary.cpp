// SPDX-License-Identifier: Apache-2.0

#include "image/formats/HeifLibrary.h"

#include "error/Reasons.h"
#include "image/formats/LoadedLibrary.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

HeifLibrary load() {
    LoadedLibrary library(
        u"" FOLIOFORGE_LIBRARY ""_s, u"" FOLIOFORGE_LIBRARY_VERSION ""_s,
        Reasons::tr("HEIC and AVIF files are read by libheif %1, which cannot be loaded: %2"));
    HeifLibrary found;
#define FOLIOFORGE_HEIF_FIND(NAME) library.find("heif_" #NAME, found.NAME);
    FOLIOFORGE_HEIF_FUNCTIONS(FOLIOFORGE_HEIF_FIND)
#undef FOLIOFORGE_HEIF_FIND
    return found;
}

} // namespace

const HeifLibrary &heif() {
    static const HeifLibrary library = load();
    return library;
}

} // namespace folioforge
