// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

class PDFFileInfo;

/// The MIME type of an entry's file, such as "image/png", by its contents. Throws
/// Error where they cannot be read.
QByteArray mimeTypeOf(const PDFFileInfo &entry);

} // namespace folioforge
