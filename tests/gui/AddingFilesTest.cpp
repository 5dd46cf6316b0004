// SPDX-License-Identifier: Apache-2.0

#include "gui/TestWindow.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QAbstractItemView>
#include <QBuffer>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QStringList kImages = u"png bmp gif jpg jpeg icns ico exr jp2 tif tiff tga psd"_s.split(u' ');
const QStringList kText{u"txt"_s};
const QStringList kPdf{u"pdf"_s};

/// A document of one empty page, by Qt's writer.
QByteArray smallPdf() {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        QPainter(&writer).end();
    }
    return buffer.data();
}

/// Such a document, encrypted by qpdf under the empty user password.
QString encryptedPdf(const TestWindow &w, const QString &name) {
    const QString plain = w.file(u"plain.bin"_s, smallPdf());
    const ToolRun run = runTool(
        u"qpdf"_s, {u"--encrypt"_s, QString(), u"owner"_s, u"256"_s, u"--"_s, plain, w.path(name)});
    if (run.exitCode != 0) {
        qFatal("qpdf: %s", run.err.constData());
    }
    return w.path(name);
}

QByteArray picture(const char *format, int width = 40, int height = 30) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    // The format cannot say 72 per inch; this is the nearest below.
    image.setDotsPerMeterX(2834);
    image.setDotsPerMeterY(2834);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

QString sizeShown(const TestWindow &w, int row) {
    return w.ctrl.filesArray().index(row, FilesArray::SizeColumn).data().toString();
}

/// Clicks the row called `name` of a file panel's view, which fills itself as time allows.
void clickRow(QAbstractItemView &view, const QString &name, Qt::KeyboardModifiers modifiers = {}) {
    const auto row = [&view, &name] {
        const QModelIndex first = view.model()->index(0, 0, view.rootIndex());
        return view.model()->match(first, Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    };
    QTRY_VERIFY(!view.visualRect(row()).isEmpty());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(row()).center());
}

} // namespace

class AddingFilesTest : public QObject {
    Q_OBJECT

  private:
    /// Presses `button`, answers its panel with `paths` and waits until they have been taken.
    static void choose(TestWindow &w, const char *button, const QStringList &paths) {
        w.notices.setNextFiles(paths);
        w.press(button);
        QCoreApplication::processEvents();
    }

  private Q_SLOTS:
    void eachButtonsPanelOffersItsTypes_data() {
        using Chooses = FilePanel::Chooses;
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<Chooses>("chooses");
        QTest::addColumn<QStringList>("types");
        QTest::addColumn<bool>("startsInDocuments");
        const QStringList all = kText + kImages + kPdf;
        QTest::newRow("file") << QByteArray("m_btnAddFile") << Chooses::FilesAndFolders << all
                              << false;
        QTest::newRow("folder") << QByteArray("m_btnAddFolder") << Chooses::Folders << all << true;
        QTest::newRow("image") << QByteArray("m_btnAddImage") << Chooses::Files << kImages << true;
        QTest::newRow("text") << QByteArray("m_btnAddTxt") << Chooses::Files << kText << true;
        QTest::newRow("pdf") << QByteArray("m_btnAddPDF") << Chooses::Files << kPdf << true;
    }

    void eachButtonsPanelOffersItsTypes() {
        QFETCH(const QByteArray, button);
        QFETCH(const FilePanel::Chooses, chooses);
        QFETCH(const QStringList, types);
        QFETCH(const bool, startsInDocuments);
        TestWindow w;
        choose(w, button, {});
        QCOMPARE(w.notices.filePanels().size(), std::size_t(1));
        const FilePanel &panel = w.notices.filePanels().front();
        QCOMPARE(panel.chooses, chooses);
        QCOMPARE(panel.extensions, types);
        QVERIFY(panel.multiple);
        QCOMPARE(panel.startFolder,
                 startsInDocuments ? w.home.path() + u"/Documents"_s : QString());
    }

    void eachButtonAppendsWhatWasChosen_data() {
        QTest::addColumn<QByteArray>("button");
        for (const char *button : {"m_btnAddFile", "m_btnAddImage", "m_btnAddTxt", "m_btnAddPDF"}) {
            QTest::newRow(button) << QByteArray(button);
        }
    }

    void eachButtonAppendsWhatWasChosen() {
        QFETCH(const QByteArray, button);
        TestWindow w;
        w.ctrl.addFiles({w.file(u"first.txt"_s)}, -1);
        choose(w, button, {w.file(u"b.txt"_s), w.file(u"a.txt"_s)});
        QCOMPARE(w.names(), u"first.txt b.txt a.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3"_s);
        QCOMPARE(w.states(), u"Waiting... Waiting... Waiting..."_s);
    }

