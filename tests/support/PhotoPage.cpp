// SPDX-License-Identifier: Apache-2.0

#include "support/PhotoPage.h"

#include <QBuffer>

#include <array>
#include <cmath>
#include <vector>

namespace folioforge::test {

namespace {

/// The wave of one colour: a row and a column whose products are its values.
struct Wave {
    std::vector<double> row;
    std::vector<double> column;

    Wave(QSize size, double across, double down) {
        for (int x = 0; x < size.width(); ++x) {
            row.push_back(std::sin(x * across));
        }
        for (int y = 0; y < size.height(); ++y) {
            column.push_back(std::cos(y * down));
        }
    }
    [[nodiscard]] int at(std::size_t x, std::size_t y) const {
        return static_cast<int>(128 + 90 * row[x] * column[y]);
    }
};

} // namespace

QImage photo(int width, int height, QImage::Format format) {
    QImage image(width, height, QImage::Format_RGB888);
    const QSize size = image.size();
    const std::array waves{Wave(size, .02, .03), Wave(size, .03, .01), Wave(size, .01, .02)};
    quint32 seed = 1;
    for (int y = 0; y < height; ++y) {
        uchar *pixel = image.scanLine(y);
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525 + 1013904223;
            const int grain = static_cast<int>(seed >> 28) - 8;
            for (const Wave &wave : waves) {
                *pixel++ = static_cast<uchar>(qBound(0, wave.at(x, y) + grain, 255));
            }
        }
    }
    return image.convertToFormat(format);
}

QByteArray jpeg(const QImage &image, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", quality);
    return bytes;
}

QByteArray flate(const QByteArray &bytes) {
    return qCompress(bytes).sliced(4); // Without the four bytes of length in front.
}

QByteArray samplesOf(const QImage &image, int components) {
    QByteArray samples;
    for (int y = 0; y < image.height(); ++y) {
        samples.append(reinterpret_cast<const char *>(image.constScanLine(y)),
                       qsizetype(image.width()) * components);
    }
    return samples;
}

QByteArray imageKeys(int width, int height, const QByteArray &rest) {
    return "/Type /XObject /Subtype /Image /Width " + QByteArray::number(width) + " /Height " +
           QByteArray::number(height) + " " + rest;
}

PdfFixture photoPage(const QByteArray &content, const QByteArray &pageKeys,
                     const QByteArray &resourceKeys) {
    PdfFixture fixture;
    fixture.object(1, kCatalog)
        .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>")
        .object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 400 300] /Contents 4 0 R "
                   "/Resources << /XObject << /Im0 5 0 R /Fm0 6 0 R >> /Font << /F 7 0 R >> " +
                       resourceKeys + " >> " + pageKeys + " >>")
        .stream(4, "", content)
        .object(6, "null")
        .object(7, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    return fixture;
}

double difference(const QImage &one, const QImage &other) {
    if (one.isNull() || one.size() != other.size()) {
        return 255;
    }
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return sum / (double(one.width()) * one.height());
}

} // namespace folioforge::test
