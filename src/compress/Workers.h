#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace folioforge {

/// Runs tasks in the order they come, on as many threads as the machine has cores. Where the
/// system gives fewer threads, fewer do; where it gives none, the one who starts a task runs it.
class Workers {
  public:
    Workers();
    /// Waits for the tasks that run and drops those that wait.
    ~Workers();
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;

    /// How many tasks may run at a time.
    [[nodiscard]] std::size_t most() const { return m_most; }

    /// Runs `task`, which may not throw, as soon as a thread is free.
    void start(std::function<void()> task);

  private:
    void addThread();
    void work(const std::stop_token &stop);

    std::size_t m_most;
    std::mutex m_mutex;
    std::condition_variable_any m_added;
    std::deque<std::function<void()>> m_waiting;
    std::vector<std::jthread> m_threads; ///< The last member: they end before anything goes.
};

} // namespace folioforge
