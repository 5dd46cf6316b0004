// SPDX-License-Identifier: Apache-2.0

#include "cli/Inputs.h"

#include "error/Error.h"
#include "filelist/SourceFiles.h"

#include <algorithm>
#include <filesystem>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QByteArray withoutSlashesAtEnd(QByteArray path) {
    while (path.size() > 1 && path.endsWith('/')) {
        path.chop(1);
    }
    return path;
}

/// The inputs as they are named, in their order, and the files among them.
class Names {
  public:
    explicit Names(ReadableLinks &readableLinks)
        : m_readableLinks(readableLinks) {}

    void add(const QByteArray &path) {
        std::error_code unknown;
        if (std::filesystem::is_directory(path.toStdString(), unknown)) {
            addFolder(path);
        } else {
            addFile(path);
        }
    }

    /// The inputs with what their files hold.
    std::vector<Input> read() {
        std::vector<ReadEntry> entries = readEntries(m_files, SourceReading::WhenWritten);
        auto next = entries.begin();
        for (Input &input : m_inputs) {
            if (input.read.problem.isEmpty() && input.leftOut.empty()) {
                input.read = std::move(*next++);
            }
        }
        return std::move(m_inputs);
    }

  private:
    void addFile(const QByteArray &path) {
        m_inputs.emplace_back().shown = QString::fromUtf8(path);
        m_files += m_readableLinks.pathFor(path);
    }

    void addFolder(const QByteArray &path) {
        const QByteArray folder = withoutSlashesAtEnd(path);
        try {
            FolderEntries found = listFolder(folder);
            if (Warnings leftOut = found.warnings(); !leftOut.empty()) {
                Input &input = m_inputs.emplace_back();
                input.shown = QString::fromUtf8(path);
                input.leftOut = std::move(leftOut);
            }
            // Sorted, so that the order is the same on every file system.
            std::ranges::sort(found.names);
            for (const QByteArray &name : found.names) {
                addFile(folder + '/' + name);
            }
        } catch (const Error &error) {
            Input &input = m_inputs.emplace_back();
            input.shown = QString::fromUtf8(path);
            input.read.problem = error.reason();
        }
    }

    ReadableLinks &m_readableLinks;
    std::vector<Input> m_inputs;
    QStringList m_files;
};

} // namespace

std::vector<Input> collectInputs(std::span<const QByteArray> paths, ReadableLinks &readableLinks) {
    Names names(readableLinks);
    for (const QByteArray &path : paths) {
        names.add(path);
    }
    return names.read();
}

void sortInputs(std::vector<Input> &inputs, SortOrder order) {
    std::vector<const PDFFileInfo *> entries;
    entries.reserve(inputs.size());
    for (const Input &input : inputs) {
        entries.push_back(&input.read.entry);
    }
    std::vector<Input> sorted;
    sorted.reserve(inputs.size());
    for (const std::size_t position : arrangedOrder(entries, order)) {
        sorted.push_back(std::move(inputs[position]));
    }
    inputs = std::move(sorted);
}

} // namespace folioforge
