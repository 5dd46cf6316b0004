// SPDX-License-Identifier: Apache-2.0

#include "filelist/EntryReader.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "filelist/FileKind.h"
#include "filelist/SourceFiles.h"
#include "files/SourceFile.h"
#include "image/Parallel.h"
#include "pdf/import/SourceDocument.h"

#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>

namespace folioforge {
namespace {

/// Reads what decides whether the file may enter the list. Throws Error where it may not.
void accept(ReadEntry &read, SourceReading reading, const InputPasswords &passwords) {
    const QString &path = read.entry.filePathName();
    FileVersion::of(path); // Throws where no regular file is.
    switch (read.entry.kind()) {
    case FileKind::Pdf:
        read.refusedPdf = true;
        if (reading == SourceReading::WhenListed) {
            const PDFSummary summary = summarizeOpenPdf(path);
            read.entry.setPageCount(summary.pageCount);
            read.entry.setTagged(summary.tagged);
        } else {
            read.entry.setTagged(requireSourceDocument(path, passwords));
        }
        read.refusedPdf = false;
        break;
    case FileKind::Image:
    case FileKind::FurtherImage:
        read.entry.setPageCount(read.entry.getSrcImage() ? 1 : 0);
        break;
    case FileKind::Text:
        break; // The page size decides, and may change until the run.
    case FileKind::Other:
        throw Error(Reasons::tr("It is not a recognised type"));
    }
}

ReadEntry readEntry(const QString &path, SourceReading reading, const InputPasswords &passwords,
                    FurtherTypes further) {
    ReadEntry read{PDFFileInfo(path, reading, further), {}, false};
    const FileKind kind = read.entry.kind();
    if (kind == FileKind::Text || kind == FileKind::Pdf) {
        read.entry.setFileSize(sizeText(QFileInfo(path).size()));
    }
    try {
        accept(read, reading, passwords);
        read.problem = read.entry.readError();
    } catch (const Error &error) {
        read.problem = error.reason();
    }
    return read;
}

} // namespace

std::vector<ReadEntry> readEntries(const QStringList &paths, SourceReading reading,
                                   const InputPasswords &passwords, FurtherTypes further) {
    const auto count = static_cast<std::size_t>(paths.size());
    std::vector<ReadEntry> read(count);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            read[i] = readEntry(paths.at(static_cast<qsizetype>(i)), reading, passwords, further);
        }
    };
    // A thread costs more than a few small files.
    constexpr std::size_t kFilesPerThread = 8;
    const std::size_t threads =
        std::min<std::size_t>(std::thread::hardware_concurrency(), count / kFilesPerThread);
    std::vector<std::future<void>> others;
    while (others.size() + 1 < threads) {
        others.push_back(runAsync(work));
    }
    work();
    std::ranges::for_each(others, &std::future<void>::get);
    return read;
}

} // namespace folioforge
