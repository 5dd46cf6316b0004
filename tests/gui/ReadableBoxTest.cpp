// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kWords = QByteArray("Everybody reads words that stand whole in their lines.\n\n")
                              .repeated(2)
                              .replace("lines.", "lines. and so on and so on and so on and so on");

/// The lines of the PDF that a run makes of the words; blank ones between them.
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
        const QStringList lines = linesMade(w);
        QVERIFY(lines.size() > 3);
        QVERIFY(!lines[0].endsWith(u' ') && lines.join(QString()).contains(u"so on"_s));
        QVERIFY(!lines[1].isEmpty()); // Blank lines take no room.
    }

    void linesBreakBetweenWordsWithIt() {
        TestWindow w;
        tickReadable(w);
        QVERIFY(w.control<QCheckBox>("m_btnReadable")->isChecked());
        const QString made = linesMade(w).join(u'\n');
        QCOMPARE(made.simplified(), QString::fromUtf8(kWords).simplified());
        QVERIFY(made.contains(u"\n\n"_s));
    }

    void clickedAgainItIsOff() {
        TestWindow w;
        tickReadable(w);
        tick(*w.control<QCheckBox>("m_btnReadable"));
        const QStringList lines = linesMade(w);
        QVERIFY(lines.size() > 3);
        QVERIFY(!lines[1].isEmpty());
    }
};

FOLIOFORGE_TEST(ReadableBoxTest)
#include "ReadableBoxTest.moc"
