// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QElapsedTimer>
#include <QString>

#include <chrono>

namespace folioforge {

class Desktop;

/// Tells the desktop how a run goes, for a user who looks elsewhere: its progress on the task bar,
/// and the answer of a long one as a notification.
class RunNews {
  public:
    /// A run is long from `longRun` on.
    RunNews(Desktop &desktop, std::chrono::milliseconds longRun);

    void begin();
    /// `share` is 0 to 1; the desktop hears of each percent once.
    void progress(double share);
    /// The run ended with `answer`, while the window was in front or not.
    void end(const QString &answer, bool isInFront);

  private:
    Desktop &m_desktop;
    std::chrono::milliseconds m_longRun;
    QElapsedTimer m_clock;
    int m_percent = -1; ///< That was told last.
};

} // namespace folioforge
