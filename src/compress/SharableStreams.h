// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Calls `visit` with every array and dictionary of the document, those of streams and direct ones
/// within others included. `visit` may put other references into what it is given.
void visitArraysAndDictionaries(QPDF &document, const std::function<void(QPDFObjectHandle)> &visit);

/// The streams of a document of which equal ones may become one, since nobody edits them in place:
/// images, font programs, colour profiles, and forms that content draws. Left out are page contents
/// and metadata, and all forms that an annotation draws or keeps as an icon, with those inside
/// them: whoever fills in one field rewrites the appearance of that field alone.
std::vector<QPDFObjectHandle> sharableStreams(QPDF &document);

} // namespace folioforge
