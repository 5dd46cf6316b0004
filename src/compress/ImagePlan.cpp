// SPDX-License-Identifier: Apache-2.0

#include "compress/ImagePlan.h"

#include "compress/ImageColors.h"
#include "pdf/ColorSpaces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// An image whose samples need more memory than this is left alone.
constexpr double kMaxSampleBytes = 512e6;

int integer(QPDFObjectHandle dictionary, const char *key) {
    QPDFObjectHandle value = dictionary.getKey(key);
    return value.isInteger() ? value.getIntValueAsInt() : 0;
}

/// Sets the filters before the image codec, and the codec, from Filter and DecodeParms. This and
/// the functions that follow give the reason why the image stays as it is, empty where there is
/// none.
QString describeFilters(QPDFObjectHandle dictionary, ImageJob &job) {
    QPDFObjectHandle filter = dictionary.getKey("/Filter");
    QPDFObjectHandle parameters = dictionary.getKey("/DecodeParms");
    auto names =
        filter.isNull() ? std::vector<QPDFObjectHandle>() : filter.wrapInArray().getArrayAsVector();
    auto details = parameters.isNull() ? std::vector<QPDFObjectHandle>()
                                       : parameters.wrapInArray().getArrayAsVector();
    details.resize(names.size(), QPDFObjectHandle::newNull());
    if (names.empty()) {
        return {};
    }
    const std::string last = names.back().isName() ? names.back().getName() : std::string();
    if (last == "/CCITTFaxDecode" || last == "/JBIG2Decode") {
        return u"bilevel"_s;
    }
    if (last == "/DCTDecode" || last == "/JPXDecode") {
        job.codec = last == "/DCTDecode" ? ImageCodec::Jpeg : ImageCodec::Jpx;
        if (details.back().isDictionary() && details.back().getKey("/ColorTransform").isInteger()) {
            job.colorTransform = integer(details.back(), "/ColorTransform");
        }
        names.pop_back();
        details.pop_back();
    }
    constexpr std::array<std::string_view, 5> kLossless{
        "/FlateDecode", "/LZWDecode", "/RunLengthDecode", "/ASCII85Decode", "/ASCIIHexDecode"};
    for (const QPDFObjectHandle &name : names) {
        QPDFObjectHandle checked = name;
        if (!checked.isName() ||
            std::find(kLossless.begin(), kLossless.end(), checked.getName()) == kLossless.end()) {
            return u"an unusual filter"_s;
        }
    }
    if (!names.empty()) {
        job.filter = QPDFObjectHandle::newArray(names).unparseResolved();
        for (QPDFObjectHandle &detail : details) {
            // References mean nothing outside the document.
            detail = detail.isDictionary() ? QPDFObjectHandle::parse(detail.unparseResolved())
                                           : QPDFObjectHandle::newNull();
        }
        job.parameters = QPDFObjectHandle::newArray(details).unparseResolved();
    }
    return {};
}

QString describePalette(QPDFObjectHandle space, ImageJob &job) {
    job.components = plainComponents(space.getArrayItem(1));
    job.palette = paletteOf(space);
    return job.palette.empty() ? u"an unusual colour space"_s : QString();
}

QString describeColor(QPDFObjectHandle dictionary, ImageJob &job) {
    QPDFObjectHandle space = dictionary.getKey("/ColorSpace");
    if (space.isNull() && job.codec == ImageCodec::Jpx) {
        job.components = 0;
        return {};
    }
    if (isIndexed(space) && job.codec == ImageCodec::Samples) {
        if (job.bitsPerComponent < 8 || dictionary.hasKey("/Decode")) {
            return u"few colours"_s;
        }
        return describePalette(space, job);
    }
    job.components = plainComponents(space);
    if (job.components == 0) {
        return u"an unusual colour space"_s;
    }
    return {};
}

QString describeSamples(QPDFObjectHandle dictionary, ImageJob &job) {
    if (job.codec != ImageCodec::Samples) {
        return {};
    }
    job.bitsPerComponent = integer(dictionary, "/BitsPerComponent");
    if (job.bitsPerComponent == 1) {
        return u"bilevel"_s;
    }
    if (job.bitsPerComponent != 8 && job.bitsPerComponent != 16 &&
        !isIndexed(dictionary.getKey("/ColorSpace"))) {
        return u"few shades"_s;
    }
    return {};
}

