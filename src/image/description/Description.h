// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SystemCalls.h"

#include <QString>

namespace folioforge {

/// What the file of a picture says that there is to see: the description of XMP (ISO 16684-1), the
/// caption of IPTC, the ImageDescription of Exif or TIFF, or the text "Description" of a PNG, the
/// first of these that is there. Of formats with an ImageFormat::describe; empty for others, where
/// there is none, and where the file cannot be read, which who takes the picture will say.
QString ownDescription(const QString &path, SystemCalls &calls = SystemCalls::system());

} // namespace folioforge
