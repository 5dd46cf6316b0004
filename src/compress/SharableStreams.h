#pragma once

#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// The streams of a document of which equal ones may become one, since nobody edits them in place:
/// images, font programs, colour profiles, and forms that content draws. Left out are page contents
/// and metadata, and all forms that an annotation draws or keeps as an icon, with those inside
/// them: whoever fills in one field rewrites the appearance of that field alone.
std::vector<QPDFObjectHandle> sharableStreams(QPDF &document);

} // namespace folioforge
