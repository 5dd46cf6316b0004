// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/PartFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <forward_list>
#include <string>

namespace folioforge {

class TemporaryFolder;

/// Makes paths as QString for files whose names are not valid UTF-8, which QString cannot hold:
/// such a file gets a symbolic link with a readable name. The links are removed with this object.
class ReadableLinks {
  public:
    explicit ReadableLinks(TemporaryFolder &folder)
        : m_folder(folder) {}
    ~ReadableLinks();
    ReadableLinks(const ReadableLinks &) = delete;
    ReadableLinks &operator=(const ReadableLinks &) = delete;

    /// `path` as text when its bytes are valid UTF-8, else the path of a link to it. The link has
    /// the file's name with replacement characters, cut where it is too long. When no link can be
    /// made, the result is the path with replacement characters, where no file is.
    QString pathFor(const QByteArray &path);

    /// The same for paths from a file panel, which puts replacement characters for invalid bytes.
    /// When no file has such a path, the file of the folder whose name reads the same is meant.
    QStringList pathsForReadable(QStringList paths);

    /// The path of a link called `name` that leads to `target`; empty when none can be made.
    QString linkTo(const QByteArray &target, const QString &name);

  private:
    QString pathForReadable(const QString &path);
    bool makeFolder(const QString &path);
    bool makeLink(const QString &path, const std::string &target);
    bool keepIf(bool made);

    TemporaryFolder &m_folder;
    int m_count = 0;
    std::forward_list<PartFile> m_parts; ///< The links and their folders, the newest first.
};

} // namespace folioforge
