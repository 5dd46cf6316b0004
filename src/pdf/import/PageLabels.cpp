// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/PageLabels.h"

#include "pdf/import/ObjectCopier.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {

ImportedPageLabels importPageLabels(QPDF &source, std::size_t pages, ObjectCopier &copier) {
    ImportedPageLabels labels;
    const auto tree = source.getRoot().getKey("/PageLabels");
    for (auto &[index, label] : readTreeEntries(tree, "/Nums")) {
        const auto page = index.isInteger() ? index.getIntValue() : -1;
        if (page >= 0 && page < static_cast<long long>(pages) && label.isDictionary()) {
            labels.emplace(page, copier.copy(label));
        }
    }
    if (!labels.empty()) {
        labels.emplace(0, QPDFObjectHandle::newNull());
    }
    return labels;
}

void PageLabelMerger::addPage(int index) {
    if (m_labels.empty() || !m_labels.back().second.isNull()) {
        m_labels.emplace_back(index, QPDFObjectHandle::newNull());
    }
}

void PageLabelMerger::add(const ImportedPageLabels &imported, int firstPage) {
    if (imported.empty()) {
        m_labels.emplace_back(firstPage, QPDFObjectHandle::newNull());
        return;
    }
    for (const auto &[index, label] : imported) {
        m_labels.emplace_back(firstPage + index, label);
    }
}

void PageLabelMerger::truncatePages(int count) {
    std::erase_if(m_labels, [count](const auto &label) { return label.first >= count; });
}

void PageLabelMerger::finish(QPDF &document) const {
    if (std::ranges::all_of(m_labels, [](auto label) { return label.second.isNull(); })) {
        return;
    }
    auto numbers = QPDFObjectHandle::newArray();
    for (const auto &[index, label] : m_labels) {
        auto dictionary = label;
        if (dictionary.isNull()) {
            dictionary = QPDFObjectHandle::parse("<< /S /D >>");
            dictionary.replaceKey("/St", QPDFObjectHandle::newInteger(index + 1));
        }
        numbers.appendItem(QPDFObjectHandle::newInteger(index));
        numbers.appendItem(dictionary);
    }
    auto labels = QPDFObjectHandle::newDictionary();
    labels.replaceKey("/Nums", numbers);
    document.getRoot().replaceKey("/PageLabels", document.makeIndirectObject(labels));
}

} // namespace folioforge
