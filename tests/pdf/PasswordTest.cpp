#include "pdf/Password.h"

#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/PdfProbe.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

    void everyReaderOpensWithThePassword_data() {
        QTest::addColumn<QString>("password");
        QTest::newRow("ascii") << QStringLiteral("open sesame");
        QTest::newRow("latin") << QStringLiteral("Gr\u00FC\u00DFe");
        QTest::newRow("greek") << QStringLiteral("\u03BA\u03C9\u03B4\u03B9\u03BA\u03CC\u03C2");
        QTest::newRow("chinese") << QStringLiteral("\u5BC6\u7801\u672C");
        QTest::newRow("arabic") << QStringLiteral("\u0643\u0644\u0645\u0629");
        QTest::newRow("emoji") << QStringLiteral("\U0001F511\U0001F600");
        QTest::newRow("longest") << QString(127, u'x');
    }
    void everyReaderOpensWithThePassword() {
        QFETCH(QString, password);
        const QString path = protectedFile({password, QStringLiteral("owner"), false, false});
        QVERIFY(!path.isEmpty());
        const PdfProbe probe(path, password);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        constexpr int kPopplerToolsLimit = 32;
        if (password.toUtf8().size() <= kPopplerToolsLimit) {
            QCOMPARE(probe.info(QStringLiteral("Title")), QStringLiteral("Secret"));
        }
        QVERIFY(runTool(QStringLiteral("mutool"),
                        {QStringLiteral("info"), QStringLiteral("-p"), password, path})
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

    void withoutAnOwnerPasswordNobodyIsOwnerByAnEmptyOne() {
        const QString path = protectedFile({QStringLiteral("user"), {}, false, false});
        QVERIFY(!PdfProbe(path).isValid());
        QVERIFY(PdfProbe(path, QStringLiteral("user")).isValid());
    }
};

QTEST_MAIN(PasswordTest)
#include "PasswordTest.moc"
