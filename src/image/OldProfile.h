// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <optional>

namespace folioforge {

/// The major version of an ICC profile; 0 where it has no whole header.
int versionOfProfile(const QByteArray &profile);

/// The profile of sRGB (IEC 61966-2-1), of version 2, which every reader and standard knows.
QByteArray srgbProfile();

/// A profile of version 2 that gives the same colours as one of version 4; nothing where that has
/// tables for them instead of primaries and curves.
std::optional<QByteArray> asVersion2(const QByteArray &profile);

} // namespace folioforge
