#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/NoThreads.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QEventLoop>
#include <QImage>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <memory>

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

/// Four megapixels of noise at 600 per inch.
QString photo(const TestWindow &w, const QString &name) {
    constexpr int kSide = 2000;
    QImage image(kSide, kSide, QImage::Format_RGB32);
    auto random = QRandomGenerator(7);
    for (int y = 0; y < kSide; ++y) {
        random.fillRange(reinterpret_cast<quint32 *>(image.scanLine(y)), kSide);
    }
    constexpr int kDotsPerMeter = 23622;
    image.setDotsPerMeterX(kDotsPerMeter);
    image.setDotsPerMeterY(kDotsPerMeter);
    image.save(w.path(name), "JPG", 95);
    return w.path(name);
}

void addTexts(TestWindow &w, int count) {
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths += w.file(u"%1.txt"_s.arg(i, 3, 10, QLatin1Char('0')),
                        QByteArray("number ") + QByteArray::number(i) + "\n");
    }
    w.ctrl.addFiles(paths, -1);
}

void waitForTheEnd(const TestWindow &w) {
    QTRY_VERIFY_WITH_TIMEOUT(!w.ctrl.isConverting(), 60'000);
}

/// Presses Create and waits for the end of the run.
void run(TestWindow &w) {
    w.press("m_btnCreate");
    waitForTheEnd(w);
}

/// The entries that a run has done so far.
qsizetype doneEntries(const MainWndCtrl &ctrl) {
    const std::vector<const PDFFileInfo *> entries = ctrl.filesArray().arrangedObjects();
    return std::ranges::count_if(
        entries, [](const PDFFileInfo *entry) { return entry->stateIndex() != Waiting; });
}

/// Starts a run and closes the window the moment that `count` entries are done.
void closeDuringARun(MainWndCtrl &ctrl, int count) {
    ctrl.clickBtnCreate();
    QEventLoop wait;
    QObject::connect(&ctrl.filesArray(), &QAbstractItemModel::dataChanged, &wait, [&] {
        if (doneEntries(ctrl) >= count) {
            wait.quit();
        }
    });
    QTimer::singleShot(60'000, &wait, &QEventLoop::quit);
    if (count > 0) {
        wait.exec();
    }
    QVERIFY(doneEntries(ctrl) >= count);
    ctrl.window()->close();
}

void mergeInto(TestWindow &w, const QString &name) {
    w.control<QCheckBox>("m_btnMerge")->setChecked(true);
    w.control<QLineEdit>("m_tfOutputName")->setText(name);
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

QString outPath(const TestWindow &w, const QString &name) {
    return w.path(u"out/"_s + name);
}

/// Everything in the output folder, hidden files too.
QString outNames(const TestWindow &w) {
    return QDir(w.path(u"out"_s))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name)
        .join(u' ');
}

QString textOf(const TestWindow &w, const QString &name) {
    return PdfProbe(outPath(w, name)).text().simplified();
}

} // namespace

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
        TestWindow w(QStringLiteral(FOLIOFORGE_BUNDLE_PATH));
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

    void aSecondRunStartsFromWaiting() {
        TestWindow w;
        addTexts(w, 2);
        run(w);
        w.press("m_btnCreate");
        QCOMPARE(w.states(), u"Waiting... Waiting..."_s);
        waitForTheEnd(w);
        QCOMPARE(w.states(), u"000(1).pdf 001(1).pdf"_s);
    }

    void theBusySheetCoversTheWindowForTheWholeRun() {
        TestWindow w;
        addTexts(w, 3);
        const auto *sheet = w.control<BusySheet>("m_alertWnd");
        QVERIFY(!sheet->isVisible());
        QStringList said;
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this, [&] {
            if (sheet->isVisible()) {
                said += sheet->findChild<QLabel *>(u"busyFile"_s)->text() + u' ' +
                        sheet->findChild<QLabel *>(u"busyCount"_s)->text();
            }
        });
        w.press("m_btnCreate");
        QVERIFY(sheet->isVisible());
        QVERIFY(w.control<QWidget>("m_lbProgress")->isVisible());
        waitForTheEnd(w);
        QVERIFY(!sheet->isVisible());
        QVERIFY(!w.control<QWidget>("m_lbProgress")->isVisible());
        QVERIFY(!w.control<QWidget>("m_prgCreate")->isVisible());
        for (const QString &line :
             {u"000.pdf 0 of 3 done"_s, u"000.pdf 1 of 3 done"_s, u"002.pdf 3 of 3 done"_s}) {
            QVERIFY2(said.contains(line), qPrintable(said.join(u'\n')));
        }
    }

    void theListIsLockedDuringARun() {
        TestWindow w;
        addTexts(w, 3);
        w.select({0});
        w.press("m_btnCreate");
        QVERIFY(!w.ctrl.canEditList());
        w.table()->setFocus();
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Down, Qt::AltModifier);
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.ctrl.clickBtnRemove();
        w.ctrl.clickBtnClear();
        w.ctrl.clickMenuMoveDown();
        w.ctrl.addFiles({w.path(u"000.txt"_s)}, -1);
        w.ctrl.clickBtnCreate();
        waitForTheEnd(w);
        QCOMPARE(w.names(), u"000.txt 001.txt 002.txt"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), std::vector<int>{0});
        QCOMPARE(outNames(w), u"000.pdf 001.pdf 002.pdf"_s);
        QVERIFY(w.ctrl.canEditList());
    }

    void settingsChangedDuringARunDoNotReachIt() {
        TestWindow w;
        addTexts(w, 3);
        w.control<QLineEdit>("m_tfTitle")->setText(u"before"_s);
        w.press("m_btnCreate");
        w.control<QLineEdit>("m_tfTitle")->setText(u"after"_s);
        w.control<QCheckBox>("m_btnMerge")->setChecked(true);
        waitForTheEnd(w);
        QCOMPARE(outNames(w), u"000.pdf 001.pdf 002.pdf"_s);
        for (const char *name : {"000.pdf", "001.pdf", "002.pdf"}) {
            const PdfProbe pdf(outPath(w, QString::fromLatin1(name)));
            QCOMPARE(pdf.info(u"Title"_s), u"before"_s);
        }
    }

    void pagesFillTheFirstHalfOfTheBar() {
        TestWindow w;
        addTexts(w, 4);
        mergeInto(w, u"all"_s);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        bar->setValue(999);
        const QSignalSpy values(bar, &QProgressBar::valueChanged);
        run(w);
        QList<int> shown;
        for (const auto &value : values) {
            shown += value.front().toInt();
        }
        QCOMPARE(shown, (QList<int>{0, 125, 250, 375, 500})); // Of 1000.
    }

    void theCompressMethodShrinksThePicturesOfTheFinishedPdf_data() {
        QTest::addColumn<bool>("merge");
        QTest::newRow("single") << false;
        QTest::newRow("merge") << true;
    }

    void theCompressMethodShrinksThePicturesOfTheFinishedPdf() {
        QFETCH(const bool, merge);
        TestWindow w(QStringLiteral(FOLIOFORGE_BUNDLE_PATH));
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

    void thePassPostsANotificationForEachPageThatFillsTheSecondHalfOfTheBar() {
        TestWindow w(QStringLiteral(FOLIOFORGE_BUNDLE_PATH));
        addTexts(w, 3);
        mergeInto(w, u"all"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        const QSignalSpy posted(&w.notifications, &NotificationCenter::posted);
        const QSignalSpy values(w.control<QProgressBar>("m_prgCreate"),
                                &QProgressBar::valueChanged);
        run(w);
        QCOMPARE(posted.size(), 3);
        for (int page = 0; page < 3; ++page) {
            QCOMPARE(posted[page][0].toString(), u"PDFDocumentDidEndPageWriteNotification"_s);
            QCOMPARE(posted[page][1].toMap()[u"PDFDocumentPageIndex"_s].toInt(), page);
        }
        QList<int> shown;
        for (const auto &value : values) {
            shown += value.front().toInt();
        }
        QCOMPARE(shown.last(3), (QList<int>{667, 833, 1000}));
    }

    void pageNotificationsOfOthersDuringAPassMoveTheBar() {
        TestWindow w(QStringLiteral(FOLIOFORGE_BUNDLE_PATH));
        addTexts(w, 4);
        mergeInto(w, u"all"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        QList<int> shown;
        connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
            shown += value;
            if (value == 1000) {
                w.notifications.post(NotificationCenter::didEndPageWrite(),
                                     {{NotificationCenter::pageIndexKey(), 1}});
            }
        });
        run(w);
        QVERIFY(shown.contains(1000));
        QCOMPARE(shown.last(), 750);
    }

    void pageNotificationsOutsideAPassAreIgnored() {
        TestWindow w;
        addTexts(w, 1);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        const int before = bar->value();
        w.notifications.post(NotificationCenter::didEndPageWrite(),
                             {{NotificationCenter::pageIndexKey(), 3}});
        w.notifications.post(NotificationCenter::compressionCompleted());
        QCOMPARE(bar->value(), before);
        QCOMPARE(w.states(), u"Waiting..."_s);
    }

    void anEndAnnouncedByOthersDoesNotEndAFileBeingWritten() {
        TestWindow w;
        addTexts(w, 3);
        w.press("m_btnCreate");
        w.notifications.post(NotificationCenter::compressionCompleted());
        w.notifications.post(NotificationCenter::compressionCompleted());
        QVERIFY(w.ctrl.isConverting());
        waitForTheEnd(w);
        QCOMPARE(w.states(), u"000.pdf 001.pdf 002.pdf"_s);
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

    void closingDuringARunLeavesOnlyWholeFiles_data() {
        QTest::addColumn<bool>("merge");
        QTest::addColumn<int>("finishedBefore");
        QTest::newRow("single at once") << false << 0;
        QTest::newRow("single after three") << false << 3;
        QTest::newRow("merge at once") << true << 0;
        QTest::newRow("merge after three") << true << 3;
    }

    void closingDuringARunLeavesOnlyWholeFiles() {
        QFETCH(const bool, merge);
        QFETCH(const int, finishedBefore);
        constexpr int kFiles = 400;
        constexpr int kBytes = 20'000;
        TestWindow w;
        QStringList paths;
        for (int i = 0; i < kFiles; ++i) {
            paths += w.file(u"%1.txt"_s.arg(i), QByteArray(kBytes, 'x'));
        }
        auto ctrl = std::make_unique<MainWndCtrl>(w.services());
        ctrl->window()->show();
        ctrl->addFiles(paths, -1);
        controlOf<QCheckBox>(*ctrl->window(), "m_btnMerge").setChecked(merge);
        closeDuringARun(*ctrl, finishedBefore);
        ctrl.reset();

        const QStringList names = outNames(w).split(u' ', Qt::SkipEmptyParts);
        QVERIFY2(names.size() < kFiles, qPrintable(QString::number(names.size())));
        for (const QString &name : names) {
            QVERIFY2(PdfProbe(outPath(w, name)).isValid(), qPrintable(name));
        }
        // A merge has no file before its last entry is in it.
        QVERIFY(merge ? names.isEmpty() : names.size() >= finishedBefore - 1);
        for (const QString &path : paths) {
            QCOMPARE(QFileInfo(path).size(), kBytes);
        }
    }
};

FOLIOFORGE_TEST(ConvertingFilesTest)
#include "ConvertingFilesTest.moc"
