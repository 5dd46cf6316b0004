// SPDX-License-Identifier: Apache-2.0

#include "gui/ConvertingCase.h"
#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QAccessible>
#include <QComboBox>
#include <QIcon>
#include <QTextDocumentFragment>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

std::atomic<bool> cannotFlush = false;

} // namespace

/// Takes the place of the system's: fails, as on a file system that cannot flush.
extern "C" int fsync(int descriptor) {
    if (cannotFlush) {
        errno = EINVAL;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

namespace {

constexpr QLatin1StringView kNotUtf8{"not valid UTF-8"};
constexpr QLatin1StringView kHeading{"Something went wrong with these PDF documents:\r\n    "};

QVariant cell(const TestWindow &w, int row, int column, int role) {
    return w.ctrl.filesArray().index(row, column).data(role);
}

bool isMarked(const TestWindow &w, int row) {
    return !cell(w, row, FilesArray::NameColumn, Qt::DecorationRole).value<QIcon>().isNull();
}

/// The tool tip of a cell as it is shown.
QString tipOf(const TestWindow &w, int row, int column = FilesArray::NameColumn) {
    const QString tip = cell(w, row, column, Qt::ToolTipRole).toString();
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

/// What a screen reader says of the entry beside its name.
QString saidOf(TestWindow &w, int row) {
    QAccessibleInterface *table = QAccessible::queryAccessibleInterface(w.table());
    QAccessibleInterface *name = table->tableInterface()->cellAt(row, FilesArray::NameColumn);
    return name->text(QAccessible::Description);
}

/// No file grows while this object lives, as on a disk that is full.
class NoRoom {
  public:
    NoRoom() {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoom() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    NoRoom(const NoRoom &) = delete;
    NoRoom &operator=(const NoRoom &) = delete;

  private:
    rlimit m_before{};
};

} // namespace

/// What the window says of that which did not come out as it went in.
class LossesTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_temporaryFolder;

  private Q_SLOTS:
    void initTestCase() { qputenv("TMPDIR", QFile::encodeName(m_temporaryFolder.path())); }

    void anEntryWithoutLossHasNoMark() {
        TestWindow w;
        addTexts(w, 1);
        QVERIFY(!isMarked(w, 0));
        QCOMPARE(tipOf(w, 0), w.path(u"000.txt"_s));
        QCOMPARE(saidOf(w, 0), QString());
        run(w);
        QVERIFY(!isMarked(w, 0));
    }

    void aTextThatIsNotUtf8IsMarkedAsSoonAsItIsAdded() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s, "caf\xE9")}, -1);
        QVERIFY(isMarked(w, 0));
        QVERIFY(!cell(w, 0, FilesArray::DestinationColumn, Qt::DecorationRole).isValid());
        QVERIFY2(saidOf(w, 0).contains(kNotUtf8), qPrintable(saidOf(w, 0)));
        for (int column = 0; column < FilesArray::ColumnCount; ++column) {
            QVERIFY2(tipOf(w, 0, column).contains(kNotUtf8), qPrintable(tipOf(w, 0, column)));
        }
        QVERIFY(tipOf(w, 0).startsWith(w.path(u"a.txt"_s)));
        QCOMPARE(w.states(), u"Waiting..."_s);
    }

    void theMarkStaysOnAFinishedEntry() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s, "caf\xE9")}, -1);
        run(w);
        QCOMPARE(w.states(), u"a.pdf"_s);
        QVERIFY(isMarked(w, 0));
        QVERIFY(saidOf(w, 0).contains(kNotUtf8));
    }

    void anEntryThatFailsInARunIsMarkedWithItsReason_data() {
        QTest::addColumn<bool>("merge");
        QTest::newRow("single") << false;
        QTest::newRow("merge") << true;
    }

    void anEntryThatFailsInARunIsMarkedWithItsReason() {
        QFETCH(const bool, merge);
        TestWindow w;
        addTexts(w, 2);
        w.ctrl.addFiles({writePng(w.path(u"p.png"_s), 30, 20)}, 1);
        QVERIFY(QFile::remove(w.path(u"p.png"_s)));
        if (merge) {
            mergeInto(w, u"all"_s);
        }
        run(w);
        QVERIFY(!isMarked(w, 0) && isMarked(w, 1) && !isMarked(w, 2));
        QVERIFY2(saidOf(w, 1).contains(u"No such file"_s), qPrintable(saidOf(w, 1)));
        QCOMPARE(tipOf(w, 1), w.path(u"p.png"_s) + u'\n' + saidOf(w, 1));
        QCOMPARE(w.messages(), QStringList());
    }

    void theNextRunTakesTheMarkOfAMendedEntryAway() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"p.png"_s, "no picture")}, -1);
        QVERIFY(isMarked(w, 0));
        writePng(w.path(u"p.png"_s), 30, 20);
        run(w);
        QVERIFY(!isMarked(w, 0));
    }

    void aMergedNameNeverLeadsOutOfItsFolder() {
        TestWindow w;
        addTexts(w, 1);
        mergeInto(w, u"../outside"_s);
        run(w);
        QVERIFY(!QFile::exists(w.path(u"outside.pdf"_s)));
        QCOMPARE(w.messages(),
                 QStringList(kHeading + u"../outside.pdf: A file name cannot hold a slash"_s));
        QCOMPARE(w.states(), u"Waiting..."_s);
        QCOMPARE(outNames(w), QString());
    }

    void aMergedNameThatIsTooLongIsNamed() {
        TestWindow w;
        addTexts(w, 1);
        const QString name(300, u'n');
        mergeInto(w, name);
        run(w);
        QCOMPARE(w.messages().size(), 1);
        const QString message = w.messages().first();
        QVERIFY2(message.startsWith(kHeading + name + u".pdf: "_s), qPrintable(message));
        QVERIFY2(message.contains(u"too long"_s), qPrintable(message));
    }

    void oneNoticeNamesEachPdfWhoseFolderIsGone() {
        TestWindow w;
        addTexts(w, 2);
        // The states are set after the checks and before the first file is begun.
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this,
                [&w] { QDir(w.path(u"out"_s)).removeRecursively(); });
        run(w);
        QCOMPARE(w.messages().size(), 1);
        const QStringList lines = w.messages().first().split(u"\r\n"_s);
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines[1].startsWith(u"    000.pdf: "_s) && lines[1].contains(u"No such file"_s));
        QVERIFY(lines[2].startsWith(u"    001.pdf: "_s));
        QCOMPARE(w.states(), u"Waiting... Waiting..."_s);
    }

    void aFullDiskIsNamed() {
        TestWindow w;
        addTexts(w, 1);
        const NoRoom full;
        run(w);
        QCOMPARE(w.messages().size(), 1);
        QVERIFY2(w.messages().first().contains(u"File too large"_s),
                 qPrintable(w.messages().first()));
        QCOMPARE(w.states(), u"Waiting..."_s);
    }

    void aPdfThatCannotBeCompressedStaysAsItIsAndIsNamed() {
        TestWindow w; // Its bundle has no filters.
        addTexts(w, 1);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(1);
        run(w);
        QCOMPARE(w.messages().size(), 1);
        QVERIFY2(w.messages().first().startsWith(kHeading + u"000.pdf: not compressed: "_s),
                 qPrintable(w.messages().first()));
        QCOMPARE(textOf(w, u"000.pdf"_s), u"number 0"_s);
        QCOMPARE(w.states(), u"000.pdf"_s);
    }

    void aPdfThatDoesNotGetSmallerIsNotReplaced() {
        TestWindow w(bundlePath());
        addTexts(w, 1);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        const std::filesystem::path pdf = outPath(w, u"000.pdf"_s).toStdString();
        const std::filesystem::path first = w.path(u"first"_s).toStdString();
        // The entry hears of its losses when its PDF is written and the pass has yet to begin.
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this, [&] {
            std::error_code notYet;
            std::filesystem::create_hard_link(pdf, first, notYet);
        });
        run(w);
        QCOMPARE(w.states(), u"000.pdf"_s);
        QVERIFY(std::filesystem::equivalent(pdf, first));
    }

    void aFileSystemThatCannotFlushIsNamedOnceInARun() {
        TestWindow w;
        addTexts(w, 2);
        for (int time = 0; time < 2; ++time) {
            cannotFlush = true;
            run(w);
            cannotFlush = false;
            QVERIFY2(saidOf(w, 0).contains(u"flush"_s), qPrintable(saidOf(w, 0)));
            QVERIFY(!isMarked(w, 1));
        }
    }

    void theNoticeOfARunIsNotThatOfTheNext() {
        TestWindow w;
        addTexts(w, 1);
        mergeInto(w, u"a/b"_s);
        run(w);
        w.control<QLineEdit>("m_tfOutputName")->setText(u"b"_s);
        run(w);
        QCOMPARE(w.messages().size(), 1);
        QCOMPARE(outNames(w), u"b.pdf"_s);
    }
};

FOLIOFORGE_TEST(LossesTest)
#include "LossesTest.moc"
