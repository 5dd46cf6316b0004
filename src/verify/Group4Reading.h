// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <optional>
#include <string>

namespace folioforge {

/// The checksum of the rows of bits, the black ones being 1, of an image whose data are CCITT group
/// 4 (ITU-T T.6); nothing where they are damaged.
std::optional<quint64> group4Checksum(const QPDFObjectHandle &image, int width, int height);

/// The rows of an image whose data are such, as its parameters say; empty where they are damaged.
std::string group4Rows(QPDFObjectHandle image, int width, int height);

} // namespace folioforge
