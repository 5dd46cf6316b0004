#pragma once

class QPDF;

namespace folioforge {

/// Keeps the bytes of every stream that is compressed twice or more as they are when the document
/// is written. Each time may unfold a thousandfold: decoding a few kilobytes would never end.
void keepFilterChains(QPDF &document);

} // namespace folioforge
