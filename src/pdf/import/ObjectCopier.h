#pragma once

#include "pdf/import/Destinations.h"
#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <deque>
#include <map>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// Copies objects of one document into another with everything they refer to, each once, so that
/// what is shared stays shared. Pages are made first and then filled, so links between them hold.
/// Named destinations become explicit ones. What belongs to the source document as a whole (page
/// tree, catalog, structure tree) is left behind.
class ObjectCopier {
  public:
    using Streams = std::map<QPDFObjGen, QPDFObjectHandle>;

    /// `known` holds the streams that an earlier copy of the same file brought; new ones are added.
    ObjectCopier(QPDF &source, QPDF &target, Streams &known);

    /// Copies all pages; call it before anything else. They are filled by run().
    std::vector<QPDFObjectHandle> copyPages();
    /// The copy of `object`; indirect ones are filled by run().
    QPDFObjectHandle copy(const QPDFObjectHandle &object);
    /// Fills everything that copy() has promised.
    void run();
    /// Bytes of the longest stream that run() copied, as the source says.
    [[nodiscard]] qsizetype longestStream() const { return m_longestStream; }

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
    QPDFObjectHandle copyDestination(const QPDFObjectHandle &destination);
    void fillStream(PendingStream &stream);

    QPDF &m_source;
    QPDF &m_target;
    Streams &m_streams;
    Destinations m_destinations;
    std::map<QPDFObjGen, QPDFObjectHandle> m_copies;
    std::map<int, QPDFObjectHandle> m_inherited; ///< By InheritedValue::number.
    std::vector<QPDFObjectHandle> m_targetPages;
    std::deque<std::pair<QPDFObjectHandle, QPDFObjectHandle>> m_pending; ///< Source and target.
    std::deque<PendingStream> m_pendingStreams;
    qsizetype m_longestStream = 0;
};

} // namespace folioforge
