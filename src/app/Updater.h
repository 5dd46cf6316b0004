// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>

namespace folioforge {

/// Looks for a newer version of the application when the user asks for it.
class Updater {
  public:
    Updater() = default;
    Updater(const Updater &) = delete;
    Updater &operator=(const Updater &) = delete;
    virtual ~Updater() = default;

    /// Returns at once; what follows is shown by the update framework.
    virtual void checkForUpdates() = 0;
};

/// The update framework of this build: Sparkle on macOS, where the build found it; null elsewhere.
std::unique_ptr<Updater> makeUpdater();

} // namespace folioforge
