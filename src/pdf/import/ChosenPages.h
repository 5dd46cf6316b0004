// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/PageChoice.h"
#include "pdf/import/PageTree.h"

#include <cstddef>
#include <vector>

namespace folioforge {

/// Pages of a source in the order in which they are taken.
struct ChosenPages {
    std::vector<SourcePage> pages;
    std::vector<std::size_t> positions; ///< In the source, from 0, of each.
};

/// The pages of `found` that `range` names. Throws Error where one of them does not exist.
ChosenPages choosePages(const std::vector<SourcePage> &found, const QByteArray &range);

/// Turns `pages`, which are those that were taken. Throws Error where a range names one that does
/// not exist.
void turnPages(const std::vector<QPDFObjectHandle> &pages, const std::vector<PageTurn> &turns);

} // namespace folioforge
