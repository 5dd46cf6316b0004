#include "convert/CompressionPass.h"
#include "convert/Conversion.h"
#include "convert/QuartzFilter.h"
#include "error/Error.h"
#include "pdf/PartFiles.h"
#include "pdf/TemporaryFolder.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstring>

#include <sys/wait.h>
#include <unistd.h>

using namespace folioforge;
using test::FaultyCalls;
using test::PdfProbe;

namespace {

using Fault = FaultyCalls::Fault;

const QString kPassword = QStringLiteral("open sesame");

/// What a run makes of the sources.
struct Kind {
    bool merge = false;
    bool isProtected = false;
    int compressIndex = 0;
};

struct Outcome {
    bool written = false; ///< The document got its name, whatever became of its compression.
    QString reason;       ///< Why not all went well.
};

struct Source {
    QString path;
    QByteArray bytes;
    QDateTime modified;
};

/// Each errno that a disk, a quota or an administrator can give, once and for good.
std::vector<Fault> faults() {
    std::vector<Fault> all;
    for (const int error : {ENOSPC, EIO, EACCES, ENOENT, EROFS}) {
        all.push_back({0, error, false, {}});
    }
    all.push_back({0, EINTR, false, {}});
    all.push_back({0, 0, false, {}});
    return all;
}

std::vector<Fault> lastingFaults() {
    return {{0, ENOSPC, true, {}}, {0, EIO, true, {}}};
}

QStringList namesIn(const QString &folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

QByteArray describe(const Fault &fault) {
    return "call " + QByteArray::number(fault.call) + ": " +
           (fault.first   ? "folder removed"
            : fault.error ? std::strerror(fault.error)
                          : "half of the bytes") +
           (fault.lasting ? ", from then on" : "");
}

} // namespace

Q_DECLARE_METATYPE(Kind)

/// Runs in which each call to the system fails in turn: the output is whole or absent, the sources
/// are as they were, nothing temporary is left and the reason is said.
class FaultsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    std::vector<Source> m_sources;
    std::vector<PDFFileInfo> m_entries;
    int m_tried = 0;

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString output() const { return path("out/photo.pdf"); }

    void addSource(const QString &file) {
        m_sources.push_back({file, test::readFile(file), QFileInfo(file).lastModified()});
        m_entries.emplace_back(file);
    }

    ConversionOptions optionsOf(const Kind &kind, SystemCalls &calls) const {
        ConversionOptions options;
        options.outputFolder = path("out");
        options.merge = kind.merge;
        options.compressIndex = kind.compressIndex;
        options.security.useUserPassword = kind.isProtected;
        options.security.userPassword = kPassword;
        options.calls = calls;
        return options;
    }

    /// A run as the command line makes it.
    Outcome run(const Kind &kind, SystemCalls &calls) const {
        const ConversionOptions options = optionsOf(kind, calls);
        removeAbandonedParts(options.outputFolder);
        std::vector<const PDFFileInfo *> entries{&m_entries.front()};
        if (kind.merge) {
            entries.push_back(&m_entries.back());
        }
        const PDFOutcome made = createPDF(entries, output(), options);
        Outcome outcome{made.close.status == CloseResult::Status::Written, made.close.reason};
        if (outcome.written && kind.compressIndex != 0) {
            outcome.reason = compressed(options);
        }
        return outcome;
    }

    /// The reason why the output could not be compressed.
    QString compressed(const ConversionOptions &options) const {
        TemporaryFolder temporary(path("temporary"));
        const CompressionOutcome pass =
            compress(output(), options, {path("bundle"), temporary.path()});
        if (!pass.error.isEmpty()) {
            return pass.error;
        }
        try {
            putInPlace(*pass.convertInfo, options.flush, options.calls);
        } catch (const Error &error) {
            return error.reason();
        }
        return {};
    }

    bool sourcesAreUntouched() const {
        return std::all_of(m_sources.begin(), m_sources.end(), [](const Source &source) {
            return test::readFile(source.path) == source.bytes &&
                   QFileInfo(source.path).lastModified() == source.modified;
        });
    }

    /// Whether the document under the output's name is all there; `whole` are the bytes of those
    /// that came out without a fault, for documents of which each has bytes of its own a password.
    bool outputIsWhole(const Kind &kind, const QList<QByteArray> &whole) const {
        return kind.isProtected ? PdfProbe(output(), kPassword).isValid()
                                : whole.contains(test::readFile(output()));
    }

