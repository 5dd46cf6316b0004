// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfFixture.h"

#include <QByteArray>
#include <QImage>

namespace folioforge::test {

/// A picture with soft shapes and grain, as a camera gives it; the same on every call.
QImage photo(int width, int height, QImage::Format format = QImage::Format_RGB888);

QByteArray jpeg(const QImage &image, int quality = 92);

/// The bytes as Flate data.
QByteArray flate(const QByteArray &bytes);

/// The rows of an image of `components` bytes a pixel, without padding.
QByteArray samplesOf(const QImage &image, int components);

/// The dictionary of an image XObject, with `rest` for its colour space and filter.
QByteArray imageKeys(int width, int height, const QByteArray &rest);

/// The `rest` of imageKeys() for a JPEG in RGB.
inline const QByteArray kJpegRgb("/ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /DCTDecode");

/// A page of 400 x 300 points (object 3) whose content is `content`, with /Im0 as object 5, /Fm0
/// as 6 and the font /F; `pageKeys` and `resourceKeys` are added to its dictionaries.
PdfFixture photoPage(const QByteArray &content, const QByteArray &pageKeys = {},
                     const QByteArray &resourceKeys = {});

/// How far two pages are apart: the mean difference of their grey values, 0 to 255.
double difference(const QImage &one, const QImage &other);

} // namespace folioforge::test
