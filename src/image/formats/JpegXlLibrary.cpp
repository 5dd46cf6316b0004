// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegXlLibrary.h"

#include "error/Reasons.h"
#include "image/formats/LoadedLibrary.h"

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

JpegXlLibrary load() {
    LoadedLibrary library(
        u"" FOLIOFORGE_LIBRARY ""_s, u"" FOLIOFORGE_LIBRARY_VERSION ""_s,
        Reasons::tr("JPEG XL files are read by libjxl %1, which cannot be loaded: %2"));
    JpegXlLibrary found;
#define FOLIOFORGE_JXL_FIND(NAME) library.find("JxlDecoder" #NAME, found.NAME);
    FOLIOFORGE_JXL_FUNCTIONS(FOLIOFORGE_JXL_FIND)
#undef FOLIOFORGE_JXL_FIND
    return found;
}

} // namespace

const JpegXlLibrary &jxl() {
    static const JpegXlLibrary library = load();
    return library;
}

} // namespace folioforge
