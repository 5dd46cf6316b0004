#include "mainwnd/OpenCommand.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace folioforge {

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
    constexpr QStringView kUnsafe = u"\"`\\\n\r\0\u2028\u2029";
    return std::none_of(path.begin(), path.end(),
                        [kUnsafe](QChar unit) { return kUnsafe.contains(unit); });
}

QString openVerb() {
    const QString verb = QStringLiteral("open");
    return QStandardPaths::findExecutable(verb).isEmpty() ? QStringLiteral("xdg-open") : verb;
}

} // namespace folioforge
