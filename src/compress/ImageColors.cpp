// SPDX-License-Identifier: Apache-2.0

#include "compress/ImageColors.h"

#include "error/Error.h"
#include "pdf/BoundedBuffer.h"
#include "pdf/ColorSpaces.h"

#include <algorithm>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr std::size_t kMaxColors = 256;

/// The data of a colour table, which take 1024 bytes and, of some writers, padding; empty where
/// they cannot be decoded.
std::string paletteData(QPDFObjectHandle table) {
    constexpr std::size_t kMaxBytes = 64 << 10;
    std::string data;
    BoundedBuffer target(data, kMaxBytes);
    bool filtered = false;
    table.pipeStreamData(&target, &filtered, 0, qpdf_dl_specialized);
    return filtered ? data : std::string();
}

/// Whether the Decode array says that each component goes from `first` to 1 - `first`.
bool decodesFrom(QPDFObjectHandle decode, int components, double first) {
    if (!decode.isArray() || decode.getArrayNItems() != 2 * components) {
        return false;
    }
    for (int i = 0; i < decode.getArrayNItems(); ++i) {
        QPDFObjectHandle value = decode.getArrayItem(i);
        if (!value.isNumber() || value.getNumericValue() != (i % 2 == 0 ? first : 1 - first)) {
            return false;
        }
    }
    return true;
}

/// `components` bytes a pixel as a plane each.
PlanarImage planesOf(const std::string &pixels, int components) {
    PlanarImage image(static_cast<int>(pixels.size()) / components, 1);
    image.addPlanes(components);
    const auto planes = static_cast<std::size_t>(components);
    for (std::size_t i = 0; i < static_cast<std::size_t>(image.width) * planes; ++i) {
        image.planes[i % planes].row(0)[i / planes] = static_cast<std::uint8_t>(pixels[i]);
    }
    return image;
}

} // namespace

bool isIndexed(QPDFObjectHandle space) {
    return space.isArray() && space.getArrayNItems() == 4 &&
           space.getArrayItem(0).isNameAndEquals("/Indexed");
}

std::string paletteOf(QPDFObjectHandle space) {
    const auto components = static_cast<std::size_t>(plainComponents(space.getArrayItem(1)));
    QPDFObjectHandle table = space.getArrayItem(3);
    std::string colors = table.isString()   ? table.getStringValue()
                         : table.isStream() ? paletteData(table)
                                            : std::string();
    colors.resize(std::min(colors.size(), kMaxColors * components));
    return colors.size() < components ? std::string() : colors;
}

bool isInverted(QPDFObjectHandle dictionary, int components) {
    return decodesFrom(dictionary.getKey("/Decode"), components, 1);
}

bool isPlainDecode(QPDFObjectHandle dictionary, int components) {
    QPDFObjectHandle decode = dictionary.getKey("/Decode");
    return decode.isNull() || decodesFrom(decode, components, 0) ||
           decodesFrom(decode, components, 1);
}

bool isBlended(QPDFObjectHandle dictionary) {
    QPDFObjectHandle softMask = dictionary.getKey("/SMask");
    return softMask.isStream() && softMask.getDict().hasKey("/Matte");
}

bool hasColorTable(QPDFObjectHandle dictionary) {
    QPDFObjectHandle space = dictionary.getKey("/ColorSpace");
    return isIndexed(space) && plainComponents(space.getArrayItem(1)) != 1;
}

void greyPalette(QPDFObjectHandle dictionary, const std::string &grey) {
    if (!hasColorTable(dictionary) || isBlended(dictionary)) {
        return;
    }
    QPDFObjectHandle space = dictionary.getKey("/ColorSpace");
    const std::string palette = paletteOf(space);
    if (palette.empty()) {
        return;
    }
    PlanarImage colors = planesOf(palette, plainComponents(space.getArrayItem(1)));
    toJpegColor(colors);
    toGrey(colors, false);
    const std::string greys(reinterpret_cast<const char *>(colors.planes[0].row(0)),
                            colors.planes[0].size());
    dictionary.replaceKey(
        "/ColorSpace",
        QPDFObjectHandle::newArray({space.getArrayItem(0), QPDFObjectHandle::parse(grey),
                                    space.getArrayItem(2), QPDFObjectHandle::newString(greys)}));
}

void toGrey(PlanarImage &image, bool inverted) {
    constexpr int kWhite = 255;
    constexpr int kInks = 4;
    Plane &light = image.planes[0];
    const Plane *black = image.components() == kInks ? &image.planes[kInks - 1] : nullptr;
    const auto isWhole = [&image](const Plane &plane) {
        return plane.width() == image.width && plane.height() == image.height;
    };
    if (!isWhole(light) || (black != nullptr && !isWhole(*black))) {
        throw Error(u"its brightness is stored at another size than the image"_s);
    }
    for (int y = 0; y < image.height; ++y) {
        std::uint8_t *row = light.row(y);
        for (int x = 0; x < image.width; ++x) {
            // The first plane of inks is the brightness of their contrary.
            const int ink = black != nullptr ? black->row(y)[x] : inverted ? kWhite : 0;
            row[x] = static_cast<std::uint8_t>(inverted ? std::max(0, ink - row[x])
                                                        : std::max(0, row[x] - ink));
        }
    }
    image.planes.erase(image.planes.begin() + 1, image.planes.end());
}

} // namespace folioforge
