// SPDX-License-Identifier: Apache-2.0

#include "cli/Process.h"

#include "files/PartFiles.h"

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <string_view>

#include <langinfo.h>

namespace folioforge {
namespace {

// Only calls that are safe in a signal handler.
extern "C" void endBySignal(int signalNumber) {
    removePartFiles();
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

} // namespace

// Qt does the same by itself, but writes a warning to standard error.
void useUtf8FileNames() {
    std::setlocale(LC_ALL, "");
    if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") {
        ::setenv("LC_ALL", "C.UTF-8", 1);
        std::setlocale(LC_ALL, "");
    }
}

void prepareForSignals() {
    for (const int signalNumber : {SIGINT, SIGTERM, SIGHUP}) {
        // A signal that the caller ignores, as nohup does, stays ignored.
        if (std::signal(signalNumber, endBySignal) == SIG_IGN) {
            std::signal(signalNumber, SIG_IGN);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace folioforge
