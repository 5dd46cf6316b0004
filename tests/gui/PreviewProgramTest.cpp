// SPDX-License-Identifier: Apache-2.0

#include "PreviewWindow.h"
#include "support/TestUnit.h"

#include "app/FolioforgeAppDelegate.h"
#include "preview/Preview.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A bundle whose program for pages is a script that never ends and writes its number to `number`.
QString endlessBundle(const QTemporaryDir &folder) {
    QString bundle = folder.filePath(u"Endless.app"_s);
    const QString program = Preview::programIn(bundle);
    QDir().mkpath(QFileInfo(program).path());
    writeFile(program, "#!/bin/sh\necho $$ >'" + QFile::encodeName(folder.filePath(u"number"_s)) +
                           "'\nexec sleep 1000\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return bundle;
}

} // namespace

/// The window beside a program for pages that is missing or never ends.
class PreviewProgramTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void withoutTheProgramThereIsNoPreview() {
        PreviewWindow w(QString{});
        w.listPdf(1);
        w.key(Qt::Key_Space);
        QVERIFY(!w.isShown());
        WindowWorld world;
        FolioforgeAppDelegate delegate(world.services(world.path(u"Other.app"_s)));
        delegate.applicationDidFinishLaunching();
        QVERIFY(!viewMenu(*delegate.mainWndCtrl().window())->isVisible());
    }

    void aDrawingThatNeverEndsLeavesTheWindowAlive() {
        const QTemporaryDir folder;
        PreviewWindow w(endlessBundle(folder));
        w.listPdf(1);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.panel().view().words(), u"Drawing the page…"_s);
        const QString number = folder.filePath(u"number"_s);
        QTRY_VERIFY(QFile::exists(number));
        const pid_t process = readFile(number).trimmed().toInt();
        QVERIFY(process > 0 && ::kill(process, 0) == 0);
        w.key(Qt::Key_Escape);
        QVERIFY(!w.isShown());
        QTRY_VERIFY(::kill(process, 0) != 0);
    }
};

FOLIOFORGE_TEST(PreviewProgramTest)
#include "PreviewProgramTest.moc"
