// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "support/TestUnit.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/RunAnswer.h"

#include <QFileInfo>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

RunAnswer &answerOf(TestWindow &w) {
    return *w.control<RunAnswer>("m_answer");
}

/// The labels of the buttons that the answer shows.
QStringList buttonsOf(TestWindow &w) {
    QStringList labels;
    for (const auto *button : answerOf(w).findChildren<QPushButton *>()) {
        if (button->isVisible()) {
            labels += button->text();
        }
    }
    return labels;
}

void press(TestWindow &w, const QString &label) {
    for (auto *button : answerOf(w).findChildren<QPushButton *>()) {
        if (button->text() == label) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
}

/// A picture that cannot be read.
QString broken(TestWindow &w, const QString &name) {
    return w.file(name, "no picture\n");
}

} // namespace

class RunAnswerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aMergedPdfIsNamedWithItsPagesAndSize() {
        TestWindow w;
        addTexts(w, 3);
        mergeInto(w, u"book"_s);
        run(w);
        const double kilobytes = double(QFileInfo(outPath(w, u"book.pdf"_s)).size()) / 1000;
        QCOMPARE(answerOf(w).text(), u"book.pdf made, 3 pages, %1 kB"_s.arg(kilobytes, 0, 'f', 1));
        QCOMPARE(buttonsOf(w), QStringList({u"Open"_s, u"Show in folder"_s}));
    }

    void thePdfAndItsFolderAreOpenedOnAsking() {
        TestWindow w;
        addTexts(w, 1);
        run(w);
        press(w, u"Open"_s);
        press(w, u"Show in folder"_s);
        QCOMPARE(w.desktop.files, QStringList({outPath(w, u"000.pdf"_s), w.path(u"out"_s)}));
    }

    void severalPdfsAreCountedAndThoseThatFailed() {
        TestWindow w;
        addTexts(w, 2);
        w.ctrl.addFiles({broken(w, u"a.png"_s), broken(w, u"b.png"_s)}, 1);
        run(w);
        QCOMPARE(answerOf(w).text(), u"2 PDFs made, 2 could not be"_s);
        QCOMPARE(buttonsOf(w), QStringList({u"Show in folder"_s, u"Show"_s}));
        press(w, u"Show"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), std::vector({1, 2}));
    }

    void filesThatAMergedPdfLacksAreCounted() {
        TestWindow w;
        addTexts(w, 2);
        w.ctrl.addFiles({broken(w, u"a.png"_s)}, 0);
        mergeInto(w, u"book"_s);
        run(w);
        QVERIFY(answerOf(w).text().endsWith(u", 1 file could not be added"_s));
        press(w, u"Show"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), std::vector({0}));
    }

    void aRunWithoutAPdfSaysSo() {
        TestWindow w;
        w.ctrl.addFiles({broken(w, u"a.png"_s)}, 0);
        run(w);
        QCOMPARE(answerOf(w).text(), u"The PDF could not be made"_s);
        QCOMPARE(buttonsOf(w), QStringList{u"Show"_s});
    }

    void theAnswerGoesWithItsList_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("cleared") << QByteArray("m_btnClear");
        QTest::newRow("removed from") << QByteArray("m_btnRemove");
    }
    void theAnswerGoesWithItsList() {
        QFETCH(const QByteArray, button);
        TestWindow w;
        addTexts(w, 2);
        run(w);
        QVERIFY(!answerOf(w).text().isEmpty());
        w.select({0});
        w.press(button.constData());
        QCOMPARE(answerOf(w).text(), QString());
    }

    void filesThatAreAddedEndTheAnswerToo() {
        TestWindow w;
        addTexts(w, 1);
        run(w);
        w.ctrl.addFiles({w.file(u"more.txt"_s)}, -1);
        QCOMPARE(answerOf(w).text(), QString());
    }

    void aLongNameGivesWayToTheButtons() {
        TestWindow w;
        addTexts(w, 1);
        mergeInto(w, QString(200, u'x'));
        run(w);
        QVERIFY(answerOf(w).text().contains(QString(200, u'x')));
        for (const auto *button : answerOf(w).findChildren<QPushButton *>()) {
            QVERIFY(!button->isVisible() || (button->width() >= button->sizeHint().width() &&
                                             answerOf(w).rect().contains(button->geometry())));
        }
    }

    void nothingMovesWhenTheAnswerComes() {
        TestWindow w(WindowWorld::realBundle());
        addTexts(w, 1);
        const QRect before = w.control<QWidget>("m_btnCreate")->geometry();
        run(w);
        QVERIFY(answerOf(w).isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(w.control<QWidget>("m_btnCreate")->geometry(), before);
    }
};

FOLIOFORGE_TEST(RunAnswerTest)
#include "RunAnswerTest.moc"
