// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDF.hh>

namespace folioforge {

/// Replaces sharable streams (see sharableStreams()) that are equal, byte for byte and key for key,
/// by the first of them. The writer drops the others.
void mergeDuplicateStreams(QPDF &document);

} // namespace folioforge
