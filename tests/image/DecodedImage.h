// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

#include <vector>

namespace folioforge::test {

/// A small image file of tests/data/image.
QString imageFile(const QString &name);

/// The bytes of a file.
QByteArray bytesOf(const QString &path);

/// The compressed data of an encoded image, its slices read from the file.
QByteArray dataOf(const PdfImage &image);

/// The picture that an encoded image's data holds, read with Qt's PNG and JPEG readers and libtiff
/// after it has been put into files of these formats by hand. Grey, RGB and palette only; of four
/// inks the last is the opacity.
QImage decoded(const PdfImage &image);

/// Red, green and blue of each pixel of decoded(), the rows from the top.
QByteArray rgbRows(const PdfImage &image);

/// A chunk of a PNG file with its length and checksum.
QByteArray pngChunk(const char *type, const QByteArray &content);

/// The zlib stream `bytes` unpacked by Qt.
QByteArray unzipped(const QByteArray &bytes);

/// The warnings of an encoded image as "code: text".
QStringList warningsOf(const PdfImage &image);

/// The pictures that forEachPicture() gives, and in `warnings` what it returns.
std::vector<PdfImage> picturesOf(const QString &path, Warnings *warnings = nullptr);

/// The reason with which toPdfImage() refuses the file; empty where it does not.
QString refusalOf(const QString &path);

} // namespace folioforge::test
