// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QImage>

namespace folioforge::test {

/// How programs store four inks in a JPEG file.
enum class CmykForm {
    Plain,     ///< As they are, without Adobe's marker.
    AdobeCmyk, ///< Inverted, with Adobe's marker.
    AdobeYcck  ///< Inverted, the first three as brightness and colour, with Adobe's marker.
};

/// A JPEG file of the inks that print the colours of `image`.
QByteArray cmykJpeg(const QImage &image, CmykForm form);

/// The four samples of each pixel of a JPEG file as libjpeg gives them.
QByteArray samplesOfCmykJpeg(const QByteArray &jpeg);

} // namespace folioforge::test
