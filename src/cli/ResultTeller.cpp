// SPDX-License-Identifier: Apache-2.0

#include "cli/ResultTeller.h"

#include "cli/Report.h"
#include "cli/StandardOutput.h"
#include "error/Error.h"
#include "files/Printable.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace folioforge {

ResultTeller::ResultTeller(const Arguments &arguments, Console &console)
    : m_arguments(arguments)
    , m_console(console) {
    if (m_arguments.json) {
        m_console.result(reportHead(m_arguments.rounded));
    }
    if (!m_arguments.manifest.isEmpty()) {
        m_manifest.emplace(m_arguments);
    }
}

void ResultTeller::setAside(std::size_t place, const InputResult &result) {
    tell(result);
    if (m_arguments.json || m_manifest) {
        m_aside.emplace_back(place, toJson(result));
    }
}

/// The digest of the bytes that were used: a file that has changed since has none.
void ResultTeller::addDigest(const QString &path, InputResult &result,
                             const std::optional<FileDates> &dates) {
    if (!m_arguments.json && !m_manifest) {
        return;
    }
    if (!m_manifest || !dates) {
        result.source = digestOf(path);
    } else if (!addSource(result, path, *dates)) {
        fail(u"%1: It changed while it was converted, so the manifest has no checksum of it"_s.arg(
            printable(result.input)));
    }
}

void ResultTeller::report(std::size_t index, const QString &path, InputResult result,
                          const std::optional<FileDates> &dates) {
    tell(result);
    addDigest(path, result, dates);
    if (m_manifest) {
        m_manifest->addFiles(result);
    }
    if (m_arguments.json || m_manifest) {
        writeLinesBefore(index + 1);
        writeLine(toJson(result));
    }
    if (m_arguments.options.dryRun && !m_arguments.json && !m_arguments.quiet &&
        !result.output.isEmpty()) {
        const bool isUnderItsPdf = result.state != InputResult::State::Kept;
        m_console.result((isUnderItsPdf ? "  " : "") + printable(result.plan()).toUtf8());
    }
}

void ResultTeller::tellOfPDF(const RunResult &result) {
    if (const auto &compression = result.compression;
        compression && !compression->error.isEmpty()) {
        fail(u"%1: not compressed: %2"_s.arg(printable(result.outcome.close.path),
                                             compression->error));
    }
    const auto &entries = result.outcome.entries;
    const bool isSaid = m_arguments.options.verifyOnly.isEmpty() ||
                        std::ranges::all_of(entries, &EntryOutcome::written);
    if (result.outcome.isWritten() && isSaid) {
        handOver(result);
    }
}

void ResultTeller::fail(const QString &message, ExitStatus status) {
    m_console.complain(message);
    raise(status);
}

void ResultTeller::refuse(const QString &fault) {
    fail(fault, WrongUsage);
    m_manifest.reset();
}

void ResultTeller::finish() {
    writeLinesBefore(std::numeric_limits<std::size_t>::max());
    writeManifest();
    if (!m_console.finishResults()) {
        raise(SomeFailed);
    }
}

void ResultTeller::writeManifest() {
    if (!m_manifest) {
        return;
    }
    for (const QString &name : m_manifest->leftOut()) {
        m_console.complain(
            u"--manifest: %1 is left out, as its name leads to no file that can be read again"_s
                .arg(printable(name)));
        if (m_arguments.strict) {
            raise(SomeFailed);
        }
    }
    try {
        m_manifest->write();
    } catch (const Error &error) {
        fail(u"--manifest: "_s + error.reason());
    }
}

/// What standard error and the exit status say of an input.
void ResultTeller::tell(const InputResult &result) {
    using State = InputResult::State;
    if (result.state == State::Failed || result.state == State::Rejected ||
        (m_arguments.strict && !result.warnings.empty())) {
        raise(SomeFailed);
    }
    for (const QString &message : toMessages(result)) {
        m_console.complain(message);
    }
}

/// Names the PDF on standard output, or writes it there.
void ResultTeller::handOver(const RunResult &result) {
    const QString &path = result.outcome.close.path;
    const auto &compression = result.compression;
    const QString savings =
        compression && compression->error.isEmpty() ? toWords(*compression) : QString();
    if (m_arguments.toStandardOutput) {
        if (!savings.isEmpty() && !m_arguments.quiet) {
            m_console.complain(savings);
        }
        try {
            moveToStandardOutput(path);
        } catch (const Error &error) {
            fail(error.reason());
        }
    } else if (!m_arguments.quiet && !m_arguments.json) {
        m_console.result(printable(path).toUtf8());
        if (!savings.isEmpty()) {
            m_console.result("  " + printable(savings).toUtf8());
        }
    }
}

void ResultTeller::writeLine(const QByteArray &line) {
    if (m_arguments.json) {
        m_console.result(line);
    }
    if (m_manifest) {
        m_manifest->addLine(line);
    }
}

/// Writes what was set aside and stands before the entry `end` or those before it.
void ResultTeller::writeLinesBefore(std::size_t end) {
    for (; m_asideWritten < m_aside.size() && m_aside[m_asideWritten].first < end;
         ++m_asideWritten) {
        writeLine(m_aside[m_asideWritten].second);
    }
}

} // namespace folioforge
