// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Entries.h"
#include "pdf/import/PageTree.h"
#include "pdf/import/SharedStreams.h"
#include "pdf/import/Threads.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class SourceNames;

/// Copies objects of one document into another with all that they refer to, each object once. Pages
/// are made first and filled later, so that links between them work. The page tree and the catalog
/// of the source are not copied, nor are signatures, which hold for the bytes of the source alone.
/// Structure elements are copied by their tree alone (importStructure()).
class ObjectCopier {
  public:
    /// `shared` holds the streams that earlier copies of the same file brought; new ones are added.
    /// What is referred to by name follows `names`.
    ObjectCopier(QPDF &source, QPDF &target, SharedStreams &shared, SourceNames &names);

    /// Makes the copies of pages of the source, still empty. The first of them becomes page
    /// `firstPage` of the document, from 0. `positions` are those of the pages in the source.
    /// Call it first.
    void makePages(const std::vector<SourcePage> &pages, int firstPage,
                   const std::vector<std::size_t> &positions);
    /// Copies what the pages hold. Call it once, when the structure tree is copied.
    std::vector<QPDFObjectHandle> fillPages(const std::vector<SourcePage> &pages);
    /// The copy of `object`. run() fills an indirect one.
    QPDFObjectHandle copy(const QPDFObjectHandle &object);
    /// The copies of what an array holds, without what is null; nothing where `array` is none.
    std::vector<QPDFObjectHandle> copyItems(const QPDFObjectHandle &array);
    /// The copy of what a link leads to (ISO 32000-1, 12.3.2): a name, a string, an array, or a
    /// dictionary with /D.
    QPDFObjectHandle copyDestination(const QPDFObjectHandle &destination);
    /// The copy of what `object` holds, itself no indirect object.
    QPDFObjectHandle copyValue(QPDFObjectHandle object);
    /// The copy that `object` has already; null where it has none.
    [[nodiscard]] QPDFObjectHandle known(const QPDFObjectHandle &object) const;
    /// Makes `target` the copy of `object`; false where that has a copy already.
    bool setCopy(const QPDFObjectHandle &object, const QPDFObjectHandle &target);
    /// Fills the pages and objects that fillPages() and copy() returned.
    void run();
    /// Digital signatures that run() left out. What they show on the page is copied.
    [[nodiscard]] int signaturesLeftOut() const { return m_signaturesLeftOut; }

    /// Copied actions that name form fields by their text.
    [[nodiscard]] const std::vector<QPDFObjectHandle> &fieldActions() const {
        return m_fieldActions;
    }
    /// Copied dictionaries that have files: pages, annotations, forms, structure elements.
    [[nodiscard]] const std::vector<QPDFObjectHandle> &fileHolders() const { return m_fileHolders; }
    /// Keeps `target`, which becomes the copy of `dictionary`, for fileHolders() if it has files.
    void noteFiles(const Dictionary &dictionary, const QPDFObjectHandle &target);

  private:
    /// Gives what the copy of an object holds.
    using Fill = QPDFObjectHandle (ObjectCopier::*)(QPDFObjectHandle);

    struct Pending {
        QPDFObjectHandle source;
        QPDFObjectHandle target;
        Fill fill;
    };
    /// The copy of what several may refer to as one kind of place.
    struct Followed {
        Fill fill;
        QPDFObjectHandle copy;
    };
    struct PendingStream {
        QPDFObjectHandle target;
        Dictionary dictionary;
    };

    void fillPage(const SourcePage &source, QPDFObjectHandle target);
    void shareEntries(const Dictionary &entries, QPDFObjectHandle first, QPDFObjectHandle target);
    QPDFObjectHandle copyInherited(const InheritedValue &inherited);
    QPDFObjectHandle copyIndirect(QPDFObjectHandle object);
    QPDFObjectHandle reserveStream(QPDFObjectHandle object);
    QPDFObjectHandle copyArray(QPDFObjectHandle array);
    QPDFObjectHandle copyDictionary(const Dictionary &dictionary);
    void copyEntries(const Dictionary &dictionary, QPDFObjectHandle target);
    QPDFObjectHandle copyEntry(const Dictionary &dictionary, const std::string &key,
                               const QPDFObjectHandle &value);
    QPDFObjectHandle copyThread(const QPDFObjectHandle &destination);
    [[nodiscard]] std::optional<std::size_t> pageIndex(QPDFObjectHandle number) const;
    [[nodiscard]] std::optional<QPDFObjectHandle> pageByNumber(QPDFObjectHandle destination) const;
    QPDFObjectHandle copyName(QPDFObjectHandle name);
    QPDFObjectHandle copyNumbered(QPDFObjectHandle destination);
    QPDFObjectHandle copyTarget(QPDFObjectHandle target);
    QPDFObjectHandle copyWith(QPDFObjectHandle dictionary, const std::string &key,
                              const QPDFObjectHandle &value);
    QPDFObjectHandle copyStructureReference(QPDFObjectHandle reference);
    QPDFObjectHandle copyElement(QPDFObjectHandle element);
    QPDFObjectHandle copyElementPlace(QPDFObjectHandle place);
    QPDFObjectHandle follow(const QPDFObjectHandle &object, Fill fill);
    void fillStream(PendingStream &stream);

    QPDF &m_source;
    QPDF &m_target;
    SharedStreams &m_shared;
    SourceNames &m_names;
    std::map<QPDFObjGen, QPDFObjectHandle> m_copies;
    std::map<int, QPDFObjectHandle> m_inherited;            ///< By InheritedValue::number.
    std::map<QPDFObjGen, std::vector<Followed>> m_followed; ///< By follow().
    std::optional<SourceThreads> m_threads; ///< Read when the first action leads to one.
    std::vector<QPDFObjectHandle> m_targetPages;
    std::map<long long, std::size_t> m_pageAt; ///< By position in the source, the first copy.
    int m_firstPage = 0;
    std::deque<Pending> m_pending;
    std::deque<PendingStream> m_pendingStreams;
    std::vector<QPDFObjectHandle> m_fieldActions;
    std::vector<QPDFObjectHandle> m_fileHolders;
    int m_signaturesLeftOut = 0;
};

} // namespace folioforge
