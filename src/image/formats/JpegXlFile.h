// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/ImageHeader.h"

#include <QByteArray>

namespace folioforge {

struct DescriptionBlocks;

/// The size, turned as the file says, and the density. Throws Error.
ImageHeader readJpegXlHeader(const FileView &file);

/// Adds what the boxes say that there is to see. Throws Error.
void addJpegXlBlocks(const FileView &file, DescriptionBlocks &blocks);

/// The frames that a viewer shows one after another; no less than 1.
qint64 countJpegXlFrames(const FileView &file);

/// The JPEG file that the file was made of; empty where it was none.
QByteArray originalJpeg(const FileView &file);

} // namespace folioforge
