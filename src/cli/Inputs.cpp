#include "cli/Inputs.h"

#include "error/Error.h"
#include "filelist/FileKind.h"
#include "filelist/SourceFiles.h"
#include "files/SourceFile.h"

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Makes the entry of a file of a recognised type; throws Error when it cannot be converted.
PDFFileInfo readEntry(const QString &path, Input &input) {
    FileVersion::of(path); // Throws where no regular file is.
    const FileKind kind = fileKind(path);
    if (kind == FileKind::Other) {
        throw Error(u"It is not a recognised type"_s);
    }
    if (QString reason; kind == FileKind::Pdf && !isAcceptablePdf(path, &reason)) {
        input.refusedPdf = true;
        throw Error(reason);
    }
    PDFFileInfo entry(path);
    if (!entry.readError().isEmpty()) {
        throw Error(entry.readError());
    }
    return entry;
}

Input collectFile(const QByteArray &path, ReadableLinks &readableLinks) {
    Input input;
    input.shown = QString::fromUtf8(path);
    try {
        input.entry = readEntry(readableLinks.pathFor(path), input);
    } catch (const Error &error) {
        input.rejection = error.reason();
    }
    return input;
}

QByteArray withoutSlashesAtEnd(QByteArray path) {
    while (path.size() > 1 && path.endsWith('/')) {
        path.chop(1);
    }
    return path;
}

/// The order of the names is the same on every file system.
std::vector<QByteArray> sortedNames(const QByteArray &folder) {
    std::vector<QByteArray> names = recognisedNames(folder);
    std::sort(names.begin(), names.end());
    return names;
}

void collectFolder(const QByteArray &path, ReadableLinks &readableLinks,
                   std::vector<Input> &inputs) {
    const QByteArray folder = withoutSlashesAtEnd(path);
    try {
        for (const QByteArray &name : sortedNames(folder)) {
            inputs.push_back(collectFile(folder + '/' + name, readableLinks));
        }
    } catch (const Error &error) {
        Input &input = inputs.emplace_back();
        input.shown = QString::fromUtf8(path);
        input.rejection = error.reason();
    }
}

} // namespace

std::vector<Input> collectInputs(std::span<const QByteArray> paths, ReadableLinks &readableLinks) {
    std::vector<Input> inputs;
    for (const QByteArray &path : paths) {
        std::error_code unknown;
        if (std::filesystem::is_directory(path.toStdString(), unknown)) {
            collectFolder(path, readableLinks, inputs);
        } else {
            inputs.push_back(collectFile(path, readableLinks));
        }
    }
    return inputs;
}

void sortInputs(std::vector<Input> &inputs, SortOrder order) {
    std::vector<const PDFFileInfo *> entries;
    entries.reserve(inputs.size());
    for (const Input &input : inputs) {
        entries.push_back(&input.entry);
    }
    std::vector<Input> sorted;
    sorted.reserve(inputs.size());
    for (const std::size_t position : arrangedOrder(entries, order)) {
        sorted.push_back(std::move(inputs[position]));
    }
    inputs = std::move(sorted);
}

} // namespace folioforge
