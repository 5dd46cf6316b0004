// SPDX-License-Identifier: Apache-2.0

#include "gui/ConvertingCase.h"
#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/NoThreads.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QImage>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalSpy>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QString picture(const TestWindow &w, const QString &name) {
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(QColor(200, 30, 30));
    image.save(w.path(name), "PNG");
    return w.path(name);
}

/// Pages of 300 x 400 and 500 x 700 points, each with four margins of its own.
void setPages(TestWindow &w) {
    const std::pair<const char *, const char *> fields[] = {
        {"m_tfTextCustomizedPageWidth", "300"},  {"m_tfTextCustomizedPageHeight", "400"},
        {"m_tfTextPageMarginLeft", "20"},        {"m_tfTextPageMarginRight", "50"},
        {"m_tfTextPageMarginTop", "35"},         {"m_tfTextPageMarginBottom", "80"},
        {"m_tfImageCustomizedPageWidth", "500"}, {"m_tfImageCustomizedPageHeight", "700"},
        {"m_tfImagePageMarginLeft", "25"},       {"m_tfImagePageMarginRight", "55"},
        {"m_tfImagePageMarginTop", "45"},        {"m_tfImagePageMarginBottom", "105"}};
    for (const auto &[field, number] : fields) {
        w.control<QLineEdit>(field)->setText(QString::fromLatin1(number));
    }
    w.control<QRadioButton>("textCustom")->click();
    w.control<QRadioButton>("imageCustom")->click();
}

/// The smallest rectangle that holds every red pixel.
QRect redPart(const QImage &picture) {
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            part |= color.red() > 200 && color.green() < 50 ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return part;
}

} // namespace

