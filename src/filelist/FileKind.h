// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace folioforge {

enum class FileKind { Text, Image, Pdf, Other };

/// The kind of a file, by the lower-cased extension of its path alone.
FileKind fileKind(const QString &path);

/// The recognised extensions of a kind, lower-cased, in the order in which file panels list them;
/// none for Other.
const QStringList &extensionsOf(FileKind kind);

} // namespace folioforge
