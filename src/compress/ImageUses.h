// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>

namespace folioforge {

/// How large one image of a document is drawn.
struct ImageUse {
    QPDFObjGen image;
    int page = 0;           ///< The first page that draws it, from 1.
    double width = 0;       ///< Points: the length of its lower side where that is largest.
    double height = 0;      ///< Points: the length of its left side where that is largest.
    bool isUnclear = false; ///< Drawn where its size cannot be told, such as in a font.
};

/// Every image that the pages of `document` draw, in the order of the pages: directly, through
/// nested forms, patterns, the appearances of annotations and the groups of soft masks. The
/// largest use counts; what stands behind damaged content is unclear.
std::vector<ImageUse> findImageUses(QPDF &document);

} // namespace folioforge
