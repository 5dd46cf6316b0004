// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Threads.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>

namespace folioforge {

ImportedThreads importThreads(QPDF &source, ObjectCopier &copier) {
    return copier.copyItems(entry(source.getRoot(), "/Threads"));
}

QPDFObjectHandle threadOf(QPDF &source, const QPDFObjectHandle &destination) {
    auto threads = entry(source.getRoot(), "/Threads");
    const auto number = QPDFObjectHandle(destination).isInteger()
                            ? QPDFObjectHandle(destination).getIntValue()
                            : -1;
    return number >= 0 && threads.isArray() && number < threads.getArrayNItems()
               ? threads.getArrayItem(static_cast<int>(number))
               : destination;
}

void ThreadMerger::add(const ImportedThreads &imported) {
    std::ranges::copy_if(imported, std::back_inserter(m_threads), isEntry);
}

void ThreadMerger::finish(QPDF &document) const {
    putItems(document.getRoot(), "/Threads", m_threads);
}

} // namespace folioforge
