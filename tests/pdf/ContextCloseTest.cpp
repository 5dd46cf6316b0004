// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContext.h"

#include "ContextCase.h"
#include "support/Files.h"
#include "support/Memory.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>
#include <QTest>
#include <QTimeZone>

#include <sys/resource.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <ctime>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QByteArray identifierOf(const QByteArray &pdf) {
    return pdf.mid(pdf.lastIndexOf("/ID ["), 72);
}

/// What `work` writes to standard error.
template<typename Work> QByteArray printedBy(Work &&work) {
    QTemporaryFile file;
    if (!file.open()) {
        return "no file for what is printed";
    }
    const int before = ::dup(STDERR_FILENO);
    ::dup2(file.handle(), STDERR_FILENO);
    work();
    ::dup2(before, STDERR_FILENO);
    ::close(before);
    return readFile(file.fileName());
}

} // namespace

/// The time of libqpdf, which makes identifiers of it: each time it asks, a second has passed.
extern "C" std::time_t time(std::time_t *result) noexcept {
    static std::atomic<std::time_t> seconds{1'700'000'000};
    const std::time_t now = ++seconds;
    if (result) {
        *result = now;
    }
    return now;
}

/// How a document ends: its properties, its identifier, its name, and what keeps it from being
/// written.
class ContextCloseTest : public QObject, protected ContextCase {
    Q_OBJECT

  private Q_SLOTS:
    void aLackOfMemoryAtTheBeginningIsNotToldByTheLibrary() {
        int failures = 0;
        const QByteArray printed = printedBy([&] {
            for (bool begun = false; !begun; ++failures) {
                try {
                    const FailingMemory failing(failures);
                    const PDFContext context(newFile(u"pdf"_s), {});
                    begun = true;
                } catch (const std::exception &) {
                    // It is the caller's to name.
                }
            }
        });
        QCOMPARE(printed, "");
        constexpr int kLeast = 20;
        QVERIFY2(failures > kLeast, qPrintable(QString::number(failures)));
    }

    void theDocumentInformationIsAlwaysThere() {
        const QString path = newFile(u"pdf"_s);
        PDFContext::Settings given = settings();
        given.info.title = u"Gr\u00FC\u00DFe (\u4F60\u597D)"_s;
        given.info.keywords = u"a, b"_s;
        PDFContext context(path, std::move(given));
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const PdfProbe probe(path);
        QCOMPARE(probe.info(u"Title"_s), u"Gr\u00FC\u00DFe (\u4F60\u597D)"_s);
        QCOMPARE(probe.info(u"Keywords"_s), u"a, b"_s);
        QCOMPARE(probe.info(u"Creator"_s), u"Vesprin-Folioforge"_s);
        QVERIFY(probe.info(u"Producer"_s).startsWith(u"Folioforge 1."_s));
        QVERIFY(probe.info(u"CreationDate"_s).contains(u"2023"_s));
        const QByteArray json = probe.json();
        for (const char *key : {"/Author", "/Subject"}) {
            QVERIFY(json.contains(QByteArray("\"") + key + "\": \"u:\""));
        }
    }

    void theSameInputsGiveTheSameBytes() {
        const QString source = jpeg(u"same.jpg"_s);
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        QList<QByteArray> files;
        for (const QString &title : {u"a"_s, u"a"_s, u"b"_s}) {
            const QString path = newFile(u"pdf"_s);
            PDFContext::Settings given;
            given.info.title = title;
            PDFContext context(path, std::move(given));
            context.beginPage({0, 0, 10, 10});
            context.drawImage({0, 0, 10, 10}, jpegInPlace(source), 1);
            context.endPage();
            QCOMPARE(context.close().status, CloseResult::Status::Written);
            files += readFile(path);
        }
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(files[0], files[1]);
        QVERIFY(identifierOf(files[0]) != identifierOf(files[2]));
    }

    void documentsOfOneSizeHaveIdentifiersOfTheirOwn() {
        QList<QByteArray> files;
        for (const double height : {11.0, 12.0}) {
            const QString path = newFile(u"pdf"_s);
            PDFContext context(path, settings());
            context.beginPage({0, 0, 10, height});
            context.endPage();
            QCOMPARE(context.close().status, CloseResult::Status::Written);
            files += readFile(path);
        }
        QCOMPARE(files[0].size(), files[1].size());
        QVERIFY(identifierOf(files[0]) != identifierOf(files[1]));
    }

    void theCreationDateFollowsSourceDateEpoch() {
        qputenv("SOURCE_DATE_EPOCH", "86400");
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, {});
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        qunsetenv("SOURCE_DATE_EPOCH");
        QVERIFY(PdfProbe(path).json().contains("D:19700102000000Z"));
    }

    void theCreationDateStatesItsDistanceFromGreenwich_data() {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QByteArray>("date");
        QTest::newRow("none") << 0 << QByteArray("D:20231114221320Z");
        QTest::newRow("east") << 330 << QByteArray("D:20231115034320+05'30'");
        QTest::newRow("west") << -210 << QByteArray("D:20231114184320-03'30'");
    }
    void theCreationDateStatesItsDistanceFromGreenwich() {
        QFETCH(const int, minutes);
        QFETCH(const QByteArray, date);
        const QString path = newFile(u"pdf"_s);
        PDFContext::Settings given = settings();
        given.info.created = given.info.created.toOffsetFromUtc(minutes * 60);
        PDFContext context(path, std::move(given));
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const QByteArray json = PdfProbe(path).json();
        QVERIFY2(json.contains("\"u:" + date + "\""), json);
    }

    void aSourceDateThatIsNoDateFailsInWords_data() {
        QTest::addColumn<QByteArray>("date");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("words") << QByteArray("yesterday");
        QTest::newRow("digits and more") << QByteArray("86400s");
        QTest::newRow("blank") << QByteArray(" 86400");
        QTest::newRow("before 1970") << QByteArray("-1");
        QTest::newRow("sign") << QByteArray("+1");
        QTest::newRow("fraction") << QByteArray("1.5");
        QTest::newRow("year 10000") << QByteArray("253402300800");
        QTest::newRow("beyond 64 bits") << QByteArray("99999999999999999999");
    }
    void aSourceDateThatIsNoDateFailsInWords() {
        QFETCH(const QByteArray, date);
        qputenv("SOURCE_DATE_EPOCH", date);
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, {});
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        const CloseResult result = context.close();
        qunsetenv("SOURCE_DATE_EPOCH");
        QVERIFY2(result.reason.startsWith(u"SOURCE_DATE_EPOCH is "_s), qPrintable(result.reason));
        QVERIFY(!QFile::exists(path));
    }

    void theLastSecondOfTheYear9999IsADate() {
        qputenv("SOURCE_DATE_EPOCH", "253402300799");
        const auto date = sourceDate();
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(date, QDateTime({9999, 12, 31}, {23, 59, 59}, QTimeZone::utc()));
    }

    void contextsDestroyedUnclosedLeaveNothing() {
        const QString path = newFile(u"pdf"_s);
        {
            PDFContext context(path, settings());
            context.beginPage({0, 0, 10, 10});
            context.endPage();
        }
        QVERIFY(!QFile::exists(path));
    }

    void aTakenNameGivesWayToTheNext() {
        const QString taken = jpeg(u"taken.pdf"_s);
        const QByteArray before = readFile(taken);
        const QString source = jpeg(u"d.jpg"_s);
        QCOMPARE(writeImages(taken, {source}).status, CloseResult::Status::NameTaken);
        PDFContext context(taken, settings());
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QString next = newFile(u"pdf"_s);
        const CloseResult result = context.close([&] { return next; });
        QCOMPARE(result.status, CloseResult::Status::Written);
        QCOMPARE(result.path, next);
        QVERIFY(PdfProbe(next).isValid());
        QCOMPARE(readFile(taken), before);
    }

    void aFullDiskFailsWithItsReasonAndLeavesNothing() {
        QTemporaryDir folder;
        const QString source = newFile(u"jpg"_s);
        QFile big(source);
        QVERIFY(big.open(QIODevice::WriteOnly));
        big.write(QByteArray(4 << 20, 'x'));
        big.close();
        PDFContext context(folder.filePath(u"full.pdf"_s), settings());
        PdfImage image;
        image.width = image.height = 1;
        image.filter = ImageFilter::Dct;
        image.source = std::make_shared<const SourceFile>(SourceFile::open(source));
        image.slices = {{0, image.source->version().size}};
        context.beginPage({0, 0, 10, 10});
        context.drawImage({0, 0, 10, 10}, std::move(image), 1);
        context.endPage();
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{1 << 20, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const CloseResult result = context.close();
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(u"File too large"_s), qPrintable(result.reason));
        QVERIFY(
            QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void anImageThatChangedFailsTheDocument() {
        const QString source = jpeg(u"changing.jpg"_s);
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 10, 10});
        context.drawImage({0, 0, 10, 10}, jpegInPlace(source), 1);
        context.endPage();
        QVERIFY(quarters(32).save(source, "JPEG", 95));
        const CloseResult result = context.close();
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(source), qPrintable(result.reason));
        QVERIFY(!QFile::exists(path));
    }

    void thousandsOfSourcesNeedFewDescriptors() {
        QStringList sources;
        const QByteArray bytes = readFile(jpeg(u"e.jpg"_s));
        for (int i = 0; i < 300; ++i) {
            sources += file(u"many%1.jpg"_s.arg(i));
            QFile copy(sources.last());
            QVERIFY(copy.open(QIODevice::WriteOnly));
            copy.write(bytes);
        }
        const QString first = newFile(u"pdf"_s);
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit few{32, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
        const CloseResult result = writeImages(first, sources);
        setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY2(result.status == CloseResult::Status::Written, qPrintable(result.reason));
        QCOMPARE(PdfProbe(first).pageCount(), 300);
    }
};

FOLIOFORGE_TEST(ContextCloseTest)
#include "ContextCloseTest.moc"
