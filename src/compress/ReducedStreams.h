// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/ImagePlan.h"

#include <cstddef>
#include <future>
#include <map>
#include <optional>
#include <vector>

namespace folioforge {

/// Makes the reduced images while the document is written, on all cores a few images ahead of the
/// writer, so that neither memory nor disk ever holds them all. A stream's dictionary gets its new
/// entries at that moment too: the writer makes the data of a stream before it writes the
/// dictionary, which carries the length.
class ReducedStreams : public QPDFObjectHandle::StreamDataProvider {
  public:
    /// Puts itself in place of the planned images of their document.
    static std::shared_ptr<ReducedStreams> install(std::vector<PlannedImage> planned);

    explicit ReducedStreams(std::vector<PlannedImage> planned);
    using StreamDataProvider::provideStreamData;
    void provideStreamData(const QPDFObjGen &id, Pipeline *pipeline) override;

    [[nodiscard]] int done() const { return m_done; }
    /// The images that were tried and stay as they are.
    [[nodiscard]] const std::vector<KeptImage> &kept() const { return m_kept; }

  private:
    struct Image {
        PlannedImage plan;
        QPDFObjectHandle original; ///< Still gives the first data after the stream was replaced.
        std::size_t bytes = 0;     ///< An estimate of the memory that its reduction needs.
        std::future<Reduction> reduction = {}; ///< Valid from its start until it is taken.
        bool isCounted = false;                ///< Counted as done or kept.
    };

    [[nodiscard]] ImageJob load(const Image &image) const;
    void start(Image &image);
    void workAhead(std::size_t from);
    Reduction take(std::size_t index);
    void keep(Image &image, const QString &reason, Pipeline *pipeline);
    void replace(Image &image, const ReducedImage &reduced, Pipeline *pipeline);

    std::vector<Image> m_images;
    std::map<QPDFObjGen, std::size_t> m_index;
    std::size_t m_bytes = 0;   ///< The sum for those that are started and not taken.
    std::size_t m_started = 0; ///< How many these are.
    std::vector<KeptImage> m_kept;
    int m_done = 0;
};

} // namespace folioforge