QString reasonOfUnusual(QPDFObjectHandle dictionary) {
    QPDFObjectHandle stencil = dictionary.getKey("/ImageMask");
    if (stencil.isBool() && stencil.getBoolValue()) {
        return u"a mask"_s;
    }
    if (dictionary.getKey("/Mask").isArray()) {
        return u"masked by colour"_s;
    }
    if (integer(dictionary, "/SMaskInData") != 0) {
        return u"opacity inside its JPEG 2000 data"_s;
    }
    if (isBlended(dictionary)) {
        return u"blended with its soft mask"_s;
    }
    if (dictionary.hasKey("/Matte")) {
        return u"blended into its image"_s;
    }
    return {};
}

/// The wanted size divided by the image's own, so that its largest use has the filter's resolution.
double scaleFor(const ImageJob &job, const ImageUse &use, const QuartzFilter &filter) {
    constexpr double kPointsPerInch = 72;
    const double width = use.width / kPointsPerInch * filter.resolution;
    const double height = use.height / kPointsPerInch * filter.resolution;
    const double scale = std::max(width / job.width, height / job.height);
    if (!(scale * filter.tolerance < 1)) {
        return 1;
    }
    return std::max(scale, 1.0 / std::max(job.width, job.height));
}

/// Sets what makes a picture in colour grey, where `filter` asks for that.
QString describeGrey(const QPDFObjectHandle &dictionary, const QuartzFilter &filter,
                     ImageJob &job) {
    if (filter.grey.empty() || job.components == 1) {
        return {};
    }
    job.grey = filter.grey;
    job.isInverted = isInverted(dictionary, job.components);
    return isPlainDecode(dictionary, job.components) || job.components == 0
               ? QString()
               : u"an unusual range of colours"_s;
}

QString describeSize(const QPDFObjectHandle &dictionary, const QuartzFilter &filter,
                     ImageJob &job) {
    job.width = integer(dictionary, "/Width");
    job.height = integer(dictionary, "/Height");
    if (job.width <= 0 || job.height <= 0) {
        return u"damaged: it has no size"_s;
    }
    const bool isSmall = static_cast<qint64>(job.width) * job.height < filter.smallestImage;
    return isSmall ? u"small"_s : QString();
}

/// Sets the scale, once all else is described.
QString describeScale(const ImageUse &use, const QuartzFilter &filter, ImageJob &job) {
    const double bytes = static_cast<double>(job.width) * job.height * std::max(job.components, 3) *
                         job.bitsPerComponent / 8;
    if (bytes > kMaxSampleBytes) {
        return u"too large"_s;
    }
    job.scale = scaleFor(job, use, filter);
    if (job.purpose == ImagePurpose::SoftMask && job.components != 1) {
        return u"an unusual colour space"_s;
    }
    if (job.purpose == ImagePurpose::SoftMask && job.codec == ImageCodec::Samples &&
        job.scale >= 1) {
        return u"already at the resolution"_s;
    }
    return {};
}

/// Whether a pixel of the image is a bit, whatever its two values stand for.
bool isBilevel(QPDFObjectHandle dictionary) {
    QPDFObjectHandle stencil = dictionary.getKey("/ImageMask");
    if (stencil.isBool() && stencil.getBoolValue()) {
        return true;
    }
    QPDFObjectHandle space = dictionary.getKey("/ColorSpace");
    return integer(dictionary, "/BitsPerComponent") == 1 &&
           (isIndexed(space) || plainComponents(space) == 1);
}

/// The job that stores a bilevel image better, bit by bit the same.
std::variant<ImageJob, QString> decideBilevel(const QPDFObjectHandle &dictionary,
                                              const QuartzFilter &filter) {
    ImageJob job;
    job.purpose = ImagePurpose::Bilevel;
    job.bitsPerComponent = 1;
    QString reason = describeSize(dictionary, filter, job);
    if (reason.isEmpty()) {
        reason = describeFilters(dictionary, job);
    }
    if (reason.isEmpty() && job.codec != ImageCodec::Samples) {
        reason = u"an unusual filter"_s;
    }
    constexpr double kBits = 8;
    if (reason.isEmpty() && static_cast<double>(job.width) * job.height / kBits > kMaxSampleBytes) {
        reason = u"too large"_s;
    }
    if (!reason.isEmpty()) {
        return reason;
    }
    return job;
}

