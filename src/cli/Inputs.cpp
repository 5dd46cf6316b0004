// SPDX-License-Identifier: Apache-2.0

#include "cli/Inputs.h"

#include "cli/Arguments.h"
#include "cli/PipedInputs.h"
#include "error/Error.h"
#include "filelist/FileKind.h"
#include "filelist/SourceFiles.h"
#include "pdf/import/SourceDocument.h"

#include <QFileInfo>

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
    Names(const InputTaking &taking, ReadableLinks &readableLinks, PipedInputs &pipes)
        : m_taking(taking)
        , m_readableLinks(readableLinks)
        , m_pipes(pipes) {}

    /// `pages` are those to take of a PDF.
    void add(const QByteArray &path, const PageChoice &pages) {
        std::error_code unknown;
        if (std::filesystem::is_directory(path.toStdString(), unknown)) {
            if (pages.isNone()) {
                addFolder(path);
            } else {
                addProblem(path, kOnlyPdfs);
            }
            return;
        }
        if (PipedInputs::isPiped(path)) {
            addPipe(path);
        } else {
            addFile(path);
        }
        m_inputs.back().pages = pages;
    }

    /// The inputs with what their files hold.
    /// `titles` are those of their bookmarks, in their order.
    std::vector<Input> read(const InputPasswords &passwords, const QStringList &titles) {
        std::vector<ReadEntry> entries =
            readEntries(m_files, SourceReading::WhenWritten, passwords, m_taking.further);
        auto next = entries.begin();
        qsizetype title = 0;
        for (Input &input : m_inputs) {
            if (input.read.problem.isEmpty() && input.leftOut.empty()) {
                input.read = std::move(*next++);
                choosePages(input);
                hintAtOptions(input);
            }
            if (input.leftOut.empty()) {
                input.read.entry.setBookmarkTitle(titles.value(title++));
            }
        }
        return std::move(m_inputs);
    }

  private:
    static constexpr QLatin1StringView kOnlyPdfs{"Pages are chosen and turned of PDFs alone"};

    static void choosePages(Input &input) {
        input.read.entry.setPageChoice(input.pages);
        if (!input.pages.isNone() && input.read.problem.isEmpty() &&
            input.read.entry.kind() != FileKind::Pdf) {
            input.read.problem = kOnlyPdfs;
        }
    }

    /// Says of a file that is refused how it would be taken.
    void hintAtOptions(Input &input) const {
        if (input.read.problem == encryptedDocument().reason()) {
            input.read.problem += u"; --input-password-file opens it, an empty one where it needs "
                                  "no password"_s;
        }
        const QString &path = input.read.entry.filePathName();
        if (input.read.entry.kind() == FileKind::Other && !m_taking.further.texts &&
            fileKind(path, {.texts = true}) == FileKind::Text && QFileInfo(path).isFile()) {
            input.read.problem += u"; --as-text takes it as a text"_s;
        }
    }

    void addProblem(const QByteArray &path, const QString &problem) {
        Input &input = m_inputs.emplace_back();
        input.shown = QString::fromUtf8(path);
        input.read.problem = problem;
    }

    void addFile(const QByteArray &path) {
        m_inputs.emplace_back().shown = QString::fromUtf8(path);
        m_files += m_readableLinks.pathFor(path);
    }

    void addPipe(const QByteArray &path) {
        Input &input = m_inputs.emplace_back();
        input.shown = QString::fromUtf8(path);
        try {
            m_files += m_pipes.fileOf(path);
        } catch (const Error &error) {
            input.read.problem = error.reason();
        }
    }

    void addFolder(const QByteArray &path) {
        const QByteArray folder = withoutSlashesAtEnd(path);
        try {
            FolderEntries found = listFolder(folder, m_taking.further);
            const std::vector<QByteArray> folders = take(folder, found);
            if (Warnings leftOut = found.warnings(); !leftOut.empty()) {
                Input &input = m_inputs.emplace_back();
                input.shown = QString::fromUtf8(path);
                input.leftOut = std::move(leftOut);
            }
            // Sorted, so that the order is the same on every file system.
            std::ranges::sort(found.names);
            for (const QByteArray &name : found.names) {
                if (std::ranges::binary_search(folders, name)) {
                    addFolder(folder + '/' + name);
                } else {
                    addFile(folder + '/' + name);
                }
            }
        } catch (const Error &error) {
            addProblem(path, error.reason());
        }
    }

    /// Moves what is taken of `folder` to the names of its files. Gives the folders among it,
    /// sorted.
    std::vector<QByteArray> take(const QByteArray &folder, FolderEntries &found) const {
        const auto move = [&found](std::vector<QByteArray> &from, auto first) {
            found.names.insert(found.names.end(), first, from.end());
            from.erase(first, from.end());
        };
        if (m_taking.pdfs) {
            move(found.pdfs, found.pdfs.begin());
        }
        if (!m_taking.folders) {
            return {};
        }
        const auto isLink = [&](const QByteArray &name) {
            std::error_code unknown; // What cannot be looked at says so when it is listed.
            return std::filesystem::is_symlink((folder + '/' + name).toStdString(), unknown);
        };
        const auto own = std::partition(found.folders.begin(), found.folders.end(), isLink);
        std::vector<QByteArray> folders(own, found.folders.end());
        std::ranges::sort(folders);
        move(found.folders, own);
        return folders;
    }

    InputTaking m_taking;
    ReadableLinks &m_readableLinks;
    PipedInputs &m_pipes;
    std::vector<Input> m_inputs;
    QStringList m_files;
};

} // namespace

std::vector<Input> collectInputs(const Arguments &arguments, ReadableLinks &readableLinks,
                                 PipedInputs &pipes) {
    Names names(arguments.taking, readableLinks, pipes);
    for (std::size_t i = 0; i < arguments.inputs.size(); ++i) {
        const auto choice = arguments.pageChoices.find(i);
        names.add(arguments.inputs[i],
                  choice == arguments.pageChoices.end() ? PageChoice() : choice->second);
    }
    return names.read(arguments.options.inputPasswords, arguments.bookmarkTitles);
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
