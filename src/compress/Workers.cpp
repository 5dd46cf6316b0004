#include "compress/Workers.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace folioforge {

Workers::Workers()
    : m_most(std::max(std::thread::hardware_concurrency(), 1U)) {}

Workers::~Workers() {
    const std::scoped_lock lock(m_mutex);
    m_waiting.clear();
}

void Workers::start(std::function<void()> task) {
    if (m_threads.size() < m_most) {
        addThread();
    }
    if (m_threads.empty()) {
        task();
        return;
    }
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.push_back(std::move(task));
    }
    m_added.notify_one();
}

void Workers::addThread() {
    try {
        m_threads.emplace_back([this](const std::stop_token &stop) { work(stop); });
    } catch (const std::system_error &) {
        m_most = std::max<std::size_t>(m_threads.size(), 1);
    }
}

void Workers::work(const std::stop_token &stop) {
    while (true) {
        std::function<void()> task;
        {
            std::unique_lock lock(m_mutex);
            if (!m_added.wait(lock, stop, [this] { return !m_waiting.empty(); })) {
                return;
            }
            task = std::move(m_waiting.front());
            m_waiting.pop_front();
        }
        task();
    }
}

} // namespace folioforge
