// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"

#include <QByteArray>

namespace folioforge {

/// `profile` where it is an ICC profile (ICC.1, 7.2) for samples of this colour, cut to the length
/// it states; empty otherwise, because a viewer shows a wrong profile worse than none. A palette
/// takes an RGB profile.
QByteArray fittingProfile(const QByteArray &profile, ImageColor color);

} // namespace folioforge
