// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/EntryReader.h"
#include "filelist/Orders.h"
#include "files/ReadableLinks.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

class PipedInputs;

/// One input as it was named or found in a folder.
struct Input {
    QString shown; ///< The path as it was given, for reports.
    ReadEntry read;
    PageChoice pages; ///< Of a PDF.
    Warnings leftOut; ///< Only of a folder, which has no entry: what in it is no input.
};

/// What of a folder is taken beside its text and image files.
struct FolderTaking {
    bool pdfs = false;
    bool folders = false; ///< Those that no link leads to, which might lead round.
};

/// The inputs that `paths` name, in that order, with the `choices` of pages by the positions of
/// PDFs; an input that is none is rejected with a choice. A folder stands for its text and image
/// files and what else `taking` says in the order of their names' bytes, behind an input of its own
/// where it holds more. What comes through a pipe, or as "-" through standard input, is kept by
/// `pipes`. A file that is missing, of no recognised type or unreadable, and a folder that cannot
/// be listed, is rejected with its reason.
std::vector<Input> collectInputs(std::span<const QByteArray> paths,
                                 const std::map<std::size_t, PageChoice> &choices,
                                 const FolderTaking &taking, ReadableLinks &readableLinks,
                                 PipedInputs &pipes);

/// Brings the inputs into `order`.
void sortInputs(std::vector<Input> &inputs, SortOrder order);

} // namespace folioforge
