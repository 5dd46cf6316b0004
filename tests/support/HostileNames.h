// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

namespace folioforge::test {

/// Names of text files that a shell, a terminal, a format string or HTML would misread, that no
/// text can hold, or that leave no room for anything more; in the file system's bytes.
QList<QByteArray> hostileNames();

/// Writes a file at `path`, whose bytes need not be text.
void writeFileNamed(const QByteArray &path, const QByteArray &bytes);

/// The name under which text shows the file `name`, without its extension.
QString readableBase(const QByteArray &name);

/// Whether `output` is UTF-8 without a character, save the line feed, that a terminal obeys.
bool isHarmlessForTerminals(const QByteArray &output);

} // namespace folioforge::test
