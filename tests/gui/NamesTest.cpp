// SPDX-License-Identifier: Apache-2.0

#include "gui/ConvertingCase.h"
#include "mainwnd/Desktop.h"
#include "support/HostileNames.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QProcess>
#include <QTextDocument>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The path that the real shell hands to the program that opens files, when it is given `command`.
QString openedBy(const QByteArray &command, const QString &folder) {
    const QString opener = folder + u'/' + openVerb();
    QFile script(opener);
    if (!script.open(QIODevice::WriteOnly) ||
        script.write("#!/bin/sh\nprintf '%s<' \"$@\"\n") < 0) {
        return {};
    }
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcess shell;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, folder + u':' + environment.value(u"PATH"_s));
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(folder);
    shell.start(u"/bin/sh"_s, {u"-c"_s, QFile::decodeName(command)});
    return shell.waitForFinished() ? QFile::decodeName(shell.readAllStandardOutput()) : QString();
}

void writeInputs(const FolderOfHostileNames &folder) {
    for (const QByteArray &name : hostileNames()) {
        writeFileNamed(folder.path(name), "words\n");
    }
}

} // namespace

/// File names that are made to be misread are converted, shown and opened rightly.
class NamesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachFileOfAFolderIsConvertedAndOpened() {
        TestWindow w;
        const FolderOfHostileNames folder(w.path(u"in"_s));
        writeInputs(folder);
        w.notices.setNextFiles({w.path(u"in"_s)});
        w.ctrl.clickBtnAddFolder();
        QTRY_COMPARE(w.ctrl.filesArray().count(), int(hostileNames().size()));
        run(w);
        for (int row = 0; row < w.ctrl.filesArray().count(); ++row) {
            checkThatItOpens(w, row);
        }
        for (const QByteArray &name : hostileNames()) {
            QVERIFY(QFile::exists(w.path(u"out/"_s) + readableBase(name) + u".pdf"_s));
        }
        QVERIFY(!QFile::exists(w.path(u"pwned"_s)));
    }

    void theTableShowsThemAsPlainTextOnOneLine() {
        TestWindow w;
        const FolderOfHostileNames folder(w.path(u"in"_s));
        writeInputs(folder);
        w.notices.setNextFiles({w.path(u"in"_s)});
        w.ctrl.clickBtnAddFolder();
        QTRY_VERIFY(w.ctrl.filesArray().count() > 0);
        run(w);
        const FilesArray &files = w.ctrl.filesArray();
        for (int row = 0; row < files.count(); ++row) {
            for (const int column : {FilesArray::NameColumn, FilesArray::DestinationColumn}) {
                const QModelIndex cell = files.index(row, column);
                const QString shown = cell.data().toString();
                QVERIFY(isHarmlessForTerminals(shown.toUtf8()) && !shown.contains(u'\n'));
                checkToolTip(cell.data(Qt::ToolTipRole).toString());
            }
        }
    }

    void aDroppedFileWhoseNameIsNoTextIsConverted() {
        TestWindow w;
        const FolderOfHostileNames folder(w.path(u"in"_s));
        writeFileNamed(folder.path("caf\xe9.txt"), "words\n");
        QMimeData data;
        data.setUrls({QUrl::fromEncoded("file://" + folder.path("caf%E9.txt"))});
        QVERIFY(w.ctrl.acceptDrop(data, 0));
        QCOMPARE(w.names(), u"caf\uFFFD.txt"_s);
        run(w);
        const QString output = w.path(u"out/caf\uFFFD.pdf"_s);
        QCOMPARE(PdfProbe(output).text().trimmed(), u"words"_s);
    }

    void droppedFilesWhoseNamesReadAlikeStayDifferentFiles() {
        TestWindow w;
        const FolderOfHostileNames folder(w.path(u"in"_s));
        writeFileNamed(folder.path("caf\xe8.txt"), "grave\n");
        writeFileNamed(folder.path("caf\xe9.txt"), "acute\n");
        QMimeData data;
        data.setUrls({QUrl::fromEncoded("file://" + folder.path("caf%E9.txt")),
                      QUrl::fromEncoded("file://" + folder.path("caf%E8.txt"))});
        QVERIFY(w.ctrl.acceptDrop(data, 0));
        QCOMPARE(w.ctrl.filesArray().count(), 2);
        run(w);
        QCOMPARE(PdfProbe(w.path(u"out/caf\uFFFD.pdf"_s)).text().trimmed(), u"acute"_s);
        QCOMPARE(PdfProbe(w.path(u"out/caf\uFFFD(1).pdf"_s)).text().trimmed(), u"grave"_s);
    }

    void noticesShowThemAsPlainText() {
        QWidget window;
        Notices notices;
        window.show();
        notices.showSheet(&window, badNotice(u"/<b>bold<b> <img src=x>.pdf"_s));
        const auto *box = window.findChild<QMessageBox *>();
        QVERIFY(box);
        const auto labels = box->findChildren<QLabel *>();
        int naming = 0;
        for (const QLabel *label : labels) {
            if (label->text().contains(u"<img"_s)) {
                QCOMPARE(label->textFormat(), Qt::PlainText);
                ++naming;
            }
        }
        QCOMPARE(naming, 1);
    }

  private:
    static Notice badNotice(const QString &path) { return {u"Fail to import"_s, u"    "_s + path}; }

    static void checkToolTip(const QString &tip) {
        if (Qt::mightBeRichText(tip)) {
            QTextDocument document;
            document.setHtml(tip);
            QVERIFY(document.toPlainText().contains(u"<b>"_s));
        }
    }

    /// A click opens the destination, through the shell or past it.
    static void checkThatItOpens(TestWindow &w, int row) {
        const QString destination = w.ctrl.filesArray().at(row).destFilePathName();
        QVERIFY(QFile::exists(destination));
        w.desktop.commands.clear();
        w.desktop.files.clear();
        w.ctrl.clickedDest(row);
        QCOMPARE(w.desktop.commands.size() + w.desktop.files.size(), 1);
        if (!w.desktop.commands.isEmpty()) {
            QCOMPARE(openedBy(w.desktop.commands.front(), w.home.path()), destination + u'<');
        } else {
            QCOMPARE(w.desktop.files.front(), destination);
        }
    }
};

FOLIOFORGE_TEST(NamesTest)
#include "NamesTest.moc"
