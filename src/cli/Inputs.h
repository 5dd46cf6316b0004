// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "filelist/EntryReader.h"
#include "filelist/Orders.h"
#include "files/ReadableLinks.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace folioforge {

class PipedInputs;
struct Arguments;

/// One input as it was named or found in a folder.
struct Input {
    QString shown; ///< The path as it was given, for reports.
    ReadEntry read;
    PageChoice pages; ///< Of a PDF.
    Warnings leftOut; ///< Only of a folder, which has no entry: what in it is no input.
};

/// What is taken beside text and image files, and of a folder.
struct InputTaking {
    FurtherTypes further;
    bool pdfs = false;
    bool folders = false; ///< Those that no link leads to, which might lead round.
};

/// The inputs that `arguments` name, in that order, with the choices of pages; an input that is no
/// PDF is rejected with one. A folder stands for its text and image files and what else the
/// arguments say in the order of their names' bytes, behind an input of its own where it holds
/// more. What comes through a pipe, or as "-" through standard input, is kept by `pipes`. A file
/// that is missing, of no recognised type or unreadable, and a folder that cannot be listed, is
/// rejected with its reason.
std::vector<Input> collectInputs(const Arguments &arguments, ReadableLinks &readableLinks,
                                 PipedInputs &pipes);

/// Brings the inputs into `order`.
void sortInputs(std::vector<Input> &inputs, SortOrder order);

} // namespace folioforge
