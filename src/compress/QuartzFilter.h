// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <string>

namespace folioforge {

/// What one filter file says about reducing the images of a document.
struct QuartzFilter {
    static constexpr double kLeastResolution = 9;
    static constexpr double kMaxResolution = 2400;

    double resolution = 150; ///< Pixels per inch of printed size that an image is sampled down to.
    int jpegQuality = 65;    ///< 1 to 100, on the scale of libjpeg.
    double tolerance = 1.2;  ///< Images up to this many times `resolution` keep their pixels.
    qint64 smallestImage = 64; ///< Images with fewer pixels are left alone.
    bool keepLineArt = true;   ///< Lossless drawings and screenshots stay lossless.
    /// The colour space, in PDF syntax, that pictures in colour get; empty where they keep theirs.
    /// No filter file says it.
    std::string grey;
};

/// The filter's name at row `index` of the compress methods: "150m", "96m", "72l"; empty for 0,
/// which compresses nothing, and for any other row.
QString quartzFilterName(int index);

/// The filter file of that name in the bundle: BUNDLE/Contents/Resources/NAME.qfilter.
QString quartzFilterPath(const QString &bundlePath, const QString &name);

/// Reads a filter file, an XML property list. Throws Error when it cannot be read, lacks
/// a key or holds a value out of range.
QuartzFilter readQuartzFilter(const QString &path);

} // namespace folioforge
