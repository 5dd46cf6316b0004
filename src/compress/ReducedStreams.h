#pragma once

#include "compress/ImagePlan.h"
#include "compress/ReductionQueue.h"

#include <map>
#include <vector>

namespace folioforge {

/// Makes the reduced images while the document is written, each when the writer comes to it, so
/// that neither memory nor disk ever holds them all. A stream's dictionary gets its new entries at
/// that moment too: the writer makes the data of a stream before it writes the dictionary, which
/// carries the length.
class ReducedStreams : public QPDFObjectHandle::StreamDataProvider {
  public:
    /// Puts itself in place of the planned images of their document.
    static std::shared_ptr<ReducedStreams> install(std::vector<PlannedImage> planned);

    explicit ReducedStreams(std::vector<PlannedImage> planned);
    using StreamDataProvider::provideStreamData;
    void provideStreamData(const QPDFObjGen &id, Pipeline *pipeline) override;

    [[nodiscard]] int done() const { return m_done; }
    /// The images that were tried and stay as they are.
    [[nodiscard]] const std::vector<LeftImage> &left() const { return m_left; }

  private:
    struct Image {
        PlannedImage plan;
        QPDFObjectHandle original; ///< Still gives the first data after the stream was replaced.
        bool isReported = false;
    };

    [[nodiscard]] ImageJob load(std::size_t index) const;
    Reduction reduce(std::size_t index);
    void keep(Image &image, const QString &reason, Pipeline *pipeline);
    void replace(Image &image, const ReducedImage &reduced, Pipeline *pipeline);

    std::vector<Image> m_images;
    std::map<QPDFObjGen, std::size_t> m_index;
    ReductionQueue m_queue;
    std::vector<LeftImage> m_left;
    int m_done = 0;
};

} // namespace folioforge
