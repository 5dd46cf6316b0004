#pragma once

#include "cli/Arguments.h"
#include "cli/Console.h"
#include "convert/Conversion.h"

#include <vector>

namespace folioforge {

/// The terminal's progress bar: one line that names the document or entry in work.
class ProgressLine : public ConversionObserver {
  public:
    /// `names` are the entries of the whole run in their order.
    ProgressLine(Console &console, ProgressMode mode, std::vector<QString> names);

    /// The entries of the next PDF begin at `first`.
    void beginPDF(std::size_t first);
    /// Takes the line away.
    void finish();

    void progressChanged(float value) override;
    void entryDone(std::size_t index, bool written) override;

  private:
    void show();

    Console &m_console;
    bool m_enabled;
    std::vector<QString> m_names;
    std::size_t m_first = 0;
    std::size_t m_current = 0;
    float m_value = 0;
};

} // namespace folioforge
