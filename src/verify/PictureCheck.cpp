// SPDX-License-Identifier: Apache-2.0

#include "verify/PictureCheck.h"

#include "error/Reasons.h"
#include "image/Parallel.h"
#include "image/Raster.h"
#include "pdf/ColorSpaces.h"
#include "pdf/import/Entries.h"
#include "verify/Group4Reading.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

bool isInteger(Object object, long long value) {
    return object.isInteger() && object.getIntValue() == value;
}

/// Whether the entry is `value`, or missing where that is the usual one.
bool isParameter(const Object &parameters, const char *key, long long value, long long usual) {
    const Object stated = entry(parameters, key);
    return Object(stated).isNull() ? value == usual : isInteger(stated, value);
}

const char *nameOf(ImageFilter filter) {
    switch (filter) {
    case ImageFilter::Dct:
        return "/DCTDecode";
    case ImageFilter::Jpx:
        return "/JPXDecode";
    case ImageFilter::CcittFax:
        return "/CCITTFaxDecode";
    case ImageFilter::Flate:
        break;
    }
    return "/FlateDecode";
}

bool hasFaxParameters(const Object &parameters, const ImageRecord &record) {
    constexpr long long kUsualColumns = 1728;
    const Object black = entry(parameters, "/BlackIs1");
    return isParameter(parameters, "/K", record.ccittK, 0) &&
           isParameter(parameters, "/Columns", record.width, kUsualColumns) &&
           isTrue(black) == record.ccittBlackIs1;
}

bool hasRowParameters(const Object &parameters, const ImageRecord &record) {
    constexpr long long kUsualBits = 8;
    const Object predictor = entry(parameters, "/Predictor");
    const bool isFiltered = Object(predictor).isInteger() && Object(predictor).getIntValue() > 1;
    return isFiltered == record.isPredicted &&
           (!isFiltered ||
            (isParameter(parameters, "/Colors", channelCount(record.color), 1) &&
             isParameter(parameters, "/BitsPerComponent", record.bitsPerComponent, kUsualBits) &&
             isParameter(parameters, "/Columns", record.width, 1)));
}

bool hasFilter(const Object &dictionary, const ImageRecord &record) {
    const Object parameters = onlyItem(entry(dictionary, "/DecodeParms"));
    if (!onlyItem(entry(dictionary, "/Filter")).isNameAndEquals(nameOf(record.filter))) {
        return false;
    }
    switch (record.filter) {
    case ImageFilter::CcittFax:
        return hasFaxParameters(parameters, record);
    case ImageFilter::Flate:
        return hasRowParameters(parameters, record);
    case ImageFilter::Dct:
        return isInteger(entry(parameters, "/ColorTransform"), 0) == record.isPlainRgb;
    case ImageFilter::Jpx:
        break;
    }
    return true;
}

/// Whether `space` is the device's colours, or those of the profile that the record has.
bool isBaseSpace(const Object &space, const char *device, int channels, const ImageRecord &record,
                 KnownSums &profiles) {
    if (!record.profile) {
        return Object(space).isNameAndEquals(device);
    }
    const auto parts = items(space);
    if (parts.size() != 2 || !Object(parts[0]).isNameAndEquals("/ICCBased") ||
        !Object(parts[1]).isStream() ||
        !isInteger(Object(parts[1]).getDict().getKey("/N"), channels)) {
        return false;
    }
    const auto sum = profiles.of(parts[1]);
    return sum && sum->checksum == *record.profile;
}

bool isIndexed(const Object &space, const ImageRecord &record, KnownSums &profiles) {
    const auto parts = items(space);
    constexpr std::size_t kParts = 4;
    constexpr qsizetype kColor = 3;
    if (parts.size() != kParts || !Object(parts[0]).isNameAndEquals("/Indexed") ||
        !isInteger(parts[2], record.palette.size() / kColor - 1)) {
        return false;
    }
    return isBaseSpace(parts[1], "/DeviceRGB", 3, record, profiles) &&
           Object(parts[3]).isString() &&
           Object(parts[3]).getStringValue() == record.palette.toStdString();
}

