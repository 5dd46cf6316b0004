#include "pdf/Password.h"

#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/PdfProbe.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

using namespace folioforge;
using test::PdfProbe;
using test::runTool;

class PasswordTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString protectedFile(const Encryption &encryption) const {
        const QString path = m_folder.filePath(QStringLiteral("protected.pdf"));
        QFile::remove(path);
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.info.title = QStringLiteral("Secret");
        settings.encryption = std::make_unique<Encryption>(encryption);
        PDFContext context(path, std::move(settings));
        context.beginPage({0, 0, 100, 100});
        context.endPage();
        const CloseResult result = context.close();
        return result.status == CloseResult::Status::Written ? path : QString();
    }

  private Q_SLOTS:
    // The examples of RFC 4013, section 3.
    void passwordsAreMappedAndNormalized() {
        QCOMPARE(preparedPassword(QStringLiteral("I\u00ADX")), QByteArray("IX"));
        QCOMPARE(preparedPassword(QStringLiteral("user")), QByteArray("user"));
        QCOMPARE(preparedPassword(QStringLiteral("USER")), QByteArray("USER"));
        QCOMPARE(preparedPassword(QStringLiteral("\u00AA")), QByteArray("a"));
        QCOMPARE(preparedPassword(QStringLiteral("\u2168")), QByteArray("IX"));
    }

    void forbiddenCharactersAreRefused() {
        QVERIFY(passwordProblem(QStringLiteral("\u0007")));
        QVERIFY(passwordProblem(QStringLiteral("\u0627\u0031"))); // a digit last, right to left
        QVERIFY(passwordProblem(QString(QChar(0xD800))));
        QVERIFY(passwordProblem(QString(1, QChar(u'\0'))));
        QVERIFY(passwordProblem(QStringLiteral("\u00AD")));
        QVERIFY_THROWS_EXCEPTION(Error, preparedPassword(QStringLiteral("\u0007")));
    }

    void theLimitIs127BytesOfUtf8() {
        QVERIFY(!passwordProblem(QString(127, u'a')));
        QVERIFY(passwordProblem(QString(128, u'a')));
        QVERIFY(!passwordProblem(QString(63, QChar(0xE9))));
        QVERIFY(passwordProblem(QString(64, QChar(0xE9))));
        QVERIFY(!passwordProblem(QString()));
    }

    /// What a reader that does not know SASLprep itself has to be given is `prepared`.
    void everyReaderOpensWithThePassword_data() {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("prepared");
        const auto row = [](const char *name, const QString &password, const QString &prepared) {
            QTest::newRow(name) << password << prepared;
        };
        const auto same = [&row](const char *name, const QString &password) {
            row(name, password, password);
        };
        same("ASCII", QStringLiteral("open sesame"));
        same("blanks", QStringLiteral(" open  sesame "));
        same("punctuation", QStringLiteral("\"'`$\\%&;|<>*?~!#(){}[]"));
        same("Latin", QStringLiteral("Gr\u00FC\u00DFe"));
        same("Greek", QStringLiteral("\u039A\u03C9\u03B4\u03B9\u03BA\u03CC\u03C2"));
        same("Cyrillic", QStringLiteral("\u041F\u0430\u0440\u043E\u043B\u044C"));
        same("Hebrew", QStringLiteral("\u05E1\u05D9\u05E1\u05DE\u05D4"));
        same("Arabic", QStringLiteral("\u0643\u0644\u0645\u0629"));
        same("Arabic around a digit", QStringLiteral("\u0643\u0644\u06F1\u0645\u0629"));
        same("Devanagari", QStringLiteral("\u092A\u093E\u0938\u0935\u0930\u094D\u0921"));
        same("Thai", QStringLiteral("\u0E23\u0E2B\u0E31\u0E2A"));
        same("Chinese", QStringLiteral("\u5BC6\u7801\u672C"));
        same("beyond the first plane", QStringLiteral("\U00020000\U00020001"));
        same("newer than Unicode 3.2", QStringLiteral("\u20BF\u1E9E"));
        same("emoji", QStringLiteral("\U0001F511\U0001F600"));
        same("longest", QString(127, u'x'));
        same("longest in two bytes", QString(63, QChar(0xE9)) + u'x');
        row("no-break space", QStringLiteral("a\u00A0b"), QStringLiteral("a b"));
        row("accent apart", QStringLiteral("cafe\u0301"), QStringLiteral("caf\u00E9"));
        row("accents in another order", QStringLiteral("a\u0308\u0323"),
            QStringLiteral("\u1EA1\u0308"));
        row("ligature", QStringLiteral("o\uFB03ce"), QStringLiteral("office"));
        row("full width", QStringLiteral("\uFF21\uFF22\uFF13"), QStringLiteral("AB3"));
        row("half-width kana", QStringLiteral("\uFF76\uFF9E"), QStringLiteral("\u30AC"));
        row("Hangul letters", QStringLiteral("\u1112\u1161\u11AB"), QStringLiteral("\uD55C"));
        row("superscript", QStringLiteral("x\u00B2"), QStringLiteral("x2"));
        row("mathematical letters", QStringLiteral("\U0001D49C\U0001D4B7"), QStringLiteral("Ab"));
        row("soft hyphen", QStringLiteral("I\u00ADX"), QStringLiteral("IX"));
        row("joiner", QStringLiteral("\U0001F469\u200D\U0001F680"),
            QStringLiteral("\U0001F469\U0001F680"));
    }
    void everyReaderOpensWithThePassword() {
        QFETCH(QString, password);
        QFETCH(QString, prepared);
        QCOMPARE(preparedPassword(password), prepared.toUtf8());
        const QString path = protectedFile({password, QStringLiteral("owner"), false, false});
        QVERIFY(!path.isEmpty());
        const PdfProbe probe(path, prepared);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        constexpr int kPopplerToolsLimit = 32;
        if (prepared.toUtf8().size() <= kPopplerToolsLimit) {
            QCOMPARE(probe.info(QStringLiteral("Title")), QStringLiteral("Secret"));
        }
        QVERIFY(runTool(QStringLiteral("mutool"),
                        {QStringLiteral("info"), QStringLiteral("-p"), prepared, path})
                    .out.contains("Pages: 1"));
        QVERIFY(!PdfProbe(path, QStringLiteral("wrong")).isValid());
        QVERIFY(!PdfProbe(path).isValid());
    }

    void onlyWhatIsRefusedIsRefused_data() {
        QTest::addColumn<bool>("refusePrint");
        QTest::addColumn<bool>("refuseCopy");
        QTest::addColumn<QString>("permissions");
        QTest::newRow("nothing") << false << false
                                 << QStringLiteral("print:yes copy:yes change:yes addNotes:yes "
                                                   "algorithm:AES-256");
        QTest::newRow("print") << true << false
                               << QStringLiteral("print:no copy:yes change:yes addNotes:yes "
                                                 "algorithm:AES-256");
        QTest::newRow("copy") << false << true
                              << QStringLiteral("print:yes copy:no change:yes addNotes:yes "
                                                "algorithm:AES-256");
        QTest::newRow("both") << true << true
                              << QStringLiteral("print:no copy:no change:yes addNotes:yes "
                                                "algorithm:AES-256");
    }
    void onlyWhatIsRefusedIsRefused() {
        QFETCH(bool, refusePrint);
        QFETCH(bool, refuseCopy);
        const QString path =
            protectedFile({QStringLiteral("u"), QStringLiteral("o"), refusePrint, refuseCopy});
        QFETCH(QString, permissions);
        const QString shown = PdfProbe(path, QStringLiteral("u")).info(QStringLiteral("Encrypted"));
        QVERIFY2(shown.contains(permissions), qPrintable(shown));
        const QByteArray details =
            runTool(QStringLiteral("qpdf"),
                    {QStringLiteral("--password=u"), QStringLiteral("--show-encryption"), path})
                .out;
        QVERIFY(details.contains("R = 6"));
        QVERIFY(details.contains("modify forms: allowed"));
        QVERIFY(details.contains("extract for accessibility: allowed"));
        QVERIFY(details.contains("modify document assembly: allowed"));
        QVERIFY(details.contains(refusePrint ? "print low resolution: not allowed"
                                             : "print low resolution: allowed"));
        QVERIFY(details.contains(refusePrint ? "print high resolution: not allowed"
                                             : "print high resolution: allowed"));
    }

    void theOwnerPasswordAloneLeavesTheDocumentOpen() {
        const QString path = protectedFile({{}, QStringLiteral("owner"), true, true});
        QVERIFY(PdfProbe(path).isValid());
        QVERIFY(
            PdfProbe(path).info(QStringLiteral("Encrypted")).contains(QStringLiteral("print:no")));
        const QByteArray details =
            runTool(QStringLiteral("qpdf"), {QStringLiteral("--show-encryption"), path}).out;
        QVERIFY(details.contains("Supplied password is user password"));
        QVERIFY(!details.contains("Supplied password is owner password"));
    }

    void aCrashLeavesNoImageOfTheMemory() {
        rlimit limit{};
        QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
        limit.rlim_cur = limit.rlim_max;
        QCOMPARE(::setrlimit(RLIMIT_CORE, &limit), 0);
        forbidCoreDumps();
        QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
        QCOMPARE(limit.rlim_cur, rlim_t(0));
    }

    void withoutAnOwnerPasswordNobodyIsOwnerByAnEmptyOne() {
        const QString path = protectedFile({QStringLiteral("user"), {}, false, false});
        QVERIFY(!PdfProbe(path).isValid());
        QVERIFY(PdfProbe(path, QStringLiteral("user")).isValid());
    }
};

QTEST_MAIN(PasswordTest)
#include "PasswordTest.moc"
