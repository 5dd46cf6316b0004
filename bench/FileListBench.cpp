// SPDX-License-Identifier: Apache-2.0

// Times what the window takes to list 10,000 files of each kind, and what the file list does with
// 100,000 entries: add, sort, scroll, remove.

#include "filelist/EntryReader.h"
#include "filelist/Orders.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "mainwnd/SkinTableView.h"
#include "mainwnd/WindowServices.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QMainWindow>
#include <QPainter>
#include <QPdfWriter>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

constexpr int kFiles = 10'000;
constexpr int kEntries = 100'000;

/// Resident memory in bytes, of Linux; 0 elsewhere.
qint64 residentBytes() {
    constexpr qint64 kPage = 4096;
    QFile memory(u"/proc/self/statm"_s);
    return memory.open(QIODevice::ReadOnly)
               ? memory.readAll().split(' ').value(1).toLongLong() * kPage
               : 0;
}

void timed(const QString &what, const std::function<void()> &work) {
    QElapsedTimer timer;
    timer.start();
    work();
    QTextStream(stdout) << u"%1 ms  %2\n"_s.arg(timer.elapsed(), 6).arg(what);
}

/// A desktop that does nothing.
class StillDesktop : public Desktop {
  public:
    void runInShell(const QByteArray & /*command*/) override {}
    void openURL(const QUrl & /*url*/) override {}
    void openFile(const QString & /*path*/) override {}
    void notify(const QString & /*text*/) override {}
    void showProgress(std::optional<double> /*share*/) override {}
};

void makeImage(const QString &path) {
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(path);
}

void makeText(const QString &path) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray(1000, 'a'));
    }
}

void makePdf(const QString &path) {
    QPdfWriter pdf(path);
    QPainter painter(&pdf);
    painter.drawText(1000, 1000, u"A page"_s);
    pdf.newPage();
    painter.drawText(1000, 1000, u"Another"_s);
}

/// The file that `make` writes, with copies of it.
QStringList makeFiles(const QTemporaryDir &folder, const QString &extension,
                      void (*make)(const QString &path)) {
    QStringList paths;
    for (int i = 0; i < kFiles; ++i) {
        paths += folder.filePath(QString::number(i) + extension);
        i == 0 ? make(paths.front()) : void(QFile::copy(paths.front(), paths.back()));
    }
    return paths;
}

/// Adds files to the window as its buttons and drops do, and has it draw them.
void timeWindow(const QTemporaryDir &home, const QStringList &images) {
    QSettings settings(home.filePath(u"settings.ini"_s), QSettings::IniFormat);
    settings.setValue(u"CustomizeOutputDir"_s, home.path());
    StillDesktop desktop;
    Notices notices;
    NotificationCenter notifications;
    MainWndCtrl controller({settings, desktop, notices, notifications, home.path(),
                            QCoreApplication::applicationDirPath() + u"/../Folioforge.app"_s});
    controller.window()->show();
    const auto add = [&](const QStringList &paths) {
        controller.addFiles(paths, -1);
        controller.window()->grab();
    };
    const QStringList texts = makeFiles(home, u".txt"_s, makeText);
    const QStringList pdfs = makeFiles(home, u".pdf"_s, makePdf);
    timed(u"10,000 images into the window"_s, [&] { add(images); });
    timed(u"10,000 texts into the window"_s, [&] { add(texts); });
    timed(u"10,000 PDFs into the window"_s, [&] { add(pdfs); });
}

std::vector<PDFFileInfo> entriesOf(const QStringList &paths) {
    std::vector<PDFFileInfo> entries;
    for (ReadEntry &read : readEntries(paths, SourceReading::WhenListed)) {
        entries.push_back(std::move(read.entry));
    }
    return entries;
}

void scrollThrough(SkinTableView &table) {
    QScrollBar *bar = table.verticalScrollBar();
    for (int step = 0; step <= 100; ++step) {
        bar->setValue(bar->maximum() / 100 * step);
        table.viewport()->grab();
    }
}

} // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QStringList paths = makeFiles(folder, u".png"_s, makeImage);
    timeWindow(folder, paths);
    FilesArray files;
    SkinTableView table;
    table.setModel(&files);
    table.setSelectionModel(files.selectionModel());
    table.resize(900, 600);
    table.show();

    const qint64 before = residentBytes();
    timed(u"add 10,000 images"_s, [&] { files.insert(-1, entriesOf(paths)); });
    while (files.count() < kEntries) {
        files.insert(-1, entriesOf(paths));
    }
    QTextStream(stdout) << (residentBytes() - before) / (1 << 20) << " MB for 100,000 images\n";
    const auto sort = [&](SortOrder order) {
        files.rearrange(arrangedOrder(files.arrangedObjects(), order));
        files.reindex();
    };
    timed(u"sort by name"_s, [&] { sort(SortOrder::Name); });
    timed(u"sort by size"_s, [&] { sort(SortOrder::Size); });
    timed(u"draw 101 places of the list"_s, [&] { scrollThrough(table); });
    std::vector<int> everySecond(kEntries / 2);
    std::generate(everySecond.begin(), everySecond.end(),
                  [row = -2]() mutable { return row += 2; });
    timed(u"remove every second entry"_s, [&] { files.takeRows(everySecond); });
    return 0;
}
