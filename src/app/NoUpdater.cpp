// Stands where the build found no update framework; SparkleUpdater.mm stands where it did.

#include "app/Updater.h"

namespace folioforge {

std::unique_ptr<Updater> makeUpdater() {
    return nullptr;
}

} // namespace folioforge
