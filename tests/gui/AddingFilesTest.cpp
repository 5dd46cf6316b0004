#include "gui/TestWindow.h"
#include "support/PdfProbe.h"

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

using namespace folioforge;
using namespace folioforge::test;

namespace {

const QStringList kImages =
    QStringLiteral("png bmp gif jpg jpeg icns ico exr jp2 tif tiff tga psd").split(u' ');
const QStringList kText{QStringLiteral("txt")};
const QStringList kPdf{QStringLiteral("pdf")};

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
    const QString plain = w.file(QStringLiteral("plain.bin"), smallPdf());
    const ToolRun run = runTool(QStringLiteral("qpdf"),
                                {QStringLiteral("--encrypt"), QString(), QStringLiteral("owner"),
                                 QStringLiteral("256"), QStringLiteral("--"), plain, w.path(name)});
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
                 startsInDocuments ? w.home.path() + QStringLiteral("/Documents") : QString());
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
        w.ctrl.addFiles({w.file(QStringLiteral("first.txt"))}, -1);
        choose(w, button, {w.file(QStringLiteral("b.txt")), w.file(QStringLiteral("a.txt"))});
        QCOMPARE(w.names(), QStringLiteral("first.txt b.txt a.txt"));
        QCOMPARE(w.numbers(), QStringLiteral("1 2 3"));
        QCOMPARE(w.states(), QStringLiteral("Waiting... Waiting... Waiting..."));
    }

    void theKeysOfTheListAreAtHandForWhatWasAdded() {
        TestWindow w;
        choose(w, "m_btnAddFile",
               {w.file(QStringLiteral("a.txt")), w.file(QStringLiteral("b.txt"))});
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
        w.ctrl.addFiles({w.file(QStringLiteral("a.txt"))}, -1);
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
        for (const QChar folder : QStringLiteral("abc")) {
            QDir(w.home.path()).mkpath(QStringLiteral("Documents/") + folder);
            w.file(QStringLiteral("Documents/%1/%1.txt").arg(folder));
        }
        w.press("m_btnAddFolder");
        auto *dialog = w.ctrl.window()->findChild<QFileDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        dialog->setViewMode(mode);
        auto &view = controlOf<QAbstractItemView>(*dialog, viewName);
        clickRow(view, QStringLiteral("a"));
        clickRow(view, QStringLiteral("c"), Qt::ControlModifier);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->buttons().first(),
                          Qt::LeftButton);
        QTRY_COMPARE(w.names(), QStringLiteral("a.txt c.txt"));
    }

    void aChosenFolderGivesItsFilesOneLevelDeepWithoutPdfs() {
        TestWindow w;
        QDir(w.home.path()).mkpath(QStringLiteral("folder/below"));
        w.file(QStringLiteral("folder/a.PDF"), smallPdf());
        w.file(QStringLiteral("folder/b.TXT"));
        w.file(QStringLiteral("folder/c.png"), picture("PNG"));
        w.file(QStringLiteral("folder/below/d.txt"));
        for (const char *button : {"m_btnAddFile", "m_btnAddFolder"}) {
            TestWindow other;
            choose(other, button, {w.path(QStringLiteral("folder"))});
            QStringList names = other.names().split(u' ');
            names.sort();
            QCOMPARE(names.join(u' '), QStringLiteral("b.TXT c.png"));
        }
    }

    void vanishedFilesAndDanglingLinksAreSkippedByTheFilePanel() {
        TestWindow w;
        QFile::link(w.path(QStringLiteral("nowhere")), w.path(QStringLiteral("dangling.txt")));
        QFile::link(w.path(QStringLiteral("loop.txt")), w.path(QStringLiteral("loop.txt")));
        choose(w, "m_btnAddFile",
               {w.path(QStringLiteral("gone.txt")), w.path(QStringLiteral("dangling.txt")),
                w.path(QStringLiteral("loop.txt")), w.file(QStringLiteral("a.txt"))});
        QCOMPARE(w.names(), QStringLiteral("a.txt"));
    }

    void aFolderThatCannotBeListedAddsNothing() {
        TestWindow w;
        choose(w, "m_btnAddFolder", {w.path(QStringLiteral("missing"))});
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.messages(), QStringList());
    }

    void theSameFileMayBeAddedTwice() {
        TestWindow w;
        const QString path = w.file(QStringLiteral("a.txt"));
        w.ctrl.addFiles({path}, -1);
        w.ctrl.addFiles({path, path}, -1);
        QCOMPARE(w.names(), QStringLiteral("a.txt a.txt a.txt"));
    }

    void filesGoInAtARowInTheirOrder() {
        TestWindow w;
        w.ctrl.addFiles({w.file(QStringLiteral("a.txt")), w.file(QStringLiteral("b.txt"))}, -1);
        w.ctrl.addFiles({w.file(QStringLiteral("x.txt")), w.file(QStringLiteral("y.txt"))}, 1);
        QCOMPARE(w.names(), QStringLiteral("a.txt x.txt y.txt b.txt"));
        QCOMPARE(w.numbers(), QStringLiteral("1 3 4 2"));
        w.ctrl.reindexFiles();
        QCOMPARE(w.numbers(), QStringLiteral("1 2 3 4"));
    }

    void textSizesAreWholeBlocks_data() {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << 0 << QStringLiteral("4 KB");
        QTest::newRow("one byte") << 1 << QStringLiteral("4 KB");
        QTest::newRow("one block") << 4096 << QStringLiteral("4 KB");
        QTest::newRow("over a block") << 4097 << QStringLiteral("8 KB");
        QTest::newRow("largest in KB") << 1044480 << QStringLiteral("1020 KB");
        QTest::newRow("smallest in MB") << 1044481 << QStringLiteral("1.0 MB");
    }

    void textSizesAreWholeBlocks() {
        QFETCH(const int, bytes);
        QFETCH(const QString, text);
        TestWindow w;
        w.ctrl.addFiles({w.file(QStringLiteral("a.txt"), QByteArray(bytes, 'x'))}, -1);
        QCOMPARE(sizeShown(w, 0), text);
    }

    void anImageShowsItsDimensionsAndNoBytes() {
        TestWindow w;
        w.ctrl.addFiles({w.file(QStringLiteral("a.png"), picture("PNG", 612, 400))}, -1);
        QCOMPARE(sizeShown(w, 0), QStringLiteral("612 \u00d7 400"));
    }

    void aTextFileThatVanishedCountsAsEmpty() {
        TestWindow w;
        w.ctrl.addFiles({w.path(QStringLiteral("gone.txt"))}, -1);
        QCOMPARE(w.names(), QStringLiteral("gone.txt"));
        QCOMPARE(sizeShown(w, 0), QStringLiteral("4 KB"));
    }

    void refusedPdfsGiveOneAlertWithTheirPaths() {
        TestWindow w;
        const QString one = encryptedPdf(w, QStringLiteral("one.pdf"));
        const QString two = w.file(QStringLiteral("two.pdf"), "no PDF at all");
        const QString three = w.path(QStringLiteral("gone.pdf"));
        QStringList paths;
        for (int i = 0; i < 6; ++i) {
            paths += w.file(QStringLiteral("%1.txt").arg(i));
        }
        paths.insert(0, one);
        paths.insert(4, two);
        paths += w.file(QStringLiteral("good.pdf"), smallPdf());
        paths += three;
        w.ctrl.addFiles(paths, -1);
        QCOMPARE(w.names(), QStringLiteral("0.txt 1.txt 2.txt 3.txt 4.txt 5.txt good.pdf"));
        QCOMPARE(w.numbers(), QStringLiteral("1 2 3 4 5 6 7"));

        QCOMPARE(w.messages(), QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(w.messages(),
                 QStringList(QStringLiteral("    %1\r\n    %2\r\n    %3").arg(one, two, three)));
        QCOMPARE(w.notices.shown().front().notice.title,
                 QStringLiteral("Fail to import following files. They are encrypted or not normal "
                                "PDF files:"));
    }

    void aPercentInARefusedPathIsReadAsAFormatAndHarmsNothing() {
        TestWindow w;
        const QString path = w.file(QStringLiteral("50%% off %s %n %@.pdf"), "none");
        w.ctrl.addFiles({path}, -1);
        QCoreApplication::processEvents();
        QCOMPARE(w.messages().size(), 1);
        QVERIFY(w.messages().front().contains(QStringLiteral("/50% off ")));
    }

    void badFilesAloneLeaveTheListAndTheControlsAsTheyWere() {
        TestWindow w;
        w.ctrl.addFiles({w.file(QStringLiteral("x.pdf"), "none")}, -1);
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.delegate.told, QList<bool>());
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QString());
    }

    void theFirstAcceptedFileNamesTheOutput() {
        TestWindow w;
        w.ctrl.addFiles({w.file(QStringLiteral("bad.pdf"), "none"),
                         w.file(QStringLiteral("my.report.txt")), w.file(QStringLiteral("z.txt"))},
                        -1);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QStringLiteral("my.report"));
    }

    void anOutputNameThatStandsIsKept() {
        TestWindow w;
        w.control<QLineEdit>("m_tfOutputName")->setText(QStringLiteral("mine"));
        w.ctrl.addFiles({w.file(QStringLiteral("a.txt"))}, -1);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QStringLiteral("mine"));
    }

    void aListWithFilesEnablesTheControls() {
        TestWindow w;
        w.ctrl.hasFileOpened(false);
        QVERIFY(!w.control<QWidget>("m_btnCreate")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_btnRemove")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_tfTitle")->isEnabled());
        w.ctrl.addFiles({w.file(QStringLiteral("a.txt"))}, -1);
        QVERIFY(w.control<QWidget>("m_btnCreate")->isEnabled());
        QVERIFY(w.control<QWidget>("m_btnRemove")->isEnabled());
        QVERIFY(w.control<QWidget>("m_tfTitle")->isEnabled());
        QCOMPARE(w.delegate.told, (QList{false, true}));
    }

    void anEmptyListEmptiesTheOutputName() {
        TestWindow w;
        w.control<QLineEdit>("m_tfOutputName")->setText(QStringLiteral("mine"));
        w.ctrl.hasFileOpened(false);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QString());
    }

    void pipesDevicesAndFoldersWithAFilesNameAreTakenInWithoutWaiting() {
        TestWindow w;
        const QString pipe = w.path(QStringLiteral("pipe.txt"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QFile::link(QStringLiteral("/dev/zero"), w.path(QStringLiteral("endless.png")));
        QDir(w.home.path()).mkdir(QStringLiteral("folder.pdf"));
        w.ctrl.addFiles({pipe, w.path(QStringLiteral("endless.png")),
                         w.path(QStringLiteral("folder.pdf")), w.file(QStringLiteral("a.txt"))},
                        -1);
        QCOMPARE(w.names(), QStringLiteral("pipe.txt endless.png a.txt"));
    }

    void filesOfMoreThanTwoGigabytesAreNotReadWhole() {
        TestWindow w;
        const QString text = w.file(QStringLiteral("huge.txt"));
        const QString other = w.file(QStringLiteral("huge.pdf"));
        QVERIFY(QFile::resize(text, 2'500'000'000));
        QVERIFY(QFile::resize(other, 2'500'000'000));
        w.ctrl.addFiles({text, other, w.file(QStringLiteral("a.txt"))}, -1);
        QCOMPARE(w.names(), QStringLiteral("huge.txt a.txt"));
    }

    void thousandsOfFilesAreAnnouncedOnceAndInOrder() {
        TestWindow w;
        QStringList paths;
        for (int i = 0; i < 3000; ++i) {
            paths += w.file(QStringLiteral("%1.txt").arg(i, 4, 10, QLatin1Char('0')));
        }
        const QSignalSpy inserted(&w.ctrl.filesArray(), &QAbstractItemModel::rowsInserted);
        w.ctrl.addFiles(paths, -1);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(w.names().remove(QStringLiteral(".txt")).split(u' '), [&] {
            QStringList names;
            for (const QString &path : paths) {
                names += QFileInfo(path).baseName();
            }
            return names;
        }());
    }
};

QTEST_MAIN(AddingFilesTest)
#include "AddingFilesTest.moc"