    /// What may be wrong after a run; empty when nothing is.
    QString faultOf(const Outcome &outcome, const Kind &kind, const Fault &fault,
                    const QList<QByteArray> &whole, bool keptFiles) const {
        if (!sourcesAreUntouched()) {
            return QStringLiteral("a source was changed");
        }
        if (QFile::exists(output()) ? !outputIsWhole(kind, whole) : outcome.written) {
            return QStringLiteral("the output is not whole");
        }
        if (!outcome.written && outcome.reason.isEmpty()) {
            return QStringLiteral("no reason is said");
        }
        if (!outcome.reason.isEmpty() &&
            !outcome.reason.contains(QString::fromLocal8Bit(std::strerror(fault.error)))) {
            return QStringLiteral("another reason is said: ") + outcome.reason;
        }
        if (keptFiles) {
            removeAbandonedParts(path("out"));
        }
        if (namesIn(path("out")).size() > (QFile::exists(output()) ? 1 : 0) ||
            !namesIn(path("temporary")).isEmpty()) {
            return QStringLiteral("a temporary file is left");
        }
        return {};
    }

    void tryEach(const Kind &kind, const std::map<std::string, int> &missing,
                 const std::vector<Fault> &faults) {
        FaultyCalls counted;
        counted.failing = missing;
        QCOMPARE(run(kind, counted).reason, QString());
        QVERIFY(counted.count() > 0);
        const QList<QByteArray> whole = wholeOutputs(kind);
        for (int call = 1; call <= counted.count(); ++call) {
            for (Fault fault : faults) {
                QFile::remove(output());
                fault.call = call;
                FaultyCalls calls;
                calls.failing = missing;
                calls.fault = fault;
                const Outcome outcome = run(kind, calls);
                const QString wrong = faultOf(outcome, kind, fault, whole, calls.keptFiles());
                QVERIFY2(wrong.isEmpty(), describe(fault) + ": " + qPrintable(wrong));
                ++m_tried;
            }
        }
    }

    /// The output that stands there, and what it was before it was compressed.
    QList<QByteArray> wholeOutputs(const Kind &kind) const {
        QList<QByteArray> whole{test::readFile(output())};
        if (kind.compressIndex != 0) {
            QFile::remove(output());
            Kind plain = kind;
            plain.compressIndex = 0;
            run(plain, SystemCalls::system());
            whole += test::readFile(output());
        }
        return whole;
    }

    /// The ways in which a file gets its name, from the best to the last.
    static void addWays() {
        QTest::addColumn<QStringList>("missing");
        const QString nameless = QStringLiteral("openAnonymous");
        const QString exclusive = QStringLiteral("renameExclusive");
        QTest::newRow("nameless file") << QStringList();
        QTest::newRow("rename") << QStringList{nameless};
        QTest::newRow("link") << QStringList{nameless, exclusive};
        QTest::newRow("held name") << QStringList{nameless, exclusive, QStringLiteral("link")};
    }

    static std::map<std::string, int> lacking(const QStringList &missing) {
        std::map<std::string, int> failing;
        for (const QString &call : missing) {
            failing[call.toStdString()] = EOPNOTSUPP;
        }
        return failing;
    }

