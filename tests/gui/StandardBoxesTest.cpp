// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "mainwnd/RunAnswer.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The boxes "Archive (PDF/A)" and "Accessible (tagged)" below the document properties.
class StandardBoxesTest : public QObject {
    Q_OBJECT

    static void tickInPanel(TestWindow &w, const char *name) {
        w.press("m_btnExpand");
        auto *box = w.control<QCheckBox>(name);
        QTRY_VERIFY(box->isVisible());
        tick(*box);
        QVERIFY(box->isChecked());
    }

    static void convertWords(TestWindow &w) {
        w.ctrl.addFiles({w.file(u"words.txt"_s, "words")}, -1);
        run(w);
    }

    /// The XMP of words.pdf, as poppler reads it.
    static QByteArray metadata(const TestWindow &w) {
        return runTool(u"pdfinfo"_s, {u"-meta"_s, outPath(w, u"words.pdf"_s)}).out;
    }

  private Q_SLOTS:
    void bothAreOffAtStart() {
        TestWindow w;
        QVERIFY(!w.control<QCheckBox>("m_btnArchive")->isChecked());
        QVERIFY(!w.control<QCheckBox>("m_btnAccessible")->isChecked());
        convertWords(w);
        QCOMPARE(textOf(w, u"words.pdf"_s), u"words"_s);
        QCOMPARE(PdfProbe(outPath(w, u"words.pdf"_s)).info(u"Tagged"_s), u"no"_s);
        QVERIFY(!metadata(w).contains("pdfaid"));
    }

    void archiveMakesPdfA2u() {
        TestWindow w;
        tickInPanel(w, "m_btnArchive");
        convertWords(w);
        const QByteArray said = metadata(w);
        QVERIFY(said.contains("<pdfaid:part>2</pdfaid:part>"));
        QVERIFY(said.contains("<pdfaid:conformance>U</pdfaid:conformance>"));
    }

    void accessibleMakesTaggedPdfUa() {
        TestWindow w;
        tickInPanel(w, "m_btnAccessible");
        convertWords(w);
        const PdfProbe pdf(outPath(w, u"words.pdf"_s));
        QCOMPARE(pdf.info(u"Tagged"_s), u"yes"_s);
        QCOMPARE(pdf.info(u"Title"_s), u"words"_s);
        QVERIFY(pdf.structureText().contains(u"\"words\""_s));
        QVERIFY(metadata(w).contains("<pdfuaid:part>1</pdfuaid:part>"));
        QVERIFY(!metadata(w).contains("pdfaid"));
    }

    void theLanguageIsThatOfTheSystem() {
        TestWindow w;
        tickInPanel(w, "m_btnAccessible");
        convertWords(w);
        const ToolRun shown =
            runTool(u"mutool"_s, {u"show"_s, outPath(w, u"words.pdf"_s), u"trailer/Root/Lang"_s});
        QCOMPARE(shown.out.trimmed(), QByteArray("(en)")); // As LC_ALL says.
    }

    void bothMakePdfA2a() {
        TestWindow w;
        tickInPanel(w, "m_btnArchive");
        tick(*w.control<QCheckBox>("m_btnAccessible"));
        convertWords(w);
        QVERIFY(metadata(w).contains("<pdfaid:conformance>A</pdfaid:conformance>"));
        QVERIFY(metadata(w).contains("<pdfuaid:part>1</pdfuaid:part>"));
    }

    void anArchiveWithAPasswordIsRefusedAtTheField() {
        TestWindow w;
        tickInPanel(w, "m_btnArchive");
        w.control<QCheckBox>("m_btnCheckOwnerPassword")->setChecked(true);
        w.control<QLineEdit>("m_tfOwnerPassword")->setText(u"Besitz"_s);
        convertWords(w);
        QCOMPARE(w.messages(), QStringList{u"A PDF for archives can not have passwords."_s});
        QCOMPARE(w.ctrl.window()->focusWidget()->objectName(), u"m_tfOwnerPassword"_s);
        QCOMPARE(outNames(w), QString());
        tick(*w.control<QCheckBox>("m_btnArchive"));
        run(w);
        QCOMPARE(outNames(w), u"words.pdf"_s);
    }

    void aPdfWithoutTagsIsRefusedByName() {
        TestWindow w;
        convertWords(w);
        tickInPanel(w, "m_btnAccessible");
        w.press("m_btnClear");
        w.ctrl.addFiles({outPath(w, u"words.pdf"_s)}, -1);
        run(w);
        QCOMPARE(outNames(w), u"words.pdf"_s);
        QCOMPARE(w.control<RunAnswer>("m_answer")->text(), u"The PDF could not be made"_s);
        const QModelIndex name = w.ctrl.filesArray().index(0, FilesArray::NameColumn);
        const QString reason = u"It has no structure tags, which PDF/UA asks for."_s;
        QVERIFY(name.data(Qt::ToolTipRole).toString().contains(reason));
    }
};

FOLIOFORGE_TEST(StandardBoxesTest)
#include "StandardBoxesTest.moc"
