// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/CommandLine.h"
#include "cli/Inputs.h"
#include "cli/Manifest.h"
#include "cli/PipedInputs.h"
#include "cli/ProgressLine.h"
#include "cli/ResultTeller.h"
#include "convert/Run.h"
#include "files/ReadableLinks.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace folioforge {

class Console;
class TemporaryFolder;

/// One call of the program from its checked settings to its exit status.
class Call : private RunObserver {
  public:
    Call(const Arguments &arguments, Console &console, TemporaryFolder &temporaryFolder);

    /// Converts the inputs that can be converted, and tells of all.
    ExitStatus convertAll();

  private:
    std::vector<Input> collect();
    void convert(std::vector<Input> inputs);
    void complainOfUnusedDescriptions();
    void reportOutOfTime();
    void reportEntries(const RunResult &result);

    void pdfBegins(std::size_t firstEntry) override;
    void progressChanged(float value) override;
    void entryDone(std::size_t index, bool written) override;
    void pdfDone(const RunResult &result) override;

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

} // namespace folioforge
