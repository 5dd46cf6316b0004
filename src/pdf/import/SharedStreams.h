// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <vector>

class QPDF;

namespace folioforge {

/// The streams that all copies of one source file share, and what is known of them. Each copy has
/// to itself what is edited in place or belongs to its own catalog: the appearances of annotations,
/// which a reader writes anew when a field is filled in, with the forms inside them, what leads to
/// a layer, and what structure elements mark.
class SharedStreams {
  public:
    /// To be called before each copy of the file with its pages, before anything is copied.
    void beginCopy(QPDF &source, const std::vector<SourcePage> &pages);
    /// The copy to share of a stream of the source; null where there is none.
    [[nodiscard]] QPDFObjectHandle find(QPDFObjGen stream) const;
    void add(QPDFObjGen stream, const QPDFObjectHandle &copy) { m_copies[stream] = copy; }

    /// The pages, from 1, on which something is damaged or missing; nothing before the first copy.
    std::optional<std::set<std::size_t>> damagedPages;

  private:
    std::map<QPDFObjGen, QPDFObjectHandle> m_copies;
    std::optional<std::set<QPDFObjGen>> m_copiedEachTime; ///< Known from the second copy on.
};

} // namespace folioforge
