#include "mainwnd/Desktop.h"

#include <QDesktopServices>
#include <QFile>
#include <QProcess>

namespace folioforge {

void SystemDesktop::runInShell(const QByteArray &command) {
    QProcess::startDetached(QStringLiteral("/bin/sh"),
                            {QStringLiteral("-c"), QFile::decodeName(command)});
}

void SystemDesktop::openURL(const QUrl &url) {
    QDesktopServices::openUrl(url);
}

void SystemDesktop::openFile(const QString &path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace folioforge
