// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

namespace folioforge {

enum class FileKind {
    Text,
    Image,
    Pdf,
    FurtherImage, ///< Pictures that the command line takes and the window does not offer.
    Other
};

/// What is taken beyond the types that the window lists.
struct FurtherTypes {
    bool texts = false; ///< What furtherTexts() and furtherTextNames() name, as text.
};

/// The kind of a file, by the lower-cased extension of its path alone, or by its name where that is
/// a further text without one.
FileKind fileKind(const QString &path, FurtherTypes further = {});

/// Whether the window lists files of this kind.
inline bool isListed(FileKind kind) {
    return kind != FileKind::Other && kind != FileKind::FurtherImage;
}

/// The recognised extensions of a kind, lower-cased, in the order in which file panels list them;
/// none for Other.
const QStringList &extensionsOf(FileKind kind);

/// The extensions, lower-cased, of texts other than ".txt": markup, tables, logs and source code;
/// the last of them are furtherTextNames(), so that "api.readme" is one, too.
const QStringList &furtherTexts();

/// The names, lower-cased, of such files that have no extension, as "README".
const QStringList &furtherTextNames();

} // namespace folioforge
