#include "mainwnd/Desktop.h"

#include <QDesktopServices>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace folioforge {

void SystemDesktop::runInShell(const QByteArray &command) {
    QProcess::startDetached(u"/bin/sh"_s, {u"-c"_s, QFile::decodeName(command)});
}

void SystemDesktop::openURL(const QUrl &url) {
    QDesktopServices::openUrl(url);
}

void SystemDesktop::openFile(const QString &path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace folioforge
