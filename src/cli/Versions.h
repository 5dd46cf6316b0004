// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace folioforge {

/// The name and the version of the program: "folioforge-cli 1.0.0".
QString toolVersion();

/// The libraries that the program is built with and their versions; of Qt the one that it runs on.
std::vector<std::pair<QString, QString>> libraryVersions();

} // namespace folioforge
