// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/Arguments.h"
#include "cli/Console.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace folioforge {

/// The terminal's progress bar: one line that names the entry being converted.
class ProgressLine {
  public:
    /// `names` are the entries of the whole run in their order. They are filled before the first
    /// PDF begins and outlive this object.
    ProgressLine(Console &console, ProgressMode mode, const std::vector<QString> &names);

    /// The entries of the next PDF begin at `first`.
    void beginPDF(std::size_t first);
    /// Takes the line away.
    void finish();

    /// The progress of the PDF: 0 to 100.
    void progressChanged(float value);
    /// The entry at `index` of the PDF is done.
    void entryDone(std::size_t index);

  private:
    void show();

    Console &m_console;
    bool m_enabled;
    const std::vector<QString> &m_names;
    std::size_t m_first = 0;
    std::size_t m_current = 0;
    float m_value = 0;
};

} // namespace folioforge
