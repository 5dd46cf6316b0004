#include "cli/Locale.h"

#include <clocale>
#include <cstdlib>
#include <string_view>

#include <langinfo.h>

namespace folioforge {

// Qt would choose the same by itself, with a warning on standard error for each run.
void useUtf8FileNames() {
    std::setlocale(LC_ALL, "");
    if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") {
        ::setenv("LC_ALL", "C.UTF-8", 1);
        std::setlocale(LC_ALL, "");
    }
}

} // namespace folioforge
