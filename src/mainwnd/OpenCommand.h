#pragma once

#include <QByteArray>
#include <QString>

namespace folioforge {

/// The shell command that opens the file at `path`: `verb` and the path in double quotes, with a
/// backslash before every "$" and no other character escaped.
QByteArray openCommand(const QString &verb, const QString &path);

/// Whether openCommand() of `path` can do nothing but open it: false where the path holds a
/// character that ends or escapes the quotes (a double quote, a backquote, a backslash, a line
/// break or a null character), and where it is relative and might be taken for an option.
bool isSafeInShell(const QString &path);

/// The command that opens files here: "open", or "xdg-open" where the system has no "open".
QString openVerb();

} // namespace folioforge
