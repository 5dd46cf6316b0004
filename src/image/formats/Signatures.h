// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>

/// Files of the formats that may lack their library, which are told from others all the same. Each
/// says whether `head`, the first kSniffedBytes of a file or all that it has, is of its format.

namespace folioforge {

bool isExr(QByteArrayView head);
bool isHeif(QByteArrayView head); ///< HEIC and AVIF, of one picture, several or a sequence.
bool isJpegXl(QByteArrayView head);
bool isWebp(QByteArrayView head);

/// Whether a HEIF file says that it holds moving pictures.
bool isHeifSequence(QByteArrayView head);

} // namespace folioforge
