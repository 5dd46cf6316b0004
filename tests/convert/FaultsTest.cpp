// SPDX-License-Identifier: Apache-2.0

#include "WholeRun.h"

#include "support/PdfProbe.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <cstring>
#include <span>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

using Fault = FaultyCalls::Fault;

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

QByteArray describe(const Fault &fault) {
    return "call " + QByteArray::number(fault.call) + ": " +
           (fault.first   ? "folder removed"
            : fault.error ? std::strerror(fault.error)
                          : "half of the bytes") +
           (fault.lasting ? ", from then on" : "");
}

} // namespace

/// Runs in which each call to the system fails in turn: the output is whole or absent, the sources
/// are as they were, nothing temporary is left and the reason is said.
class FaultsTest : public QObject, private WholeRun {
    Q_OBJECT

    int m_tried = 0;
    int m_stops = 0;

    /// Whether the document under the output's name is all there; `whole` are the bytes of those
    /// that came out without a fault, for documents of which each has bytes of its own a password.
    bool outputIsWhole(const Kind &kind, const QList<QByteArray> &whole) const {
        return kind.isProtected ? PdfProbe(output(), kPassword).isValid()
                                : whole.contains(readFile(output()));
    }

    /// What may be wrong after a run; empty when nothing is.
    QString faultOf(const Outcome &outcome, const Kind &kind, const Fault &fault,
                    const QList<QByteArray> &whole, bool keptFiles) const {
        if (!sourcesAreUntouched()) {
            return u"a source was changed"_s;
        }
        if (QFile::exists(output()) ? !outputIsWhole(kind, whole) : outcome.written) {
            return u"the output is not whole"_s;
        }
        if (!outcome.written && outcome.reason.isEmpty()) {
            return u"no reason is said"_s;
        }
        if (!outcome.reason.isEmpty() &&
            !outcome.reason.contains(QString::fromLocal8Bit(std::strerror(fault.error)))) {
            return u"another reason is said: "_s + outcome.reason;
        }
        if (keptFiles) {
            const AbandonedParts cleared(path("out"), AbandonedParts::Kinds::Files);
        }
        if (namesIn(path("out")).size() > (QFile::exists(output()) ? 1 : 0) ||
            !namesIn(path("temporary")).isEmpty()) {
            return u"a temporary file is left"_s;
        }
        return {};
    }

    /// All of `faults`, but where each run takes long the one whose turn it is.
    static std::span<const Fault> triedAt(int call, std::span<const Fault> faults) {
        return isSanitized() ? faults.subspan(static_cast<std::size_t>(call) % faults.size(), 1)
                             : faults;
    }

    void tryEach(const Kind &kind, const std::map<std::string, int> &missing,
                 const std::vector<Fault> &faults) {
        clear();
        FaultyCalls counted;
        counted.failing = missing;
        QCOMPARE(run(kind, counted).reason, QString());
        QVERIFY(counted.count() > 0);
        const QList<QByteArray> whole = wholeOutputs(kind);
        int failed = 0;
        for (int call = 1; call <= counted.count(); ++call) {
            for (Fault fault : triedAt(call, faults)) {
                QFile::remove(output());
                fault.call = call;
                FaultyCalls calls;
                calls.failing = missing;
                calls.fault = fault;
                const Outcome outcome = run(kind, calls);
                const QString wrong = faultOf(outcome, kind, fault, whole, calls.keptFiles());
                QVERIFY2(wrong.isEmpty(), describe(fault) + ": " + qPrintable(wrong));
                failed += outcome.reason.isEmpty() ? 0 : 1;
                ++m_tried;
            }
        }
        // Some calls may fail unnoticed, but not most.
        QVERIFY(failed >= counted.count() / (isSanitized() ? 2 : 1));
    }

  private Q_SLOTS:
    void initTestCase() { setUp(); }
    void init() { clear(); }

    void eachCallFailsInItsTurn_data() {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QStringList>("missing");
        QTest::addColumn<bool>("once");
        QTest::addColumn<bool>("forGood");
        const std::vector<std::pair<const char *, Kind>> kinds{{"single", {}},
                                                               {"merged", {true, false, 0}},
                                                               {"protected", {true, true, 0}},
                                                               {"compressed", {false, false, 1}},
                                                               {"tagged", {false, false, 0, true}}};
        const QString nameless = u"openAnonymous"_s;
        const QString exclusive = u"renameExclusive"_s;
        for (const auto &[name, kind] : kinds) {
            QTest::addRow("%s, nameless file", name) << kind << QStringList() << true << true;
            QTest::addRow("%s, rename", name) << kind << QStringList{nameless} << true << true;
        }
        const Kind both{false, true, 1};
        QTest::newRow("compressed and protected, nameless file")
            << both << QStringList() << false << true;
        const Kind merged{true, false, 0};
        QTest::newRow("merged, link") << merged << QStringList{nameless, exclusive} << true << true;
        // The name is held by an empty file for a moment, which a disk that is gone keeps.
        QTest::newRow("merged, held name")
            << merged << QStringList{nameless, exclusive, u"link"_s} << true << false;
    }
    void eachCallFailsInItsTurn() {
        QFETCH(Kind, kind);
        QFETCH(QStringList, missing);
        QFETCH(bool, once);
        QFETCH(bool, forGood);
        if (once) {
            tryEach(kind, lacking(missing), faults());
        }
        if (forGood) {
            tryEach(kind, lacking(missing), lastingFaults());
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

    void aStopAtAnyCallMovesNoFurtherByteAndLeavesNothing_data() { addWays(); }
    void aStopAtAnyCallMovesNoFurtherByteAndLeavesNothing() {
        QFETCH(QStringList, missing);
        const Kind merged{true, false, 0};
        FaultyCalls counted;
        counted.failing = lacking(missing);
        QVERIFY(run(merged, counted).written);
        const QByteArray whole = readFile(output());
        int stopped = 0;
        for (int call = 1; call <= counted.count(); ++call) {
            QFile::remove(output());
            std::stop_source stop;
            int movesBefore = 0;
            FaultyCalls calls;
            calls.failing = lacking(missing);
            calls.fault = {call, 0, false, [&] {
                               movesBefore = calls.moves();
                               stop.request_stop();
                           }};
            const Outcome outcome = run(merged, calls, stop.get_token());
            QVERIFY(calls.moves() <= movesBefore + 1);
            QCOMPARE(readFile(output()), outcome.written ? whole : QByteArray());
            QCOMPARE(namesIn(path("out")).size(), outcome.written ? 1 : 0);
            QVERIFY(sourcesAreUntouched());
            stopped += outcome.written ? 0 : 1;
            ++m_stops;
        }
        QVERIFY(stopped > 0);
    }

    void cleanupTestCase() const { qInfo("%d faults, %d stops tried", m_tried, m_stops); }
};

FOLIOFORGE_TEST(FaultsTest)
#include "FaultsTest.moc"
