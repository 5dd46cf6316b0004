#pragma once

#include <functional>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Calls `visit` with every array and dictionary of the document, those of streams and direct ones
/// within others included. `visit` may put other references into what it is given.
void visitContainers(QPDF &document, const std::function<void(QPDFObjectHandle)> &visit);

} // namespace folioforge
