// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/SystemCalls.h"

#include <QString>

namespace folioforge {

/// The text of a text file.
struct SourceText {
    QString text;      ///< A null string when the file could not be read as UTF-8.
    Warnings warnings; ///< What was lost in reading.
};

/// Throws Error unless the file at `path` can be read as a text: a regular file of up to 2 GB that
/// this user may read. The file is not opened.
void requireReadableText(const QString &path);

/// The text of the file at `path`, read through `calls`; a byte order mark is not part of it.
/// Without an `encoding`, as decodeText() takes it, it is UTF-8, and bytes that are not give no
/// text and a warning. Throws Error when the file cannot be read, is not of the encoding that was
/// asked for, or memory has no room for it.
SourceText readTextFile(const QString &path, SystemCalls &calls = SystemCalls::system(),
                        const QString &encoding = {});

} // namespace folioforge
