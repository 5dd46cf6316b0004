// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/Desktop.h"

#include "mainwnd/DesktopBus.h"

#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <array>

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

void SystemDesktop::notify(const QString &text) {
    sendNotification(text);
}

void SystemDesktop::showProgress(std::optional<double> share) {
    sendProgress(share);
}

QByteArray openCommand(const QString &verb, const QString &path) {
    const QByteArray command = verb.toUtf8() + " \"" + QFile::encodeName(path) + '"';
    QByteArray escaped;
    escaped.reserve(2 * command.size());
    for (const char byte : command) {
        if (byte == '$') {
            escaped += '\\';
        }
        escaped += byte;
    }
    return escaped;
}

bool isSafeInShell(const QString &path) {
    constexpr std::array kUnsafe{u'"', u'`', u'\\', u'\n', u'\r', u'\0'};
    return path.startsWith(u'/') && std::none_of(path.begin(), path.end(), [&kUnsafe](QChar unit) {
               return std::ranges::find(kUnsafe, unit) != kUnsafe.end();
           });
}

QString openVerb() {
    const QString verb = u"open"_s;
    return QStandardPaths::findExecutable(verb).isEmpty() ? u"xdg-open"_s : verb;
}

} // namespace folioforge
