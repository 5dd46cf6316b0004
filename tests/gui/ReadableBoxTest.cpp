// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The first line fills more than a row of the page.
const QByteArray kWords("Everybody reads words that stand whole in their lines and so on and so on "
                        "and so on and so on.\n\nWords that stand in a line of their own.\n");

const QStringList kAsTheyFit{
    u"Everybody reads words that stand whole in their lines and so on and so o"_s,
    u"n and so on and so on."_s, u"Words that stand in a line of their own."_s, u""_s, u"\f"_s};
const QStringList kBetweenWords{
    u"Everybody reads words that stand whole in their lines and so on and so"_s,
    u"on and so on and so on."_s, u"Words that stand in a line of their own."_s, u""_s, u"\f"_s};

/// The rows of the PDF that a run makes of the words; blank ones between them.
QStringList linesMade(TestWindow &w) {
    w.ctrl.addFiles({w.file(u"words.txt"_s, kWords)}, -1);
    run(w);
    return PdfProbe(outPath(w, u"words.pdf"_s)).text().split(u'\n');
}

} // namespace

/// The box "Readable layout" of the text settings.
class ReadableBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsOffAtStart() {
        TestWindow w;
        QVERIFY(!w.control<QCheckBox>("m_btnReadable")->isChecked());
        QCOMPARE(linesMade(w), kAsTheyFit);
    }

    void linesBreakBetweenWordsWithIt() {
        TestWindow w;
        tickReadable(w);
        QVERIFY(w.control<QCheckBox>("m_btnReadable")->isChecked());
        QCOMPARE(linesMade(w), kBetweenWords);
    }

    void clickedAgainItIsOff() {
        TestWindow w;
        tickReadable(w);
        tick(*w.control<QCheckBox>("m_btnReadable"));
        QCOMPARE(linesMade(w), kAsTheyFit);
    }
};

FOLIOFORGE_TEST(ReadableBoxTest)
#include "ReadableBoxTest.moc"
