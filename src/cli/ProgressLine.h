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

    /// The progress at which a PDF is done, which the line shows as 100 %.
    void setFull(float value) { m_full = value; }
    /// The progress of the PDF: from 0 up.
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
    float m_full = 1;
};

} // namespace folioforge
