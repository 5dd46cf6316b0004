// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayList>
#include <QString>

#include <optional>

namespace folioforge {

/// What the program says instead of opening its window.
struct LaunchAnswer {
    QString text;
    int exitStatus = 0; ///< 0: the text is what was asked for; 2: it says what is wrong.
};

/// The answer to --help, to --version or to an option that there is not, among the `words` after
/// the program's name; nothing where the window opens. Words after "--" are files.
std::optional<LaunchAnswer> answerTo(const QByteArrayList &words);

/// The absolute paths of the files among `words`, in bytes, as names need not be text.
QByteArrayList filesAmong(const QByteArrayList &words);

} // namespace folioforge
