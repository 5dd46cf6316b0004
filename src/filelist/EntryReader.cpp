#include "filelist/EntryReader.h"

#include "filelist/FileKind.h"
#include "filelist/SourceFiles.h"
#include "image/Parallel.h"

#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <future>
#include <optional>
#include <thread>

namespace folioforge {
namespace {

/// Nothing for a PDF that may not enter the list.
std::optional<PDFFileInfo> readEntry(const QString &path) {
    const FileKind kind = fileKind(path);
    if (kind == FileKind::Pdf && !isAcceptablePdf(path)) {
        return std::nullopt;
    }
    PDFFileInfo entry(path);
    if (kind == FileKind::Text || kind == FileKind::Pdf) {
        entry.setFileSize(sizeText(QFileInfo(path).size()));
    }
    return entry;
}

std::vector<std::optional<PDFFileInfo>> readAll(const QStringList &paths) {
    const auto count = static_cast<std::size_t>(paths.size());
    std::vector<std::optional<PDFFileInfo>> read(count);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            read[i] = readEntry(paths.at(static_cast<qsizetype>(i)));
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

} // namespace

ReadEntries readEntries(const QStringList &paths) {
    auto read = readAll(paths);
    ReadEntries result;
    result.entries.reserve(read.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        if (read[i]) {
            result.entries.push_back(std::move(*read[i]));
        } else {
            result.badFiles += paths.at(static_cast<qsizetype>(i));
        }
    }
    return result;
}

} // namespace folioforge
