#include "cli/Interruption.h"

#include "files/PartFiles.h"

#include <csignal>

namespace folioforge {
namespace {

// Only calls that are safe in a signal handler.
extern "C" void endBySignal(int signalNumber) {
    removePartFiles();
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

} // namespace

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
