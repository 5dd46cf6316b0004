#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace folioforge {

/// Paths as text for files whose names are not valid UTF-8, which no text can name: such a file
/// gets a symbolic link of a readable name in a temporary folder that lives as long as this object.
class StandIns {
  public:
    /// A path in text that leads to `path`: the same path where its bytes are valid UTF-8. A file
    /// for which no link can be made gets the readable form of its path, which does not exist.
    QString pathFor(const QByteArray &path);

  private:
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_count = 0;
};

} // namespace folioforge
