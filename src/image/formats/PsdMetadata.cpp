// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PsdMetadata.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Raster.h"
#include "image/formats/PhotoshopResources.h"

namespace folioforge {

namespace {

enum ColorMode : quint16 {
    BitmapMode = 0,
    GrayMode = 1,
    IndexedMode = 2,
    RgbMode = 3,
    CmykMode = 4,
    MultichannelMode = 7,
    DuotoneMode = 8,
    LabMode = 9,
};

enum Resource : quint16 {
    ResolutionInfo = 1005,
    AlphaNames = 1006,
    IccProfile = 1039,
    UnicodeAlphaNames = 1045,
    TransparentIndex = 1047,
    VersionInfo = 1057,
};

constexpr qint64 kHeaderBytes = 26;

ImageColor colorOf(quint16 mode) {
    switch (mode) {
    case BitmapMode:
    case GrayMode:
    case DuotoneMode: // A duotone's data is grey; its inks are private to Photoshop.
    case MultichannelMode:
        return ImageColor::Gray;
    case IndexedMode:
        return ImageColor::Indexed;
    case RgbMode:
        return ImageColor::Rgb;
    case CmykMode:
        return ImageColor::Cmyk;
    case LabMode:
        return ImageColor::Lab;
    default:
        throw Error(Reasons::tr("The Photoshop file's colour mode is unknown"));
    }
}

void readFileHeader(QByteArrayView head, PsdMetadata &metadata) {
    constexpr quint32 kMax = 0x7FFFFFFF;
    metadata.isBig = bigEndianAt<quint16>(head, 4) == 2;
    metadata.channels = bigEndianAt<quint16>(head, 12);
    metadata.header.height = static_cast<int>(std::min(bigEndianAt<quint32>(head, 14), kMax));
    metadata.header.width = static_cast<int>(std::min(bigEndianAt<quint32>(head, 18), kMax));
    metadata.depth = bigEndianAt<quint16>(head, 22);
    const auto mode = bigEndianAt<quint16>(head, 24);
    metadata.color = colorOf(mode);
    const bool knownDepth =
        mode == BitmapMode    ? metadata.depth == 1
        : mode == IndexedMode ? metadata.depth == 8
                              : metadata.depth == 8 || metadata.depth == 16 || metadata.depth == 32;
    constexpr int kMaxChannels = 56;
    if (!knownDepth || metadata.channels < channelCount(metadata.color) ||
        metadata.channels > kMaxChannels) {
        throw Error(Reasons::tr("The Photoshop file is damaged"));
    }
}

void readResource(quint16 id, QByteArrayView data, PsdMetadata &metadata, bool &namesChannels) {
    constexpr double kFixedOne = 65536; // 16.16 fixed point, always per inch.
    if (id == ResolutionInfo && data.size() >= 16) {
        metadata.header.horizontalDpi = bigEndianAt<quint32>(data, 0) / kFixedOne;
        metadata.header.verticalDpi = bigEndianAt<quint32>(data, 8) / kFixedOne;
    } else if (id == IccProfile) {
        metadata.iccProfile = data.toByteArray();
    } else if (id == TransparentIndex && data.size() >= 2) {
        metadata.transparentIndex = bigEndianAt<quint16>(data, 0);
    } else if (id == VersionInfo && data.size() >= 5) {
        metadata.statesNoMergedImage = data[4] == 0;
    } else if (id == AlphaNames || id == UnicodeAlphaNames) {
        namesChannels = namesChannels || !data.isEmpty();
    }
}

/// Whether the resources name channels of their own, which then are no opacity.
bool readResources(QByteArrayView resources, PsdMetadata &metadata) {
    bool namesChannels = false;
    forEachPhotoshopResource(resources, [&](quint16 id, QByteArrayView data) {
        readResource(id, data, metadata, namesChannels);
    });
    return namesChannels;
}

/// The section whose length stands at byte `at`.
FileView sectionAt(const FileView &file, qint64 at) {
    return file.part(at + 4, bigEndianAt<quint32>(file.readExactly(at, 4), 0));
}

/// Opacity is the first channel after the colours where the number of layers is negative, or where
/// a file without layers names no such channel.
PsdAlpha alphaOf(const FileView &file, qint64 layers, qint64 layersLength,
                 const PsdMetadata &metadata, bool namesChannels) {
    if (metadata.channels <= channelCount(metadata.color) || metadata.depth == 1 ||
        metadata.color == ImageColor::Indexed) {
        return PsdAlpha::None;
    }
    const int lengthBytes = metadata.isBig ? 8 : 4;
    const QByteArray info = file.read(layers, lengthBytes + 2);
    if (layersLength >= lengthBytes + 2 && info.size() == lengthBytes + 2 &&
        info.first(lengthBytes).count('\0') < lengthBytes) {
        const auto count = static_cast<qint16>(bigEndianAt<quint16>(info, lengthBytes));
        return count < 0 ? PsdAlpha::OnWhite : PsdAlpha::None;
    }
    return namesChannels ? PsdAlpha::None : PsdAlpha::Straight;
}

} // namespace

QByteArray readPsdResources(const FileView &file) {
    const FileView colors = sectionAt(file, kHeaderBytes);
    const FileView resources = sectionAt(file, kHeaderBytes + 4 + colors.size());
    return resources.read(0, resources.size());
}

PsdMetadata readPsdMetadata(const FileView &file) {
    PsdMetadata metadata;
    readFileHeader(file.readExactly(0, kHeaderBytes), metadata);
    const FileView colors = sectionAt(file, kHeaderBytes);
    metadata.colorModeData = colors.read(0, colors.size());
    const QByteArray resources = readPsdResources(file);
    const bool namesChannels = readResources(resources, metadata);
    qint64 at = kHeaderBytes + 4 + colors.size() + 4 + resources.size();
    const QByteArray length = file.readExactly(at, metadata.isBig ? 8 : 4);
    at += length.size();
    const qint64 layersLength = metadata.isBig
                                    ? static_cast<qint64>(bigEndianAt<quint64>(length, 0))
                                    : qint64(bigEndianAt<quint32>(length, 0));
    metadata.alpha = alphaOf(file, at, layersLength, metadata, namesChannels);
    metadata.hasLayers = layersLength > 0;
    metadata.pixelsOffset = at + file.part(at, layersLength).size();
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

} // namespace folioforge
