// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "WrittenTiff.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// TIFF files of several pages.
class TiffPagesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void furtherPagesAreNamed_data() {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<int>("pages");
        QTest::addColumn<QStringList>("warnings");
        const auto add = [](const char *mode, int pages, const QStringList &warnings) {
            QTest::addRow("%d pages, %s", pages, mode) << QByteArray(mode) << pages << warnings;
        };
        for (const char *mode : {"l", "b", "8l", "8b"}) {
            add(mode, 1, {});
            add(mode, 2, {u"more-pictures: 1 further page is left out"_s});
            add(mode, 12, {u"more-pictures: 11 further pages are left out"_s});
        }
    }

    void furtherPagesAreNamed() {
        QFETCH(const QByteArray, mode);
        QFETCH(const int, pages);
        QFETCH(const QStringList, warnings);
        const QString path = pagesOf(mode, std::vector<int>(static_cast<size_t>(pages), 0));
        QCOMPARE(warningsOf(toPdfImage(path)), warnings);
    }

    void smallerCopiesAndMasksAreNoPages() {
        const QString path = pagesOf("l", {0, FILETYPE_REDUCEDIMAGE, FILETYPE_MASK, FILETYPE_PAGE});
        QCOMPARE(warningsOf(toPdfImage(path)),
                 QStringList(u"more-pictures: 1 further page is left out"_s));
    }

    void pagesBehindTheEndAreNamed() {
        const QString path = pagesOf("l", {0, 0, 0});
        const QByteArray bytes = bytesOf(path);
        // The last directory ends with 0, as no other follows: half of it is not there.
        const QString cut = writeFile(m_folder.filePath(u"cut.tif"_s), bytes.chopped(60));
        QCOMPARE(warningsOf(toPdfImage(cut)).first(),
                 u"picture-damaged: The file names a further page that cannot be read"_s);
    }

    void pagesThatLeadBackEnd() {
        QByteArray bytes = bytesOf(pagesOf("l", {0}));
        const qsizetype first = qFromLittleEndian<quint32>(bytes.constData() + 4);
        const qsizetype next =
            first + 2 + 12 * qFromLittleEndian<quint16>(bytes.constData() + first);
        qToLittleEndian(static_cast<quint32>(first), bytes.data() + next);
        const QString path = writeFile(m_folder.filePath(u"circle.tif"_s), bytes);
        QCOMPARE(warningsOf(toPdfImage(path)), QStringList());
    }

    void eachPageGoesInAsItsOwnBytesWhereAPdfCanHoldThem() {
        const QString path = pagesOfThreeKinds();
        QList<QByteArray> own;
        const auto tif = openTiff(path, "r");
        for (uint16_t page : {0, 1, 2}) {
            TIFFSetDirectory(tif.get(), page);
            QByteArray strip(static_cast<qsizetype>(TIFFRawStripSize(tif.get(), 0)), '\0');
            TIFFReadRawStrip(tif.get(), 0, strip.data(), strip.size());
            own += strip;
        }
        const auto pictures = picturesOf(path);
        QCOMPARE(pictures.size(), size_t(3));
        QCOMPARE(dataOf(pictures[0]), own[0]);
        QCOMPARE(pictures[0].filter, ImageFilter::CcittFax);
        QCOMPARE(pictures[1].filter, ImageFilter::Dct);
        QCOMPARE(pictures[1].embeddedAs, EmbeddedAs::OwnBytes);
        // The tables that the TIFF keeps apart stand before the rest of the strip.
        QVERIFY(dataOf(pictures[1]).endsWith(own[1].sliced(2)));
        QVERIFY(dataOf(pictures[1]).size() > own[1].size());
        QCOMPARE(decoded(pictures[1]).size(), QSize(16, 8));
        QCOMPARE(pictures[2].embeddedAs, EmbeddedAs::Recompressed);
        QCOMPARE(rgbRows(pictures[2]).toHex(), QByteArray("010101020202"));
    }

    void aPageThatCannotBeReadIsLeftOutAndNamed() {
        QByteArray bytes = bytesOf(pagesOf("l", {0, 0, 0}));
        const QByteArray compression("\x03\x01\x03\x00\x01\x00\x00\x00", 8); // And its value.
        const qsizetype first = bytes.indexOf(compression);
        bytes[bytes.indexOf(compression, first + 1) + 8] = '\x99';
        const QString path = writeFile(m_folder.filePath(u"middle.tif"_s), bytes);
        Warnings warnings;
        QCOMPARE(picturesOf(path, &warnings).size(), size_t(2));
        QCOMPARE(warnings, (Warnings{{WarningCode::PictureDamaged,
                                      u"Page 2: It is left out: The TIFF file cannot be read: its "
                                      u"compression is not supported"_s}}));
    }

  private:
    QTemporaryDir m_folder;

    /// A file with a page of each of these kinds (tag 254), written by libtiff in this mode.
    QString pagesOf(const QByteArray &mode, const std::vector<int> &kinds) {
        QString path = m_folder.filePath(u"pages.tif"_s);
        const auto tif = openTiff(path, ("w" + mode).constData());
        for (const int kind : kinds) {
            setSamples(tif.get(), 1, 8, PHOTOMETRIC_MINISBLACK);
            TIFFSetField(tif.get(), TIFFTAG_SUBFILETYPE, kind);
            TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, 2);
            TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, 1);
            QByteArray row("\1\2", 2);
            TIFFWriteEncodedStrip(tif.get(), 0, row.data(), row.size());
            TIFFWriteDirectory(tif.get());
        }
        return path;
    }

    /// A page in Group 4, one in JPEG and one of two grey pixels.
    QString pagesOfThreeKinds() {
        QString path = m_folder.filePath(u"kinds.tif"_s);
        const auto tif = openTiff(path, "w");
        const auto add = [&](int width, int height, int compression, int bits, QByteArray rows) {
            TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, width);
            TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, height);
            TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, height);
            TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, compression);
            setSamples(tif.get(), 1, bits, PHOTOMETRIC_MINISBLACK);
            TIFFWriteEncodedStrip(tif.get(), 0, rows.data(), rows.size());
            TIFFWriteDirectory(tif.get());
        };
        add(16, 2, COMPRESSION_CCITTFAX4, 1, QByteArray::fromHex("0ff0f00f"));
        add(16, 8, COMPRESSION_JPEG, 8, QByteArray(128, '\x40'));
        add(2, 1, COMPRESSION_NONE, 8, QByteArray("\1\2", 2));
        return path;
    }
};

FOLIOFORGE_TEST(TiffPagesTest)
#include "TiffPagesTest.moc"
