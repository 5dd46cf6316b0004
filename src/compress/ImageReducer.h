// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>

#include <QString>

namespace folioforge {

/// How the samples of an image stream are packed once its lossless filters are undone.
enum class ImageCodec { Samples, Jpeg, Jpx };

/// What an image is there for: opacity is kept exact, without JPEG's traces around edges.
/// A bilevel image keeps every bit.
enum class ImagePurpose { Photo, SoftMask, Bilevel };

enum class LineArt { Keep, Reduce };

/// One image of a document, taken out of it with all that is needed to reduce it on any thread.
struct ImageJob {
    std::string data;       ///< The stream's bytes, under its filters.
    std::string filter;     ///< The lossless filters in PDF syntax; empty for none.
    std::string parameters; ///< Their parameters in PDF syntax; empty for none.
    ImageCodec codec = ImageCodec::Samples;
    std::optional<int> colorTransform; ///< JPEG: the PDF's ColorTransform parameter.
    int width = 0;                     ///< Pixels.
    int height = 0;                    ///< Pixels.
    int components = 1;                ///< 1, 3 or 4, of the palette where there is one; JPEG 2000
                                       ///< that brings its own colour space: 0.
    int bitsPerComponent = 8;          ///< 8 or 16; not used for JPEG and JPEG 2000.
    std::string palette;               ///< Colours of `components` bytes each; empty for none.
    double scale = 1;                  ///< Wanted size / size, at most 1; 1 keeps the pixels.
    int jpegQuality = 60;              ///< 1 to 100.
    ImagePurpose purpose = ImagePurpose::Photo;
    LineArt lineArt = LineArt::Keep;
    std::string grey;        ///< The colour space, in PDF syntax, of a picture in colour that is to
                             ///< be grey; else empty.
    bool isInverted = false; ///< Such a picture: its samples stand for the contrary.
};

enum class ReducedForm { Jpeg, Flate, Group4 };

/// The smaller image: 8 bits a component, no palette, or the bits of a bilevel one. Flate data has
/// PNG predictors (Predictor 15).
struct ReducedImage {
    std::string data;
    int width = 0;
    int height = 0;
    int components = 1;
    ReducedForm form = ReducedForm::Jpeg;
    bool blackIs1 = false; ///< The parameter of that name of Group 4.
};

/// Either the smaller image, or the reason why the old one stays.
struct Reduction {
    std::optional<ReducedImage> image;
    QString reason;
};

/// Decodes the image, samples it down and encodes it again. Safe to call from several threads at
/// once; damaged data is a reason, never an exception.
Reduction reduceImage(const ImageJob &job) noexcept;

} // namespace folioforge
