// SPDX-License-Identifier: Apache-2.0

#include "cli/ResultTeller.h"

#include "cli/Report.h"
#include "cli/StandardOutput.h"
#include "error/Error.h"
#include "files/Printable.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace folioforge {

ResultTeller::ResultTeller(const Arguments &arguments, Console &console)
    : m_arguments(arguments)
    , m_console(console) {
    if (m_arguments.json) {
        m_console.result(reportHead(m_arguments.rounded));
    }
}

void ResultTeller::setAside(std::size_t place, const InputResult &result) {
    tell(result);
    if (m_arguments.json) {
        m_aside.emplace_back(place, toJson(result));
    }
}

void ResultTeller::report(std::size_t index, const QString &path, InputResult result) {
    tell(result);
    if (m_arguments.json) {
        result.source = digestOf(path);
        writeLinesBefore(index + 1);
        m_console.result(toJson(result));
    } else if (m_arguments.options.dryRun && !m_arguments.quiet && !result.output.isEmpty()) {
        const bool isUnderItsPdf = result.state == InputResult::State::Planned;
        m_console.result((isUnderItsPdf ? "  " : "") + printable(result.plan()).toUtf8());
    }
}

void ResultTeller::tellOfPDF(const RunResult &result) {
    if (const auto &compression = result.compression;
        compression && !compression->error.isEmpty()) {
        fail(u"%1: not compressed: %2"_s.arg(printable(result.outcome.close.path),
                                             compression->error));
    }
    if (result.outcome.isWritten()) {
        handOver(result);
    }
}

void ResultTeller::fail(const QString &message, ExitStatus status) {
    m_console.complain(message);
    raise(status);
}

void ResultTeller::finish() {
    writeLinesBefore(std::numeric_limits<std::size_t>::max());
    if (!m_console.finishResults()) {
        raise(SomeFailed);
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

/// Writes what was set aside and stands before the entry `end` or those before it.
void ResultTeller::writeLinesBefore(std::size_t end) {
    for (; m_asideWritten < m_aside.size() && m_aside[m_asideWritten].first < end;
         ++m_asideWritten) {
        m_console.result(m_aside[m_asideWritten].second);
    }
}

} // namespace folioforge
