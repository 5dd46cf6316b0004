#pragma once

#include "files/FileDescriptor.h"

#include <QString>

#include <memory>

namespace folioforge {

class PartFile;

/// A folder for files that are needed for a while, which its owner alone can enter: made when it is
/// first asked for, gone with this object. Parts that killed processes left beside it go when it is
/// made.
class TemporaryFolder {
  public:
    /// A folder in the system's temporary folder.
    TemporaryFolder();
    /// A folder in `parent`.
    explicit TemporaryFolder(QString parent);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// The path of the folder, of a new one where somebody removed it. Where none can be made it is
    /// the parent's, in which making a file then tells the reason.
    [[nodiscard]] QString path();

  private:
    bool make(const std::string &path);

    QString m_parent;
    std::unique_ptr<PartFile> m_part;
    FileDescriptor m_descriptor; ///< Holds the lock.
};

} // namespace folioforge
