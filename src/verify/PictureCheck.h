// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceReader.h"
#include "verify/PageReading.h"
#include "verify/Record.h"
#include "verify/StreamSums.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QString>

namespace folioforge {

/// What of `image`, an image of a PDF, is not as `record` says: its data, which are read again from
/// the file that they come from or unpacked, or what tells how to read them. Empty where nothing
/// is. Throws Error where that file cannot be read any more.
QString imageFault(QPDFObjectHandle image, const ImageRecord &record, SourceReader &reader,
                   KnownSums &profiles);

/// Whether nothing but its samples, its opacity and the profile of its colours, which is that of
/// `record`, makes `image` what it is.
bool isPlainImage(QPDFObjectHandle image, const ImageRecord &record, KnownSums &profiles);

/// Whether a picture is turned and mirrored as `orientation`, as EXIF counts, says, on a page that
/// is shown turned by `turn` degrees clockwise.
bool isOriented(const DrawnPicture &drawn, int orientation, int turn);

/// What is not as `record` says of where a picture stands on its page. Empty where nothing is.
QString placeFault(const DrawnPicture &drawn, const PictureRecord &record);

} // namespace folioforge
