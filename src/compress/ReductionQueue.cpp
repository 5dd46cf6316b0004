#include "compress/ReductionQueue.h"

#include <algorithm>
#include <memory>

namespace folioforge {

namespace {

/// Work ahead stops while the images in work are estimated to need this much memory.
constexpr std::size_t kMemoryAhead = 256 << 20;

std::size_t estimate(const ImageJob &job) {
    const double side = job.codec == ImageCodec::Samples ? 1 : job.scale;
    const double samples = static_cast<double>(job.width) * job.height * 4 * side * side;
    return job.data.size() + static_cast<std::size_t>(samples);
}

} // namespace

ReductionQueue::ReductionQueue(std::size_t count, Load load)
    : m_load(std::move(load))
    , m_images(count)
    , m_taken(count, false) {}

void ReductionQueue::start(std::size_t index) {
    const auto promise = std::make_shared<std::promise<Reduction>>();
    auto job = std::make_shared<ImageJob>();
    try {
        *job = m_load(index);
    } catch (const std::exception &) {
        m_images[index] = Ahead{0, promise->get_future()};
        ++m_started;
        promise->set_exception(std::current_exception());
        return;
    }
    m_images[index] = Ahead{estimate(*job), promise->get_future()};
    m_bytes += m_images[index]->bytes;
    ++m_started;
    m_workers.start([job = std::move(job), promise] { promise->set_value(reduceImage(*job)); });
}

void ReductionQueue::workAhead(std::size_t from) {
    const std::size_t most = 2 * m_workers.most() + 1;
    for (std::size_t i = from; i < m_images.size() && m_started < most && m_bytes < kMemoryAhead;
         ++i) {
        if (!m_images[i] && !m_taken[i]) {
            start(i);
        }
    }
}

Reduction ReductionQueue::take(std::size_t index) {
    if (!m_images[index]) {
        start(index);
    }
    workAhead(index + 1);
    std::future<Reduction> result = std::move(m_images[index]->result);
    result.wait();
    m_bytes -= m_images[index]->bytes;
    --m_started;
    m_images[index].reset();
    m_taken[index] = true;
    workAhead(index + 1);
    return result.get();
}

} // namespace folioforge
