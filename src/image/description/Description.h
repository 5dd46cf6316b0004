// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SystemCalls.h"

#include <QString>

namespace folioforge {

/// What the file of a picture says that there is to see: the description of XMP (ISO 16684-1), the
/// caption of IPTC, the ImageDescription of Exif or TIFF, or the text "Description" of a PNG, the
/// first of these that is there. Of formats with an ImageFormat::describe; empty for others and
/// where there is none. Throws Error when the system cannot read the file: a description is not
/// lost without a word.
QString ownDescription(const QString &path, SystemCalls &calls = SystemCalls::system());

} // namespace folioforge
