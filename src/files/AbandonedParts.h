// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <thread>

namespace folioforge {

/// Removes the user's own parts that killed processes left in a folder, as far as it can: the first
/// 10,000 names of the folder are looked at at once, the rest on a thread that ends with this
/// object.
class AbandonedParts {
  public:
    /// What may be removed. Folders are made in the temporary folder alone (TemporaryFolder).
    enum class Kinds { Files, FilesAndFolders };

    AbandonedParts(const QString &folder, Kinds kinds);

  private:
    std::jthread m_thread;
};

} // namespace folioforge
