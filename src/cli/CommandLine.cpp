// SPDX-License-Identifier: Apache-2.0

#include "cli/CommandLine.h"

#include "cli/AccessibilityOptions.h"
#include "cli/ArchiveArguments.h"
#include "cli/Console.h"
#include "cli/Inputs.h"
#include "cli/Manifest.h"
#include "cli/OptionValues.h"
#include "cli/PipedInputs.h"
#include "cli/Process.h"
#include "cli/ProgressLine.h"
#include "cli/ResultTeller.h"
#include "cli/StandardOutput.h"
#include "cli/TextOptions.h"
#include "convert/Bundle.h"
#include "convert/Run.h"
#include "error/Error.h"
#include "files/TemporaryFolder.h"

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// One call of the program from its checked settings to its exit status.
class Call : private RunObserver {
  public:
    Call(const Arguments &arguments, Console &console, TemporaryFolder &temporaryFolder)
        : m_arguments(arguments)
        , m_temporaryFolder(temporaryFolder)
        , m_console(console)
        , m_teller(arguments, console)
        , m_progress(console, arguments.quiet ? ProgressMode::Never : arguments.progress, m_names) {
    }

    ExitStatus convertAll() {
        std::vector<Input> inputs = collect();
        if (!inputs.empty()) {
            convert(std::move(inputs));
        } else if (m_teller.status() == AllConverted) {
            m_teller.fail(u"There is no file to convert"_s);
        }
        m_teller.finish();
        return m_teller.status();
    }

  private:
    /// The inputs that can be converted; of the others is told.
    std::vector<Input> collect() {
        std::vector<Input> accepted;
        for (Input &input : collectInputs(m_arguments, m_readableLinks, m_pipes)) {
            const std::size_t place = m_arguments.sort ? 0 : accepted.size();
            if (!input.leftOut.empty()) {
                m_teller.setAside(place, InputResult::listed(input.shown, input.leftOut));
            } else if (input.read.problem.isEmpty()) {
                accepted.push_back(std::move(input));
            } else {
                m_teller.setAside(place, InputResult::rejected(input.shown, input.read.problem));
            }
        }
        if (m_arguments.sort) {
            sortInputs(accepted, *m_arguments.sort);
        }
        return accepted;
    }

    void convert(std::vector<Input> inputs) {
        std::vector<PDFFileInfo> entries;
        for (Input &input : inputs) {
            m_names.push_back(input.shown);
            m_files.push_back(input.read.entry.filePathName());
            m_dates.push_back(m_arguments.manifest.isEmpty() ? std::nullopt
                                                             : datesOf(m_files.back()));
            entries.push_back(std::move(input.read.entry));
        }
        if (!m_arguments.quiet) {
            complainOfUnusedDescriptions();
        }
        const std::stop_token outOfTime = outOfProcessorTime();
        Run run(std::move(entries), m_arguments.options, applicationBundlePath(), outOfTime);
        const bool compresses = run.compresses() && !m_arguments.options.dryRun;
        m_progress.setFull(compresses ? kFull : kPagesShare);
        run.convertAll(m_temporaryFolder, *this, m_arguments.jobs);
        m_progress.finish();
        if (outOfTime.stop_requested()) {
            reportOutOfTime();
        }
    }

    void complainOfUnusedDescriptions() {
        const QStringList paths(m_files.begin(), m_files.end());
        for (const QString &name : m_arguments.options.descriptions.unused(paths)) {
            m_console.complain(u"--alt-file: No input is called \"%1\""_s.arg(name));
        }
    }

    /// Names the inputs whose turn did not come.
    void reportOutOfTime() {
        const QString reason = u"The limit of processor time is reached"_s;
        m_teller.fail(reason);
        for (; m_reported < m_names.size(); ++m_reported) {
            m_teller.report(m_reported, m_files[m_reported],
                            InputResult::failed(m_names[m_reported], reason));
        }
    }

    void pdfBegins(std::size_t firstEntry) override { m_progress.beginPDF(firstEntry); }
    void progressChanged(float value) override { m_progress.progressChanged(value); }
    void entryDone(std::size_t index, bool /*written*/) override { m_progress.entryDone(index); }

    void pdfDone(const RunResult &result) override {
        m_teller.tellOfPDF(result);
        reportEntries(result);
        if (result.outcome.close.status == CloseResult::Status::NameTaken) {
            m_teller.fail(nameTakenFault(m_arguments.options), WrongUsage);
        }
    }

    void reportEntries(const RunResult &result) {
        const bool isAsked = m_arguments.json || !m_arguments.manifest.isEmpty();
        const bool isThere =
            !m_arguments.options.dryRun || !m_arguments.options.verifyOnly.isEmpty();
        const bool hasTarget = isAsked && isThere && result.outcome.isWritten();
        const auto target = hasTarget ? digestOf(result.outcome.close.path) : std::nullopt;
        for (std::size_t i = 0; i < result.outcome.entries.size(); ++i) {
            const std::size_t index = result.firstEntry + i;
            m_reported = index + 1;
            InputResult own = InputResult::of(m_names[index], result, i);
            own.target = own.output.isEmpty() ? std::nullopt : target;
            m_teller.report(index, m_files[index], std::move(own), m_dates[index]);
        }
    }

    const Arguments &m_arguments;
    TemporaryFolder &m_temporaryFolder;
    Console &m_console;
    ResultTeller m_teller;
    std::vector<QString> m_names;                  ///< Of the inputs, as they were given.
    std::vector<QString> m_files;                  ///< Where they are.
    std::vector<std::optional<FileDates>> m_dates; ///< Of them, where a manifest is asked for.
    std::size_t m_reported = 0;                    ///< How many entries are.
    ProgressLine m_progress;
    ReadableLinks m_readableLinks{m_temporaryFolder}; ///< Outlives the inputs that lead through it.
    PipedInputs m_pipes{m_arguments.inputType, m_readableLinks};
};

} // namespace

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
