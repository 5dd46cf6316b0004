// SPDX-License-Identifier: Apache-2.0

#include "image/formats/IcnsPixels.h"

#include "error/Reasons.h"
#include "image/Bytes.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

constexpr std::array<ClassicIcon, 18> kClassicIcons = {{
    {"it32", 128, 128, 24, "t8mk", ""},
    {"ih32", 48, 48, 24, "h8mk", "ich#"},
    {"il32", 32, 32, 24, "l8mk", "ICN#"},
    {"is32", 16, 16, 24, "s8mk", "ics#"},
    {"ich8", 48, 48, 8, "", "ich#"},
    {"icl8", 32, 32, 8, "", "ICN#"},
    {"ics8", 16, 16, 8, "", "ics#"},
    {"icm8", 16, 12, 8, "", "icm#"},
    {"ich4", 48, 48, 4, "", "ich#"},
    {"icl4", 32, 32, 4, "", "ICN#"},
    {"ics4", 16, 16, 4, "", "ics#"},
    {"icm4", 16, 12, 4, "", "icm#"},
    {"ich#", 48, 48, 1, "", "ich#"},
    {"ICN#", 32, 32, 1, "", "ICN#"},
    {"ics#", 16, 16, 1, "", "ics#"},
    {"icm#", 16, 12, 1, "", "icm#"},
    {"ic05", 32, 32, 32, "", ""},
    {"ic04", 16, 16, 32, "", ""},
}};

using Rgb = std::array<uchar, 3>;

constexpr Rgb rgb(quint32 color) {
    return {static_cast<uchar>(color >> 16), static_cast<uchar>(color >> 8),
            static_cast<uchar>(color)};
}

/// The Macintosh palettes of 2, 16 and 256 colours.
Rgb paletteColor(int index, int bits) {
    if (bits == 1) {
        return index == 0 ? rgb(0xFFFFFF) : rgb(0);
    }
    if (bits == 4) {
        constexpr std::array<quint32, 16> kColors = {
            0xFFFFFF, 0xFCF305, 0xFF6402, 0xDD0806, 0xF20884, 0x4600A5, 0x0000D4, 0x02ABEA,
            0x1FB714, 0x006411, 0x562C05, 0x90713A, 0xC0C0C0, 0x808080, 0x404040, 0x000000};
        return rgb(kColors[static_cast<size_t>(index)]);
    }
    constexpr int kCubeColors = 215; // Six steps of each colour, but for black.
    constexpr int kRampColors = 10;  // Of red, green, blue and grey: the steps the cube lacks.
    const auto step = [](int number) { return static_cast<uchar>(0xFF - number * 0x33); };
    if (index < kCubeColors) {
        return {step(index / 36), step(index / 6 % 6), step(index % 6)};
    }
    constexpr std::array<uchar, kRampColors> kRamp = {0xEE, 0xDD, 0xBB, 0xAA, 0x88,
                                                      0x77, 0x55, 0x44, 0x22, 0x11};
    const int place = index - kCubeColors;
    Rgb color = {};
    if (place >= 4 * kRampColors) {
        return color;
    }
    const uchar value = kRamp[static_cast<size_t>(place % kRampColors)];
    const auto channel = static_cast<size_t>(place / kRampColors);
    for (size_t c = 0; c < color.size(); ++c) {
        color[c] = channel == color.size() || channel == c ? value : uchar(0);
    }
    return color;
}

/// Runs of one plane after the other: up to 128 bytes as they are, or 3 to 130 times the same.
QByteArray expandRuns(QByteArrayView packed, qsizetype size) {
    QByteArray out;
    out.reserve(size);
    for (qsizetype at = 0; out.size() < size;) {
        const int lead = bigEndianAt<uchar>(packed, at++);
        constexpr int kRun = 0x80;
        const auto count =
            std::min<qsizetype>(lead < kRun ? lead + 1 : lead - kRun + 3, size - out.size());
        if (lead >= kRun) {
            out.append(count, static_cast<char>(bigEndianAt<uchar>(packed, at++)));
        } else if (count <= packed.size() - at) {
            out.append(packed.sliced(at, count));
            at += count;
        } else {
            throw fileEndsTooEarly();
        }
    }
    return out;
}

/// Puts a plane's bytes where one channel of interleaved samples stands.
void place(QByteArrayView plane, int channel, int channels, QByteArray &samples) {
    for (qsizetype i = 0; i < plane.size(); ++i) {
        samples.data()[i * channels + channel] = plane[i];
    }
}

