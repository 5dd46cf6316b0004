// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentCatalog.h"

#include "pdf/import/PageTree.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace folioforge {

namespace {

void append(std::vector<QPDFObjectHandle> &all, const std::vector<QPDFObjectHandle> &more) {
    all.insert(all.end(), more.begin(), more.end());
}

void putArray(QPDFObjectHandle &dictionary, const std::string &key,
              const std::vector<QPDFObjectHandle> &items) {
    if (!items.empty()) {
        dictionary.replaceKey(key, QPDFObjectHandle::newArray(items));
    }
}

/// The largest integer that every reader takes (ISO 32000-1, annex C). No true outline has more
/// lines.
constexpr long long kMaxLines = std::numeric_limits<std::int32_t>::max();

/// The lines of the outline that an item shows: its own and, when it is open, those under it.
long long visibleLines(QPDFObjectHandle item) {
    auto count = item.getKey("/Count");
    return 1 + (count.isInteger() ? std::clamp(count.getIntValue(), 0LL, kMaxLines) : 0);
}

} // namespace

void DocumentCatalog::addPage(const QPDFObjectHandle &page) {
    m_pages.push_back(page);
    const bool afterLabels = !m_pageLabels.empty() && !m_pageLabels.back().second.isNull();
    if (m_pageLabels.empty() || afterLabels) {
        m_pageLabels.emplace_back(pageCount() - 1, QPDFObjectHandle::newNull());
    }
}

void DocumentCatalog::truncatePages(int count) {
    m_pages.resize(static_cast<std::size_t>(std::min(count, pageCount())));
    std::erase_if(m_pageLabels, [this](const auto &label) { return label.first >= pageCount(); });
}

void DocumentCatalog::addPageLabels(const ImportedDocument &imported) {
    if (imported.pageLabels.empty()) {
        m_pageLabels.emplace_back(pageCount(), QPDFObjectHandle::newNull());
        return;
    }
    m_hasPageLabels = true;
    for (const auto &[index, label] : imported.pageLabels) {
        m_pageLabels.emplace_back(pageCount() + index, label);
    }
}

void DocumentCatalog::addDocument(const ImportedDocument &imported) {
    if (imported.pages.empty()) {
        return;
    }
    addPageLabels(imported);
    append(m_pages, imported.pages);
    append(m_bookmarks, imported.bookmarks);
    m_forms.add(imported.form);
    append(m_layers.groups, imported.layers.groups);
    append(m_layers.off, imported.layers.off);
    append(m_layers.locked, imported.layers.locked);
    append(m_layers.order, imported.layers.order);
    append(m_layers.radioGroups, imported.layers.radioGroups);
    append(m_layers.automaticStates, imported.layers.automaticStates);
    m_pdfVersion = std::max(m_pdfVersion, imported.pdfVersion);
}

void DocumentCatalog::finishBookmarks(QPDF &document) {
    if (m_bookmarks.empty()) {
        return;
    }
    auto outline = document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
    long long lines = 0;
    for (std::size_t i = 0; i < m_bookmarks.size(); ++i) {
        auto item = m_bookmarks[i];
        const bool last = i + 1 == m_bookmarks.size();
        lines += visibleLines(item);
        item.replaceKey("/Parent", outline);
        item.replaceKey("/Prev", i == 0 ? QPDFObjectHandle::newNull() : m_bookmarks[i - 1]);
        item.replaceKey("/Next", last ? QPDFObjectHandle::newNull() : m_bookmarks[i + 1]);
    }
    outline.replaceKey("/First", m_bookmarks.front());
    outline.replaceKey("/Last", m_bookmarks.back());
    outline.replaceKey("/Count", QPDFObjectHandle::newInteger(std::min(lines, kMaxLines)));
    document.getRoot().replaceKey("/Outlines", outline);
}

void DocumentCatalog::finishLayers(QPDF &document) const {
    if (m_layers.groups.empty()) {
        return;
    }
    auto configuration = QPDFObjectHandle::newDictionary();
    putArray(configuration, "/OFF", m_layers.off);
    putArray(configuration, "/Locked", m_layers.locked);
    putArray(configuration, "/Order", m_layers.order);
    putArray(configuration, "/RBGroups", m_layers.radioGroups);
    putArray(configuration, "/AS", m_layers.automaticStates);
    auto layers = QPDFObjectHandle::newDictionary();
    putArray(layers, "/OCGs", m_layers.groups);
    layers.replaceKey("/D", configuration);
    document.getRoot().replaceKey("/OCProperties", document.makeIndirectObject(layers));
}

void DocumentCatalog::finishPageLabels(QPDF &document) const {
    if (!m_hasPageLabels) {
        return;
    }
    auto numbers = QPDFObjectHandle::newArray();
    for (const auto &[index, label] : m_pageLabels) {
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

void DocumentCatalog::finish(QPDF &document) {
    buildPageTree(document, m_pages);
    finishBookmarks(document);
    m_forms.finish(document);
    finishLayers(document);
    finishPageLabels(document);
}

} // namespace folioforge