/// The colours of Lab pictures stand on D50, and their samples have a sign.
bool isLab(const Object &space) {
    const auto parts = items(space);
    const auto are = [](const Object &array, const std::vector<double> &values) {
        return std::ranges::equal(items(array), values, [](Object number, double value) {
            return number.isNumber() && std::abs(number.getNumericValue() - value) < 1e-6;
        });
    };
    return parts.size() == 2 && Object(parts[0]).isNameAndEquals("/Lab") &&
           are(entry(parts[1], "/WhitePoint"), {0.9642, 1, 0.8249}) &&
           are(entry(parts[1], "/Range"), {-128, 127, -128, 127});
}

bool hasColors(const Object &dictionary, const ImageRecord &record, KnownSums &profiles) {
    const Object space = entry(dictionary, "/ColorSpace");
    switch (record.color) {
    case ImageColor::Gray:
        return isBaseSpace(space, "/DeviceGray", 1, record, profiles);
    case ImageColor::Rgb:
        return isBaseSpace(space, "/DeviceRGB", 3, record, profiles);
    case ImageColor::Cmyk:
        return isBaseSpace(space, "/DeviceCMYK", 4, record, profiles);
    case ImageColor::Lab:
        return isLab(space);
    case ImageColor::Indexed:
        return isIndexed(space, record, profiles);
    case ImageColor::FromJpx:
        break;
    }
    return Object(space).isNull();
}

bool hasDecode(const Object &dictionary, const ImageRecord &record) {
    return std::ranges::equal(
        items(entry(dictionary, "/Decode")), record.decode, [](Object number, double value) {
            return number.isNumber() && std::abs(number.getNumericValue() - value) < 1e-5;
        });
}

/// Whether nothing else in the dictionary changes what is shown.
bool hasNothingElse(const Object &dictionary) {
    static constexpr std::array kKeys{"/Mask",       "/ImageMask",   "/SMaskInData", "/Matte",
                                      "/Alternates", "/OC",          "/Interpolate", "/F",
                                      "/FFilter",    "/FDecodeParms"};
    return std::ranges::none_of(kKeys,
                                [&](const char *key) { return Object(dictionary).hasKey(key); });
}

QString dataFault(const Object &image, const ImageRecord &record, SourceReader &reader) {
    const QString differs =
        record.isOwnBytes ? Reasons::tr("the bytes of its picture are not those of the file")
                          : Reasons::tr("the pixels of its picture are not those of the file");
    if (!record.slices.empty()) {
        auto ofSource = runAsync(sizeOf(record.slices), [&record, &reader] {
            return sumOf(record.source, record.slices, reader);
        });
        const auto sum = sumOf(image, Unpacking::None);
        return sum == ofSource.get() ? QString() : differs;
    }
    if (record.isUnpacked && record.filter == ImageFilter::CcittFax) {
        const auto bits = group4Checksum(image, record.width, record.height);
        return bits && *bits == record.checksum ? QString() : differs;
    }
    const Unpacking how = !record.isUnpacked       ? Unpacking::None
                          : record.hasFilteredRows ? Unpacking::Rows
                                                   : Unpacking::Samples;
    const auto sum = sumOf(image, how);
    return sum && sum->checksum == record.checksum ? QString() : differs;
}

/// Where the corner of the picture that is so far across and down, 0 or 1, goes in a unit square
/// whose origin is its lower left corner (Exif 2.32, tag 0x0112).
QPointF cornerPlace(int across, int down, int orientation) {
    struct Sides {
        bool isTurned; ///< Rows of the picture stand upright.
        bool fromRight;
        bool fromBottom;
    };
    static constexpr std::array<Sides, 9> kSides{{{false, false, false},
                                                  {false, false, false},
                                                  {false, true, false},
                                                  {false, true, true},
                                                  {false, false, true},
                                                  {true, false, false},
                                                  {true, true, false},
                                                  {true, true, true},
                                                  {true, false, true}}};
    const Sides &sides =
        kSides.at(orientation >= 1 && orientation <= 8 ? static_cast<std::size_t>(orientation) : 1);
    const int right = sides.isTurned ? down : across;
    const int below = sides.isTurned ? across : down;
    const double x = sides.fromRight ? 1 - right : right;
    const double y = sides.fromBottom ? below : 1 - below;
    return {x, y};
}

bool isNear(double left, double right) {
    constexpr double kTolerance = 0.001; // Points; lengths are written in fewer.
    return std::abs(left - right) < kTolerance;
}

} // namespace

