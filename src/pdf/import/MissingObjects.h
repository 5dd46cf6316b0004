// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/import/PageTree.h"

#include <cstddef>
#include <set>
#include <vector>

class QPDF;

namespace folioforge {

/// The pages, from 1, that draw with fonts, pictures, colours or patterns, or have annotations, of
/// which the source lacks the objects. What a form draws with that several pages show counts for
/// the first of them.
std::set<std::size_t> pagesThatLackObjects(const std::vector<SourcePage> &pages);

/// Tells of bookmarks and form fields that the source refers to and lacks.
Warnings missingEntries(QPDF &source);

} // namespace folioforge
