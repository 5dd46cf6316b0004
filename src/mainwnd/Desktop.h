// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace folioforge {

/// What the window asks of the desktop around it.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// Runs `command` through the system shell in the background, without waiting for it.
    virtual void runInShell(const QByteArray &command) = 0;
    /// Opens a web page in the default browser.
    virtual void openURL(const QUrl &url) = 0;
    /// Opens a file or folder with the desktop's default handler.
    virtual void openFile(const QString &path) = 0;
    /// Shows `text` to a user who looks elsewhere.
    virtual void notify(const QString &text) = 0;
    /// Shows how far a run is (0 to 1) on the task bar; nothing ends that.
    virtual void showProgress(std::optional<double> share) = 0;
};

/// The real desktop.
class SystemDesktop : public Desktop {
  public:
    void runInShell(const QByteArray &command) override;
    void openURL(const QUrl &url) override;
    void openFile(const QString &path) override;
    void notify(const QString &text) override;
    void showProgress(std::optional<double> share) override;
};

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
