// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QByteArray>

#include <optional>

namespace folioforge {

/// A picture as readers see it: 8 bits a sample, samples of a pixel side by side.
struct Pixels {
    int width = 0;
    int height = 0;
    int channels = 3; ///< 1 grey or a stencil, 3 RGB or Lab, 4 CMYK.
    QByteArray samples;

    bool operator==(const Pixels &) const = default;
};

/// The most bytes that pixels may take.
inline constexpr qint64 kMaxPixelBytes = qint64{1} << 30;

/// Decodes an image of a PDF, its palette looked up and its Decode array applied; nothing where
/// that cannot be done, as for JPEG 2000, or it is too large.
std::optional<Pixels> pixelsOf(QPDFObjectHandle image);

/// `pixels` as they are when they are made smaller in the plainest way: each pixel is the mean of
/// those that it covers.
Pixels reduced(const Pixels &pixels, int width, int height);

/// `pixels` of RGB or CMYK without colour, by the weights of ITU-R BT.601; others as they are.
Pixels inGrey(const Pixels &pixels);

/// Whether `image` shows what `source` does, each an image of a PDF, their opacity aside: reduced,
/// coded anew or, with `mayBeGrey`, without colour. False where one of them cannot be decoded.
bool areAlike(const QPDFObjectHandle &source, const QPDFObjectHandle &image, bool mayBeGrey);

/// Whether `found` is `source` made smaller or coded anew, or with `mayBeGrey` without colour: the
/// likeness of both, reduced the plain way to half the size of `found`, is at least kLeastLikeness.
bool isReduced(const Pixels &found, const Pixels &source, bool mayBeGrey);
inline constexpr double kLeastLikeness = 20; ///< Decibels; another picture has about ten.

/// The peak signal-to-noise ratio of two pictures of one size in decibels; infinite for the same.
double likeness(const Pixels &one, const Pixels &other);

} // namespace folioforge
