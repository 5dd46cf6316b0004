// SPDX-License-Identifier: Apache-2.0

#include "cli/CommandLine.h"

#include "cli/AccessibilityOptions.h"
#include "cli/ArchiveArguments.h"
#include "cli/Call.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/StandardOutput.h"
#include "cli/TextOptions.h"
#include "error/Error.h"
#include "files/TemporaryFolder.h"

using namespace Qt::StringLiterals;

namespace folioforge {

ExitStatus runConversion(Arguments arguments) {
    Console console;
    TemporaryFolder temporaryFolder;
    try {
        requireOneReading(arguments);
        readPasswords(arguments, arguments.options.security);
        arguments.bookmarkTitles = readBookmarkTitles(arguments);
        arguments.options.inputPasswords = readInputPasswords(arguments);
        readNameLists(arguments);
        sourceDate(); // Throws where no document could carry it.
        if (arguments.toStandardOutput) {
            requireNoTerminal();
            arguments.options.outputFolder = temporaryFolder.path();
            arguments.options.outputName = u"merged.pdf"_s;
        }
        if (const auto fault = settingsFault(arguments)) {
            throw ArgumentFault(*fault);
        }
        prepareText(arguments);
        prepareTags(arguments);
        prepareArchive(arguments);
        if (arguments.options.verifyOnly.isEmpty()) {
            prepareOutputFolder(arguments.options);
        }
    } catch (const ArgumentFault &fault) {
        console.complain(fault.text());
        return WrongUsage;
    } catch (const Error &error) {
        console.complain(error.reason());
        return WrongUsage;
    }
    if (!arguments.quiet) {
        for (const QString &length : arguments.rounded) {
            console.complain(length);
        }
    }
    return Call(arguments, console, temporaryFolder).convertAll();
}

} // namespace folioforge
