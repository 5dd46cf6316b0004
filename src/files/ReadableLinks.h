#pragma once

#include "files/PartFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <forward_list>
#include <string>

namespace folioforge {

class TemporaryFolder;

/// Paths as text for files whose names are not valid UTF-8, which no text can name: such a file
/// gets a symbolic link of a readable name, which lives as long as this object.
class ReadableLinks {
  public:
    explicit ReadableLinks(TemporaryFolder &folder)
        : m_folder(folder) {}
    ~ReadableLinks();
    ReadableLinks(const ReadableLinks &) = delete;
    ReadableLinks &operator=(const ReadableLinks &) = delete;

    /// A path in text that leads to `path`: the same path where its bytes are valid UTF-8. A link's
    /// name is cut where the readable form has no room. A file for which no link can be made gets
    /// the readable form of its path, which does not exist.
    QString pathFor(const QByteArray &path);

    /// The same for readable forms of paths, as file panels give them: where nothing
    /// stands under one, the file of its folder whose name reads like that is meant.
    QStringList pathsForReadable(QStringList paths);

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
