// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/PageChoice.h"
#include "pdf/import/Entries.h"
#include "pdf/import/PageTree.h"
#include "verify/ComparedDocument.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QString>

#include <cstddef>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace folioforge {

/// Holds pages of a PDF against those of the source that they were taken from, object by object
/// along both at once: what they show and refer to has to be the same. Streams are the same where
/// their bytes are, or what they unfold to. What an import changes is known by itself: where
/// references to pages lead, the names of destinations, fields and files, keys of the structure
/// tree, signatures, and what leads to pages that were left out.
class PageComparison {
  public:
    /// What pictures have to be: the same, or alike, as the compression pass leaves them, maybe
    /// without colour.
    enum class Pictures { Same, Alike, AlikeOrGrey };

    /// `source` and `written` must outlive it. The pages that `choice` names begin in `written`
    /// with page `firstPage`, from 0. Throws Error where `source` lacks one of them.
    PageComparison(ComparedDocument &source, ComparedDocument &written, int firstPage,
                   const PageChoice &choice, Pictures pictures = Pictures::Same);

    /// How many pages were taken.
    [[nodiscard]] std::size_t pageCount() const { return m_positions.size(); }
    /// What of the page at `index`, from 0, of those that were taken is another than in the source;
    /// empty where nothing is.
    QString fault(std::size_t index);

  private:
    using Object = QPDFObjectHandle;
    struct Pair {
        Object source;
        Object written;
    };

    /// What is asked for of a page.
    struct Turn {
        long long angle = 0;
        bool isRelative = true; ///< Added to the turn that the page has.
    };
    /// Whether an entry is not held against that of the source, or in another way.
    using LeftOut = bool(const std::string &key);

    void mapPages(int firstPage);
    void addTurns();
    [[nodiscard]] const SourcePage &sourcePage(std::size_t index) const;
    [[nodiscard]] const SourcePage &writtenPage(std::size_t index) const;
    [[nodiscard]] bool isSameTurn(std::size_t index) const;
    bool areSame(const Object &source, const Object &written);
    bool isSamePair(Object source, Object written);
    bool isSameArray(const Object &source, const Object &written);
    bool isSameDictionary(const Object &source, const Object &written, LeftOut isLeftOut);
    bool isSameEntry(const Object &source, const Object &written, const std::string &key);
    bool isAddedEntry(const Object &source, const Object &written, const std::string &key);
    bool hasSameAppearance(const Object &source, const Object &written);
    bool isSameStream(const Object &source, const Object &written);
    bool isSamePicture(const Object &source, const Object &written);
    bool isSameDestination(const Object &source, const Object &written);
    bool areSameAnnotations(const Object &source, const Object &written);
    bool isSamePage(const Object &source, const Object &written) const;
    [[nodiscard]] bool isLeft(const Object &page) const;
    void follow(const Object &source, const Object &written) {
        m_open.push_back({source, written});
    }

    ComparedDocument &m_source;
    ComparedDocument &m_written;
    const PageChoice m_choice;
    Pictures m_pictures;
    std::vector<std::size_t> m_positions; ///< In the source, of the pages that were taken.
    std::vector<Turn> m_turns;            ///< Of these.
    std::size_t m_firstPage;
    std::map<QPDFObjGen, std::set<QPDFObjGen>> m_copies; ///< Of pages; none where it was left out.
    using Names = std::set<std::pair<QPDFObjGen, QPDFObjGen>>;
    Names m_compared;  ///< Of what is the same, with all within.
    Names m_comparing; ///< Of what is so where all that is still open is.
    std::deque<Pair> m_open;
};

} // namespace folioforge
