#pragma once

#include <qpdf/QPDF.hh>

namespace folioforge {

/// Makes streams that say the same, byte for byte and key for key, one: all references go to the
/// first, and the others are left for the writer to drop. Pages' own objects are not touched.
void mergeDuplicateStreams(QPDF &document);

} // namespace folioforge
