// SPDX-License-Identifier: Apache-2.0

#include "WindowWorld.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"

#include <QComboBox>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Without markup, in small letters, with one blank between words.
QString withoutMarkup(QString text) {
    static const QRegularExpression markup(u"<[^>]*>|[*]|^\\.It Cm "_s,
                                           QRegularExpression::MultilineOption);
    return text.replace(markup, u" "_s).simplified().toLower();
}

} // namespace

/// One thing has one word, wherever it is spoken of.
class WordsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theLevelsOfCompressionHaveOneNameEverywhere_data() {
        QTest::addColumn<QString>("text");
        const auto source = [](const char *path) {
            QTest::newRow(path) << QString::fromUtf8(readFile(inSource(QString::fromLatin1(path))));
        };
        source("docs/guide.md");
        source("resources/pages/tutorial.html");
        source("packaging/folioforge-cli.1");
        QTest::newRow("--help") << QString::fromUtf8(
            runTool(commandLineProgram(), {u"--help"_s}).out);
    }
    void theLevelsOfCompressionHaveOneNameEverywhere() {
        QFETCH(const QString, text);
        WindowWorld world;
        MainWndCtrl ctrl(world.services());
        const auto &levels = controlOf<QComboBox>(*ctrl.window(), "m_comboCompressMethod");
        QCOMPARE(levels.count(), 4);
        for (int i = 1; i < levels.count(); ++i) {
            // "150m, mild: good for printing"
            static const QRegularExpression parts(u"^(\\w+), (\\w+): (.+)$"_s);
            const QStringList level = parts.match(levels.itemText(i)).capturedTexts();
            QCOMPARE(level.size(), 4);
            const QRegularExpression said(
                u"%1[ ,:]+%2\\b[^.]*%3"_s.arg(level[1], level[2], level[3]));
            QVERIFY2(said.match(withoutMarkup(text)).hasMatch(), qPrintable(level[0]));
        }
    }

    void theListOfLevelsSaysWhatEachDoes() {
        WindowWorld world;
        MainWndCtrl ctrl(world.services());
        const auto &levels = controlOf<QComboBox>(*ctrl.window(), "m_comboCompressMethod");
        for (int i = 0; i < levels.count(); ++i) {
            const QString name = levels.itemText(i).section(u':', 0, 0);
            QVERIFY2(levels.toolTip().contains(u'\n' + name + u": "_s), qPrintable(name));
        }
    }
};

FOLIOFORGE_TEST(WordsTest)
#include "WordsTest.moc"
