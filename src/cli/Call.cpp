// SPDX-License-Identifier: Apache-2.0

#include "cli/Call.h"

#include "cli/AttachedManifest.h"
#include "cli/Console.h"
#include "cli/Process.h"
#include "convert/Bundle.h"
#include "files/TemporaryFolder.h"

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

Call::Call(const Arguments &arguments, Console &console, TemporaryFolder &temporaryFolder)
    : m_arguments(arguments)
    , m_temporaryFolder(temporaryFolder)
    , m_console(console)
    , m_teller(arguments, console)
    , m_progress(console, arguments.quiet ? ProgressMode::Never : arguments.progress, m_names) {}

ExitStatus Call::convertAll() {
    std::vector<Input> inputs = collect();
    if (!inputs.empty()) {
        convert(std::move(inputs));
    } else if (m_teller.status() == AllConverted) {
        m_teller.fail(u"There is no file to convert"_s);
    }
    m_teller.finish();
    return m_teller.status();
}

/// The inputs that can be converted; of the others is told.
std::vector<Input> Call::collect() {
    std::vector<Input> accepted;
    QStringList files;
    for (Input &input : collectInputs(m_arguments, m_readableLinks, m_pipes)) {
        files += input.read.entry.filePathName();
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
    if (const auto fault = manifestFault(m_arguments, files, accepted)) {
        m_teller.refuse(*fault);
        accepted.clear();
    }
    return accepted;
}

void Call::convert(std::vector<Input> inputs) {
    std::vector<PDFFileInfo> entries;
    for (Input &input : inputs) {
        m_names.push_back(input.shown);
        m_files.push_back(input.read.entry.filePathName());
        m_dates.push_back(m_arguments.manifest.isEmpty() ? std::nullopt : datesOf(m_files.back()));
        entries.push_back(std::move(input.read.entry));
    }
    if (!m_arguments.quiet) {
        complainOfUnusedDescriptions();
    }
    const std::stop_token outOfTime = outOfProcessorTime();
    ConversionOptions options = m_arguments.options;
    const AttachedManifest attached(m_arguments, m_names, m_files, m_dates);
    if (AttachedManifest::isAskedFor(m_arguments)) {
        options.attachedManifest = std::bind_front(&AttachedManifest::of, &attached);
    }
    Run run(std::move(entries), std::move(options), applicationBundlePath(), outOfTime);
    const bool compresses = run.compresses() && !m_arguments.options.dryRun;
    m_progress.setFull(compresses ? kFull : kPagesShare);
    run.convertAll(m_temporaryFolder, *this, m_arguments.jobs);
    m_progress.finish();
    if (outOfTime.stop_requested()) {
        reportOutOfTime();
    }
}

void Call::complainOfUnusedDescriptions() {
    const QStringList paths(m_files.begin(), m_files.end());
    for (const QString &name : m_arguments.options.descriptions.unused(paths)) {
        m_console.complain(u"--alt-file: No input is called \"%1\""_s.arg(name));
    }
}

/// Names the inputs whose turn did not come.
void Call::reportOutOfTime() {
    const QString reason = u"The limit of processor time is reached"_s;
    m_teller.fail(reason);
    for (; m_reported < m_names.size(); ++m_reported) {
        m_teller.report(m_reported, m_files[m_reported],
                        InputResult::failed(m_names[m_reported], reason));
    }
}

void Call::pdfBegins(std::size_t firstEntry) {
    m_progress.beginPDF(firstEntry);
}

void Call::progressChanged(float value) {
    m_progress.progressChanged(value);
}

void Call::entryDone(std::size_t index, bool /*written*/) {
    m_progress.entryDone(index);
}

void Call::pdfDone(const RunResult &result) {
    m_teller.tellOfPDF(result);
    reportEntries(result);
    if (result.outcome.close.status == CloseResult::Status::NameTaken) {
        m_teller.fail(nameTakenFault(m_arguments.options), WrongUsage);
    }
}

void Call::reportEntries(const RunResult &result) {
    const bool isAsked = m_arguments.json || !m_arguments.manifest.isEmpty();
    const bool hasTarget = isAsked && !m_arguments.options.isTrial() && result.outcome.isWritten();
    const auto target = hasTarget ? digestOf(result.outcome.close.path) : std::nullopt;
    int pagesBefore = 0;
    for (std::size_t i = 0; i < result.outcome.entries.size(); ++i) {
        const std::size_t index = result.firstEntry + i;
        m_reported = index + 1;
        InputResult own = InputResult::of(m_names[index], result, i, pagesBefore);
        pagesBefore += result.outcome.entries[i].pages;
        own.target = own.output.isEmpty() ? std::nullopt : target;
        m_teller.report(index, m_files[index], std::move(own), m_dates[index]);
    }
}

} // namespace folioforge
