// SPDX-License-Identifier: Apache-2.0

#include "app/Launch.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QString helpText() {
    return u"Usage: folioforge [FILE...]\n"
           "Opens a window with a list of the FILEs, from which PDF documents are made.\n"
           "\n"
           "  --help     show this text\n"
           "  --version  show the version\n"
           "\n"
           "Without a window the same is done by folioforge-cli.\n"_s;
}

} // namespace

std::optional<LaunchAnswer> answerTo(const QStringList &words) {
    for (const QString &word : words) {
        if (word == u"--") {
            break;
        }
        if (word == u"--help") {
            return LaunchAnswer{helpText()};
        }
        if (word == u"--version") {
            return LaunchAnswer{u"folioforge " FOLIOFORGE_VERSION "\n"_s};
        }
        if (word.startsWith(u"--")) {
            return LaunchAnswer{u"folioforge: there is no option \"%1\"\n"
                                "Try \"folioforge --help\".\n"_s.arg(word),
                                2};
        }
    }
    return std::nullopt;
}

QStringList filesAmong(const QStringList &words) {
    QStringList files;
    bool isOver = false; // The options are.
    for (const QString &word : words) {
        if (!isOver && word == u"--") {
            isOver = true;
        } else {
            files += QDir::current().absoluteFilePath(word);
        }
    }
    return files;
}

} // namespace folioforge
