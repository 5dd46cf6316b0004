// SPDX-License-Identifier: Apache-2.0

#include "preview/PageProcess.h"
#include "preview/Preview.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

struct Drawn {
    std::optional<DrawnPage> page;
    QString reason;
};

Drawn draw(const PageRequest &request, const QString &password = {}) {
    PageProcess process(Preview::programIn(bundlePath()));
    Drawn drawn;
    bool isDone = false;
    QObject::connect(&process, &PageProcess::drawn, &process, [&](const DrawnPage &page) {
        drawn.page = page;
        isDone = true;
    });
    QObject::connect(&process, &PageProcess::failed, &process, [&](const QString &reason) {
        drawn.reason = reason;
        isDone = true;
    });
    process.draw(request, password);
    [&] { QTRY_VERIFY_WITH_TIMEOUT(isDone, 30'000); }();
    return drawn;
}

QImage imageOf(const DrawnPage &page) {
    return QImage(reinterpret_cast<const uchar *>(page.pixels.constData()), page.size.width(),
                  page.size.height(), QImage::Format_RGB32)
        .copy();
}

/// Programs draw edges differently: how dark the parts of a page are tells what stands there.
QImage small(const QImage &page) {
    return page.scaled(page.size() / 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A page of so many points.
QString writePage(const QString &path, const QByteArray &box) {
    PdfFixture pdf;
    pdf.object(1, "<</Type/Catalog/Pages 2 0 R>>")
        .object(2, "<</Type/Pages/Kids[3 0 R]/Count 1>>")
        .object(3, "<</Type/Page/Parent 2 0 R/MediaBox[" + box + "]>>");
    return pdf.write(path) ? path : QString();
}

} // namespace

/// The program that draws pages, as the window starts it.
class DrawingProgramTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

  private Q_SLOTS:
    void pagesLookAsPopplerDrawsThem_data() {
        QTest::addColumn<QString>("file");
        for (const QString &name :
             QDir(inSource(u"tests/data/pdf"_s)).entryList({u"*.pdf"_s}, QDir::Files)) {
            QTest::newRow(qPrintable(name)) << inSource(u"tests/data/pdf/"_s + name);
        }
    }
    void pagesLookAsPopplerDrawsThem() {
        QFETCH(const QString, file);
        const PdfProbe probe(file);
        const QImage expected = probe.render(1, 144);
        const Drawn drawn = draw({file, 0, expected.size()});
        QVERIFY2(drawn.page, qPrintable(drawn.reason));
        QCOMPARE(drawn.page->pages, probe.pageCount());
        QCOMPARE(drawn.page->size, expected.size());
        QImage blank(expected.size(), QImage::Format_RGB32);
        blank.fill(Qt::white);
        QVERIFY(difference(small(imageOf(*drawn.page)), small(expected)) <
                difference(small(blank), small(expected)) / 4);
    }

    void eachPageIsDrawnAndForOneBeyondThemTheLast_data() {
        QTest::addColumn<int>("asked");
        QTest::addColumn<int>("page");
        QTest::newRow("first") << 0 << 0;
        QTest::newRow("second") << 1 << 1;
        QTest::newRow("beyond") << 1'000'000'000 << 2;
    }
    void eachPageIsDrawnAndForOneBeyondThemTheLast() {
        QFETCH(const int, asked);
        QFETCH(const int, page);
        const QString file = writePdf(path(u"three.pdf"_s), 3);
        const Drawn drawn = draw({file, asked, {440, 440}});
        QVERIFY(drawn.page);
        QCOMPARE(drawn.page->page, page);
        // The pages measure 200, 210 and 220 x 100 points.
        const int width = 200 + 10 * page;
        QCOMPARE(drawn.page->size, QSize(440, qRound(440 * 100.0 / width)));
    }

    void aPasswordOpensAProtectedPdf() {
        const QString file =
            encryptPdf(writePdf(path(u"open.pdf"_s), 2), path(u"closed.pdf"_s), u"s€cret"_s);
        QCOMPARE(draw({file, 0, {99, 99}}).reason, u"The PDF asks for a password"_s);
        QCOMPARE(draw({file, 0, {99, 99}}, u"other"_s).reason, u"The PDF asks for a password"_s);
        QVERIFY(draw({file, 0, {99, 99}}, u"s€cret"_s).page);
    }

    void aPageOfOddSizeFitsItsRoom_data() {
        QTest::addColumn<QByteArray>("box");
        QTest::newRow("wide") << QByteArray("0 0 14400 1");
        QTest::newRow("high") << QByteArray("0 0 1 14400");
        QTest::newRow("huge") << QByteArray("0 0 1000000 1000000");
        QTest::newRow("upside down") << QByteArray("100 200 0 0");
    }
    void aPageOfOddSizeFitsItsRoom() {
        QFETCH(const QByteArray, box);
        const Drawn drawn = draw({writePage(path(u"odd.pdf"_s), box), 0, {300, 200}});
        QVERIFY2(drawn.page, qPrintable(drawn.reason));
        QCOMPARE(drawn.page->size.boundedTo({300, 200}), drawn.page->size);
    }

    void whatIsNoPdfIsSaidInWords() {
        QCOMPARE(draw({writeFile(path(u"words.pdf"_s), "words\n"), 0, {99, 99}}).reason,
                 u"The PDF cannot be read"_s);
        QCOMPARE(draw({path(u"none.pdf"_s), 0, {99, 99}}).reason, u"The PDF cannot be read"_s);
    }

    void damagedPdfsAreDrawnOrRefusedInWords() {
        constexpr int kTimes = 3;
        constexpr quint32 kSeed = 20261;
        qInfo("seed %u", kSeed);
        QRandomGenerator random(kSeed);
        const QDir folder(inSource(u"tests/data/pdf"_s));
        for (const QString &name : folder.entryList({u"*.pdf"_s}, QDir::Files)) {
            const QByteArray whole = readFile(folder.filePath(name));
            for (int time = 0; time < kTimes; ++time) {
                QByteArray bytes =
                    whole.first(random.bounded(int(whole.size() / 2), int(whole.size())));
                for (int i = 0; i < 40; ++i) {
                    bytes[random.bounded(int(bytes.size()))] = char(random.bounded(256));
                }
                const Drawn drawn = draw({writeFile(path(u"damaged.pdf"_s), bytes), 0, {200, 200}});
                QVERIFY(drawn.page.has_value() != !drawn.reason.isEmpty());
            }
        }
    }
};

FOLIOFORGE_TEST(DrawingProgramTest)
#include "DrawingProgramTest.moc"
