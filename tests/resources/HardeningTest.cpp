// SPDX-License-Identifier: Apache-2.0

#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QTest>

#include <initializer_list>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

namespace {

QByteArray readelf(const QStringList &arguments, const QString &program) {
    const ToolRun run = runTool(u"readelf"_s, arguments + QStringList{u"--wide"_s, program});
    return run.exitCode == 0 ? run.out : QByteArray();
}

} // namespace

/// What the built programs bring along against faults that a hostile file makes use of, as readelf
/// and objdump see it.
class HardeningTest : public QObject {
    Q_OBJECT

    /// Rows of programs: all, or those that do not leave what is tested to libraries.
    static void programs(std::initializer_list<const char *> names = {FOLIOFORGE_PROGRAMS}) {
        QTest::addColumn<QString>("program");
        for (const auto *name : names) {
            QTest::newRow(name) << bundlePath() + u"/Contents/MacOS/"_s + QString::fromLatin1(name);
        }
    }

  private Q_SLOTS:
    void everyAddressIsDrawnAnew_data() { programs(); }
    void everyAddressIsDrawnAnew() {
        QFETCH(QString, program);
        QVERIFY(readelf({u"--file-header"_s}, program).contains("DYN (Position-Independent"));
    }

    void tablesOfAddressesCannotBeWritten_data() { programs(); }
    void tablesOfAddressesCannotBeWritten() {
        QFETCH(QString, program);
        const QByteArray segments = readelf({u"--program-headers"_s}, program);
        QVERIFY(segments.contains("GNU_RELRO"));
        QVERIFY(readelf({u"--dynamic"_s}, program).contains("NOW"));
    }

    void nothingThatIsWrittenRuns_data() { programs(); }
    void nothingThatIsWrittenRuns() {
        QFETCH(QString, program);
        int stacks = 0;
        for (const QByteArray &line : readelf({u"--program-headers"_s}, program).split('\n')) {
            if (line.trimmed().startsWith("GNU_STACK")) {
                ++stacks;
                QVERIFY(line.contains(" RW ") && !line.contains("RWE"));
            }
            QVERIFY(!line.trimmed().startsWith("LOAD") || !line.contains("RWE"));
        }
        QCOMPARE(stacks, 1);
    }

    void callsAreBoundAtTheStart_data() { programs(); }
    void callsAreBoundAtTheStart() {
        QFETCH(QString, program);
        const QByteArray relocations = readelf({u"--relocs"_s}, program);
        QVERIFY(relocations.contains("GLOB_DAT"));
        QVERIFY(!relocations.contains("JUMP_SLOT"));
    }

    void aJumpLandsWhereAFunctionBegins_data() { programs(); }
    void aJumpLandsWhereAFunctionBegins() {
        QFETCH(QString, program);
        const QByteArray code =
            runTool(u"objdump"_s, {u"--no-show-raw-insn"_s, u"--disassemble=main"_s, program}).out;
        const qsizetype begin = code.indexOf("<main>:\n");
        QVERIFY(begin > 0);
        const QByteArray first = code.sliced(begin).split('\n').value(1);
        QVERIFY2(first.contains("endbr64") || first.contains("paciasp") || first.contains("bti"),
                 first.constData());
    }

    void writingPastTheStackEndsTheProgram_data() { programs(); }
    void writingPastTheStackEndsTheProgram() {
        QFETCH(QString, program);
        QVERIFY(readelf({u"--dyn-syms"_s}, program).contains("__stack_chk_fail"));
    }

    void lengthsAndIndexesAreChecked_data() { programs({"folioforge", "folioforge-cli"}); }
    void lengthsAndIndexesAreChecked() {
        QFETCH(QString, program);
        const QByteArray symbols = readelf({u"--dyn-syms"_s}, program);
        QVERIFY(symbols.contains("__memcpy_chk"));
        QVERIFY(symbols.contains("__glibcxx_assert_fail"));
    }
};

FOLIOFORGE_TEST(HardeningTest)
#include "HardeningTest.moc"
