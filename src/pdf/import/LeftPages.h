// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentParts.h"
#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjGen.hh>

#include <set>
#include <vector>

class QPDF;

namespace folioforge {

/// Removes from `source` what belongs to the pages of `all` that are not among `kept`, so that
/// nothing of them is copied and nothing leads to them: bookmarks, named destinations, links, form
/// fields, structure tags and article threads. Counts what of these is gone. To be called before
/// anything is copied.
PartCounts removeLeftPages(QPDF &source, const std::vector<SourcePage> &all,
                           const std::vector<SourcePage> &kept);

/// Removes the structure elements that hold nothing but what stands on `pages` or is one of
/// `objects`, and from the others what is. Gives the number of elements removed.
std::size_t removeStructureOf(QPDF &source, const std::set<QPDFObjGen> &pages,
                              const std::set<QPDFObjGen> &objects);

} // namespace folioforge
