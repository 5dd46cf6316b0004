// SPDX-License-Identifier: Apache-2.0

#include "app/Updater.h"

#import <Sparkle/Sparkle.h>

namespace folioforge {
namespace {

/// The framework's own controller, which reads its feed and its key from Info.plist.
class SparkleUpdater : public Updater {
  public:
    SparkleUpdater()
        : m_controller([[SPUStandardUpdaterController alloc] initWithStartingUpdater:YES
                                                                     updaterDelegate:nil
                                                                  userDriverDelegate:nil]) {}

    void checkForUpdates() override { [m_controller checkForUpdates:nil]; }

  private:
    SPUStandardUpdaterController *m_controller; ///< Owned: this file is compiled with ARC.
};

} // namespace

std::unique_ptr<Updater> makeUpdater() {
    return std::make_unique<SparkleUpdater>();
}

} // namespace folioforge
