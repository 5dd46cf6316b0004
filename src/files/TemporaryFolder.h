// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/AbandonedParts.h"
#include "files/FileDescriptor.h"

#include <QString>

#include <memory>
#include <optional>

namespace folioforge {

class PartFile;

/// A folder for temporary files that only its owner can enter. It is made when it is first asked
/// for and removed with this object. When it is made, parts that killed processes left in the same
/// place are removed.
class TemporaryFolder {
  public:
    /// A folder in the system's temporary folder.
    TemporaryFolder();
    /// A folder in `parent`.
    explicit TemporaryFolder(QString parent);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// The path of the folder; of a new one when it was removed meanwhile. The parent's path when
    /// no folder can be made: creating a file there then fails with the reason.
    [[nodiscard]] QString path();

  private:
    bool make(const std::string &path);

    QString m_parent;
    std::unique_ptr<PartFile> m_part;
    FileDescriptor m_descriptor; ///< Holds the lock.
    std::optional<AbandonedParts> m_clearing;
};

} // namespace folioforge
