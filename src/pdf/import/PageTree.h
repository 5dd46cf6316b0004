#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

class QPDF;

namespace folioforge {

/// Puts `pages` into the document's page tree (ISO 32000-1, 7.7.3) as a balanced tree, so that
/// readers find any page of a long document at once.
void buildPageTree(QPDF &document, const std::vector<QPDFObjectHandle> &pages);

} // namespace folioforge
