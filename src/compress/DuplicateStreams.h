// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDF.hh>

namespace folioforge {

/// Makes sharable streams (see sharableStreams()) that say the same, byte for byte and key for key,
/// one: all references go to the first, and the others are left for the writer to drop.
void mergeDuplicateStreams(QPDF &document);

} // namespace folioforge
