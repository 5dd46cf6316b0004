// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/CompressionPass.h"
#include "compress/QuartzFilter.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>
#include <utility>

namespace folioforge::test {

/// A folder with the filters of the application, a document at m_path and a place for the copy.
class CompressionCase {
  protected:
    static constexpr int kWidthColumn = 3;
    static constexpr int kHeightColumn = 4;
    static constexpr int kColorColumn = 5;
    static constexpr int kEncodingColumn = 8;

    inline static const QByteArray kFlateGrey{
        "/ColorSpace /DeviceGray /BitsPerComponent 8 /Filter /FlateDecode"};

    void setUp() {
        m_folder = std::make_unique<QTemporaryDir>();
        const QDir folder(m_folder->path());
        QVERIFY(folder.mkpath(QStringLiteral("bundle/Contents/Resources")));
        QVERIFY(folder.mkpath(QStringLiteral("temporary")));
        m_temporaryFolder = folder.filePath(QStringLiteral("temporary"));
        for (int index = 1; index <= 3; ++index) {
            const QString name = quartzFilterName(index);
            QVERIFY(QFile::copy(inSource(QStringLiteral("resources/filters/%1.qfilter")).arg(name),
                                filterFile(index)));
        }
        m_path = folder.filePath(QStringLiteral("document.pdf"));
    }

    /// The file of the filter at row `index` of the compress methods.
    QString filterFile(int index) const {
        return quartzFilterPath(m_folder->filePath(QStringLiteral("bundle")),
                                quartzFilterName(index));
    }

    CompressionOutcome run(int index) const { return compress(m_path, optionsOf(index)); }
    CompressionOptions optionsOf(int index) const { return {filterFile(index), m_temporaryFolder}; }

    /// Compresses through "150m" and says where the result stands, a copy or the document that no
    /// copy is smaller than; fails the test on an error.
    QString compressed(CompressionOutcome *outcome = nullptr) const {
        CompressionOutcome own = run(1);
        if (!own.error.isEmpty()) {
            QTest::qFail(qPrintable(own.error), __FILE__, __LINE__);
            return {};
        }
        QString path = kept(own.convertInfo);
        if (outcome) {
            *outcome = std::move(own);
        }
        return path;
    }

    /// Where the copy of `record` stands until the test ends; the document where there is none.
    QString kept(const std::optional<ConvertInfo> &record) const {
        m_record = record;
        return record ? record->tempFilePathName : m_path;
    }

    /// A photo of 1200 x 900 pixels in an RGB JPEG as /Im0 of photoPage().
    void writeJpegPage(const QByteArray &content, const QByteArray &pageKeys = {}) const {
        writePage(photoPage(content, pageKeys));
    }
    void writePage(PdfFixture page) const {
        QVERIFY(
            page.stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900))).write(m_path));
    }

    /// A photo of 1200 x 900 pixels as /Im0 of photoPage(), with the data of a grey picture of
    /// width x height pixels as its soft mask.
    void writeMaskedPage(const QByteArray &content, int width, int height,
                         const QByteArray &opacity) const {
        QVERIFY(
            photoPage(content)
                .stream(5, imageKeys(1200, 900, kJpegRgb + " /SMask 8 0 R"), jpeg(photo(1200, 900)))
                .stream(8, imageKeys(width, height, kFlateGrey), opacity)
                .write(m_path));
    }
    /// The data of such a soft mask.
    static QByteArray opacity(int width, int height) {
        return flate(samplesOf(photo(width, height, QImage::Format_Grayscale8), 1));
    }

    /// `page` saying in its metadata that it is PDF/A of this part.
    static PdfFixture claiming(PdfFixture page, const QByteArray &part) {
        return page.object(1, "<< /Type /Catalog /Pages 2 0 R /Metadata 20 0 R >>")
            .stream(20, "/Type /Metadata /Subtype /XML",
                    "<r:RDF xmlns:r=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><r:Description "
                    "xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\" pdfaid:part=\"" +
                        part + "\"/></r:RDF>");
    }

    /// How far the first page of the copy looks from the document's.
    [[nodiscard]] double changeOf(const QString &copy) const {
        return difference(PdfProbe(m_path).render(1, 100), PdfProbe(copy).render(1, 100));
    }

    /// The one image of the copy is in `colour` and has half its 1200 columns, and the page looks
    /// as it did.
    void isHalved(const QString &copy, const QString &color) const {
        const auto images = PdfProbe(copy).images();
        QCOMPARE(images.size(), 1);
        QCOMPARE(images[0][kWidthColumn], QStringLiteral("600"));
        QCOMPARE(images[0][kColorColumn], color);
        QVERIFY(changeOf(copy) < 5);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_temporaryFolder;
    QString m_path;
    mutable std::optional<ConvertInfo> m_record; ///< Holds the copy that was made last.
};

} // namespace folioforge::test