QString imageFault(QPDFObjectHandle image, const ImageRecord &record, SourceReader &reader,
                   KnownSums &profiles) {
    if (!image.isStream() || !image.getDict().getKey("/Subtype").isNameAndEquals("/Image")) {
        return Reasons::tr("it has no picture, or more than one");
    }
    const Object dictionary = image.getDict();
    if (!isInteger(entry(dictionary, "/Width"), record.width) ||
        !isInteger(entry(dictionary, "/Height"), record.height)) {
        return Reasons::tr("its picture has another size");
    }
    const bool hasBits = record.filter == ImageFilter::Jpx ||
                         isInteger(entry(dictionary, "/BitsPerComponent"), record.bitsPerComponent);
    if (!hasBits || !hasFilter(dictionary, record) || !hasColors(dictionary, record, profiles) ||
        !hasDecode(dictionary, record) || !hasNothingElse(dictionary)) {
        return Reasons::tr("its picture would be read otherwise");
    }
    const Object mask = entry(dictionary, "/SMask");
    if (Object(mask).isNull() == (record.softMask != nullptr)) {
        return Reasons::tr("the opacity of its picture is another");
    }
    if (record.softMask) {
        if (const QString fault = imageFault(mask, *record.softMask, reader, profiles);
            !fault.isEmpty()) {
            return Reasons::tr("the opacity of its picture is another");
        }
    }
    return dataFault(image, record, reader);
}

bool isPlainImage(QPDFObjectHandle image, const ImageRecord &record, KnownSums &profiles) {
    const Object dictionary = image.getDict();
    const auto base = items(colorsOf(entry(dictionary, "/ColorSpace")));
    const bool isIcc = base.size() > 1 && Object(base.front()).isNameAndEquals("/ICCBased");
    const auto sum = isIcc && Object(base[1]).isStream() ? profiles.of(base[1]) : std::nullopt;
    const bool hasProfile = record.profile ? sum && sum->checksum == *record.profile : !isIcc;
    return hasProfile && hasNothingElse(dictionary);
}

bool isOriented(const DrawnPicture &drawn, int orientation, int turn) {
    constexpr double kMostlyAlong = 0.9;
    const auto turned = [&](QPointF point) {
        for (int i = turn; i > 0; i -= 90) {
            point = {point.y(), -point.x()};
        }
        return point;
    };
    const auto isAlong = [](QPointF edge, QPointF wanted) {
        const double length = std::hypot(edge.x(), edge.y());
        return QPointF::dotProduct(edge, wanted) > kMostlyAlong * length;
    };
    const QPointF corner = cornerPlace(0, 0, orientation);
    return isAlong(turned({drawn.matrix.a, drawn.matrix.b}),
                   cornerPlace(1, 0, orientation) - corner) &&
           isAlong(turned({-drawn.matrix.c, -drawn.matrix.d}),
                   cornerPlace(0, 1, orientation) - corner);
}

QString placeFault(const DrawnPicture &drawn, const PictureRecord &record) {
    const Matrix &matrix = drawn.matrix;
    for (const auto &[across, down] : {std::pair(0, 0), std::pair(1, 0), std::pair(0, 1)}) {
        const QPointF at = cornerPlace(across, down, record.orientation);
        const QPointF wanted(record.place.x() + at.x() * record.place.width(),
                             record.place.y() + at.y() * record.place.height());
        // A picture fills the unit square from its upper left corner on.
        const double u = across;
        const double v = 1 - down;
        if (!isNear(matrix.a * u + matrix.c * v + matrix.e, wanted.x()) ||
            !isNear(matrix.b * u + matrix.d * v + matrix.f, wanted.y())) {
            return Reasons::tr("its picture stands elsewhere");
        }
    }
    const auto &clip = drawn.clip;
    const bool isSame =
        clip.has_value() == record.clip.has_value() &&
        (!clip || (isNear(clip->x(), record.clip->x()) && isNear(clip->y(), record.clip->y()) &&
                   isNear(clip->width(), record.clip->width()) &&
                   isNear(clip->height(), record.clip->height())));
    return isSame ? QString() : Reasons::tr("its picture stands elsewhere");
}

} // namespace folioforge
