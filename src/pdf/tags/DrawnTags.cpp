// SPDX-License-Identifier: Apache-2.0

#include "pdf/tags/DrawnTags.h"

#include <algorithm>
#include <utility>

namespace folioforge {

void DrawnTags::beginSource(const QString &name) {
    m_sources.push_back({name, m_pages.size(), m_pages.size()});
    beginParagraph();
}

void DrawnTags::beginPage() {
    m_page = {};
    m_isOpen = false;
}

std::optional<int> DrawnTags::endPage(int page) {
    if (m_sources.empty()) {
        m_sources.emplace_back();
    }
    m_page.page = page;
    m_isOpen = false;
    const bool isEmpty = m_page.contents == 0;
    m_pages.push_back(std::exchange(m_page, {}));
    return isEmpty ? std::nullopt : std::optional(static_cast<int>(m_pages.size() - 1));
}

void DrawnTags::truncatePages(int count) {
    std::erase_if(m_pages, [count](const PageTags &tags) { return tags.page >= count; });
    for (Source &source : m_sources) {
        source.firstPage = std::min(source.firstPage, m_pages.size());
    }
    beginPage();
    beginParagraph();
}

void DrawnTags::beginParagraph() {
    m_isOpen = false;
    m_isNew = true;
}

std::optional<std::uint32_t> DrawnTags::contentForText() {
    if (m_isOpen) {
        return std::nullopt;
    }
    if (!m_isNew) {
        m_page.joined.push_back(m_page.contents);
    }
    m_isOpen = true;
    m_isNew = false;
    return m_page.contents++;
}

void DrawnTags::endContent() {
    m_isOpen = false;
}

std::uint32_t DrawnTags::addFigure(const QString &description, const QRectF &box) {
    beginParagraph();
    m_page.figures.push_back({m_page.contents, description, box});
    return m_page.contents++;
}

std::vector<DrawnTags::Source> DrawnTags::sources() const {
    std::vector<Source> sources;
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        Source source = m_sources[i];
        source.endPage = i + 1 < m_sources.size() ? m_sources[i + 1].firstPage : m_pages.size();
        if (source.firstPage < source.endPage) {
            sources.push_back(source);
        }
    }
    return sources;
}

} // namespace folioforge
