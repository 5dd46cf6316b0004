// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/ImageHeader.h"

#include <QByteArray>

namespace folioforge {

/// The MIME type of pictures of a kind, such as "image/png".
QByteArray mimeTypeOf(ImageKind kind);

} // namespace folioforge
