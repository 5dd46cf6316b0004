// SPDX-License-Identifier: Apache-2.0

#include "DesktopSession.h"

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QImage>
#include <QRandomGenerator>
#include <QTest>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

using namespace folioforge::test;

namespace {

QString program() {
    return windowProgram();
}

QString sourceFolder(const DesktopSession &desktop) {
    return desktop.path(u"in"_s);
}

QString outputFolder(const DesktopSession &desktop) {
    return desktop.path(u"out"_s);
}

QStringList filesIn(const QString &folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Adds the file or the folder at `path` through the panel of "Add Files…", and waits until the
/// list shows `name`.
bool add(DesktopSession &desktop, const QString &path, const QString &name) {
    return desktop.press(u"Add Files…"_s) && desktop.enter(u"File name:"_s, path) &&
           desktop.press(u"Open"_s) && desktop.find(name).has_value();
}

/// Whether the application ends well, and soon.
bool ends(DesktopSession &desktop) {
    QProcess &application = desktop.application();
    return application.waitForFinished(10'000) &&
           application.exitStatus() == QProcess::NormalExit && application.exitCode() == 0;
}

bool quits(DesktopSession &desktop) {
    return desktop.key(u"Folioforge"_s, u"ctrl+q"_s) && ends(desktop);
}

QList<QByteArray> bytesIn(const QString &folder) {
    QList<QByteArray> all;
    for (const QString &name : filesIn(folder)) {
        all += readFile(QDir(folder).filePath(name));
    }
    return all;
}

constexpr int kSide = 1200; ///< Pixels of a picture of noise.

void writeNoise(const QString &path, quint32 seed) {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < kSide; ++y) {
        random.fillRange(reinterpret_cast<quint32 *>(image.scanLine(y)), kSide);
    }
    image.save(path, "PNG");
}

/// Starts the application and lists, after what the source folder holds, a letter in it and a PDF
/// of two pages.
bool listLetterAndPages(DesktopSession &desktop, const QByteArray &letter) {
    const QString in = sourceFolder(desktop);
    QDir().mkpath(in);
    writeFile(in + u"/letter.txt"_s, letter);
    const QString pages = writePdf(desktop.path(u"pages.pdf"_s), 2);
    return desktop.start(program(), outputFolder(desktop)) && add(desktop, in, u"letter.txt"_s) &&
           add(desktop, pages, u"pages.pdf"_s);
}

/// Presses Create and waits until the output folder holds `count` files and the run is over.
bool create(DesktopSession &desktop, int count) {
    return desktop.press(u"Create"_s) &&
           QTest::qWaitFor([&] { return filesIn(outputFolder(desktop)).size() == count; },
                           60'000) &&
           QTest::qWaitFor([&] { return !desktop.shows(u"Creating PDF documents"_s); }, 60'000);
}

/// Fills the source folder with `count` pictures of noise.
void writePictures(const DesktopSession &desktop, int count) {
    QDir().mkpath(sourceFolder(desktop));
    for (int i = 0; i < count; ++i) {
        writeNoise(u"%1/noise%2.png"_s.arg(sourceFolder(desktop)).arg(i), quint32(i));
    }
}

/// Starts the application with the pictures of the source folder in its list.
bool listPictures(DesktopSession &desktop, const QString &out) {
    return desktop.start(program(), out) && add(desktop, sourceFolder(desktop), u"noise0.png"_s);
}

/// Starts a run, waits and quits in the midst of it.
bool quitsDuringARun(DesktopSession &desktop, const QString &out, int milliseconds) {
    if (!listPictures(desktop, out) || !desktop.press(u"Create"_s)) {
        return false;
    }
    QTest::qWait(milliseconds);
    return quits(desktop);
}

/// Starts a run into one PDF with the strongest compression. A PDF has its name when it is written
/// and before the pass begins: waits for that, then for `milliseconds`, and quits.
bool quitsDuringThePass(DesktopSession &desktop, const QString &out, int milliseconds) {
    if (!listPictures(desktop, out) || !desktop.press(u"Merge into one PDF"_s) ||
        !desktop.press(u"Show options"_s) ||
        !desktop.press(u"None"_s) || // Qt calls a list by its choice here.
        !desktop.click(u"72l, strong: good for mail"_s) || !desktop.press(u"Create"_s) ||
        !QTest::qWaitFor([&] { return !filesIn(out).isEmpty(); }, 60'000)) {
        return false;
    }
    QTest::qWait(milliseconds);
    return quits(desktop);
}

/// Whether the pictures of the PDF at `path` still have all their pixels.
bool isUncompressed(const QString &path) {
    const QList<QStringList> images = PdfProbe(path).images();
    constexpr int kWidthColumn = 3;
    return !images.isEmpty() && std::ranges::all_of(images, [](const QStringList &row) {
        return row.value(kWidthColumn) == QString::number(kSide);
    });
}

} // namespace

class EndToEndTest : public QObject {
    Q_OBJECT

  private:
    void checkDocuments(const QString &out) {
        QCOMPARE(filesIn(out), QStringList({u"letter.pdf"_s, u"pages.pdf"_s, u"picture.pdf"_s}));
        const PdfProbe letter(out + u"/letter.pdf"_s);
        QVERIFY(letter.isValid());
        QCOMPARE(letter.text().trimmed(), u"Good morning from the window"_s);
        QCOMPARE(letter.info(u"Title"_s), u"Morning"_s);
        const PdfProbe picture(out + u"/picture.pdf"_s);
        QCOMPARE(picture.box(u"MediaBox"_s, 1), QRectF(0, 0, 300, 200));
        QCOMPARE(PdfProbe(out + u"/pages.pdf"_s).pageCount(), 2);
    }

    void checkThatALinkOpens(DesktopSession &desktop, const QString &name) {
        QCOMPARE(desktop.opened(), QByteArray());
        QVERIFY(desktop.click(name));
        QVERIFY(QTest::qWaitFor([&] { return !desktop.opened().isEmpty(); }, 30'000));
        QCOMPARE(desktop.opened().trimmed(),
                 QFile::encodeName(outputFolder(desktop) + u'/' + name));
    }

    void checkThatOnlyWholeFilesAreLeft(const DesktopSession &desktop, const QString &out) {
        for (const QString &name : filesIn(out)) {
            QVERIFY2(PdfProbe(out + u'/' + name).isValid(), qUtf8Printable(name));
        }
        const QStringList temporary = filesIn(desktop.temporaryFolder());
        QVERIFY2(temporary.isEmpty(), qUtf8Printable(temporary.join(u' ')));
    }

  private Q_SLOTS:
    void filesThatTheDesktopHandsOverAreListedInTheirOrder() {
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        const QString in = sourceFolder(desktop);
        QVERIFY(QDir().mkpath(in));
        writeFile(in + u"/--b.txt"_s, "Last\n");
        writePng(in + u"/a.png"_s, 30, 20);
        const QStringList files = {in + u"/a.png"_s, u"--"_s, u"--b.txt"_s};
        QVERIFY(desktop.start(u"env"_s, outputFolder(desktop),
                              QStringList{u"-C"_s, in, program()} + files));
        QVERIFY(desktop.find(u"--b.txt"_s).has_value());
        QVERIFY(desktop.press(u"Merge into one PDF"_s));
        QVERIFY(create(desktop, 1));
        const PdfProbe merged(outputFolder(desktop) + u"/a.pdf"_s);
        QCOMPARE(merged.pageCount(), 2);
        QCOMPARE(merged.text().trimmed(), u"Last"_s);
        QCOMPARE(merged.box(u"MediaBox"_s, 1), QRectF(0, 0, 30, 20));
        QVERIFY(quits(desktop));
    }

    void filesOfEveryKindBecomeDocumentsThatALinkOpens() {
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        QVERIFY(QDir().mkpath(sourceFolder(desktop)));
        writePng(sourceFolder(desktop) + u"/picture.png"_s, 300, 200);
        QVERIFY(listLetterAndPages(desktop, "Good morning from the window\n"));
        QVERIFY(desktop.press(u"Show options"_s));
        QVERIFY(desktop.enter(u"Title"_s, u"Morning"_s));
        QVERIFY(create(desktop, 3));
        checkDocuments(outputFolder(desktop));
        checkThatALinkOpens(desktop, u"letter.pdf"_s);
        QVERIFY(quits(desktop));
    }

    void mergedFilesBecomeOneDocument() {
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        QVERIFY(listLetterAndPages(desktop, "Good evening\n"));
        QVERIFY(desktop.press(u"Merge into one PDF"_s));
        QVERIFY(desktop.enter(u"Name of the merged PDF"_s, u"all"_s));
        QVERIFY(create(desktop, 1));
        QCOMPARE(filesIn(outputFolder(desktop)), QStringList{u"all.pdf"_s});
        const PdfProbe merged(outputFolder(desktop) + u"/all.pdf"_s);
        QVERIFY(merged.isValid());
        QCOMPARE(merged.pageCount(), 3);
    }

    void closedDescriptorsAreTakenByNoFile() {
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        desktop.application().setChildProcessModifier([] {
            ::close(STDIN_FILENO);
            ::close(STDOUT_FILENO);
            ::close(STDERR_FILENO);
        });
        QVERIFY(desktop.start(program(), outputFolder(desktop)));
        for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
            QCOMPARE(
                QFile::symLinkTarget(
                    u"/proc/%1/fd/%2"_s.arg(desktop.application().processId()).arg(descriptor)),
                u"/dev/null"_s);
        }
        QVERIFY(quits(desktop));
    }

    void closingInTheMidstOfARunLeavesOnlyWholeFiles() {
        constexpr int kTimes = 8;
        constexpr int kPictures = 6;
        constexpr quint32 kSeed = 20260;
        qInfo("seed %u", kSeed);
        QRandomGenerator random(kSeed);
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        writePictures(desktop, kPictures);
        const QList<QByteArray> sources = bytesIn(sourceFolder(desktop));
        int cutShort = 0;
        for (int time = 0; time < kTimes; ++time) {
            const QString out = desktop.path(u"out%1"_s.arg(time));
            // The moment is the point: any of them from first to last, the same ones on every run
            // of the test.
            constexpr int kMilliseconds = 300 / kTimes;
            QVERIFY(quitsDuringARun(desktop, out,
                                    kMilliseconds * time + random.bounded(kMilliseconds)));
            checkThatOnlyWholeFilesAreLeft(desktop, out);
            QCOMPARE(bytesIn(sourceFolder(desktop)), sources);
            cutShort += filesIn(out).size() < kPictures ? 1 : 0;
        }
        qInfo("%d of %d runs were cut short", cutShort, kTimes);
        QVERIFY(cutShort > 0);
    }

    void closingDuringTheCompressionPassLeavesTheWholeFile() {
        constexpr int kTimes = 4;
        constexpr int kPictures = 8;
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        writePictures(desktop, kPictures);
        int cutShort = 0;
        for (int time = 0; time < kTimes; ++time) {
            const QString out = desktop.path(u"out%1"_s.arg(time));
            QVERIFY(quitsDuringThePass(desktop, out, 50 * time));
            checkThatOnlyWholeFilesAreLeft(desktop, out);
            const QStringList names = filesIn(out);
            QCOMPARE(names.size(), 1);
            cutShort += isUncompressed(QDir(out).filePath(names.front())) ? 1 : 0;
        }
        qInfo("%d of %d passes were cut short", cutShort, kTimes);
        QVERIFY(cutShort > 0);
    }

    void closingTheWindowDuringARunEndsTheApplication() {
        constexpr int kPictures = 12;
        DesktopSession desktop;
        QVERIFY(desktop.begin());
        writePictures(desktop, kPictures);
        const QString out = outputFolder(desktop);
        QVERIFY(listPictures(desktop, out));
        QVERIFY(desktop.press(u"Create"_s));
        QVERIFY(QTest::qWaitFor([&] { return !filesIn(out).isEmpty(); }, 60'000));
        QVERIFY(desktop.close(u"Folioforge"_s));
        QVERIFY(ends(desktop));
        QVERIFY(filesIn(out).size() < kPictures);
        checkThatOnlyWholeFilesAreLeft(desktop, out);
    }
};

FOLIOFORGE_TEST(EndToEndTest)
#include "EndToEndTest.moc"
