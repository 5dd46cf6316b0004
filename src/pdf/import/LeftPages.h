// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentParts.h"
#include "pdf/import/PageTree.h"

#include <vector>

class QPDF;

namespace folioforge {

/// Removes from `source` what belongs to the pages of `all` that are not among `kept`, so that
/// nothing of them is copied and nothing leads to them: bookmarks, named destinations, links, form
/// fields, structure tags and article threads. Counts what of these is gone. To be called before
/// anything is copied.
PartCounts removeLeftPages(QPDF &source, const std::vector<SourcePage> &all,
                           const std::vector<SourcePage> &kept);

} // namespace folioforge
