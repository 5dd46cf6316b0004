// SPDX-License-Identifier: Apache-2.0

#include "compress/ReducedStreams.h"

#include "compress/StreamFilters.h"
#include "error/Error.h"
#include "image/Parallel.h"
#include "pdf/QpdfErrors.h"

#include <algorithm>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Work ahead stops while the images in work are estimated to need this much memory.
constexpr std::size_t kMaxAhead = 256 << 20;

/// The most that is set aside for a stream before its bytes are there.
constexpr qsizetype kMaxRoom = 64 << 20;

std::size_t estimate(const ImageJob &job) {
    const double side = job.codec == ImageCodec::Samples ? 1 : job.scale;
    const double samples = static_cast<double>(job.width) * job.height * 4 * side * side;
    return job.data.size() + static_cast<std::size_t>(samples);
}

Reduction unreadable() {
    return {std::nullopt, u"damaged: its data cannot be read"_s};
}

void setPredictor(QPDFObjectHandle dictionary, const ReducedImage &image) {
    QPDFObjectHandle parameters = QPDFObjectHandle::newDictionary();
    parameters.replaceKey("/Predictor", QPDFObjectHandle::newInteger(15));
    parameters.replaceKey("/Colors", QPDFObjectHandle::newInteger(image.components));
    parameters.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
    dictionary.replaceKey("/DecodeParms", parameters);
}

void describeGroup4(QPDFObjectHandle dictionary, const ReducedImage &image) {
    QPDFObjectHandle parameters = QPDFObjectHandle::newDictionary();
    parameters.replaceKey("/K", QPDFObjectHandle::newInteger(-1));
    parameters.replaceKey("/Columns", QPDFObjectHandle::newInteger(image.width));
    parameters.replaceKey("/Rows", QPDFObjectHandle::newInteger(image.height));
    parameters.replaceKey("/BlackIs1", QPDFObjectHandle::newBool(image.blackIs1));
    dictionary.replaceKey("/Filter", QPDFObjectHandle::newName("/CCITTFaxDecode"));
    dictionary.replaceKey("/DecodeParms", parameters);
}

void describe(QPDFObjectHandle dictionary, const ImageJob &job, const ReducedImage &image) {
    if (image.form == ReducedForm::Group4) {
        describeGroup4(dictionary, image);
        return;
    }
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
    if (!job.grey.empty()) {
        dictionary.replaceKey("/ColorSpace", QPDFObjectHandle::parse(job.grey));
        dictionary.removeKey("/Decode");
    } else if (!job.palette.empty()) {
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

ReducedStreams::ReducedStreams(std::vector<PlannedImage> planned) {
    for (PlannedImage &plan : planned) {
        m_index.emplace(plan.stream.getObjGen(), m_images.size());
        QPDFObjectHandle original = plan.stream.copyStream();
        m_images.push_back({std::move(plan), original});
    }
}

ImageJob ReducedStreams::load(const Image &image) const {
    ImageJob job = image.plan.job;
    QPDFObjectHandle original = image.original;
    job.data.reserve(static_cast<std::size_t>(
        std::clamp<qsizetype>(statedLength(original.getDict().getKey("/Length")), 0, kMaxRoom)));
    BoundedBuffer target(job.data, job.data.max_size());
    bool isFiltered = false;
    if (!original.pipeStreamData(&target, &isFiltered, 0, qpdf_dl_none)) {
        throw Error(unreadable().reason);
    }
    return job;
}

void ReducedStreams::start(Image &image) {
    image.bytes = 0;
    try {
        const auto job = std::make_shared<const ImageJob>(load(image));
        image.bytes = estimate(*job);
        image.reduction = runAsync([job] { return reduceImage(*job); });
    } catch (const std::exception &) {
        image.reduction = std::async(std::launch::deferred, unreadable);
    }
    m_bytes += image.bytes;
    ++m_started;
}

void ReducedStreams::workAhead(std::size_t from) {
    const std::size_t threads = std::max(std::thread::hardware_concurrency(), 1U);
    for (auto i = from; i < m_images.size() && m_started <= threads && m_bytes < kMaxAhead; ++i) {
        if (!m_images[i].reduction.valid() && !m_images[i].isCounted) {
            start(m_images[i]);
        }
    }
}

/// The images that follow are worked on meanwhile, since the writer is likely to come to them next.
Reduction ReducedStreams::take(std::size_t index) {
    Image &image = m_images[index];
    if (!image.reduction.valid()) {
        start(image);
    }
    workAhead(index + 1);
    Reduction reduction = image.reduction.get();
    m_bytes -= image.bytes;
    --m_started;
    workAhead(index + 1);
    return reduction;
}

void ReducedStreams::keep(Image &image, const QString &reason, Pipeline *pipeline) {
    if (!image.original.pipeStreamData(pipeline, nullptr, 0, qpdf_dl_none)) {
        throw Error(unreadable().reason);
    }
    if (!image.isCounted) {
        m_kept.push_back({image.plan.page, image.plan.stream.getObjectID(), reason});
        image.isCounted = true;
    }
}

void ReducedStreams::replace(Image &image, const ReducedImage &reduced, Pipeline *pipeline) {
    QPDFObjectHandle dictionary = image.plan.stream.getDict();
    if (!image.isCounted) {
        describe(dictionary, image.plan.job, reduced);
        ++m_done;
        image.isCounted = true;
    }
    pipeline->writeString(reduced.data);
    pipeline->finish();
}

void ReducedStreams::provideStreamData(const QPDFObjGen &id, Pipeline *pipeline) {
    const std::size_t index = m_index.at(id);
    const Reduction reduction = take(index);
    Image &image = m_images[index];
    if (reduction.image) {
        replace(image, *reduction.image, pipeline);
    } else {
        keep(image, reduction.reason, pipeline);
    }
}

} // namespace folioforge
