// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

namespace folioforge::test {

/// The first bytes of an image file, by extension, that claims a square of `side` pixels.
QList<std::pair<const char *, QByteArray>> imageHeaders(quint32 side);
/// A PNG of `side` x `side` transparent black pixels.
QByteArray transparentPng(qint64 side);
/// A PNG of one pixel whose colour profile unfolds to `count` bytes.
QByteArray pngWithProfile(qint64 count);
/// A TIFF of `side` x `side` grey pixels in one strip of Flate data.
QByteArray deflatedTiff(qint64 side);

} // namespace folioforge::test
