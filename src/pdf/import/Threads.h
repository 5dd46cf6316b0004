// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The article threads of a source document (ISO 32000-1, 12.4.3), copied.
using ImportedThreads = std::vector<QPDFObjectHandle>;

ImportedThreads importThreads(QPDF &source, ObjectCopier &copier);

/// The thread to which `destination`, /D of a thread action, leads. A number means one of this
/// source, which may be another in the document that is made. What is no such number is given back.
QPDFObjectHandle threadOf(QPDF &source, const QPDFObjectHandle &destination);

/// The threads of the document that is made: those of its sources, in their order.
class ThreadMerger {
  public:
    void add(const ImportedThreads &imported);
    void finish(QPDF &document) const;

  private:
    ImportedThreads m_threads;
};

} // namespace folioforge
