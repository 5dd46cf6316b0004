// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/PageLabels.h"

#include "pdf/import/ObjectCopier.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>

namespace folioforge {

namespace {

/// The labels of a source by the position of their first page.
using SourceLabels = std::map<long long, QPDFObjectHandle>;

SourceLabels labelsOf(QPDF &source) {
    SourceLabels labels;
    for (auto &[index, label] : readTreeEntries(source.getRoot().getKey("/PageLabels"), "/Nums")) {
        if (index.isInteger() && index.getIntValue() >= 0 && label.isDictionary()) {
            labels.emplace(index.getIntValue(), label);
        }
    }
    return labels;
}

/// `label` as it is `pages` behind its first page.
QPDFObjectHandle labelBehind(QPDFObjectHandle label, long long pages, ObjectCopier &copier) {
    auto copied = copier.copy(label);
    if (pages > 0) {
        copied = copier.copyValue(label);
        auto start = label.getKey("/St");
        copied.replaceKey("/St", QPDFObjectHandle::newInteger(
                                     (start.isInteger() ? start.getIntValue() : 1) + pages));
    }
    return copied;
}

} // namespace

ImportedPageLabels importPageLabels(QPDF &source, const std::vector<std::size_t> &positions,
                                    ObjectCopier &copier) {
    const SourceLabels labels = labelsOf(source);
    ImportedPageLabels imported;
    for (std::size_t i = 0; i < positions.size() && !labels.empty(); ++i) {
        const auto position = static_cast<long long>(positions[i]);
        const bool goesOn = i > 0 && positions[i - 1] + 1 == positions[i];
        if (goesOn && !labels.contains(position)) {
            continue;
        }
        const auto behind = labels.upper_bound(position);
        imported.emplace(static_cast<long long>(i),
                         behind == labels.begin()
                             ? QPDFObjectHandle::newNull()
                             : labelBehind(std::prev(behind)->second,
                                           position - std::prev(behind)->first, copier));
    }
    return imported;
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
