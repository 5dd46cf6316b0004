// SPDX-License-Identifier: Apache-2.0

#include "hostile/HostileImages.h"
#include "hostile/HostileRuns.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QImage>
#include <QRandomGenerator>

#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Pictures made to exhaust the program, and pictures for which there is little memory, end soon
/// and within 2 GiB of addresses: with a right PDF or with words.
class PictureLimitsTest : public QObject, private HostileRuns {
    Q_OBJECT

    /// The addresses to try, of which megabytes are given: from the least with which the program
    /// starts at all. A sanitized program takes what it wants, and is tried once.
    static std::vector<qint64> littleMemory(qint64 least, qint64 most, qint64 step) {
        if (isSanitized()) {
            return {0};
        }
        constexpr qint64 kMegabyte = 1 << 20;
        std::vector<qint64> sizes;
        for (qint64 size = least * kMegabyte; size < most * kMegabyte; size += step * kMegabyte) {
            if (runLimited(commandLineProgram(), {u"--version"_s}, {size}).exitCode == 0) {
                sizes.push_back(size);
            }
        }
        return sizes;
    }
    /// A picture that cannot be compressed.
    QString noise(const QString &name, QImage::Format format) const {
        constexpr int kSide = 1200;
        QImage image(kSide, kSide, format);
        auto *pixels = reinterpret_cast<quint32 *>(image.bits());
        QRandomGenerator(11).generate(pixels, pixels + qsizetype{kSide} * kSide);
        return image.save(path(name)) ? path(name) : QString();
    }

  private Q_SLOTS:
    void init() { begin(); }

    void imagesOverThePixelBoundAreRefused_data() {
        QTest::addColumn<QByteArray>("bytes");
        constexpr quint32 kSide = 30'000; // 900 million pixels.
        for (const auto &[extension, bytes] : imageHeaders(kSide)) {
            QTest::newRow(extension) << bytes;
        }
    }
    void imagesOverThePixelBoundAreRefused() {
        QFETCH(QByteArray, bytes);
        const QString name = u"claim."_s + QLatin1StringView(QTest::currentDataTag());
        QCOMPARE(answerTo({saved(name, bytes)}),
                 u"The image is too large (30000 x 30000 pixels)"_s);
    }

    void imagesThatUnfoldAreConverted_data() {
        addColumns();
        addRow("transparent PNG", transparentPng, 10'000, 1000);
        addRow("TIFF", deflatedTiff, 20'000, 2000);
        addRow("profile", pngWithProfile, 1LL << 30, 64 << 20);
    }
    void imagesThatUnfoldAreConverted() {
        QCOMPARE(answerTo({saved(u"image.png"_s, fetched())}), valid());
    }

    void littleMemoryGivesARightDocumentOrWords_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("bitmap") << u"noise.bmp"_s << QStringList();
        QTest::newRow("PNG") << u"noise.png"_s << QStringList();
        QTest::newRow("PDF") << u"noise.pdf"_s << QStringList();
        QTest::newRow("compressed PDF") << u"noise.pdf"_s << QStringList{u"--compress"_s, u"72l"_s};
    }
    void littleMemoryGivesARightDocumentOrWords() {
        QFETCH(const QString, name);
        QFETCH(const QStringList, options);
        QString source = noise(name, QImage::Format_RGB32);
        if (source.isEmpty()) {
            QCOMPARE(answerTo({noise(u"noise.png"_s, QImage::Format_ARGB32),
                               noise(u"noise.jpg"_s, QImage::Format_RGB32)}),
                     valid());
            source = path(name);
            QVERIFY(QFile::rename(target(), source));
        }
        for (const qint64 size : littleMemory(64, 190, sized(1, 8))) {
            const QString answer = answerTo(options + QStringList{source}, {size});
            QVERIFY2(answer == valid() || answer.contains(u"memory"_s),
                     qPrintable(u"%1 MB: %2"_s.arg(size >> 20).arg(answer)));
        }
    }

    void littleMemoryForAJpegXlGivesARightDocumentOrWords() {
        const QString source = path(u"plain.jxl"_s);
        const QString plain = path(u"plain.png"_s);
        runTool(u"convert"_s, {u"-size"_s, u"4000x3000"_s, u"xc:white"_s, plain});
        QCOMPARE(runTool(u"cjxl"_s, {u"-d"_s, u"0"_s, u"-e"_s, u"3"_s, plain, source}).exitCode, 0);
        for (const qint64 size : littleMemory(200, 1000, 100)) {
            const QString answer = answerTo({source}, {size});
            QVERIFY2(answer == valid() || answer.contains(u"memory"_s), qPrintable(answer));
        }
    }
};

FOLIOFORGE_TEST(PictureLimitsTest)
#include "PictureLimitsTest.moc"
