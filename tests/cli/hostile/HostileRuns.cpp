// SPDX-License-Identifier: Apache-2.0

#include "HostileRuns.h"

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace folioforge::test {

void addColumns() {
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<qint64>("size");
}

void addRow(const char *name, Maker maker, qint64 full, qint64 quick) {
    QTest::newRow(name) << maker << sized(full, quick);
}

QByteArray fetched() {
    QFETCH(Maker, maker);
    QFETCH(qint64, size);
    return maker(size);
}

QString written() {
    return u"a PDF"_s;
}

QString valid() {
    return u"a right PDF"_s;
}

QString noMemory() {
    return u"There is not enough memory"_s;
}

QString HostileRuns::saved(const QString &name, const QByteArray &bytes) const {
    return writeFile(path(name), bytes);
}

QString HostileRuns::endingOf(const QStringList &arguments, const Limits &limits) const {
    QFile::remove(target());
    const LimitedRun run = runLimited(
        commandLineProgram(),
        QStringList{u"--flush"_s, u"never"_s, u"--merge"_s, target()} + arguments, limits);
    QString answer = QString::fromUtf8(run.err.left(run.err.indexOf('\n')));
    answer = answer.sliced(answer.lastIndexOf(u": "_s) + 1).trimmed();
    if (run.exitCode == 0) {
        answer = written();
    } else if (run.exitCode != 1) {
        answer = u"exit status %1"_s.arg(run.exitCode); // A signal, or a fault of this test.
    }
    qInfo("| %s%s%s | %.1f s | %lld MB | %s |", QTest::currentTestFunction(),
          QTest::currentDataTag() ? ": " : "",
          QTest::currentDataTag() ? QTest::currentDataTag() : "", run.processorSeconds,
          run.peakBytes >> 20, qPrintable(answer));
    return answer;
}

QString HostileRuns::answerTo(const QStringList &arguments, const Limits &limits) const {
    const QString ending = endingOf(arguments, limits);
    const PdfProbe made(target());
    const auto isRight = [&] {
        return arguments.first().endsWith(u".pdf"_s) ? made.isAsSoundAsItsSource() : made.isValid();
    };
    return ending == written() && isRight() ? valid() : ending;
}

} // namespace folioforge::test
