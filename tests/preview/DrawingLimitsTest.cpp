// SPDX-License-Identifier: Apache-2.0

#include "preview/Preview.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the program that draws pages may take of the system, as the kernel tells it.
class DrawingLimitsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theProgramLimitsWhatItTakes() {
        QProcess process;
        process.start(Preview::programIn(bundlePath()), {u"/none.pdf"_s, u"0"_s, u"9"_s, u"9"_s});
        QVERIFY(process.waitForStarted());
        const auto limit = [&](const QByteArray &name) {
            const auto lines = readFile(u"/proc/%1/limits"_s.arg(process.processId())).split('\n');
            for (const QByteArray &line : lines) {
                if (line.startsWith(name)) {
                    return line.sliced(name.size()).simplified().split(' ').constFirst();
                }
            }
            return QByteArray();
        };
        // It waits for the password.
        QTRY_COMPARE(limit("Max file size"), QByteArray("0"));
        QCOMPARE(limit("Max cpu time"), QByteArray("20"));
        QCOMPARE(limit("Max core file size"), QByteArray("0"));
        if (!isSanitized()) {
            QTRY_COMPARE(limit("Max data size"), QByteArray("1610612736"));
        }
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 3);
    }
};

FOLIOFORGE_TEST(DrawingLimitsTest)
#include "DrawingLimitsTest.moc"