void readTrueColor(const ClassicIcon &icon, QByteArrayView content, Raster &raster) {
    const qsizetype pixels = qsizetype(icon.width) * icon.height;
    if (QByteArrayView(icon.type) == "it32") {
        content = content.sliced(std::min<qsizetype>(content.size(), 4)); // Four zeros before it.
    }
    constexpr int kPlainPixel = 4;
    if (content.size() == pixels * kPlainPixel) {
        for (qsizetype i = 0; i < pixels; ++i) {
            std::copy_n(content.data() + i * kPlainPixel + 1, 3, raster.samples.data() + i * 3);
        }
        return;
    }
    const QByteArray planes = expandRuns(content, 3 * pixels);
    for (int c = 0; c < 3; ++c) {
        place(QByteArrayView(planes).sliced(c * pixels, pixels), c, 3, raster.samples);
    }
}

void readWithOpacity(QByteArrayView content, Raster &raster) {
    constexpr QByteArrayView kSignature("ARGB");
    if (!content.startsWith(kSignature)) {
        throw Error(Reasons::tr("The icon's pixels are of an unknown kind"));
    }
    const qsizetype pixels = qsizetype(raster.width) * raster.height;
    const QByteArray planes = expandRuns(content.sliced(kSignature.size()), 4 * pixels);
    raster.alpha = AlphaPlane{8, planes.first(pixels)};
    for (int c = 0; c < 3; ++c) {
        place(QByteArrayView(planes).sliced((c + 1) * pixels, pixels), c, 3, raster.samples);
    }
}

int packedNumber(QByteArrayView bytes, qsizetype index, int bits) {
    const qsizetype bit = index * bits;
    const auto shift = static_cast<int>(8 - bits - bit % 8);
    return (bigEndianAt<uchar>(bytes, bit / 8) >> shift) & ((1 << bits) - 1);
}

void readPalette(const ClassicIcon &icon, QByteArrayView content, Raster &raster) {
    char *out = raster.samples.data();
    for (qsizetype i = 0; i < qsizetype(icon.width) * icon.height; ++i) {
        const Rgb color = paletteColor(packedNumber(content, i, icon.bits), icon.bits);
        out = std::copy(color.begin(), color.end(), out);
    }
}

QByteArray contentOf(const char *type, const std::vector<IcnsEntry> &entries) {
    const auto found =
        std::ranges::find_if(entries, [&](const IcnsEntry &entry) { return entry.type == type; });
    return found == entries.end() ? QByteArray() : found->content.read(0, found->content.size());
}

std::optional<AlphaPlane> opacityOf(const ClassicIcon &icon,
                                    const std::vector<IcnsEntry> &entries) {
    const qsizetype pixels = qsizetype(icon.width) * icon.height;
    const QByteArray mask = contentOf(icon.opacity, entries);
    if (mask.size() >= pixels) {
        return AlphaPlane{8, mask.first(pixels)};
    }
    const QByteArray outline = contentOf(icon.outline, entries);
    if (outline.size() < 2 * pixels / 8) {
        return std::nullopt;
    }
    AlphaPlane plane{8, QByteArray(pixels, '\0')};
    for (qsizetype i = 0; i < pixels; ++i) {
        plane.samples[i] = packedNumber(outline, pixels + i, 1) == 1 ? '\xFF' : '\0';
    }
    return plane;
}

} // namespace

std::optional<ClassicIcon> classicIconOf(const QByteArray &type) {
    const auto *found = std::ranges::find_if(
        kClassicIcons, [&](const ClassicIcon &icon) { return type == icon.type; });
    return found == kClassicIcons.end() ? std::nullopt : std::optional(*found);
}

Raster decodeClassicIcon(const ClassicIcon &icon, const FileView &content,
                         const std::vector<IcnsEntry> &entries) {
    // More than this much belongs to no icon of 128 pixels a side.
    constexpr qint64 kMaxBytes = 1 << 17;
    const QByteArray bytes = content.read(0, kMaxBytes);
    Raster raster;
    raster.width = icon.width;
    raster.height = icon.height;
    raster.samples = allocateRows(raster.height, raster.stride());
    if (icon.bits == 32) {
        readWithOpacity(bytes, raster);
        return raster;
    }
    if (icon.bits == 24) {
        readTrueColor(icon, bytes, raster);
    } else {
        readPalette(icon, bytes, raster);
    }
    raster.alpha = opacityOf(icon, entries);
    return raster;
}

} // namespace folioforge