    void theKeysOfTheListAreAtHandForWhatWasAdded() {
        TestWindow w;
        choose(w, "m_btnAddFile", {w.file(u"a.txt"_s), w.file(u"b.txt"_s)});
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.names(), QString());
    }

    void aCancelledPanelChangesNothing() {
        TestWindow w;
        for (const char *button : {"m_btnAddFile", "m_btnAddImage", "m_btnAddTxt", "m_btnAddPDF"}) {
            choose(w, button, {});
        }
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.delegate.told, QList<bool>());
    }

    void theFolderButtonTellsTheListsStateBeforeItIsAnswered() {
        TestWindow w;
        choose(w, "m_btnAddFolder", {});
        QCOMPARE(w.delegate.told, QList{false});
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        w.delegate.told.clear();
        choose(w, "m_btnAddFolder", {});
        QCOMPARE(w.delegate.told, QList{true});
    }

    void severalFoldersAreChosenInOnePanel_data() {
        QTest::addColumn<QFileDialog::ViewMode>("mode");
        QTest::addColumn<QByteArray>("viewName");
        QTest::newRow("list") << QFileDialog::List << QByteArray("listView");
        QTest::newRow("details") << QFileDialog::Detail << QByteArray("treeView");
    }

    void severalFoldersAreChosenInOnePanel() {
        QFETCH(const QFileDialog::ViewMode, mode);
        QFETCH(const QByteArray, viewName);
        TestWindow w;
        for (const QChar folder : u"abc"_s) {
            QDir(w.home.path()).mkpath(u"Documents/"_s + folder);
            w.file(u"Documents/%1/%1.txt"_s.arg(folder));
        }
        w.press("m_btnAddFolder");
        auto *dialog = w.ctrl.window()->findChild<QFileDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        dialog->setViewMode(mode);
        auto &view = controlOf<QAbstractItemView>(*dialog, viewName);
        clickRow(view, u"a"_s);
        clickRow(view, u"c"_s, Qt::ControlModifier);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->buttons().first(),
                          Qt::LeftButton);
        QTRY_COMPARE(w.names(), u"a.txt c.txt"_s);
    }

    void aChosenFolderGivesItsFilesOneLevelDeepWithoutPdfs() {
        TestWindow w;
        QDir(w.home.path()).mkpath(u"folder/below"_s);
        w.file(u"folder/a.PDF"_s, smallPdf());
        w.file(u"folder/b.TXT"_s);
        w.file(u"folder/c.png"_s, picture("PNG"));
        w.file(u"folder/below/d.txt"_s);
        for (const char *button : {"m_btnAddFile", "m_btnAddFolder"}) {
            TestWindow other;
            choose(other, button, {w.path(u"folder"_s)});
            QStringList names = other.names().split(u' ');
            names.sort();
            QCOMPARE(names.join(u' '), u"b.TXT c.png"_s);
        }
    }

    void vanishedFilesAndDanglingLinksAreSkippedByTheFilePanel() {
        TestWindow w;
        QFile::link(w.path(u"nowhere"_s), w.path(u"dangling.txt"_s));
        QFile::link(w.path(u"loop.txt"_s), w.path(u"loop.txt"_s));
        choose(w, "m_btnAddFile",
               {w.path(u"gone.txt"_s), w.path(u"dangling.txt"_s), w.path(u"loop.txt"_s),
                w.file(u"a.txt"_s)});
        QCOMPARE(w.names(), u"a.txt"_s);
    }

    void aFolderThatCannotBeListedAddsNothing() {
        TestWindow w;
        choose(w, "m_btnAddFolder", {w.path(u"missing"_s)});
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.messages(), QStringList());
    }

    void theSameFileMayBeAddedTwice() {
        TestWindow w;
        const QString path = w.file(u"a.txt"_s);
        w.ctrl.addFiles({path}, -1);
        w.ctrl.addFiles({path, path}, -1);
        QCOMPARE(w.names(), u"a.txt a.txt a.txt"_s);
    }

    void filesGoInAtARowInTheirOrder() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s), w.file(u"b.txt"_s)}, -1);
        w.ctrl.addFiles({w.file(u"x.txt"_s), w.file(u"y.txt"_s)}, 1);
        QCOMPARE(w.names(), u"a.txt x.txt y.txt b.txt"_s);
        QCOMPARE(w.numbers(), u"1 3 4 2"_s);
        w.ctrl.reindexFiles();
        QCOMPARE(w.numbers(), u"1 2 3 4"_s);
    }

    void textSizesAreWholeBlocks_data() {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << 0 << u"4 KB"_s;
        QTest::newRow("one byte") << 1 << u"4 KB"_s;
        QTest::newRow("one block") << 4096 << u"4 KB"_s;
        QTest::newRow("over a block") << 4097 << u"8 KB"_s;
        QTest::newRow("largest in KB") << 1044480 << u"1020 KB"_s;
        QTest::newRow("smallest in MB") << 1044481 << u"1.0 MB"_s;
    }

    void textSizesAreWholeBlocks() {
        QFETCH(const int, bytes);
        QFETCH(const QString, text);
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s, QByteArray(bytes, 'x'))}, -1);
        QCOMPARE(sizeShown(w, 0), text);
    }

    void anImageShowsItsDimensionsAndNoBytes() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.png"_s, picture("PNG", 612, 400))}, -1);
        QCOMPARE(sizeShown(w, 0), u"612 \u00d7 400"_s);
    }

    void aTextFileThatVanishedCountsAsEmpty() {
        TestWindow w;
        w.ctrl.addFiles({w.path(u"gone.txt"_s)}, -1);
        QCOMPARE(w.names(), u"gone.txt"_s);
        QCOMPARE(sizeShown(w, 0), u"4 KB"_s);
    }

    void refusedPdfsGiveOneAlertWithTheirPaths() {
        TestWindow w;
        const QString one = encryptedPdf(w, u"one.pdf"_s);
        const QString two = w.file(u"two.pdf"_s, "no PDF at all");
        const QString three = w.path(u"gone.pdf"_s);
        QStringList paths;
        for (int i = 0; i < 6; ++i) {
            paths += w.file(u"%1.txt"_s.arg(i));
        }
        paths.insert(0, one);
        paths.insert(4, two);
        paths += w.file(u"good.pdf"_s, smallPdf());
        paths += three;
        w.ctrl.addFiles(paths, -1);
        QCOMPARE(w.names(), u"0.txt 1.txt 2.txt 3.txt 4.txt 5.txt good.pdf"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5 6 7"_s);

        QCOMPARE(w.messages(), QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(w.messages(), QStringList(u"    %1\r\n    %2\r\n    %3"_s.arg(one, two, three)));
        QCOMPARE(w.notices.shown().front().notice.title,
                 u"Fail to import following files. They are encrypted or not normal "
                 "PDF files:"_s);
    }

    void aPercentInARefusedPathIsReadAsAFormatAndHarmsNothing() {
        TestWindow w;
        const QString path = w.file(u"50%% off %s %n %@.pdf"_s, "none");
        w.ctrl.addFiles({path}, -1);
        QCoreApplication::processEvents();
        QCOMPARE(w.messages().size(), 1);
        QVERIFY(w.messages().front().contains(u"/50% off "_s));
    }

    void badFilesAloneLeaveTheListAndTheControlsAsTheyWere() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"x.pdf"_s, "none")}, -1);
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.delegate.told, QList<bool>());
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QString());
    }

    void theFirstAcceptedFileNamesTheOutput() {
        TestWindow w;
        w.ctrl.addFiles(
            {w.file(u"bad.pdf"_s, "none"), w.file(u"my.report.txt"_s), w.file(u"z.txt"_s)}, -1);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), u"my.report"_s);
    }

    void anOutputNameThatStandsIsKept() {
        TestWindow w;
        w.control<QLineEdit>("m_tfOutputName")->setText(u"mine"_s);
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), u"mine"_s);
    }

    void aListWithFilesEnablesTheControls() {
        TestWindow w;
        w.ctrl.hasFileOpened(false);
        QVERIFY(!w.control<QWidget>("m_btnCreate")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_btnRemove")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_tfTitle")->isEnabled());
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QVERIFY(w.control<QWidget>("m_btnCreate")->isEnabled());
        QVERIFY(w.control<QWidget>("m_btnRemove")->isEnabled());
        QVERIFY(w.control<QWidget>("m_tfTitle")->isEnabled());
        QCOMPARE(w.delegate.told, (QList{false, true}));
    }

    void anEmptyListEmptiesTheOutputName() {
        TestWindow w;
        w.control<QLineEdit>("m_tfOutputName")->setText(u"mine"_s);
        w.ctrl.hasFileOpened(false);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QString());
    }

    void pipesDevicesAndFoldersWithAFilesNameAreTakenInWithoutWaiting() {
        TestWindow w;
        const QString pipe = w.path(u"pipe.txt"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QFile::link(u"/dev/zero"_s, w.path(u"endless.png"_s));
        QDir(w.home.path()).mkdir(u"folder.pdf"_s);
        w.ctrl.addFiles(
            {pipe, w.path(u"endless.png"_s), w.path(u"folder.pdf"_s), w.file(u"a.txt"_s)}, -1);
        QCOMPARE(w.names(), u"pipe.txt endless.png a.txt"_s);
    }

    void filesOfMoreThanTwoGigabytesAreNotReadWhole() {
        TestWindow w;
        const QString text = w.file(u"huge.txt"_s);
        const QString other = w.file(u"huge.pdf"_s);
        QVERIFY(QFile::resize(text, 2'500'000'000));
        QVERIFY(QFile::resize(other, 2'500'000'000));
        w.ctrl.addFiles({text, other, w.file(u"a.txt"_s)}, -1);
        QCOMPARE(w.names(), u"huge.txt a.txt"_s);
    }

    void thousandsOfFilesAreAnnouncedOnceAndInOrder() {
        TestWindow w;
        QStringList paths;
        for (int i = 0; i < 3000; ++i) {
            paths += w.file(u"%1.txt"_s.arg(i, 4, 10, QLatin1Char('0')));
        }
        const QSignalSpy inserted(&w.ctrl.filesArray(), &QAbstractItemModel::rowsInserted);
        w.ctrl.addFiles(paths, -1);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(w.names().remove(u".txt"_s).split(u' '), [&] {
            QStringList names;
            for (const QString &path : paths) {
                names += QFileInfo(path).baseName();
            }
            return names;
        }());
    }
};

FOLIOFORGE_TEST(AddingFilesTest)
#include "AddingFilesTest.moc"
