// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <array>
#include <utility>
#include <vector>

namespace folioforge {

// Profiles are put together here by ICC.1:2022; those of version 2 by ICC.1:2001-04.

inline constexpr std::array<double, 3> kIccWhite{0.9642, 1.0, 0.8249}; ///< D50.

/// The name of each tag and its contents.
using IccTags = std::vector<std::pair<const char *, QByteArray>>;

/// Appends a number of 32 bits.
void appendIccNumber(QByteArray &bytes, quint32 number);

/// A tag of this type with numbers that have 16 bits behind the point.
QByteArray iccNumbers(const char *type, const std::vector<double> &values);

/// A profile of a screen with these tags, for samples of `colors`, "RGB " or "GRAY", and of this
/// major version, 2 or 4.
QByteArray iccProfile(int version, const IccTags &tags, const char *colors = "RGB ");

} // namespace folioforge
