#pragma once

#include <algorithm>
#include <future>
#include <thread>
#include <vector>

namespace folioforge {

/// Calls work(first, end) for bands that together cover rows 0 to `rows`, on as many threads as
/// the machine has cores, and returns when all are done. Bands have at least `least` rows. An
/// exception of a band is thrown on after all have ended.
template<typename Work> void forEachBand(int rows, int least, const Work &work) {
    const int cores = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 8);
    const int bands = std::clamp(rows / std::max(least, 1), 1, cores);
    const auto edge = [&](int band) {
        return static_cast<int>(static_cast<long long>(rows) * band / bands);
    };
    std::vector<std::future<void>> others;
    for (int band = 1; band < bands; ++band) {
        others.push_back(
            std::async(std::launch::async,
                       [&work, first = edge(band), end = edge(band + 1)] { work(first, end); }));
    }
    work(0, edge(1));
    for (auto &other : others) {
        other.get();
    }
}

} // namespace folioforge
