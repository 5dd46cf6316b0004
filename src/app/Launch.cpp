// SPDX-License-Identifier: Apache-2.0

#include "app/Launch.h"

#include <filesystem>
#include <system_error>

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

std::optional<LaunchAnswer> answerTo(const QByteArrayList &words) {
    for (const QByteArray &word : words) {
        if (word == "--") {
            break;
        }
        if (word == "--help") {
            return LaunchAnswer{helpText()};
        }
        if (word == "--version") {
            return LaunchAnswer{u"folioforge " FOLIOFORGE_VERSION "\n"_s};
        }
        if (word.startsWith("--")) {
            return LaunchAnswer{u"folioforge: there is no option \"%1\"\n"
                                "Try \"folioforge --help\".\n"_s.arg(QString::fromUtf8(word)),
                                2};
        }
    }
    return std::nullopt;
}

QByteArrayList filesAmong(const QByteArrayList &words) {
    QByteArrayList files;
    bool isOver = false; // The options are.
    for (const QByteArray &word : words) {
        if (!isOver && word == "--") {
            isOver = true;
        } else {
            std::error_code failure; // Where the current folder is gone.
            const auto path = std::filesystem::absolute(word.toStdString(), failure);
            files += failure ? word : QByteArray::fromStdString(path.string());
        }
    }
    return files;
}

} // namespace folioforge
