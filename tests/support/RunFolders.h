// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace folioforge::test {

/// The folders of a run of the program: one with a folder "out" for its documents and a folder
/// "temporary", which TMPDIR names while this lives. Nothing else makes files in either.
class RunFolders {
  public:
    RunFolders() {
        if (!QDir().mkpath(path("out")) || !QDir().mkpath(path("temporary"))) {
            qFatal("no folders for a run");
        }
        qputenv("TMPDIR", QFile::encodeName(path("temporary")));
    }
    ~RunFolders() { qunsetenv("TMPDIR"); }
    RunFolders(const RunFolders &) = delete;
    RunFolders &operator=(const RunFolders &) = delete;

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString path(const char *name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }

  private:
    QTemporaryDir m_folder;
};

} // namespace folioforge::test
