// SPDX-License-Identifier: Apache-2.0

#include "image/formats/HeifLibrary.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

[[noreturn]] void fail(const QLibrary &library) {
    throw Error(Reasons::tr("HEIC and AVIF files are read by libheif 1, which cannot be loaded: %1")
                    .arg(library.errorString()));
}

template<typename Function> void find(QLibrary &library, const char *name, Function *&function) {
    function = reinterpret_cast<Function *>(library.resolve(name));
    if (function == nullptr) {
        fail(library);
    }
}

HeifLibrary load() {
    constexpr int kInterface = 1;
    QLibrary library(u"" FOLIOFORGE_HEIF_LIBRARY ""_s, kInterface);
    if (!library.load()) {
        fail(library);
    }
    HeifLibrary found;
#define FOLIOFORGE_HEIF_FIND(NAME) find(library, "heif_" #NAME, found.NAME);
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
