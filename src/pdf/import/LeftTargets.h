// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjGen.hh>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// The pages of a source that are left out, and what leads to them.
class LeftTargets {
  public:
    /// Those of `all`, which has to live as long, that are not among `kept`.
    LeftTargets(const std::vector<SourcePage> &all, const std::vector<SourcePage> &kept);

    [[nodiscard]] const std::set<QPDFObjGen> &pages() const { return m_pages; }
    /// Whether `page` is left out.
    [[nodiscard]] bool contains(const QPDFObjectHandle &page) const;
    /// Whether `destination` leads to a page that is.
    [[nodiscard]] bool leads(QPDFObjectHandle destination) const;
    /// Whether a bookmark or a link does.
    [[nodiscard]] bool jumps(const QPDFObjectHandle &holder) const;

    /// Removes the named destinations that lead to such a page; gives how many. To be called first:
    /// what refers to one of these names leads there, too.
    std::size_t removeNames(QPDF &source);

  private:
    const std::vector<SourcePage> &m_all;
    std::set<QPDFObjGen> m_pages;
    std::set<std::string> m_names;   ///< With their slash.
    std::set<std::string> m_strings; ///< Their bytes.
};

} // namespace folioforge
