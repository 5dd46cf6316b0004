#include "cli/Run.h"

#include "cli/Console.h"
#include "cli/Inputs.h"
#include "cli/OptionValues.h"
#include "cli/Passwords.h"
#include "cli/ProgressLine.h"
#include "cli/Report.h"
#include "convert/Bundle.h"
#include "convert/Conversion.h"
#include "error/Error.h"
#include "filelist/SourceFiles.h"
#include "files/PartFiles.h"
#include "files/Printable.h"
#include "files/TemporaryFolder.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// One call of the program from its checked settings to its exit status.
class Run {
  public:
    Run(const Arguments &arguments, Console &console)
        : m_arguments(arguments)
        , m_options(arguments.options)
        , m_console(console) {}

    ExitStatus convertAll() {
        removeAbandonedParts(m_options.outputFolder);
        collect();
        const ExitStatus status = m_inputs.empty() ? complainOfNoInput() : convertInputs();
        const bool arrived = m_console.finishResults();
        return status == AllConverted && !arrived ? SomeFailed : status;
    }

  private:
    void collect() {
        QStringList refusedPdfs;
        for (Input &input : collectInputs(m_arguments.inputs, m_readableLinks)) {
            if (input.rejection.isEmpty()) {
                m_inputs.push_back(std::move(input));
                continue;
            }
            if (input.refusedPdf) {
                refusedPdfs += printable(input.shown);
            }
            InputResult result;
            result.input = input.shown;
            result.state = InputResult::State::Rejected;
            result.message = input.rejection;
            report(result);
        }
        if (!refusedPdfs.isEmpty()) {
            complainOfRefused(badFilesNotice(refusedPdfs));
        }
        if (m_arguments.sort) {
            sortInputs(m_inputs, *m_arguments.sort);
        }
    }

    ExitStatus complainOfNoInput() {
        if (!m_someFailed) {
            m_console.complain(u"There is no file to convert"_s);
        }
        return SomeFailed;
    }

    ExitStatus convertInputs() {
        ProgressLine progress(m_console,
                              m_arguments.quiet ? ProgressMode::Never : m_arguments.progress,
                              namesOfInputs());
        const bool done = m_options.merge ? mergeInto(progress) : convertEach(progress);
        progress.finish();
        if (!done) {
            return WrongUsage;
        }
        return m_someFailed ? SomeFailed : AllConverted;
    }

    void complainOfRefused(const Notice &notice) {
        m_console.complain(notice.title);
        for (const QString &line : notice.message.split(u"\r\n"_s)) {
            m_console.addLine(line);
        }
    }

    [[nodiscard]] std::vector<QString> namesOfInputs() const {
        std::vector<QString> names;
        for (const Input &input : m_inputs) {
            names.push_back(input.shown);
        }
        return names;
    }

    bool convertEach(ProgressLine &progress) {
        for (std::size_t i = 0; i < m_inputs.size(); ++i) {
            progress.beginPDF(i);
            writePDF(std::span(&m_inputs[i], 1),
                     singleFilePath(m_options.outputFolder, m_inputs[i].entry.fileName()),
                     progress);
        }
        return true;
    }

    /// False when the name was taken while the pages were made.
    bool mergeInto(ProgressLine &progress) {
        progress.beginPDF(0);
        const auto status = writePDF(m_inputs, mergedFilePath(m_options), progress);
        if (status == CloseResult::Status::NameTaken) {
            m_console.complain(nameExistsNotice().message);
        }
        return status != CloseResult::Status::NameTaken;
    }

    CloseResult::Status writePDF(std::span<const Input> inputs, const QString &path,
                                 ProgressLine &progress) {
        std::vector<const PDFFileInfo *> entries;
        for (const Input &input : inputs) {
            entries.push_back(&input.entry);
        }
        const PDFOutcome outcome = createPDF(entries, path, m_options, &progress);
        std::optional<CompressionOutcome> compression;
        if (outcome.close.status == CloseResult::Status::Written && m_options.compressIndex != 0) {
            compression = compressWritten(outcome.close.path, progress);
        }
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            InputResult result = resultOf(inputs[i], outcome.entries[i], outcome.close);
            if (compression && result.state == InputResult::State::Finished) {
                result.compression = compression;
            }
            report(result);
        }
        if (outcome.close.status == CloseResult::Status::Written && !m_arguments.quiet &&
            !m_arguments.json) {
            m_console.result(printable(outcome.close.path).toUtf8());
            if (compression && compression->error.isEmpty()) {
                m_console.result("  " + printable(toWords(*compression)).toUtf8());
            }
        }
        return outcome.close.status;
    }

    /// Where the pass fails, the PDF stays as it was and the exit status tells.
    CompressionOutcome compressWritten(const QString &path, ProgressLine &progress) {
        CompressionOutcome compression = compress(
            path, compressionOptions(m_options, applicationBundlePath(), m_temporaryFolder.path()),
            [&](int pageIndex, int pageCount) {
                progress.progressChanged(compressionProgress(pageIndex, pageCount));
            });
        if (compression.error.isEmpty()) {
            try {
                putInPlace(*compression.convertInfo, m_options.flush, m_options.calls);
            } catch (const Error &error) {
                compression.error = error.reason();
            }
        }
        if (!compression.error.isEmpty()) {
            m_someFailed = true;
            m_console.complain(u"%1: not compressed: %2"_s.arg(printable(path), compression.error));
        }
        return compression;
    }

    static InputResult resultOf(const Input &input, const EntryOutcome &entry,
                                const CloseResult &close) {
        InputResult result;
        result.input = input.shown;
        result.message = entry.message;
        if (entry.written && close.status == CloseResult::Status::Written) {
            result.output = close.path;
            result.pages = entry.pages;
            result.embedded = entry.embeddedAs;
        } else {
            result.state = InputResult::State::Failed;
            if (entry.written) {
                result.message = afterWarning(entry.message, reasonOf(close));
            }
        }
        return result;
    }

    static QString reasonOf(const CloseResult &close) {
        return close.status == CloseResult::Status::NameTaken ? nameExistsNotice().message
                                                              : close.reason;
    }

    static QString afterWarning(const QString &warning, const QString &reason) {
        return warning.isEmpty() ? reason : warning + u". "_s + reason;
    }

    void report(const InputResult &result) {
        m_someFailed |= result.state != InputResult::State::Finished;
        if (const QString message = toMessage(result); !message.isEmpty()) {
            m_console.complain(message);
        }
        if (m_arguments.json) {
            m_console.result(toJson(result));
        }
    }

    const Arguments &m_arguments;
    const ConversionOptions &m_options;
    Console &m_console;
    TemporaryFolder m_temporaryFolder;
    ReadableLinks m_readableLinks{m_temporaryFolder}; ///< Outlives the inputs that lead through it.
    std::vector<Input> m_inputs;
    bool m_someFailed = false;
};

} // namespace

ExitStatus runConversion(Arguments arguments) {
    Console console;
    try {
        readPasswords(arguments, arguments.options.security);
    } catch (const ArgumentFault &fault) {
        console.complain(fault.text());
        return WrongUsage;
    }
    if (const auto notice = checkConversion(arguments.options)) {
        console.complain(notice->message);
        return WrongUsage;
    }
    return Run(arguments, console).convertAll();
}

} // namespace folioforge
