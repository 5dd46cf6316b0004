// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace folioforge::test {

/// Names of text files that a shell, a terminal, a format string or HTML would misread, that no
/// text can hold, or that leave no room for anything more; in the file system's bytes.
QList<QByteArray> hostileNames();

/// Writes a file at `path`, whose bytes need not be text.
void writeFileNamed(const QByteArray &path, const QByteArray &bytes);

/// A folder for such files, which Qt can neither name nor remove; it goes with all that is in it.
class FolderOfHostileNames {
  public:
    /// Makes the folder at `path`.
    explicit FolderOfHostileNames(const QString &path);
    ~FolderOfHostileNames();
    FolderOfHostileNames(const FolderOfHostileNames &) = delete;
    FolderOfHostileNames &operator=(const FolderOfHostileNames &) = delete;

    /// The path of `name` in it.
    [[nodiscard]] QByteArray path(const QByteArray &name) const { return m_path + '/' + name; }

  private:
    QByteArray m_path;
};

/// The name under which text shows the file `name`, without its extension.
QString readableBase(const QByteArray &name);

/// Whether `output` is UTF-8 without a character, save the line feed, that a terminal obeys.
bool isHarmlessForTerminals(const QByteArray &output);

} // namespace folioforge::test
