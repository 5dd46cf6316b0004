// SPDX-License-Identifier: Apache-2.0

#include "compress/JpxReader.h"

#include "error/Error.h"
#include "image/formats/OpenJpeg.h"

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// The bytes of `data`, as a decoder reads them.
Jpeg2000Source sourceOf(std::string_view data) {
    const auto read = [data](qint64 at, std::span<uchar> target) {
        return static_cast<qint64>(data.copy(reinterpret_cast<char *>(target.data()), target.size(),
                                             static_cast<std::size_t>(at)));
    };
    return {read, static_cast<qint64>(data.size())};
}

Error damaged() {
    return Error(u"damaged JPEG 2000 data"_s);
}

bool isBareCodestream(std::string_view data) {
    return data.starts_with("\xff\x4f\xff\x51");
}

void requireHandled(const OpenJpegPicture &picture) {
    const int count = picture.componentCount();
    if (count != 1 && count != 3 && count != 4) {
        throw Error(u"JPEG 2000 data with %1 components"_s.arg(count));
    }
    const Jpeg2000Component first = picture.component(0);
    for (int i = 0; i < count; ++i) {
        const Jpeg2000Component part = picture.component(i);
        if (part.width != first.width || part.height != first.height || part.isSubsampled ||
            part.isSigned || part.bits < 8 || part.bits > 16 || part.isOpacity) {
            throw Error(u"JPEG 2000 data of an unusual layout"_s);
        }
    }
}

/// The colours of the data itself are kept only where a device space says the same.
bool isPlainColor(const OpenJpegPicture &picture) {
    const bool isPlain =
        picture.color() == Jpeg2000Color::Srgb
            ? picture.componentCount() == 3
            : picture.color() == Jpeg2000Color::Gray && picture.componentCount() == 1;
    return isPlain && !picture.hasProfile();
}

PlanarImage toBytes(const OpenJpegPicture &picture) {
    const Jpeg2000Component first = picture.component(0);
    PlanarImage target(first.width, first.height);
    target.addPlanes(picture.componentCount());
    for (int c = 0; c < picture.componentCount(); ++c) {
        const Jpeg2000Component part = picture.component(c);
        if (part.samples.size() != target.planes[c].size()) {
            throw damaged();
        }
        const int shift = part.bits - 8;
        std::ranges::transform(part.samples, target.planes[c].row(0), [shift](int sample) {
            return static_cast<std::uint8_t>(std::clamp(sample >> shift, 0, 255));
        });
    }
    return target;
}

} // namespace

PlanarImage decodeJpx(std::string_view data, int width, int height, double scale, JpxColor color) {
    auto picture = OpenJpegPicture::open(sourceOf(data), isBareCodestream(data));
    if (!picture) {
        throw damaged();
    }
    requireHandled(*picture);
    if (picture->width() != width || picture->height() != height) {
        throw Error(u"JPEG 2000 data of another size than the image says"_s);
    }
    if (!picture->reduceTo(scale) || !picture->decode() || !picture->finish()) {
        throw damaged();
    }
    // With the finest resolutions left out the components keep their first size until decoded.
    requireHandled(*picture);
    if (picture->color() == Jpeg2000Color::Ycc ||
        (color == JpxColor::OfData && !isPlainColor(*picture))) {
        throw Error(u"JPEG 2000 data of an unusual colour space"_s);
    }
    return toBytes(*picture);
}

} // namespace folioforge
