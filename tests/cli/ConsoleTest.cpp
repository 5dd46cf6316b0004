#include "cli/Console.h"
#include "cli/Report.h"
#include "files/Printable.h"
#include "support/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace folioforge;

class ConsoleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void ordinaryNamesArePrintedAsTheyAre() {
        const QString name = QStringLiteral("Büro 标题 \U0001F600 (1).txt");
        QCOMPARE(printable(name), name);
    }

    void charactersThatMoveTheCursorAreSpelledOut() {
        QCOMPARE(printable(QStringLiteral("a\x1b[2Jb\nc\td\x7f")),
                 QStringLiteral("a\\x1b[2Jb\\x0ac\\x09d\\x7f"));
        QCOMPARE(printable(QStringLiteral("\u0085\u2028\u202Etxt")),
                 QStringLiteral("\\u{85}\\u{2028}\\u{202e}txt"));
    }

    void joinersOfLettersAndEmojiStay() {
        const QString name =
            QStringLiteral("\u0646\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645 "
                           "\U0001F469\u200D\U0001F680");
        QCOMPARE(printable(name), name);
    }

    void halvesOfCharactersAreReplaced() {
        QCOMPARE(printable(QString(QChar(0xDE00)) + u'a'), QStringLiteral("\uFFFDa"));
    }

    void jsonEscapesWhatATerminalObeys() {
        InputResult result;
        result.input = QStringLiteral("\u009b2J\u202E\U000E0001\x7f");
        const QByteArray line = toJson(result);
        QVERIFY(line.contains("\\u009b2J\\u202e\\udb40\\udc01\\u007f"));
        QCOMPARE(QJsonDocument::fromJson(line).object()[QStringLiteral("input")].toString(),
                 result.input);
    }

    void aResultIsOneJsonObjectOnOneLine() {
        InputResult result;
        result.input = QStringLiteral("a \"b\"\n.png");
        result.output = QStringLiteral("a.pdf");
        result.pages = 2;
        result.embedded = EmbeddedAs::OwnBytes;
        CompressionOutcome compression;
        compression.bytesBefore = 5'000'000'000;
        compression.bytesAfter = 7;
        compression.imagesReduced = 1;
        compression.imagesKept.push_back({2, 9, QStringLiteral("line art")});
        result.compression = compression;
        const QByteArray line = toJson(result);
        QVERIFY(!line.contains('\n'));
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        QCOMPARE(object[QStringLiteral("input")].toString(), result.input);
        QCOMPARE(object[QStringLiteral("output")].toString(), result.output);
        QCOMPARE(object[QStringLiteral("pages")].toInt(), 2);
        QCOMPARE(object[QStringLiteral("state")].toString(), QStringLiteral("finished"));
        QCOMPARE(object[QStringLiteral("embedded")].toString(), QStringLiteral("own bytes"));
        QCOMPARE(object[QStringLiteral("bytesBefore")].toInteger(), qint64(5'000'000'000));
        QCOMPARE(object[QStringLiteral("bytesAfter")].toInt(), 7);
        QCOMPARE(object[QStringLiteral("imagesReduced")].toInt(), 1);
        const QJsonObject left = object[QStringLiteral("imagesLeft")].toArray().at(0).toObject();
        QCOMPARE(left[QStringLiteral("page")].toInt(), 2);
        QCOMPARE(left[QStringLiteral("object")].toInt(), 9);
        QCOMPARE(left[QStringLiteral("reason")].toString(), QStringLiteral("line art"));
        QVERIFY(!object.contains(QStringLiteral("message")));
    }

    void theManualNamesEveryKey() {
        InputResult result;
        result.message = QStringLiteral("blank");
        result.embedded = EmbeddedAs::OwnBytes;
        result.compression.emplace().imagesKept.emplace_back();
        InputResult failure;
        failure.compression.emplace().error = QStringLiteral("no filter");
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        const QStringList keys =
            object.keys() + object[QStringLiteral("imagesLeft")].toArray().at(0).toObject().keys() +
            QJsonDocument::fromJson(toJson(failure)).object().keys();
        const QByteArray manual =
            test::readFile(QStringLiteral(FOLIOFORGE_PACKAGING "/folioforge-cli.1"));
        QVERIFY(keys.size() > 12);
        for (const QString &key : keys) {
            QVERIFY2(manual.contains("Li " + key.toUtf8() + ' ') ||
                         manual.contains("Li " + key.toUtf8() + '\n'),
                     qPrintable(key));
        }
    }

    void aPdfThatCouldNotBeCompressedSaysWhy() {
        InputResult result;
        result.compression.emplace().error = QStringLiteral("no filter");
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        QCOMPARE(object[QStringLiteral("notCompressed")].toString(), QStringLiteral("no filter"));
        QVERIFY(!object.contains(QStringLiteral("bytesAfter")));
    }

    void imagesLeftAreNamedInWordsByReasonAndPage() {
        CompressionOutcome compression;
        compression.bytesBefore = 90;
        compression.bytesAfter = 40;
        compression.imagesReduced = 1;
        compression.imagesKept.push_back({7, 9, QStringLiteral("damaged JPEG data: no end")});
        for (int page = 12; page > 0; --page) {
            compression.imagesKept.push_back({page, page, QStringLiteral("line art")});
            compression.imagesKept.push_back({page, 20 + page, QStringLiteral("line art")});
        }
        QCOMPARE(toWords(compression),
                 QStringLiteral("90 -> 40 bytes, images reduced: 1, left: 1 (damaged JPEG data: no "
                                "end; page 7), left: 24 (line art; pages 1, 2, 3, 4, 5, 6, 7, 8, "
                                "9, 10, ...)"));
    }

    void aFailureHasItsReasonAndNoOutput() {
        InputResult result;
        result.input = QStringLiteral("a.png");
        result.state = InputResult::State::Failed;
        result.message = QStringLiteral("It broke");
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        QCOMPARE(object[QStringLiteral("state")].toString(), QStringLiteral("failed"));
        QCOMPARE(object[QStringLiteral("message")].toString(), QStringLiteral("It broke"));
        QVERIFY(object[QStringLiteral("output")].isNull());
        QCOMPARE(toMessage(result), QStringLiteral("a.png: It broke"));
    }

    void aWarningIsCalledOne() {
        InputResult result;
        result.input = QStringLiteral("a.txt");
        QCOMPARE(toMessage(result), QString());
        result.message = QStringLiteral("blank");
        QCOMPARE(toMessage(result), QStringLiteral("a.txt: warning: blank"));
    }
};

QTEST_GUILESS_MAIN(ConsoleTest)
#include "ConsoleTest.moc"
