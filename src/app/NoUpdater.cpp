// SPDX-License-Identifier: Apache-2.0

// Compiled where the build finds no update framework; elsewhere SparkleUpdater.mm is.

#include "app/Updater.h"

namespace folioforge {

std::unique_ptr<Updater> makeUpdater() {
    return nullptr;
}

} // namespace folioforge
