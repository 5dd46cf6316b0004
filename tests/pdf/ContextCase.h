// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"
#include "pdf/PDFContext.h"
#include "support/Files.h"

#include <QImage>
#include <QTemporaryDir>

#include <cstdint>

namespace folioforge::test {

/// A picture whose four quarters are red, green (above), blue and white (below).
inline QImage quarters(int side) {
    QImage image(side, side, QImage::Format_RGB888);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const bool left = x < side / 2;
            const bool top = y < side / 2;
            image.setPixelColor(x, y,
                                top ? (left ? Qt::red : Qt::green) : (left ? Qt::blue : Qt::white));
        }
    }
    return image;
}

inline PdfImage jpegInPlace(const QString &path) {
    PdfImage image;
    const QImage pixels(path);
    image.width = pixels.width();
    image.height = pixels.height();
    image.filter = ImageFilter::Dct;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.source = std::make_shared<const SourceFile>(SourceFile::open(path));
    image.slices = {{0, image.source->version().size}};
    return image;
}

/// A folder with pictures, and contexts that write into it.
class ContextCase {
  protected:
    QTemporaryDir m_folder;
    int m_number = 0;
    std::uint32_t m_checksum = 0; ///< Of what writeImages() wrote, as its writer knows it.

    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString jpeg(const QString &name) const {
        QString path = file(name);
        quarters(64).save(path, "JPEG", 95);
        return path;
    }
    QString newFile(const QString &extension) {
        return file(QStringLiteral("new%1.%2").arg(++m_number).arg(extension));
    }
    static PDFContext::Settings settings() {
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.info.created = QDateTime::fromSecsSinceEpoch(1'700'000'000).toUTC();
        return settings;
    }
    /// One page of 100 x 50 for each of `images`, each drawn over the whole page.
    CloseResult writeImages(const QString &path, const QStringList &images) {
        PDFContext context(path, settings());
        for (const QString &image : images) {
            context.beginPage({0, 0, 100, 50});
            context.drawImage({0, 0, 100, 50}, jpegInPlace(image), 1);
            context.endPage();
        }
        return context.close({}, [this](OutputFile &, std::uint32_t sum) { m_checksum = sum; });
    }
};

} // namespace folioforge::test
