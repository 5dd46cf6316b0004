// SPDX-License-Identifier: Apache-2.0

#include "cli/Process.h"

#include "files/PartFiles.h"

#include <QString>
#include <QtGlobal>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <langinfo.h>
#include <sys/resource.h>
#include <sys/time.h>

namespace folioforge {
namespace {

// Only calls that are safe in a signal handler.
extern "C" void endBySignal(int signalNumber) {
    removePartFiles();
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

std::stop_source &processorTime() {
    static std::stop_source source;
    return source;
}

// Sets a flag and no more, since nobody registers a callback for the stop.
extern "C" void stopInTime(int /*signalNumber*/) {
    processorTime().request_stop();
}

/// The system ends the program at the hard limit and warns it at the soft one, which is often the
/// same: then the warning is asked for a second earlier, or where there is but one, in its midst.
void askForStopInTime() {
    processorTime(); // A signal handler must not be the first to ask for it.
    std::signal(SIGXCPU, stopInTime);
    rlimit limit{};
    if (::getrlimit(RLIMIT_CPU, &limit) != 0 || limit.rlim_max == RLIM_INFINITY ||
        limit.rlim_cur < limit.rlim_max) {
        return;
    }
    if (limit.rlim_max > 1) {
        limit.rlim_cur = limit.rlim_max - 1;
        ::setrlimit(RLIMIT_CPU, &limit);
        return;
    }
    constexpr suseconds_t kHalfASecond = 500'000;
    const itimerval timer{{}, {0, kHalfASecond}};
    std::signal(SIGPROF, stopInTime);
    ::setitimer(ITIMER_PROF, &timer, nullptr);
}

void passOn(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "folioforge-cli: %s\n", qUtf8Printable(message));
    }
}

} // namespace

void silenceQt() {
    qInstallMessageHandler(passOn);
}

std::stop_token outOfProcessorTime() {
    return processorTime().get_token();
}

// Qt does the same by itself, but writes a warning to standard error.
void useUtf8FileNames() {
    std::setlocale(LC_ALL, "");
    if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8") {
        ::setenv("LC_ALL", "C.UTF-8", 1);
        std::setlocale(LC_ALL, "");
    }
}

void keepMessagesEnglish() {
    std::setlocale(LC_MESSAGES, "C");
}

void prepareForSignals() {
    for (const int signalNumber : {SIGINT, SIGTERM, SIGHUP}) {
        // A signal that the caller ignores, as nohup does, stays ignored.
        if (std::signal(signalNumber, endBySignal) == SIG_IGN) {
            std::signal(signalNumber, SIG_IGN);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    askForStopInTime();
}

} // namespace folioforge
