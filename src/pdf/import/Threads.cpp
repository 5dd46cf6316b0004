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

SourceThreads::SourceThreads(QPDF &source)
    : m_threads(items(entry(source.getRoot(), "/Threads"))) {
    for (const auto &thread : m_threads) {
        auto title = entry(entry(thread, "/I"), "/Title");
        if (title.isString()) {
            m_titles.emplace(title.getUTF8Value(), thread);
        }
    }
}

QPDFObjectHandle SourceThreads::find(QPDFObjectHandle destination) const {
    if (destination.isInteger()) {
        const auto number = destination.getIntValue();
        const bool has = number >= 0 && number < static_cast<long long>(m_threads.size());
        return has ? m_threads[static_cast<std::size_t>(number)] : QPDFObjectHandle::newNull();
    }
    if (destination.isString()) {
        const auto found = m_titles.find(destination.getUTF8Value());
        return found == m_titles.end() ? QPDFObjectHandle::newNull() : found->second;
    }
    return destination;
}

void ThreadMerger::add(const ImportedThreads &imported) {
    std::ranges::copy_if(imported, std::back_inserter(m_threads), isEntry);
}

void ThreadMerger::finish(QPDF &document) const {
    putItems(document.getRoot(), "/Threads", m_threads);
}

} // namespace folioforge