/// The job that reduces the image, or the reason why it stays as it is.
std::variant<ImageJob, QString> decide(QPDFObjectHandle image, const ImageUse &use,
                                       const QuartzFilter &filter, ImagePurpose purpose) {
    if (use.isUnclear) {
        return u"drawn at a size that cannot be told"_s;
    }
    QPDFObjectHandle dictionary = image.getDict();
    const bool staysColored = !filter.grey.empty() && hasColorTable(dictionary);
    if (isBilevel(dictionary) && !staysColored) {
        return decideBilevel(dictionary, filter); // It keeps every bit, whatever is made of them.
    }
    QString reason = reasonOfUnusual(dictionary);
    if (reason.isEmpty() && staysColored) {
        reason = u"an unusual colour space"_s;
    }
    ImageJob job;
    job.purpose = purpose;
    job.lineArt = filter.keepLineArt ? LineArt::Keep : LineArt::Reduce;
    job.jpegQuality = filter.jpegQuality;
    if (reason.isEmpty()) {
        reason = describeSize(dictionary, filter, job);
    }
    for (const auto describe : {describeFilters, describeSamples, describeColor}) {
        if (reason.isEmpty()) {
            reason = describe(dictionary, job);
        }
    }
    if (reason.isEmpty() && purpose == ImagePurpose::Photo) {
        reason = describeGrey(dictionary, filter, job);
    }
    if (reason.isEmpty()) {
        reason = describeScale(use, filter, job);
    }
    if (!reason.isEmpty()) {
        return reason;
    }
    return job;
}

ImageUse mergedUse(const ImageUse &one, const ImageUse &other) {
    return {one.image, one.page, std::max(one.width, other.width),
            std::max(one.height, other.height), one.isUnclear || other.isUnclear};
}

/// The soft masks of the images drawn, each with the largest use of its images.
std::vector<ImageUse> softMaskUses(QPDF &document, const std::vector<ImageUse> &uses) {
    std::vector<ImageUse> masks;
    std::map<QPDFObjGen, std::size_t> index;
    for (const ImageUse &use : uses) {
        QPDFObjectHandle mask = document.getObjectByObjGen(use.image).getDict().getKey("/SMask");
        if (!mask.isStream()) {
            continue;
        }
        ImageUse own = use;
        own.image = mask.getObjGen();
        const auto [place, isNew] = index.try_emplace(own.image, masks.size());
        if (isNew) {
            masks.push_back(own);
        } else {
            masks[place->second] = mergedUse(masks[place->second], own);
        }
    }
    return masks;
}

void planUse(QPDF &document, const ImageUse &use, const QuartzFilter &filter, ImagePurpose purpose,
             ImagePlan &plan) {
    QPDFObjectHandle image = document.getObjectByObjGen(use.image);
    std::variant<ImageJob, QString> decision;
    try {
        decision = decide(image, use, filter, purpose);
    } catch (const std::exception &) {
        decision = u"damaged: its description is wrong"_s;
    }
    if (auto *job = std::get_if<ImageJob>(&decision)) {
        plan.planned.push_back({image, use.page, std::move(*job)});
    } else {
        plan.kept.push_back({use.page, use.image.getObj(), std::get<QString>(decision)});
    }
}

} // namespace

ImagePlan planImages(QPDF &document, const std::vector<ImageUse> &uses,
                     const QuartzFilter &filter) {
    std::map<QPDFObjGen, ImageUse> masks;
    for (const ImageUse &mask : softMaskUses(document, uses)) {
        masks.emplace(mask.image, mask);
    }
    ImagePlan plan;
    for (const ImageUse &use : uses) {
        // A soft mask that is drawn as an image as well is both at its largest.
        if (const auto mask = masks.find(use.image); mask != masks.end()) {
            mask->second = mergedUse(mask->second, use);
            continue;
        }
        planUse(document, use, filter, ImagePurpose::Photo, plan);
    }
    for (const auto &[id, use] : masks) {
        planUse(document, use, filter, ImagePurpose::SoftMask, plan);
    }
    std::stable_sort(plan.planned.begin(), plan.planned.end(),
                     [](const auto &one, const auto &other) { return one.page < other.page; });
    return plan;
}

void keepColorsOfData(ImagePlan &plan) {
    std::erase_if(plan.planned, [&plan](const PlannedImage &image) {
        const bool ofData = image.job.components == 0;
        if (ofData) {
            plan.kept.push_back(
                {image.page, image.stream.getObjectID(), u"colours that PDF/A asks for"_s});
        }
        return ofData;
    });
}

} // namespace folioforge
