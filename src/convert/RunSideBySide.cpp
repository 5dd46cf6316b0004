// SPDX-License-Identifier: Apache-2.0

#include "convert/OutputPlan.h"
#include "convert/Run.h"
#include "files/TemporaryFolder.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace folioforge {
namespace {

/// Hears nothing: PDFs that are made at once have no common progress.
class SilentObserver : public ConversionObserver {
  public:
    void progressChanged(float /*value*/) override {}
    void entryDone(std::size_t /*index*/, bool /*written*/) override {}
};

/// Makes the results from 0 up on several threads and hands them out in that order. Threads that
/// take the next one each leave no processor idle behind a long one, as results that are waited for
/// in turn would.
class OrderedResults {
  public:
    using Make = std::function<RunResult(std::size_t)>;

    /// Nothing more is begun once `stop` is requested.
    OrderedResults(std::size_t count, Make make, std::stop_token stop)
        : m_make(std::move(make))
        , m_stop(std::move(stop))
        , m_results(count) {}

    /// Calls `take` on this thread for each result, of which so many are made at once; throws what
    /// making one threw.
    void forEach(int jobs, const std::function<void(RunResult)> &take) {
        const std::size_t threads = std::min(static_cast<std::size_t>(jobs), m_results.size());
        std::vector<std::jthread> workers;
        try {
            while (workers.size() < threads) {
                enter();
                workers.emplace_back([this] { work(); });
            }
        } catch (const std::system_error &) {
            // The system has no further thread. Those that there are do all; without any, this.
            workers.empty() ? work() : leave();
        }
        for (auto &made : m_results) {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [&] { return made || m_working == 0; });
            if (!made) {
                break;
            }
            RunResult result = *std::exchange(made, std::nullopt);
            lock.unlock();
            take(std::move(result));
        }
        workers.clear();
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
    }

  private:
    void work() {
        try {
            // What is taken is made, stop or not: results behind a gap would not be heard of.
            while (!m_stop.stop_requested()) {
                const std::size_t i = m_next++;
                if (i >= m_results.size()) {
                    break;
                }
                RunResult result = m_make(i);
                const std::lock_guard lock(m_mutex);
                m_results[i] = std::move(result);
                m_changed.notify_all();
            }
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            m_failure = std::current_exception();
        }
        leave();
    }

    void enter() {
        const std::lock_guard lock(m_mutex);
        ++m_working;
    }

    void leave() {
        const std::lock_guard lock(m_mutex);
        --m_working;
        m_changed.notify_all();
    }

    Make m_make;
    std::stop_token m_stop;
    std::atomic<std::size_t> m_next = 0;
    std::mutex m_mutex; ///< Guards what follows.
    std::condition_variable m_changed;
    std::vector<std::optional<RunResult>> m_results;
    std::exception_ptr m_failure;
    int m_working = 0;
};

} // namespace

void Run::convertSideBySide(TemporaryFolder &temporaryFolder, RunObserver &observer, int jobs) {
    OutputPlan plan(m_entries, m_options);
    std::vector<PlannedOutput> outputs;
    for (const PDFFileInfo &entry : m_entries) {
        outputs.push_back(plan.next({&entry, 1}));
    }
    QString folder = compresses() ? temporaryFolder.path() : QString();
    const auto make = [&](std::size_t entry) {
        SilentObserver silent;
        return makePDF(
            entry, outputs[entry], [&] { return folder; }, silent);
    };
    OrderedResults(m_entries.size(), make, m_stop).forEach(jobs, [&](RunResult result) {
        observer.pdfBegins(result.firstEntry);
        settle(result);
        observer.progressChanged(compresses() ? kFull : kPagesShare);
        for (const EntryOutcome &entry : result.outcome.entries) {
            observer.entryDone(0, entry.written);
        }
        observer.pdfDone(result);
    });
}

} // namespace folioforge
