// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace folioforge {

/// A turn of some of the pages that are taken.
struct PageTurn {
    int angle = 0;           ///< Degrees clockwise, a multiple of 90.
    bool isRelative = false; ///< Added to the turn that a page has.
    QByteArray range;        ///< By the order in which the pages are taken; empty for all.

    bool operator==(const PageTurn &) const = default;
};

/// Which pages of a PDF are taken, in which order, and how they are turned.
struct PageChoice {
    QByteArray range; ///< Empty for all pages in their order.
    std::vector<PageTurn> turns;

    /// Whether the document comes as it is.
    [[nodiscard]] bool isNone() const { return range.isEmpty() && turns.empty(); }
    bool operator==(const PageChoice &) const = default;
};

/// A range of pages as qpdf knows it: numbers from 1, z for the last page and r2 for the last but
/// one, ranges such as 1-3 and z-10, with ":odd" or ":even" behind them for every other one, which
/// may also stand as a last ",odd". Nothing where `text` is none.
std::optional<QByteArray> pageRange(const QByteArray &text);

/// A turn such as "+90", "-90:1-3" or "180:z". Nothing where `text` is none.
std::optional<PageTurn> pageTurn(const QByteArray &text);

} // namespace folioforge
