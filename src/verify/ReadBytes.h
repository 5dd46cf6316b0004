// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

#include <functional>
#include <span>

namespace folioforge {

/// Reads from byte `offset` of a file on until `target` is full or the file ends; returns the
/// number of bytes. Several threads call it at once, so that the file has to be finished. Throws
/// Error.
using ReadBytes = std::function<qint64(qint64 offset, std::span<char> target)>;

} // namespace folioforge