/// What a run makes of the list and of the settings.
class ConvertingFilesTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_temporaryFolder;

  private Q_SLOTS:
    void initTestCase() { qputenv("TMPDIR", QFile::encodeName(m_temporaryFolder.path())); }

    void eachFileBecomesAPdfOfItsOwnWithALinkToIt() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s, "first text\n"), picture(w, u"p.png"_s),
                         w.file(u"b.txt"_s, "second text\n")},
                        -1);
        run(w);
        QCOMPARE(outNames(w), u"a.pdf b.pdf p.pdf"_s);
        QCOMPARE(w.states(), u"a.pdf p.pdf b.pdf"_s);
        QCOMPARE(textOf(w, u"a.pdf"_s), u"first text"_s);
        QCOMPARE(textOf(w, u"b.pdf"_s), u"second text"_s);
        QCOMPARE(PdfProbe(outPath(w, u"p.pdf"_s)).images().size(), 1);
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(w.ctrl.filesArray().at(row).stateIndex(), int(FinishedAsLink));
        }
        QCOMPARE(w.messages(), QStringList());
    }

    void clickingAFinishedDestinationOpensItsPdf() {
        TestWindow w;
        addTexts(w, 1);
        run(w);
        const QPoint cell = w.table()->visualRect(w.ctrl.filesArray().index(0, 3)).center();
        QTest::mouseClick(w.table()->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(w.desktop.commands.size(), 1);
        QVERIFY(w.desktop.commands.front().contains("/out/000.pdf\""));
        QCOMPARE(w.table()->selectedRow(), 0);
    }

    void returnOnAFinishedEntryOpensItsPdf() {
        TestWindow w;
        addTexts(w, 2);
        const QPoint cell = w.table()->visualRect(w.ctrl.filesArray().index(1, 1)).center();
        QTest::mouseClick(w.table()->viewport(), Qt::LeftButton, {}, cell);
        w.key(Qt::Key_Return);
        QCOMPARE(w.desktop.commands, QList<QByteArray>());
        run(w);
        w.table()->setFocus();
        w.key(Qt::Key_Return);
        QCOMPARE(w.desktop.commands.size(), 1);
        QVERIFY(w.desktop.commands.front().contains("/out/001.pdf\""));
    }

    void aDestinationThatAShellWouldMisreadOpensWithoutOne() {
        TestWindow w;
        const QString name = u"a \"quoted\" name"_s;
        w.ctrl.addFiles({w.file(name + u".txt"_s)}, -1);
        run(w);
        QCOMPARE(outNames(w), name + u".pdf"_s);
        w.ctrl.clickedDest(0);
        QCOMPARE(w.desktop.files, QStringList(outPath(w, name + u".pdf"_s)));
        QCOMPARE(w.desktop.commands, QList<QByteArray>());
    }

    void thePageOfATextIsAsItsFieldsSay() {
        TestWindow w;
        setPages(w);
        w.ctrl.addFiles({w.file(u"a.txt"_s, QByteArray(4000, 'x'))}, -1);
        run(w);
        const PdfProbe pdf(outPath(w, u"a.pdf"_s));
        QCOMPARE(pdf.box(u"MediaBox"_s, 1), QRectF(0, 0, 300, 400));
        const QList<QPointF> places = pdf.characterOrigins(1);
        QVERIFY(places.size() > 100);
        const auto nextRow = std::ranges::find_if(
            places, [&](const QPointF &place) { return place.y() > places.first().y(); });
        const double height = nextRow->y() - places.first().y();
        const double width = places.at(1).x() - places.first().x();
        QCOMPARE(places.first().x(), 20.0);
        QVERIFY(qAbs(places.first().y() - height - 35) < 0.01);
        // A row passes the right margin by up to one character.
        const double last = std::prev(nextRow)->x();
        QVERIFY2(last <= 300 - 50 && last + width > 300 - 50, qPrintable(QString::number(last)));
        // The upper margin stands for the lower one, which is but checked.
        const double lowest = places.last().y();
        QVERIFY2(lowest <= 400 - 35 && lowest + height > 400 - 35,
                 qPrintable(QString::number(lowest)));
    }

    void theLowerMarginOfATextIsChecked() {
        TestWindow w;
        setPages(w);
        addTexts(w, 1);
        w.control<QLineEdit>("m_tfTextPageMarginBottom")->setText(u"257"_s);
        w.press("m_btnCreate");
        QCOMPARE(w.messages(), QStringList(u"Invalid page margin value in text output setting."_s));
    }

    void thePageOfAPictureIsAsItsFieldsSay() {
        TestWindow w;
        setPages(w);
        w.ctrl.addFiles({writePng(w.path(u"p.png"_s), 300, 200)}, -1);
        run(w);
        const PdfProbe pdf(outPath(w, u"p.pdf"_s));
        QCOMPARE(pdf.box(u"MediaBox"_s, 1), QRectF(0, 0, 500, 700));
        // As wide as the 420 points between the margins; of the 550 in height 270 are left over.
        QCOMPARE(redPart(pdf.renderWithMutool(1)), QRect(25, 45 + 135, 420, 280));
    }

    void takenNamesGetNumbers() {
        TestWindow w;
        w.file(u"out/000.pdf"_s, "mine");
        addTexts(w, 1);
        w.ctrl.addFiles({w.path(u"000.txt"_s)}, -1);
        run(w);
        QCOMPARE(outNames(w), u"000(1).pdf 000(2).pdf 000.pdf"_s);
        QCOMPARE(w.states(), u"000(1).pdf 000(2).pdf"_s);
        QFile mine(outPath(w, u"000.pdf"_s));
        QVERIFY(mine.open(QIODevice::ReadOnly));
        QCOMPARE(mine.readAll(), QByteArray("mine"));
    }

    void mergingWritesOnePdfInListOrder() {
        TestWindow w;
        addTexts(w, 3);
        w.select({2});
        w.ctrl.clickMenuMoveUp();
        mergeInto(w, u"report"_s);
        run(w);
        QCOMPARE(outNames(w), u"report.pdf"_s);
        QCOMPARE(textOf(w, u"report.pdf"_s), u"number 0 number 2 number 1"_s);
        QCOMPARE(w.states(), u"Finished Finished Finished"_s);
    }

    void anExtensionInCapitalsIsKept() {
        TestWindow w;
        addTexts(w, 1);
        mergeInto(w, u"report.PDF"_s);
        run(w);
        QCOMPARE(outNames(w), u"report.PDF"_s);
    }

    void aMergedNameThatIsTakenIsRefused() {
        TestWindow w;
        addTexts(w, 1);
        w.file(u"out/report.pdf"_s, "mine");
        mergeInto(w, u"report"_s);
        w.press("m_btnCreate");
        QVERIFY(!w.ctrl.isConverting());
        QCOMPARE(w.messages(), QStringList(u"File name already exists in output folder, please "
                                           "input another name."_s));
    }

    void aMergedNameThatIsTakenMeanwhileIsNeverReplaced() {
        TestWindow w;
        addTexts(w, 2);
        mergeInto(w, u"report"_s);
        // The states are set after the checks and before the file is begun.
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this,
                [&w] { w.file(u"out/report.pdf"_s, "someone else's"); });
        run(w);
        QCOMPARE(w.messages(), QStringList(u"File name already exists in output folder, please "
                                           "input another name."_s));
        QCOMPARE(outNames(w), u"report.pdf"_s);
        QCOMPARE(QFileInfo(outPath(w, u"report.pdf"_s)).size(), 14);
        QCOMPARE(w.states(), u"Waiting... Waiting..."_s);
    }

    void whatIsMissingIsAskedForInItsOrder() {
        TestWindow w;
        addTexts(w, 1);
        mergeInto(w, QString());
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(true);
        w.control<QLineEdit>("m_tfOutputFolder")->clear();
        w.press("m_btnCreate");
        w.control<QLineEdit>("m_tfOutputFolder")->setText(w.path(u"missing"_s));
        w.press("m_btnCreate");
        w.control<QLineEdit>("m_tfOutputFolder")->setText(w.path(u"out"_s));
        w.press("m_btnCreate");
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(false);
        w.press("m_btnCreate");
        QCOMPARE(
            w.messages(),
            (QStringList{u"Please select an output folder to store the output documents."_s,
                         u"Selected output folder does not exist or is not writable. "
                         "Click \"OK\" to select another folder."_s,
                         u"Please input user password."_s, u"Please input output file name."_s}));
        QCOMPARE(outNames(w), QString());
    }

    void aPasswordThatNoDocumentCanHaveIsRefused_data() {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("message");
        QTest::newRow("128 bytes")
            << QString(128, u'x') << u"The password is longer than 127 bytes."_s;
        QTest::newRow("private use")
            << u"a\uE000"_s << u"The password contains a character that passwords cannot have."_s;
    }

    void aPasswordThatNoDocumentCanHaveIsRefused() {
        QFETCH(const QString, password);
        QFETCH(const QString, message);
        TestWindow w;
        addTexts(w, 1);
        w.control<QCheckBox>("m_btnCheckOwnerPassword")->setChecked(true);
        w.control<QLineEdit>("m_tfOwnerPassword")->setText(password);
        w.press("m_btnCreate");
        QVERIFY(!w.ctrl.isConverting());
        QCOMPARE(w.messages(), QStringList(message));
        QCOMPARE(outNames(w), QString());
    }

    void aPasswordProtectsTheDocumentAndStaysInMemory() {
        TestWindow w(bundlePath());
        const QString password = u"correct horse battery"_s;
        w.ctrl.addFiles({photo(w, u"photo.jpg"_s)}, -1);
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(true);
        w.control<QLineEdit>("m_tfUserPassword")->setText(password);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        run(w);
        QVERIFY(PdfProbe(outPath(w, u"photo.pdf"_s), password).isValid());
        QVERIFY(!PdfProbe(outPath(w, u"photo.pdf"_s)).isValid());
        w.syncSettings();
        QDirIterator files(w.home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(!file.readAll().contains(password.toUtf8()));
        }
    }

    void aFileThatFailsKeepsWaitingAndTheOthersGoOn_data() {
        QTest::addColumn<bool>("merge");
        QTest::addColumn<QString>("states");
        QTest::newRow("single") << false << u"000.pdf Waiting... 001.pdf"_s;
        QTest::newRow("merge") << true << u"Finished Waiting... Finished"_s;
    }

    void aFileThatFailsKeepsWaitingAndTheOthersGoOn() {
        QFETCH(const bool, merge);
        QFETCH(const QString, states);
        TestWindow w;
        addTexts(w, 2);
        w.ctrl.addFiles({w.file(u"broken.png"_s, "no picture")}, 1);
        if (merge) {
            mergeInto(w, u"all"_s);
        }
        run(w);
        QCOMPARE(w.states(), states);
        QCOMPARE(outNames(w), merge ? u"all.pdf"_s : u"000.pdf 001.pdf"_s);
        QCOMPARE(w.messages(), QStringList());
    }

    void theCompressMethodShrinksThePicturesOfTheFinishedPdf_data() {
        QTest::addColumn<bool>("merge");
        QTest::newRow("single") << false;
        QTest::newRow("merge") << true;
    }

    void theCompressMethodShrinksThePicturesOfTheFinishedPdf() {
        QFETCH(const bool, merge);
        TestWindow w(bundlePath());
        w.ctrl.addFiles({photo(w, u"photo.jpg"_s)}, -1);
        mergeInto(w, u"all"_s);
        w.control<QCheckBox>("m_btnMerge")->setChecked(merge);
        const QString plain = merge ? u"all.pdf"_s : u"photo.pdf"_s;
        const QString small = merge ? u"small.pdf"_s : u"photo(1).pdf"_s;
        run(w);
        const qint64 before = QFileInfo(outPath(w, plain)).size();

        w.control<QLineEdit>("m_tfOutputName")->setText(u"small"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(1);
        const QSignalSpy values(w.control<QProgressBar>("m_prgCreate"),
                                &QProgressBar::valueChanged);
        run(w);
        QVERIFY(QFileInfo(outPath(w, small)).size() < before / 2);
        const PdfProbe pdf(outPath(w, small));
        QVERIFY(pdf.isValid());
        QCOMPARE(pdf.images().size(), 1);
        QCOMPARE(values.last().front().toInt(), 1000);
        QCOMPARE(w.states(), merge ? u"Finished"_s : u"photo(1).pdf"_s);
        QCOMPARE(QDir(m_temporaryFolder.path()).entryList(QDir::Files), QStringList());
    }

    void aRunWithoutAFurtherThreadWritesEveryFile() {
        TestWindow w;
        addTexts(w, 3);
        const NoThreads none(NoThreads::From::AllButQt);
        run(w);
        QVERIFY(none.refused() > 0);
        QCOMPARE(w.states(), u"000.pdf 001.pdf 002.pdf"_s);
        QVERIFY(PdfProbe(w.path(u"out/002.pdf"_s)).isValid());
    }

    void nothingHappensWithoutFiles() {
        TestWindow w;
        w.ctrl.clickBtnCreate();
        QVERIFY(!w.ctrl.isConverting());
        QCOMPARE(w.messages(), QStringList());
    }
};

FOLIOFORGE_TEST(ConvertingFilesTest)
#include "ConvertingFilesTest.moc"
