// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/CommandLine.h"
#include "cli/Console.h"
#include "cli/InputResult.h"
#include "cli/Manifest.h"

#include <QByteArray>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace folioforge {

/// Tells of each input on standard error and, as the arguments ask for it, on standard output, and
/// keeps the exit status.
class ResultTeller {
  public:
    /// Begins the report.
    ResultTeller(const Arguments &arguments, Console &console);

    /// Tells of an input that is no entry of the run: at once, but in report and manifest before
    /// the entry `place`.
    void setAside(std::size_t place, const InputResult &result);
    /// Tells of the entry `index`, whose source stands at `path`.
    void report(std::size_t index, const QString &path, InputResult result,
                const std::optional<FileDates> &dates = {});
    /// Names a PDF that is made, or writes it, and says what its compression saved.
    void tellOfPDF(const RunResult &result);
    /// Something went wrong that no input answers for.
    void fail(const QString &message, ExitStatus status = SomeFailed);
    /// Nothing is converted because of a fault in the arguments, and there is no manifest.
    void refuse(const QString &fault);
    /// To be called when all is told.
    void finish();
    [[nodiscard]] ExitStatus status() const { return m_status; }

  private:
    void raise(ExitStatus status) { m_status = std::max(m_status, status); }
    void tell(const InputResult &result);
    void handOver(const RunResult &result);
    void writeLine(const QByteArray &line);
    void writeLinesBefore(std::size_t end);
    void addDigest(const QString &path, InputResult &result, const std::optional<FileDates> &dates);
    void writeManifest();

    const Arguments &m_arguments;
    Console &m_console;
    /// Lines of report and manifest about inputs that are no entries, each with the entry that it
    /// stands before.
    std::vector<std::pair<std::size_t, QByteArray>> m_aside;
    std::size_t m_asideWritten = 0;
    std::optional<Manifest> m_manifest;
    ExitStatus m_status = AllConverted;
};

} // namespace folioforge
