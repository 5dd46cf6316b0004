// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The article threads of a source document (ISO 32000-1, 12.4.3), copied.
using ImportedThreads = std::vector<QPDFObjectHandle>;

ImportedThreads importThreads(QPDF &source, ObjectCopier &copier);

/// The article threads of a source by what thread actions say.
class SourceThreads {
  public:
    explicit SourceThreads(QPDF &source);
    /// The thread to which `destination`, /D of a thread action, leads: a number from 0, a title,
    /// or the thread itself. Null where the source has none such.
    [[nodiscard]] QPDFObjectHandle find(QPDFObjectHandle destination) const;

  private:
    std::vector<QPDFObjectHandle> m_threads;
    std::map<std::string, QPDFObjectHandle> m_titles; ///< The first of each title.
};

/// The threads of the document that is made: those of its sources, in their order.
class ThreadMerger {
  public:
    void add(const ImportedThreads &imported);
    void finish(QPDF &document) const;

  private:
    ImportedThreads m_threads;
};

} // namespace folioforge
