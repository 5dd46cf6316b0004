// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/RunNews.h"

#include "mainwnd/Desktop.h"

#include <optional>

namespace folioforge {

RunNews::RunNews(Desktop &desktop, std::chrono::milliseconds longRun)
    : m_desktop(desktop)
    , m_longRun(longRun) {}

void RunNews::begin() {
    m_clock.start();
    m_percent = -1;
}

void RunNews::progress(double share) {
    constexpr int kWhole = 100;
    const int percent = qRound(share * kWhole);
    if (percent != m_percent) {
        m_percent = percent;
        m_desktop.showProgress(static_cast<double>(percent) / kWhole);
    }
}

void RunNews::end(const QString &answer, bool isInFront) {
    m_desktop.showProgress(std::nullopt);
    if (!isInFront && m_clock.elapsed() >= m_longRun.count()) {
        m_desktop.notify(answer);
    }
}

} // namespace folioforge
