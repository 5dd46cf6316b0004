// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/ImportOptions.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The optional content (layers) of a source document (ISO 32000-1, 8.11), copied.
struct ImportedLayers {
    std::vector<QPDFObjectHandle> groups;          ///< /OCGs
    std::vector<QPDFObjectHandle> off;             ///< /OFF: hidden when the document opens.
    std::vector<QPDFObjectHandle> locked;          ///< /Locked
    std::vector<QPDFObjectHandle> order;           ///< /Order
    std::vector<QPDFObjectHandle> radioGroups;     ///< /RBGroups
    std::vector<QPDFObjectHandle> automaticStates; ///< /AS
    /// All of it as the source has it, where the source is all of the document; else null.
    QPDFObjectHandle whole = QPDFObjectHandle::newNull();
};

ImportedLayers importLayers(QPDF &source, ObjectCopier &copier, ImportScope scope);

/// How many settings the layers of a source, its /OCProperties, have that no merged document has.
std::size_t countLayerSettings(const QPDFObjectHandle &layers);

/// The layers of the document that is made: those of its sources, each in the state that its source
/// gives it.
class LayerMerger {
  public:
    void add(const ImportedLayers &imported);
    void finish(QPDF &document) const;

  private:
    ImportedLayers m_layers;
};

} // namespace folioforge
