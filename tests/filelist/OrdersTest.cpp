// SPDX-License-Identifier: Apache-2.0

#include "filelist/Orders.h"

#include "support/Files.h"
#include "support/TestUnit.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::setModified;

namespace {

/// The names of files in the order that is asked for.
class OrderedFiles {
  public:
    QString add(const QString &name, const QByteArray &bytes = "x") {
        QString path = m_folder.filePath(name);
        test::writeFile(path, bytes);
        list(path);
        return path;
    }
    void list(const QString &path) { m_entries.emplace_back(path); }

    QStringList names(SortOrder order) const {
        std::vector<const PDFFileInfo *> pointers;
        for (const PDFFileInfo &entry : m_entries) {
            pointers.push_back(&entry);
        }
        QStringList names;
        for (const std::size_t position : arrangedOrder(pointers, order)) {
            names += m_entries[position].fileName();
        }
        return names;
    }

  private:
    QTemporaryDir m_folder;
    std::vector<PDFFileInfo> m_entries;
};

QStringList words(const char *text) {
    return QString::fromUtf8(text).split(u' ');
}

} // namespace

class OrdersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void namesAreComparedInLowerCase() {
        OrderedFiles files;
        for (const QString &name : words("b.txt A.txt a.pdf")) {
            files.add(name);
        }
        QCOMPARE(files.names(SortOrder::Name), words("a.pdf A.txt b.txt"));
    }

    void namesFollowPlainCharacterOrder() {
        OrderedFiles files;
        for (const QString &name : words("file10.txt file9.txt é.txt z.txt _.txt")) {
            files.add(name);
        }
        QCOMPARE(files.names(SortOrder::Name), words("_.txt file10.txt file9.txt z.txt é.txt"));
    }

    void naturalOrderReadsDigitsAsNumbers() {
        OrderedFiles files;
        for (const QString &name :
             words("p10.txt P9.txt p010.txt p2b.txt p2a.txt p99999999999999999999999.txt "
                   "p.txt.txt p.txt")) {
            files.add(name);
        }
        QCOMPARE(files.names(SortOrder::Natural),
                 words("p.txt p.txt.txt p2a.txt p2b.txt P9.txt p10.txt p010.txt "
                       "p99999999999999999999999.txt"));
    }

    void sizesAreCountedInBytesAndReadAfresh() {
        constexpr qsizetype kKilobyte = 1024;
        OrderedFiles files;
        const QString grown = files.add(u"grown.txt"_s, QByteArray(10, 'x'));
        files.add(u"ten.txt"_s, QByteArray(10 * kKilobyte, 'x'));
        files.add(u"nine.txt"_s, QByteArray(9 * kKilobyte, 'x'));
        QCOMPARE(files.names(SortOrder::Size), words("grown.txt nine.txt ten.txt"));
        test::writeFile(grown, QByteArray(20 * kKilobyte, 'x'));
        QCOMPARE(files.names(SortOrder::Size), words("nine.txt ten.txt grown.txt"));
    }

    void datesAreThoseOfTheLastChange() {
        OrderedFiles files;
        const QDateTime noon(QDate(2020, 5, 1), QTime(12, 0));
        setModified(files.add(u"late.txt"_s), noon.addSecs(60));
        setModified(files.add(u"early.txt"_s), noon.addSecs(-60));
        setModified(files.add(u"noon.txt"_s), noon);
        QCOMPARE(files.names(SortOrder::Modified), words("early.txt noon.txt late.txt"));
    }

    void creationDatesAreNotThoseOfTheLastChange() {
        const QTemporaryDir folder;
        const QString older = test::writeFile(folder.filePath(u"older.txt"_s), "x");
        const QString newer = folder.filePath(u"newer.txt"_s);
        const bool hasDates = test::writeFileAfter(older, newer);
        const QDateTime noon(QDate(2020, 5, 1), QTime(12, 0));
        setModified(older, noon);
        setModified(newer, noon.addSecs(-60));
        OrderedFiles files;
        files.list(newer);
        files.list(older);
        // Where the file system keeps no dates of creation the order stays.
        QCOMPARE(files.names(SortOrder::Created),
                 words(hasDates ? "older.txt newer.txt" : "newer.txt older.txt"));
        QCOMPARE(files.names(SortOrder::Modified), words("newer.txt older.txt"));
    }

    void entriesOfEqualValueKeepTheirOrder() {
        OrderedFiles files;
        for (const QString &name : words("c.txt a.txt b.txt")) {
            files.add(name);
        }
        QCOMPARE(files.names(SortOrder::Size), words("c.txt a.txt b.txt"));
    }

    void vanishedFilesComeFirst() {
        OrderedFiles files;
        files.add(u"there.txt"_s);
        QVERIFY(QFile::remove(files.add(u"gone.txt"_s)));
        for (const SortOrder order : {SortOrder::Size, SortOrder::Created, SortOrder::Modified}) {
            QCOMPARE(files.names(order), words("gone.txt there.txt"));
        }
        QCOMPARE(files.names(SortOrder::Name), words("gone.txt there.txt"));
    }

    void sizeTextsAreComparedByMeaning_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("other");
        QTest::addColumn<int>("order");
        const auto row = [](const char *text, const char *other, int order) {
            QTest::addRow("%s against %s", text, other)
                << QString::fromLatin1(text) << QString::fromLatin1(other) << order;
        };
        row("1.0 MB", "1020 KB", 1);
        row("1020 KB", "1.0 MB", -1);
        row("12 KB", "9 KB", 1);
        row("9 KB", "12 KB", -1);
        row("4 KB", "4 KB", 0);
        row("1.5 MB", "1.4 MB", 1);
        row("4.0 MB", "4 MB", 0);
        row("4 KB", "", 1);
        row("x KB", "y KB", 0);
    }

    void sizeTextsAreComparedByMeaning() {
        QFETCH(const QString, text);
        QFETCH(const QString, other);
        QFETCH(const int, order);
        QCOMPARE(StringFileSizeSort(text, other), order);
    }
};

FOLIOFORGE_TEST(OrdersTest)
#include "OrdersTest.moc"
