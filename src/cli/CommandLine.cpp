// SPDX-License-Identifier: Apache-2.0

#include "cli/CommandLine.h"

#include "cli/Console.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/PipedInputs.h"
#include "cli/Process.h"
#include "cli/ProgressLine.h"
#include "cli/Report.h"
#include "cli/StandardOutput.h"
#include "cli/TextOptions.h"
#include "convert/Bundle.h"
#include "convert/Run.h"
#include "error/Error.h"
#include "files/Printable.h"
#include "files/TemporaryFolder.h"
using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// One call of the program from its checked settings to its exit status.
class Call : private RunObserver {
  public:
    Call(const Arguments &arguments, Console &console, TemporaryFolder &temporaryFolder)
        : m_arguments(arguments)
        , m_console(console)
        , m_temporaryFolder(temporaryFolder)
        , m_progress(console, arguments.quiet ? ProgressMode::Never : arguments.progress, m_names) {
    }

    ExitStatus convertAll() {
        if (m_arguments.json) {
            m_console.result(reportHead());
        }
        std::vector<Input> inputs = collect();
        if (!inputs.empty()) {
            convert(std::move(inputs));
        } else if (m_status == AllConverted) {
            m_console.complain(u"There is no file to convert"_s);
            fail();
        }
        writeLinesBefore(m_names.size() + 1);
        if (!m_console.finishResults()) {
            fail();
        }
        return m_status;
    }

  private:
    void fail() { m_status = std::max(m_status, SomeFailed); }

    /// The inputs that can be converted; of the others is told.
    std::vector<Input> collect() {
        std::vector<Input> accepted;
        for (Input &input : collectInputs(m_arguments, m_readableLinks, m_pipes)) {
            const std::size_t place = m_arguments.sort ? 0 : accepted.size();
            if (!input.leftOut.empty()) {
                setAside(place, InputResult::listed(input.shown, input.leftOut));
            } else if (input.read.problem.isEmpty()) {
                accepted.push_back(std::move(input));
            } else {
                setAside(place, InputResult::rejected(input.shown, input.read.problem));
            }
        }
        if (m_arguments.sort) {
            sortInputs(accepted, *m_arguments.sort);
        }
        return accepted;
    }

    /// Tells of an input that is none at once, and in the report in its place: before the entry
    /// `place`.
    void setAside(std::size_t place, const InputResult &result) {
        tell(result);
        if (m_arguments.json) {
            m_aside.emplace_back(place, toJson(result));
        }
    }

    /// Writes what was set aside and stands before the entry `end` or those before it.
    void writeLinesBefore(std::size_t end) {
        for (; m_asideWritten < m_aside.size() && m_aside[m_asideWritten].first < end;
             ++m_asideWritten) {
            m_console.result(m_aside[m_asideWritten].second);
        }
    }

    void convert(std::vector<Input> inputs) {
        std::vector<PDFFileInfo> entries;
        for (Input &input : inputs) {
            m_names.push_back(input.shown);
            m_files.push_back(input.read.entry.filePathName());
            entries.push_back(std::move(input.read.entry));
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

    /// Names the inputs whose turn did not come.
    void reportOutOfTime() {
        const QString reason = u"The limit of processor time is reached"_s;
        m_console.complain(reason);
        fail();
        for (; m_reported < m_names.size(); ++m_reported) {
            report(m_reported, InputResult::failed(m_names[m_reported], reason));
        }
    }

    void pdfBegins(std::size_t firstEntry) override { m_progress.beginPDF(firstEntry); }
    void progressChanged(float value) override { m_progress.progressChanged(value); }
    void entryDone(std::size_t index, bool /*written*/) override { m_progress.entryDone(index); }

    void pdfDone(const RunResult &result) override {
        const CloseResult &close = result.outcome.close;
        const auto &compression = result.compression;
        if (compression && !compression->error.isEmpty()) {
            fail();
            m_console.complain(
                u"%1: not compressed: %2"_s.arg(printable(close.path), compression->error));
        }
        if (result.outcome.isWritten()) {
            handOver(result);
        }
        reportEntries(result);
        if (close.status == CloseResult::Status::NameTaken) {
            m_console.complain(nameTakenFault(m_arguments.options));
            m_status = WrongUsage;
        }
    }

    /// Names the PDF on standard output, or writes it there.
    void handOver(const RunResult &result) {
        const QString &path = result.outcome.close.path;
        const auto &compression = result.compression;
        const QString savings =
            compression && compression->error.isEmpty() ? toWords(*compression) : QString();
        if (m_arguments.toStandardOutput) {
            if (!savings.isEmpty() && !m_arguments.quiet) {
                m_console.complain(savings);
            }
            writeOut(path);
        } else if (!m_arguments.quiet && !m_arguments.json) {
            m_console.result(printable(path).toUtf8());
            if (!savings.isEmpty()) {
                m_console.result("  " + printable(savings).toUtf8());
            }
        }
    }

    void writeOut(const QString &path) {
        try {
            moveToStandardOutput(path);
        } catch (const Error &error) {
            m_console.complain(error.reason());
            fail();
        }
    }

    void reportEntries(const RunResult &result) {
        const bool hasTarget =
            m_arguments.json && !m_arguments.options.dryRun && result.outcome.isWritten();
        const auto target = hasTarget ? digestOf(result.outcome.close.path) : std::nullopt;
        for (std::size_t i = 0; i < result.outcome.entries.size(); ++i) {
            const std::size_t index = result.firstEntry + i;
            m_reported = index + 1;
            InputResult own = InputResult::of(m_names[index], result, i);
            own.target = own.output.isEmpty() ? std::nullopt : target;
            report(index, std::move(own));
        }
    }

    /// Tells of the entry `index` of the run.
    void report(std::size_t index, InputResult result) {
        tell(result);
        if (m_arguments.json) {
            result.source = digestOf(m_files[index]);
            writeLinesBefore(index + 1);
            m_console.result(toJson(result));
        } else if (result.state == InputResult::State::Planned && !m_arguments.quiet) {
            m_console.result("  " + printable(result.plan()).toUtf8());
        }
    }

    /// What standard error and the exit status say of it.
    void tell(const InputResult &result) {
        using State = InputResult::State;
        if (result.state == State::Failed || result.state == State::Rejected ||
            (m_arguments.strict && !result.warnings.empty())) {
            fail();
        }
        for (const QString &message : toMessages(result)) {
            m_console.complain(message);
        }
    }

    const Arguments &m_arguments;
    Console &m_console;
    TemporaryFolder &m_temporaryFolder;
    std::vector<QString> m_names; ///< Of the inputs, as they were given.
    std::vector<QString> m_files; ///< Where they are.
    /// Lines of the report about inputs that are none, each with the entry that it stands before.
    std::vector<std::pair<std::size_t, QByteArray>> m_aside;
    std::size_t m_asideWritten = 0;
    std::size_t m_reported = 0; ///< How many entries are.
    ProgressLine m_progress;
    ReadableLinks m_readableLinks{m_temporaryFolder}; ///< Outlives the inputs that lead through it.
    PipedInputs m_pipes{m_arguments.inputType, m_readableLinks};
    ExitStatus m_status = AllConverted;
};

} // namespace

ExitStatus runConversion(Arguments arguments) {
    Console console;
    TemporaryFolder temporaryFolder;
    try {
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
        prepareOutputFolder(arguments.options);
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
