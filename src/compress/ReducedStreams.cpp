#include "compress/ReducedStreams.h"

#include "pdf/QpdfErrors.h"

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

void setPredictor(QPDFObjectHandle dictionary, const ReducedImage &image) {
    QPDFObjectHandle parameters = QPDFObjectHandle::newDictionary();
    parameters.replaceKey("/Predictor", QPDFObjectHandle::newInteger(15));
    parameters.replaceKey("/Colors", QPDFObjectHandle::newInteger(image.components));
    parameters.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
    dictionary.replaceKey("/DecodeParms", parameters);
}

void describe(QPDFObjectHandle dictionary, const ImageJob &job, const ReducedImage &image) {
    dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(image.width));
    dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(image.height));
    dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
    if (image.form == ReducedForm::Flate) {
        dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/FlateDecode"));
        setPredictor(dictionary, image);
    } else {
        dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/DCTDecode"));
        dictionary.removeKey("/DecodeParms");
    }
    if (!job.palette.empty()) {
        dictionary.replaceKey("/ColorSpace", dictionary.getKey("/ColorSpace").getArrayItem(1));
    } else if (job.components == 0) {
        const char *space = image.components == 1 ? "/DeviceGray" : "/DeviceRGB";
        dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::newName(space));
    }
    dictionary.removeKey("/SMaskInData");
}

} // namespace

std::shared_ptr<ReducedStreams> ReducedStreams::install(std::vector<PlannedImage> planned) {
    auto streams = std::make_shared<ReducedStreams>(std::move(planned));
    for (Image &image : streams->m_images) {
        QPDFObjectHandle dictionary = image.plan.stream.getDict();
        image.plan.stream.replaceStreamData(streams, dictionary.getKey("/Filter"),
                                            dictionary.getKey("/DecodeParms"));
        image.plan.stream.setFilterOnWrite(false);
    }
    return streams;
}

ReducedStreams::ReducedStreams(std::vector<PlannedImage> planned)
    : m_queue(planned.size(), [this](std::size_t index) { return load(index); }) {
    for (PlannedImage &plan : planned) {
        m_index.emplace(plan.stream.getObjGen(), m_images.size());
        QPDFObjectHandle original = plan.stream.copyStream();
        m_images.push_back({std::move(plan), original});
    }
}

ImageJob ReducedStreams::load(std::size_t index) const {
    const Image &image = m_images[index];
    ImageJob job = image.plan.job;
    QPDFObjectHandle original = image.original;
    const auto data = original.getRawStreamData();
    job.data.assign(reinterpret_cast<const char *>(data->getBuffer()), data->getSize());
    return job;
}

void ReducedStreams::keep(Image &image, const QString &reason, Pipeline *pipeline) {
    const auto data = image.original.getRawStreamData();
    requireRoomForStream(static_cast<qsizetype>(data->getSize()));
    pipeline->write(data->getBuffer(), data->getSize());
    pipeline->finish();
    if (!image.isReported) {
        m_left.push_back({image.plan.page, image.plan.stream.getObjectID(), reason});
        image.isReported = true;
    }
}

void ReducedStreams::replace(Image &image, const ReducedImage &reduced, Pipeline *pipeline) {
    QPDFObjectHandle dictionary = image.plan.stream.getDict();
    if (!image.isReported) {
        describe(dictionary, image.plan.job, reduced);
        ++m_done;
        image.isReported = true;
    }
    requireRoomForStream(static_cast<qsizetype>(reduced.data.size()));
    pipeline->writeString(reduced.data);
    pipeline->finish();
}

Reduction ReducedStreams::reduce(std::size_t index) {
    try {
        return m_queue.take(index);
    } catch (const std::exception &) {
        return {std::nullopt, u"damaged: its data cannot be read"_s};
    }
}

void ReducedStreams::provideStreamData(const QPDFObjGen &id, Pipeline *pipeline) {
    const std::size_t index = m_index.at(id);
    const Reduction reduction = reduce(index);
    Image &image = m_images[index];
    if (reduction.image) {
        replace(image, *reduction.image, pipeline);
    } else {
        keep(image, reduction.reason, pipeline);
    }
}

} // namespace folioforge
