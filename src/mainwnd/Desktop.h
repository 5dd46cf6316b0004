#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

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
};

/// The real desktop.
class SystemDesktop : public Desktop {
  public:
    void runInShell(const QByteArray &command) override;
    void openURL(const QUrl &url) override;
    void openFile(const QString &path) override;
};

} // namespace folioforge
