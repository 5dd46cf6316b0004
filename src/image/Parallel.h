// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <future>
#include <thread>
#include <vector>

namespace folioforge {

/// Bytes of work below which a thread costs more than it saves.
inline constexpr qint64 kWorthAThread = 1 << 18;

/// Does `work` on another thread, or, where the system gives none, when its result is asked for.
template<typename Work> auto runAsync(const Work &work) {
    // A copy: work that was moved into a thread that cannot be started would be lost.
    return std::async(std::launch::async | std::launch::deferred, work);
}

/// The same for work over so many bytes; when they are few, it is done when its result is asked
/// for.
template<typename Work> auto runAsync(qint64 bytes, const Work &work) {
    return bytes >= kWorthAThread ? runAsync(work) : std::async(std::launch::deferred, work);
}

/// Calls work(first, end) for bands that together cover rows 0 to `rows` of `rowBytes` bytes each,
/// on as many threads as the machine has cores and the work is worth, and returns when all are
/// done. An exception of a band is thrown on after all have ended.
template<typename Work> void forEachBand(int rows, qint64 rowBytes, const Work &work) {
    constexpr qint64 kMaxBands = 8;
    const qint64 cores = std::clamp<qint64>(std::thread::hardware_concurrency(), 1, kMaxBands);
    const auto bands = static_cast<int>(
        std::clamp<qint64>(std::min<qint64>(rows, rows * rowBytes / kWorthAThread), 1, cores));
    const auto edge = [&](int band) { return static_cast<int>(qint64(rows) * band / bands); };
    std::vector<std::future<void>> others;
    for (int band = 1; band < bands; ++band) {
        others.push_back(
            runAsync([&work, first = edge(band), end = edge(band + 1)] { work(first, end); }));
    }
    work(0, edge(1));
    for (auto &other : others) {
        other.get();
    }
}

} // namespace folioforge
