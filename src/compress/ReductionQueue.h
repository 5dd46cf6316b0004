#pragma once

#include "compress/ImageReducer.h"
#include "compress/Workers.h"

#include <cstddef>
#include <functional>
#include <future>
#include <optional>
#include <vector>

namespace folioforge {

/// Reduces images on all cores ahead of the one who takes the results. Only a few images are in
/// memory at a time, however many there are.
class ReductionQueue {
  public:
    /// Gives the job of an image with its data; called on the thread that takes, may throw.
    using Load = std::function<ImageJob(std::size_t index)>;

    ReductionQueue(std::size_t count, Load load);

    /// The result for the image at `index`, waiting for it where needed. The images that follow
    /// are worked on meanwhile, since they are likely to be taken next. An image taken again is
    /// reduced again.
    Reduction take(std::size_t index);

  private:
    struct Ahead {
        std::size_t bytes = 0; ///< An estimate of the memory in use.
        std::future<Reduction> result;
    };

    void start(std::size_t index);
    void workAhead(std::size_t from);

    Load m_load;
    std::vector<std::optional<Ahead>> m_images;
    std::vector<bool> m_taken;
    std::size_t m_bytes = 0;
    std::size_t m_started = 0; ///< Started and not yet taken.
    Workers m_workers;         ///< The last member: its tasks end before anything goes.
};

} // namespace folioforge
