// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Destinations.h"
#include "pdf/import/PageTree.h"
#include "pdf/import/SharedStreams.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <deque>
#include <map>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// Copies objects of one document into another with all that they refer to, each object once. Pages
/// are made first and filled later, so that links between them work. Named destinations become
/// explicit ones. The page tree, the catalog and the structure tree of the source are not copied,
/// nor are signatures, which hold for the bytes of the source alone.
class ObjectCopier {
  public:
    /// `shared` holds the streams that earlier copies of the same file brought; new ones are added.
    ObjectCopier(QPDF &source, QPDF &target, SharedStreams &shared);

    /// Copies all pages of the source, which run() fills. Call it first.
    std::vector<QPDFObjectHandle> copyPages(const std::vector<SourcePage> &pages);
    /// The copy of `object`. run() fills an indirect one.
    QPDFObjectHandle copy(const QPDFObjectHandle &object);
    /// The copy of what a link leads to (ISO 32000-1, 12.3.2).
    QPDFObjectHandle copyDestination(const QPDFObjectHandle &destination);
    /// The copies of what an array holds, without what is null; nothing where `array` is none.
    std::vector<QPDFObjectHandle> copyItems(const QPDFObjectHandle &array);
    /// Fills the pages and objects that copyPages() and copy() returned.
    void run();
    /// Bytes of the longest stream that run() copied, as the source says.
    [[nodiscard]] qsizetype longestStream() const { return m_longestStream; }
    /// Digital signatures that run() left out. What they show on the page is copied.
    [[nodiscard]] int signaturesLeftOut() const { return m_signaturesLeftOut; }

    /// Copied actions that name form fields by their text.
    [[nodiscard]] const std::vector<QPDFObjectHandle> &fieldActions() const {
        return m_fieldActions;
    }

  private:
    using Dictionary = std::map<std::string, QPDFObjectHandle>;

    struct PendingStream {
        QPDFObjectHandle target;
        Dictionary dictionary;
    };

    void fillPage(const SourcePage &source, QPDFObjectHandle target);
    QPDFObjectHandle copyInherited(const InheritedValue &inherited);
    QPDFObjectHandle copyIndirect(QPDFObjectHandle object);
    QPDFObjectHandle reserveStream(QPDFObjectHandle object);
    QPDFObjectHandle copyValue(QPDFObjectHandle source);
    QPDFObjectHandle copyArray(QPDFObjectHandle array);
    QPDFObjectHandle copyDictionary(const Dictionary &dictionary);
    void fillStream(PendingStream &stream);

    QPDF &m_source;
    QPDF &m_target;
    SharedStreams &m_shared;
    Destinations m_destinations;
    std::map<QPDFObjGen, QPDFObjectHandle> m_copies;
    std::map<int, QPDFObjectHandle> m_inherited; ///< By InheritedValue::number.
    std::vector<QPDFObjectHandle> m_targetPages;
    std::deque<std::pair<QPDFObjectHandle, QPDFObjectHandle>> m_pending; ///< Source and target.
    std::deque<PendingStream> m_pendingStreams;
    std::vector<QPDFObjectHandle> m_fieldActions;
    qsizetype m_longestStream = 0;
    int m_signaturesLeftOut = 0;
};

} // namespace folioforge
