// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Parallel.h"
#include "pdf/import/PageTree.h"

#include <cstddef>
#include <future>
#include <map>
#include <memory>
#include <set>
#include <vector>

class Buffer;
class QPDF;

namespace folioforge {

/// Finds out whether the contents of a source's pages are there and can be read to their end,
/// partly on another core while the pages are copied. Pictures and fonts are not looked at, and of
/// a source that needed no repair only the first contents: their data goes into the copy as it is.
class ContentCheck {
  public:
    /// Reads what is to be checked; to be called before anything is copied. Throws what libqpdf
    /// throws.
    ContentCheck(QPDF &source, const std::vector<SourcePage> &pages);
    /// The pages, from 1, of which something is missing.
    std::set<std::size_t> damagedPages();

  private:
    struct Part {
        QPDFObjectHandle stream;
        std::vector<std::size_t> pages; ///< From 1: pages may share a stream.
    };
    struct Packed {
        const Part *part;
        std::shared_ptr<Buffer> data;
    };
    using Batch = std::vector<Packed>;
    using Damaged = std::vector<const Part *>;

    void add(std::size_t page, const QPDFObjectHandle &part);
    void read(QPDF &source);
    void note(const Damaged &parts);
    static Damaged damagedIn(const Batch &batch);

    std::map<QPDFObjGen, Part> m_parts;
    std::set<std::size_t> m_damaged;
    std::future<Damaged> m_running;
};

} // namespace folioforge
