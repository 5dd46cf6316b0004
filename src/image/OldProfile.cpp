// SPDX-License-Identifier: Apache-2.0

#include "image/OldProfile.h"

#include "image/Bytes.h"
#include "image/IccWriter.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace folioforge {

namespace {

QByteArray description(const char *text) {
    const QByteArray ascii = QByteArray(text) + '\0';
    QByteArray bytes("desc\0\0\0\0", 8);
    appendIccNumber(bytes, static_cast<quint32>(ascii.size()));
    constexpr qsizetype kNoOtherLanguages = 4 + 4 + 2 + 1 + 67;
    return bytes + ascii + QByteArray(kNoOtherLanguages, '\0');
}

QByteArray copyright() {
    return QByteArray("text\0\0\0\0", 8) + "No copyright, use freely" + '\0';
}

/// A curve from samples to light, both from 0 to 1.
using Curve = std::function<double(double)>;

QByteArray tableOf(const Curve &curve, int steps) {
    QByteArray bytes("curv\0\0\0\0", 8);
    appendIccNumber(bytes, static_cast<quint32>(steps));
    for (int i = 0; i < steps; ++i) {
        constexpr double kFull = 65535;
        const double light = std::clamp(curve(double(i) / (steps - 1)), 0.0, 1.0);
        const quint16 value = qToBigEndian(static_cast<quint16>(std::lround(light * kFull)));
        bytes.append(reinterpret_cast<const char *>(&value), sizeof value);
    }
    return bytes;
}

/// A tag of the profile; nothing where it lacks it.
std::optional<QByteArray> tagOf(const QByteArray &profile, QByteArrayView name) {
    constexpr qsizetype kTable = 128;
    constexpr qsizetype kEntry = 12;
    constexpr quint32 kMaxTags = 1000;
    if (profile.size() < kTable + 4) {
        return std::nullopt;
    }
    const auto count = std::min(bigEndianAt<quint32>(profile, kTable), kMaxTags);
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype at = kTable + 4 + i * kEntry;
        if (at + kEntry > profile.size()) {
            break;
        }
        const qint64 offset = bigEndianAt<quint32>(profile, at + 4);
        const qint64 size = bigEndianAt<quint32>(profile, at + 8);
        if (QByteArrayView(profile).sliced(at, 4) == name && offset + size <= profile.size()) {
            return profile.mid(offset, size);
        }
    }
    return std::nullopt;
}

/// A parametric curve (ICC.1, 10.18) that `content` describes; nothing where it is none.
std::optional<Curve> parametricCurve(const QByteArray &content) {
    static constexpr std::array<qsizetype, 5> kCounts{1, 3, 4, 5, 7};
    if (!content.startsWith("para") || content.size() < 12) {
        return std::nullopt;
    }
    const auto kind = bigEndianAt<quint16>(content, 8);
    if (kind >= kCounts.size() || content.size() < 12 + 4 * kCounts.at(kind)) {
        return std::nullopt;
    }
    std::array<double, 7> p{}; // g, a, b, c, d, e and f.
    for (qsizetype i = 0; i < kCounts.at(kind); ++i) {
        p.at(static_cast<size_t>(i)) =
            static_cast<qint32>(bigEndianAt<quint32>(content, 12 + 4 * i)) / 65536.0;
    }
    switch (kind) {
    case 0:
        return [p](double x) { return std::pow(x, p[0]); };
    case 1:
    case 2:
        return [p](double x) {
            const double base = p[1] * x + p[2];
            return (base >= 0 ? std::pow(base, p[0]) : 0) + p[3];
        };
    default:
        return [p](double x) {
            return x >= p[4] ? std::pow(std::max(p[1] * x + p[2], 0.0), p[0]) + p[5]
                             : p[3] * x + p[6];
        };
    }
}

/// The curve under `name` in the form of version 2; nothing where there is none.
std::optional<QByteArray> oldCurve(const QByteArray &profile, const char *name) {
    constexpr int kSteps = 4096;
    auto content = tagOf(profile, name);
    if (!content || content->startsWith("curv")) {
        return content;
    }
    const auto curve = parametricCurve(*content);
    return curve ? std::optional(tableOf(*curve, kSteps)) : std::nullopt;
}

QByteArray place(const std::array<double, 3> &xyz) {
    return iccNumbers("XYZ ", {xyz[0], xyz[1], xyz[2]});
}

} // namespace

int versionOfProfile(const QByteArray &profile) {
    constexpr qsizetype kHeader = 128;
    return profile.size() < kHeader ? 0 : bigEndianAt<uchar>(profile, 8);
}

QByteArray srgbProfile() {
    constexpr int kSteps = 1024;
    const QByteArray curve = tableOf(
        [](double x) { return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4); },
        kSteps);
    // Red, green and blue as seen beside the white of profiles.
    return iccProfile(2, {{"desc", description("sRGB IEC61966-2.1")},
                          {"cprt", copyright()},
                          {"wtpt", place({0.9505, 1, 1.0891})},
                          {"rXYZ", place({0.43607, 0.22249, 0.01392})},
                          {"gXYZ", place({0.38515, 0.71687, 0.09708})},
                          {"bXYZ", place({0.14307, 0.06061, 0.7141})},
                          {"rTRC", curve},
                          {"gTRC", curve},
                          {"bTRC", curve}});
}

std::optional<QByteArray> asVersion2(const QByteArray &profile) {
    const bool isGrey = QByteArrayView(profile).sliced(16, 4) == "GRAY";
    const std::vector<const char *> curves =
        isGrey ? std::vector{"kTRC"} : std::vector{"rTRC", "gTRC", "bTRC"};
    const std::vector<const char *> points =
        isGrey ? std::vector{"wtpt"} : std::vector{"wtpt", "rXYZ", "gXYZ", "bXYZ"};
    IccTags tags{{"desc", description("Colours of a newer profile")}, {"cprt", copyright()}};
    for (const char *name : points) {
        const auto content = tagOf(profile, name);
        if (!content || !content->startsWith("XYZ ")) {
            return std::nullopt;
        }
        tags.emplace_back(name, *content);
    }
    for (const char *name : curves) {
        const auto content = oldCurve(profile, name);
        if (!content) {
            return std::nullopt;
        }
        tags.emplace_back(name, *content);
    }
    return iccProfile(2, tags, isGrey ? "GRAY" : "RGB ");
}

} // namespace folioforge
