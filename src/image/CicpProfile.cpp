// SPDX-License-Identifier: Apache-2.0

#include "image/CicpProfile.h"

#include "error/Reasons.h"
#include "image/IccWriter.h"

#include <cmath>
#include <vector>

namespace folioforge {

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>; ///< By rows.

constexpr int kUnspecified = 2;

/// What the eye adapts by (Bradford).
constexpr Matrix kCones{
    Vector{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}};

Vector operator*(const Matrix &matrix, const Vector &vector) {
    Vector product{};
    for (size_t row = 0; row < 3; ++row) {
        for (size_t i = 0; i < 3; ++i) {
            product.at(row) += matrix.at(row).at(i) * vector.at(i);
        }
    }
    return product;
}

Matrix transposed(const Matrix &matrix) {
    Matrix result{};
    for (size_t row = 0; row < 3; ++row) {
        for (size_t i = 0; i < 3; ++i) {
            result.at(i).at(row) = matrix.at(row).at(i);
        }
    }
    return result;
}

Matrix operator*(const Matrix &left, const Matrix &right) {
    const Matrix columns = transposed(right);
    return transposed({left * columns[0], left * columns[1], left * columns[2]});
}

Matrix diagonal(const Vector &values) {
    return {Vector{values[0], 0, 0}, {0, values[1], 0}, {0, 0, values[2]}};
}

/// Infinite numbers where there is none.
Matrix inverse(const Matrix &m) {
    Matrix adjugate{};
    double determinant = 0;
    for (size_t row = 0; row < 3; ++row) {
        for (size_t i = 0; i < 3; ++i) {
            const size_t r1 = (i + 1) % 3;
            const size_t r2 = (i + 2) % 3;
            const size_t c1 = (row + 1) % 3;
            const size_t c2 = (row + 2) % 3;
            adjugate.at(row).at(i) =
                m.at(r1).at(c1) * m.at(r2).at(c2) - m.at(r1).at(c2) * m.at(r2).at(c1);
        }
        determinant += m[0].at(row) * adjugate.at(row)[0];
    }
    return diagonal({1 / determinant, 1 / determinant, 1 / determinant}) * adjugate;
}

/// The colour at a point of the diagram, of brightness 1.
Vector atPoint(const std::array<double, 2> &point) {
    return {point[0] / point[1], 1, (1 - point[0] - point[1]) / point[1]};
}

/// From the white of the samples to that of profiles.
Matrix adaptationFrom(const Vector &white) {
    const Vector from = kCones * white;
    const Vector to = kCones * kIccWhite;
    return inverse(kCones) * diagonal({to[0] / from[0], to[1] / from[1], to[2] / from[2]}) * kCones;
}

/// An ASCII text in the one language "en-US".
QByteArray words(const char *text) {
    constexpr quint32 kRecord = 12;
    constexpr quint32 kTextAt = 28;
    const QByteArray ascii(text);
    QByteArray bytes("mluc\0\0\0\0\0\0\0\1", 12);
    appendIccNumber(bytes, kRecord);
    bytes += "enUS";
    appendIccNumber(bytes, static_cast<quint32>(2 * ascii.size()));
    appendIccNumber(bytes, kTextAt);
    for (const char character : ascii) {
        bytes.append('\0').append(character);
    }
    return bytes;
}

/// A parametric curve (ICC.1, 10.18) from samples to light.
QByteArray curve(int transfer) {
    constexpr int kLinear = 8;
    constexpr int kSystemM = 4;
    constexpr int kSystemBG = 5;
    constexpr int kCinema = 17;
    const auto power = [](double exponent) {
        return QByteArray("para\0\0\0\0\0\0\0\0", 12) + iccNumbers("", {exponent}).sliced(4);
    };
    switch (transfer) {
    case kLinear:
        return power(1);
    case kSystemM:
        return power(2.2);
    case kSystemBG:
        return power(2.8);
    case kCinema:
        return power(2.6);
    default:
        return QByteArray("para\0\0\0\0\0\3\0\0", 12) +
               iccNumbers("", {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045}).sliced(4);
    }
}

} // namespace

void warnOfHighRange(int transfer, Warnings &warnings) {
    constexpr int kPerceptualQuantizer = 16;
    constexpr int kHybridLogGamma = 18;
    if (transfer == kPerceptualQuantizer || transfer == kHybridLogGamma) {
        warnings.push_back({WarningCode::ColorsDiffer,
                            Reasons::tr("The picture is made for HDR screens, and a PDF shows "
                                        "its brightness otherwise")});
    }
}

QByteArray profileOf(const CicpColor &color) {
    constexpr int kOfSrgb = 1;
    const QByteArray transfer = curve(color.transfer);
    const bool isUnknown = color.primaries == kUnspecified || color.primaries == 0;
    if (isUnknown || (color.primaries == kOfSrgb && transfer == curve(kUnspecified))) {
        return {};
    }
    const auto &points = color.points;
    const Vector white = atPoint(points[3]);
    const Matrix colors = transposed({atPoint(points[0]), atPoint(points[1]), atPoint(points[2])});
    const Matrix adaptation = adaptationFrom(white);
    const Matrix columns = transposed(adaptation * colors * diagonal(inverse(colors) * white));
    std::vector<double> chad;
    for (size_t row = 0; row < 3; ++row) {
        for (size_t i = 0; i < 3; ++i) {
            if (!(std::abs(columns.at(row).at(i)) < 4)) { // Nor a number that is none.
                return {};
            }
            chad.push_back(adaptation.at(row).at(i));
        }
    }
    const auto place = [](const Vector &xyz) {
        return iccNumbers("XYZ ", {xyz[0], xyz[1], xyz[2]});
    };
    return iccProfile(4, {{"desc", words("Colours by numbers (CICP)")},
                          {"cprt", words("No copyright, use freely")},
                          {"wtpt", place(kIccWhite)},
                          {"chad", iccNumbers("sf32", chad)},
                          {"rXYZ", place(columns[0])},
                          {"gXYZ", place(columns[1])},
                          {"bXYZ", place(columns[2])},
                          {"rTRC", transfer},
                          {"gTRC", transfer},
                          {"bTRC", transfer}});
}

} // namespace folioforge
