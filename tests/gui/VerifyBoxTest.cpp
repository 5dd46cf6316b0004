// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "mainwnd/RunAnswer.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The box "Check every page" beside the button that saves the settings.
class VerifyBoxTest : public QObject {
    Q_OBJECT

    static QString answerOfRun(TestWindow &w) {
        w.ctrl.addFiles({w.file(u"words.txt"_s, "words")}, -1);
        run(w);
        return w.control<RunAnswer>("m_answer")->text();
    }

  private Q_SLOTS:
    void itIsOffAtStart() {
        TestWindow w;
        QVERIFY(!w.control<QCheckBox>("m_btnVerify")->isChecked());
        QVERIFY(!answerOfRun(w).contains(u"checked"_s));
    }

    void theAnswerSaysThatEveryPageWasChecked() {
        TestWindow w;
        w.press("m_btnExpand");
        auto *box = w.control<QCheckBox>("m_btnVerify");
        QTRY_VERIFY(box->isVisible());
        tick(*box);
        QVERIFY(box->isChecked());
        const QString answer = answerOfRun(w);
        QVERIFY2(answer.endsWith(u", every page checked"_s), qPrintable(answer));
        QCOMPARE(textOf(w, u"words.pdf"_s), u"words"_s);
    }
};

FOLIOFORGE_TEST(VerifyBoxTest)
#include "VerifyBoxTest.moc"
