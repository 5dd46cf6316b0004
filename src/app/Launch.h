// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace folioforge {

/// What the program says instead of opening its window.
struct LaunchAnswer {
    QString text;
    int exitStatus = 0; ///< 0: the text is what was asked for; 2: it says what is wrong.
};

/// The answer to --help, to --version or to an option that there is not, among the `words` after
/// the program's name; nothing where the window opens. Words after "--" are files.
std::optional<LaunchAnswer> answerTo(const QStringList &words);

/// The absolute paths of the files among `words`.
QStringList filesAmong(const QStringList &words);

} // namespace folioforge
