// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjGen.hh>

#include <cstddef>
#include <set>
#include <vector>

class QPDF;

namespace folioforge {

class LeftTargets;

// What of a source belongs to pages that are left out is removed topic by topic. Each gives how
// many of its parts are gone.

/// Removes the bookmarks that lead to such a page. One stays, without its target, where one under
/// it does.
std::size_t removeBookmarksTo(const LeftTargets &left, QPDF &source);

/// Removes the form fields that have no widgets but those of `annotations`. `kept` are the pages
/// that stay.
std::size_t removeFieldsOf(const std::set<QPDFObjGen> &annotations, QPDF &source,
                           const std::vector<SourcePage> &kept);

/// Removes the article threads of which a part is left out, with all their beads.
std::size_t removeThreadsOn(const LeftTargets &left, QPDF &source,
                            const std::vector<SourcePage> &kept);

/// Removes the structure elements that hold nothing but what stands on `pages` or is one of
/// `objects`, and from the others what is.
std::size_t removeStructureOf(QPDF &source, const std::set<QPDFObjGen> &pages,
                              const std::set<QPDFObjGen> &objects);

} // namespace folioforge
