// SPDX-License-Identifier: Apache-2.0

#include "WholeRun.h"
#include "support/TestUnit.h"

#include <QDirIterator>

using namespace folioforge;
using namespace folioforge::test;

/// What others put into the output folder during a run stays theirs, and what they find there and
/// in the temporary folder tells them nothing of a protected document.
class StrangersTest : public QObject, private WholeRun {
    Q_OBJECT

    int m_planted = 0;

    /// Puts a stranger's file, or a link to one, under the output's name before each call in turn.
    void plantAtEachCall(const Kind &kind, const std::map<std::string, int> &missing, bool link) {
        FaultyCalls counted;
        counted.failing = missing;
        clear();
        QVERIFY(run(kind, counted).written);
        int plantedHere = 0;
        for (int call = 1; call <= counted.count(); ++call) {
            clear();
            bool planted = false;
            FaultyCalls calls;
            calls.failing = missing;
            calls.fault = {call, 0, false, [&] { planted = plant(link); }};
            const Outcome outcome = run(kind, calls);
            QVERIFY(!planted || isStrangers(link));
            QCOMPARE(outcome.written, !planted || !kind.merge);
            QCOMPARE(namesIn(path("out")).size(), planted && !kind.merge ? 2 : 1);
            QVERIFY(sourcesAreUntouched());
            plantedHere += planted ? 1 : 0;
        }
        QVERIFY(plantedHere > 0);
        m_planted += plantedHere;
    }

    bool plant(bool link) const {
        if (QFile::exists(output())) {
            return false;
        }
        return link ? QFile::link(path("stranger"), output())
                    : !writeFile(output(), "a stranger's").isEmpty();
    }

    bool isStrangers(bool link) const {
        return link ? QFileInfo(output()).isSymLink() && !QFile::exists(path("stranger"))
                    : readFile(output()) == "a stranger's";
    }

    static QStringList filesIn(const QString &folder) {
        QStringList files;
        QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            files += all.next();
        }
        return files;
    }

    static bool contains(const QString &folder, const QByteArray &bytes) {
        const QStringList files = filesIn(folder);
        return std::any_of(files.begin(), files.end(), [&bytes](const QString &file) {
            return readFile(file).contains(bytes);
        });
    }

    static bool isReadableByOthers(const QString &folder) {
        const QStringList files = filesIn(folder);
        return std::any_of(files.begin(), files.end(), [](const QString &file) {
            return (QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther)) != 0;
        });
    }

  private Q_SLOTS:
    void initTestCase() { setUp(); }
    void init() { clear(); }

    void aFileOrLinkThatAppearsMeanwhileIsNeitherReplacedNorFollowed_data() { addWays(); }
    void aFileOrLinkThatAppearsMeanwhileIsNeitherReplacedNorFollowed() {
        QFETCH(QStringList, missing);
        for (const bool merge : {false, true}) {
            for (const bool link : {false, true}) {
                plantAtEachCall({merge, false, 0}, lacking(missing), link);
            }
        }
    }

    /// What a protected document is made of never lies open on the disk, and its temporary copy is
    /// its owner's alone, whenever one looks.
    void aProtectedDocumentNeverLiesOpenOnTheDisk_data() { addWays(); }
    void aProtectedDocumentNeverLiesOpenOnTheDisk() {
        QFETCH(QStringList, missing);
        const Kind kind{false, true, 1};
        const QByteArray secret = m_sources.front().bytes.last(64);
        FaultyCalls counted;
        counted.failing = lacking(missing);
        QCOMPARE(run(kind, counted).reason, QString());
        int looks = 0;
        for (int call = 1; call <= counted.count(); ++call) {
            clear();
            FaultyCalls calls;
            calls.failing = lacking(missing);
            calls.fault = {call, 0, false, [&] {
                               looks += filesIn(path("temporary")).empty() ? 0 : 1;
                               QVERIFY(!isReadableByOthers(path("temporary")));
                               QVERIFY(!contains(path("temporary"), secret));
                               QVERIFY(!contains(path("out"), secret));
                           }};
            QVERIFY(run(kind, calls).written);
        }
        QVERIFY(looks > 0);
        qInfo("looked before %d calls, at temporary files %d times", counted.count(), looks);
    }

    void cleanupTestCase() const { qInfo("%d files and links planted", m_planted); }
};

FOLIOFORGE_TEST(StrangersTest)
#include "StrangersTest.moc"
