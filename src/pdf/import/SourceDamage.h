// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/import/PageTree.h"

#include <cstddef>
#include <set>

class QPDF;

namespace folioforge {

// What is said of a damaged source. Each gives one warning, or none where nothing is to be said.

/// Tells of pages that the tree states or refers to and does not lead to, and of more than it
/// states.
Warnings missingPages(const SourcePages &pages);
/// Tells of `pages`, from 1, whose contents are missing or damaged.
Warnings damagedPages(const std::set<std::size_t> &pages);
/// Tells of all that libqpdf has mended in `source` so far.
Warnings repairs(QPDF &source);

} // namespace folioforge
