#include "DesktopSession.h"

#include "support/Files.h"
#include "support/PdfProbe.h"

#include <QDir>
#include <QImage>
#include <QRandomGenerator>
#include <QTest>

using namespace folioforge::test;

namespace {

QString program() {
    return QStringLiteral(FOLIOFORGE_BUNDLE_PATH "/Contents/MacOS/folioforge");
}

QStringList filesIn(const QString &folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Adds the file or the folder at `path` through the panel of "Add Files…", and waits until the
/// list shows `name`.
bool add(DesktopSession &desktop, const QString &path, const QString &name) {
    return desktop.press(QStringLiteral("Add Files…")) &&
           desktop.type(QStringLiteral("Add Files"), path) &&
           desktop.key(QStringLiteral("Add Files"), QStringLiteral("Return")) &&
           desktop.find(name).has_value();
}

/// Whether the application ends well, and soon, when it is told to quit.
bool quits(DesktopSession &desktop) {
    QProcess &application = desktop.application();
    return desktop.key(QStringLiteral("Folioforge"), QStringLiteral("ctrl+q")) &&
           application.waitForFinished(10'000) &&
           application.exitStatus() == QProcess::NormalExit && application.exitCode() == 0;
}

QList<QByteArray> bytesIn(const QString &folder) {
    QList<QByteArray> all;
    for (const QString &name : filesIn(folder)) {
        all += readFile(QDir(folder).filePath(name));
    }
    return all;
}

void writeNoise(const QString &path, quint32 seed) {
    constexpr int kSide = 1200;
    QImage image(kSide, kSide, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < kSide; ++y) {
        random.fillRange(reinterpret_cast<quint32 *>(image.scanLine(y)), kSide);
    }
    image.save(path, "PNG");
}

} // namespace

class EndToEndTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void filesOfEveryKindBecomeDocumentsThatALinkOpens();
    void mergedFilesBecomeOneDocument();
    void closingInTheMidstOfARunLeavesOnlyWholeFiles();
};

void EndToEndTest::filesOfEveryKindBecomeDocumentsThatALinkOpens() {
    DesktopSession desktop;
    QVERIFY(desktop.begin());
    const QString in = desktop.path(QStringLiteral("in"));
    const QString out = desktop.path(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(in));
    writeFile(in + QStringLiteral("/letter.txt"), "Good morning from the window\n");
    writePng(in + QStringLiteral("/picture.png"), 300, 200);
    const QString pages = writePdf(desktop.path(QStringLiteral("pages.pdf")), 2);
    QVERIFY(desktop.start(program(), out));
    QVERIFY(add(desktop, in, QStringLiteral("letter.txt")));
    QVERIFY(add(desktop, pages, QStringLiteral("pages.pdf")));

    QVERIFY(desktop.press(QStringLiteral("Show options")));
    QVERIFY(desktop.enter(QStringLiteral("Title"), QStringLiteral("Morning")));
    QVERIFY(desktop.press(QStringLiteral("Create")));
    QVERIFY(QTest::qWaitFor([&] { return filesIn(out).size() == 3; }, 60'000));
    QVERIFY(QTest::qWaitFor(
        [&] { return !desktop.shows(QStringLiteral("Creating PDF documents")); }, 60'000));

    QCOMPARE(filesIn(out), QStringList({QStringLiteral("letter.pdf"), QStringLiteral("pages.pdf"),
                                        QStringLiteral("picture.pdf")}));
    const PdfProbe letter(out + QStringLiteral("/letter.pdf"));
    QVERIFY(letter.isValid());
    QCOMPARE(letter.text().trimmed(), QStringLiteral("Good morning from the window"));
    QCOMPARE(letter.info(QStringLiteral("Title")), QStringLiteral("Morning"));
    const PdfProbe picture(out + QStringLiteral("/picture.pdf"));
    QCOMPARE(picture.box(QStringLiteral("MediaBox"), 1), QRectF(0, 0, 300, 200));
    QCOMPARE(PdfProbe(out + QStringLiteral("/pages.pdf")).pageCount(), 2);

    QCOMPARE(desktop.opened(), QByteArray());
    QVERIFY(desktop.click(QStringLiteral("letter.pdf")));
    QVERIFY(QTest::qWaitFor([&] { return !desktop.opened().isEmpty(); }, 30'000));
    QCOMPARE(desktop.opened().trimmed(), QFile::encodeName(out + QStringLiteral("/letter.pdf")));

    QVERIFY(quits(desktop));
}

void EndToEndTest::mergedFilesBecomeOneDocument() {
    DesktopSession desktop;
    QVERIFY(desktop.begin());
    const QString in = desktop.path(QStringLiteral("in"));
    const QString out = desktop.path(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(in));
    writeFile(in + QStringLiteral("/letter.txt"), "Good evening\n");
    const QString pages = writePdf(desktop.path(QStringLiteral("pages.pdf")), 2);
    QVERIFY(desktop.start(program(), out));
    QVERIFY(add(desktop, in, QStringLiteral("letter.txt")));
    QVERIFY(add(desktop, pages, QStringLiteral("pages.pdf")));

    QVERIFY(desktop.press(QStringLiteral("Merge into one PDF")));
    QVERIFY(desktop.enter(QStringLiteral("Name of the merged PDF"), QStringLiteral("all")));
    QVERIFY(desktop.press(QStringLiteral("Create")));
    QVERIFY(QTest::qWaitFor([&] { return filesIn(out) == QStringList{QStringLiteral("all.pdf")}; },
                            60'000));
    const PdfProbe merged(out + QStringLiteral("/all.pdf"));
    QVERIFY(merged.isValid());
    QCOMPARE(merged.pageCount(), 3);
}

void EndToEndTest::closingInTheMidstOfARunLeavesOnlyWholeFiles() {
    constexpr int kTimes = 20;
    constexpr int kPictures = 6;
    constexpr quint32 kSeed = 20260;
    qInfo("seed %u", kSeed);
    QRandomGenerator random(kSeed);
    DesktopSession desktop;
    QVERIFY(desktop.begin());
    const QString in = desktop.path(QStringLiteral("in"));
    QVERIFY(QDir().mkpath(in));
    for (int i = 0; i < kPictures; ++i) {
        writeNoise(QStringLiteral("%1/noise%2.png").arg(in).arg(i), quint32(i));
    }
    const QList<QByteArray> sources = bytesIn(in);
    int cutShort = 0;
    for (int time = 0; time < kTimes; ++time) {
        const QString out = desktop.path(QStringLiteral("out%1").arg(time));
        QVERIFY(desktop.start(program(), out));
        QVERIFY(add(desktop, in, QStringLiteral("noise0.png")));
        QVERIFY(desktop.press(QStringLiteral("Create")));
        // The moment is the point: any of them, the same ones on every run of the test.
        QTest::qWait(random.bounded(300));
        QVERIFY(quits(desktop));

        for (const QString &name : filesIn(out)) {
            QVERIFY2(PdfProbe(out + u'/' + name).isValid(), qUtf8Printable(name));
        }
        QVERIFY2(filesIn(desktop.temporaryFolder()).isEmpty(),
                 qUtf8Printable(filesIn(desktop.temporaryFolder()).join(u' ')));
        QCOMPARE(bytesIn(in), sources);
        cutShort += filesIn(out).size() < kPictures ? 1 : 0;
    }
    qInfo("%d of %d runs were cut short", cutShort, kTimes);
    QVERIFY(cutShort > 0);
}

QTEST_GUILESS_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
