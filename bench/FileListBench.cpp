// SPDX-License-Identifier: Apache-2.0

// Times what the file list does with 100,000 entries: add, sort, scroll, remove.

#include "filelist/EntryReader.h"
#include "filelist/Orders.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/SkinTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QScrollBar>
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

QStringList makeImages(const QTemporaryDir &folder) {
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(folder.filePath(u"0.png"_s));
    QStringList paths;
    for (int i = 0; i < kFiles; ++i) {
        paths += folder.filePath(u"%1.png"_s.arg(i));
        QFile::copy(paths.front(), paths.back());
    }
    return paths;
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
    const QStringList paths = makeImages(folder);
    FilesArray files;
    SkinTableView table;
    table.setModel(&files);
    table.setSelectionModel(files.selectionModel());
    table.resize(900, 600);
    table.show();

    const qint64 before = residentBytes();
    timed(u"add 10,000 images"_s, [&] { files.insert(-1, readEntries(paths).entries); });
    while (files.count() < kEntries) {
        files.insert(-1, readEntries(paths).entries);
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
    timed(u"remove every second entry"_s, [&] { files.removeRowsAt(everySecond); });
    return 0;
}
