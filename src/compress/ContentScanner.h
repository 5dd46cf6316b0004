// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/ContentDraws.h"

#include <map>
#include <set>
#include <string>

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// A stream that content draws by name, and the transformations it is drawn under, at most one
/// more than ContentDraws::kMaxSizes.
struct DrawnStream {
    QPDFObjectHandle object;
    std::set<Matrix2x2> sizes;
    bool unclear = false; ///< Also drawn under some that cannot be told.
};

/// The XObjects, tiling patterns and soft mask groups that the content stream `text` draws. A
/// stream drawn several times in the same size counts once.
std::map<QPDFObjGen, DrawnStream> scanContent(const std::string &text,
                                              const QPDFObjectHandle &resources);

} // namespace folioforge