    /// Puts a stranger's file, or a link to one, under the output's name before each call in turn.
    void plantAtEachCall(const Kind &kind, const std::map<std::string, int> &missing, bool link) {
        FaultyCalls counted;
        counted.failing = missing;
        clear();
        QVERIFY(run(kind, counted).written);
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
            ++m_tried;
        }
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
            return test::readFile(file).contains(bytes);
        });
    }

    static bool isReadableByOthers(const QString &folder) {
        const QStringList files = filesIn(folder);
        return std::any_of(files.begin(), files.end(), [](const QString &file) {
            return (QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther)) != 0;
        });
    }

    void clear() const {
        for (const QString &name : namesIn(path("out"))) {
            QFile::remove(path("out/") + name);
        }
    }

    bool plant(bool link) const {
        if (QFile::exists(output())) {
            return false;
        }
        return link ? QFile::link(path("stranger"), output())
                    : !test::writeFile(output(), "a stranger's").isEmpty();
    }

    bool isStrangers(bool link) const {
        return link ? QFileInfo(output()).isSymLink() && !QFile::exists(path("stranger"))
                    : test::readFile(output()) == "a stranger's";
    }

    /// Begins runs in a process of its own and kills that at a random moment.
    void killInItsMidst(const Kind &kind, const std::map<std::string, int> &missing) const {
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;) {
                FaultyCalls calls;
                calls.failing = missing;
                QFile::remove(output());
                run(kind, calls);
            }
        }
        constexpr int kLongest = 60'000; // A few runs.
        ::usleep(static_cast<useconds_t>(QRandomGenerator::global()->bounded(kLongest)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    static QStringList partsIn(const QString &folder) {
        return namesIn(folder).filter(QStringLiteral(".folioforge-part"));
    }

  private Q_SLOTS:
    void initTestCase() {
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        for (const char *name : {"in", "out", "temporary", "bundle/Contents/Resources"}) {
            QVERIFY(QDir().mkpath(path(name)));
        }
        QVERIFY(QFile::copy(QStringLiteral(FOLIOFORGE_FILTERS "/150m.qfilter"),
                            quartzFilterPath(path("bundle"), quartzFilterName(1))));
        QImage photo = test::photo(120, 80);
        constexpr int kDotsPerMeter = 23622; // 600 per inch
        photo.setDotsPerMeterX(kDotsPerMeter);
        photo.setDotsPerMeterY(kDotsPerMeter);
        QVERIFY(photo.save(path("in/photo.jpg"), "JPG", 95));
        addSource(path("in/photo.jpg"));
        addSource(test::writePdf(path("in/pages.pdf"), 2));
    }

    void init() { clear(); }

    void eachCallFailsInItsTurn_data() {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QStringList>("missing");
        QTest::addColumn<bool>("alsoForGood");
        const std::vector<std::pair<const char *, Kind>> kinds{{"single", {}},
                                                               {"merged", {true, false, 0}},
                                                               {"protected", {true, true, 0}},
                                                               {"compressed", {false, false, 1}}};
        const QString nameless = QStringLiteral("openAnonymous");
        const QString exclusive = QStringLiteral("renameExclusive");
        for (const auto &[name, kind] : kinds) {
            QTest::addRow("%s, nameless file", name) << kind << QStringList() << true;
            QTest::addRow("%s, rename", name) << kind << QStringList{nameless} << true;
        }
        const Kind both{false, true, 1};
        QTest::newRow("compressed and protected, nameless file") << both << QStringList() << true;
        const Kind merged{true, false, 0};
        QTest::newRow("merged, link") << merged << QStringList{nameless, exclusive} << true;
        // The name is held by an empty file for a moment, which a disk that is gone keeps.
        QTest::newRow("merged, held name")
            << merged << QStringList{nameless, exclusive, QStringLiteral("link")} << false;
    }
    void eachCallFailsInItsTurn() {
        QFETCH(Kind, kind);
        QFETCH(QStringList, missing);
        QFETCH(bool, alsoForGood);
        const auto failing = lacking(missing);
        tryEach(kind, failing, faults());
        if (alsoForGood) {
            QFile::remove(output());
            tryEach(kind, failing, lastingFaults());
        }
    }

    void theFolderIsRemovedInTheMidstOfARun_data() { addWays(); }
    void theFolderIsRemovedInTheMidstOfARun() {
        QFETCH(QStringList, missing);
        FaultyCalls counted;
        counted.failing = lacking(missing);
        QVERIFY(run({}, counted).written);
        for (int call = 1; call <= counted.count(); ++call) {
            QFile::remove(output());
            bool wasThere = false;
            FaultyCalls calls;
            calls.failing = lacking(missing);
            calls.fault = {call, 0, false, [&] {
                               wasThere = QFile::exists(output());
                               QDir(path("out")).removeRecursively();
                           }};
            const Outcome outcome = run({}, calls);
            QVERIFY(!QFile::exists(path("out")));
            QVERIFY(QDir().mkpath(path("out")));
            QVERIFY(wasThere || !outcome.written);
            QCOMPARE(outcome.reason.isEmpty(), outcome.written);
            QVERIFY(sourcesAreUntouched());
            ++m_tried;
        }
    }

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

    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears_data() {
        QTest::addColumn<QStringList>("missing");
        QTest::newRow("nameless file") << QStringList();
        QTest::newRow("part file") << QStringList{QStringLiteral("openAnonymous")};
    }
    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears() {
        QFETCH(QStringList, missing);
        const Kind kind{false, false, 1};
        QVERIFY(run(kind, SystemCalls::system()).written);
        const QList<QByteArray> whole = wholeOutputs(kind);
        constexpr int kKills = 40;
        int left = 0;
        for (int kill = 0; kill < kKills; ++kill) {
            QFile::remove(output());
            killInItsMidst(kind, lacking(missing));
            QVERIFY(!QFile::exists(output()) || whole.contains(test::readFile(output())));
            QVERIFY(sourcesAreUntouched());
            const QStringList parts = partsIn(path("out")) + partsIn(path("temporary"));
            left += static_cast<int>(parts.size());
            QVERIFY2(partsIn(path("out")).size() <= 1 && partsIn(path("temporary")).size() <= 1,
                     qPrintable(parts.join(u' ')));
            QFile::remove(output());
            QVERIFY(run(kind, SystemCalls::system()).written);
            QCOMPARE(namesIn(path("out")).size(), 1);
            QCOMPARE(namesIn(path("temporary")), QStringList());
        }
        qInfo("%d runs killed, %d parts left and cleared", kKills, left);
    }

    void cleanupTestCase() const { qInfo("%d faults tried", m_tried); }
};

QTEST_GUILESS_MAIN(FaultsTest)
#include "FaultsTest.moc"
