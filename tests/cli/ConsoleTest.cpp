// SPDX-License-Identifier: Apache-2.0

#include "cli/Console.h"
#include "cli/Report.h"
#include "files/Printable.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

QByteArray manualPage() {
    return test::readFile(test::inSource(u"packaging/folioforge-cli.1"_s));
}

} // namespace

class ConsoleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void ordinaryNamesArePrintedAsTheyAre() {
        const QString name = u"Büro 标题 \U0001F600 (1).txt"_s;
        QCOMPARE(printable(name), name);
    }

    void charactersThatMoveTheCursorAreSpelledOut() {
        QCOMPARE(printable(u"a\x1b[2Jb\nc\td\x7f"_s), u"a\\x1b[2Jb\\x0ac\\x09d\\x7f"_s);
        QCOMPARE(printable(u"\u0085\u2028\u2029\u202Etxt"_s),
                 u"\\u{85}\\u{2028}\\u{2029}\\u{202e}txt"_s);
    }

    void joinersOfLettersAndEmojiStay() {
        const QString name = u"\u0646\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645 "
                             "\U0001F469\u200D\U0001F680"_s;
        QCOMPARE(printable(name), name);
    }

    void halvesOfCharactersAreReplaced() {
        QCOMPARE(printable(QString(QChar(0xDE00)) + u'a'), u"\uFFFDa"_s);
    }

    void jsonEscapesWhatATerminalObeys() {
        InputResult result;
        result.input = u"\u009b2J\u202E\U000E0001\x7f"_s;
        const QByteArray line = toJson(result);
        QVERIFY(line.contains("\\u009b2J\\u202e\\udb40\\udc01\\u007f"));
        QCOMPARE(QJsonDocument::fromJson(line).object()[u"input"_s].toString(), result.input);
    }

    void aResultIsOneJsonObjectOnOneLine() {
        InputResult result;
        result.input = u"a \"b\"\n.png"_s;
        result.output = u"a.pdf"_s;
        result.pages = 2;
        result.embedded = EmbeddedAs::OwnBytes;
        CompressionOutcome compression;
        compression.bytesBefore = 5'000'000'000;
        compression.bytesAfter = 7;
        compression.imagesReduced = 1;
        compression.imagesKept.push_back({2, 9, u"line art"_s});
        result.compression = compression;
        const QByteArray line = toJson(result);
        QVERIFY(!line.contains('\n'));
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        QCOMPARE(object[u"input"_s].toString(), result.input);
        QCOMPARE(object[u"output"_s].toString(), result.output);
        QCOMPARE(object[u"pages"_s].toInt(), 2);
        QCOMPARE(object[u"state"_s].toString(), u"finished"_s);
        QCOMPARE(object[u"embedded"_s].toString(), u"own bytes"_s);
        QCOMPARE(object[u"bytesBefore"_s].toInteger(), qint64(5'000'000'000));
        QCOMPARE(object[u"bytesAfter"_s].toInt(), 7);
        QCOMPARE(object[u"imagesReduced"_s].toInt(), 1);
        const QJsonObject left = object[u"imagesLeft"_s].toArray().at(0).toObject();
        QCOMPARE(left[u"page"_s].toInt(), 2);
        QCOMPARE(left[u"object"_s].toInt(), 9);
        QCOMPARE(left[u"reason"_s].toString(), u"line art"_s);
        QVERIFY(!object.contains(u"message"_s));
        QCOMPARE(object[u"warnings"_s].toArray(), QJsonArray());
    }

    void theManualNamesEveryKey() {
        InputResult result;
        result.reason = u"It broke"_s;
        result.warnings.push_back({WarningCode::PageSize, u"blank"_s});
        result.embedded = EmbeddedAs::OwnBytes;
        result.parts.emplace();
        result.compression.emplace().imagesKept.emplace_back();
        InputResult failure;
        failure.compression.emplace().error = u"no filter"_s;
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        const QStringList keys = object.keys() +
                                 object[u"imagesLeft"_s].toArray().at(0).toObject().keys() +
                                 object[u"warnings"_s].toArray().at(0).toObject().keys() +
                                 QJsonDocument::fromJson(toJson(failure)).object().keys();
        const QByteArray manual = manualPage();
        QVERIFY(keys.size() > 12);
        for (const QString &key : keys) {
            QVERIFY2(manual.contains("Li " + key.toUtf8() + ' ') ||
                         manual.contains("Li " + key.toUtf8() + '\n'),
                     qPrintable(key));
        }
    }

    void theManualSaysWhatEachWarningMeans() {
        const QByteArray manual = manualPage();
        const QByteArray section =
            manual.sliced(manual.indexOf(".Sh WARNINGS"),
                          manual.indexOf(".Sh EXAMPLES") - manual.indexOf(".Sh WARNINGS"));
        for (const QLatin1StringView name : kWarningNames) {
            QVERIFY2(section.contains(".It Li " + QByteArray(name.data(), name.size()) + '\n'),
                     name.data());
        }
    }

    void theManualNamesEveryKindOfPart() {
        const QByteArray manual = manualPage();
        for (const PartWords &words : partWords()) {
            const QByteArray name(words.name.data(), words.name.size());
            QVERIFY2(manual.contains("\n.Li " + name + '\n') ||
                         manual.contains("\n.Li " + name + " ,\n"),
                     name.constData());
        }
    }

    void aPdfThatCouldNotBeCompressedSaysWhy() {
        InputResult result;
        result.compression.emplace().error = u"no filter"_s;
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        QCOMPARE(object[u"notCompressed"_s].toString(), u"no filter"_s);
        QVERIFY(!object.contains(u"bytesAfter"_s));
    }

    void imagesLeftAreNamedInWordsByReasonAndPage() {
        CompressionOutcome compression;
        compression.bytesBefore = 90;
        compression.bytesAfter = 40;
        compression.imagesReduced = 1;
        compression.imagesKept.push_back({7, 9, u"damaged JPEG data: no end"_s});
        for (int page = 12; page > 0; --page) {
            compression.imagesKept.push_back({page, page, u"line art"_s});
            compression.imagesKept.push_back({page, 20 + page, u"line art"_s});
        }
        QCOMPARE(toWords(compression),
                 u"90 -> 40 bytes, images reduced: 1, left: 1 (damaged JPEG data: no "
                 "end; page 7), left: 24 (line art; pages 1, 2, 3, 4, 5, 6, 7, 8, "
                 "9, 10, ...)"_s);
    }

    void aFailureHasItsReasonAndNoOutput() {
        InputResult result;
        result.input = u"a.png"_s;
        result.state = InputResult::State::Failed;
        result.reason = u"It broke"_s;
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        QCOMPARE(object[u"state"_s].toString(), u"failed"_s);
        QCOMPARE(object[u"message"_s].toString(), u"It broke"_s);
        QVERIFY(object[u"output"_s].isNull());
        QCOMPARE(toMessages(result), QStringList{u"a.png: It broke"_s});
    }

    void aWarningIsCalledOne() {
        InputResult result;
        result.input = u"a.txt"_s;
        QCOMPARE(toMessages(result), QStringList());
        result.warnings.push_back({WarningCode::TextNotUtf8, u"blank"_s});
        QCOMPARE(toMessages(result), QStringList{u"a.txt: warning: blank"_s});
        const QJsonObject object = QJsonDocument::fromJson(toJson(result)).object();
        const QJsonObject warning = object[u"warnings"_s].toArray().at(0).toObject();
        QCOMPARE(warning[u"code"_s].toString(), u"text-not-utf8"_s);
        QCOMPARE(warning[u"text"_s].toString(), u"blank"_s);
    }
};

FOLIOFORGE_TEST(ConsoleTest)
#include "ConsoleTest.moc"
