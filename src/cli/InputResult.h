// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "cli/FileDigest.h"
#include "convert/Run.h"
#include "error/Warning.h"
#include "image/PdfImage.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

namespace folioforge {

/// How one input went.
struct InputResult {
    enum class State {
        Finished, ///< Its pages stand in `output`.
        Failed,   ///< It was accepted, but its pages or its PDF could not be written.
        Rejected, ///< It did not enter the list.
        Kept,     ///< The PDF under its name is not older and stays.
        Planned,  ///< Its pages would stand in `output`: of a dry run.
        Listed,   ///< A folder whose files stand for it.
        Enclosed, ///< Its pages stand in the PDF that says so itself.
        Verified  ///< Its pages in `output`, which was there, are it.
    };
    QString input;
    std::optional<FileDigest> source; ///< Only of the report, like `target`.
    QDateTime modified;               ///< With a manifest alone, like the next.
    QDateTime created;                ///< Where the file system keeps it.
    QString output;                   ///< Path of its PDF; empty where there is none.
    std::optional<FileDigest> target; ///< What the PDF at `output` holds.
    int firstPage = 0;                ///< Of its PDF, from 1; 0 without a page.
    int pages = 0;
    QSizeF pageSize; ///< Of its first page, of a dry run alone.
    State state = State::Finished;
    QString reason;                      ///< Why it failed, was rejected or is kept.
    Warnings warnings;                   ///< What was lost of it though it was written.
    std::optional<double> seconds;       ///< How long its pages took.
    std::optional<double> outputSeconds; ///< How long its PDF took.
    QString archive; ///< The standard for archives that its PDF claims; empty for none.
    std::optional<EmbeddedAs> embedded;
    std::optional<DocumentParts> parts;            ///< Of a PDF that is written.
    std::optional<EntryVerification> verification; ///< What came of holding it against its pages.
    std::optional<CompressionOutcome> compression; ///< What the compression pass did to its PDF.

    /// The result of an input that did not enter the list for `reason`.
    static InputResult rejected(const QString &input, const QString &reason);
    /// The result of an input that was accepted and not begun for `reason`.
    static InputResult failed(const QString &input, const QString &reason);
    /// The result of a folder of which something is left out.
    static InputResult listed(const QString &folder, const Warnings &leftOut);
    /// The result of an entry as its PDF tells of it, in which its first page is `firstPage`.
    static InputResult enclosed(const QString &input, const EntryOutcome &entry, int firstPage);
    /// What a dry run says of the input in words: pages and their size, or why its PDF is kept.
    [[nodiscard]] QString plan() const;
    /// The result of `input`, the entry at `index` of the PDF that `result` is about. The entries
    /// before it have `pagesBefore` pages.
    static InputResult of(const QString &input, const RunResult &result, std::size_t index,
                          int pagesBefore);
};

/// What standard error says of an input: why it failed and each warning, one a line.
QStringList toMessages(const InputResult &result);

} // namespace folioforge
