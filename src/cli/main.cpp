// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/Process.h"
#include "cli/Versions.h"
#include "files/ProcessSetup.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <new>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

int show(Console &console, const QByteArray &text) {
    console.result(text);
    return console.finishResults() ? AllConverted : SomeFailed;
}

QByteArray versions() {
    QStringList libraries;
    for (const auto &[library, version] : libraryVersions()) {
        libraries += library + u' ' + version;
    }
    return (toolVersion() + u"\nwith "_s + libraries.join(u", "_s)).toUtf8();
}

int run(int argc, char *argv[]) {
    useUtf8FileNames();
    const std::vector<QByteArray> words(argv + 1, argv + argc);
    const auto parsed = parseArguments(words);
    Console console;
    if (const auto *fault = std::get_if<UsageError>(&parsed)) {
        console.complain(fault->message);
        console.complain(u"Try \"folioforge-cli --help\"."_s);
        return WrongUsage;
    }
    const auto &arguments = std::get<Arguments>(parsed);
    switch (arguments.request) {
    case Request::ShowVersion:
        return show(console, versions());
    case Request::ShowHelp:
        return show(console, helpText());
    case Request::ShowCompletion:
        return show(console, completions(arguments.shell).chopped(1)); // show() ends the line.
    case Request::Convert:
        break;
    }
    const QCoreApplication application(argc, argv);
    keepMessagesEnglish();
    prepareForSignals();
    return runConversion(arguments);
}

} // namespace

int main(int argc, char *argv[]) {
    prepareProcess();
    silenceQt();
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc &) {
        std::fputs("folioforge-cli: There is not enough memory\n", stderr); // It needs none.
        return SomeFailed;
    } catch (const std::exception &failure) {
        // Errors of single inputs are reported before; this is, say, no memory for the list.
        std::fprintf(stderr, "folioforge-cli: %s\n", failure.what());
        return SomeFailed;
    }
}
