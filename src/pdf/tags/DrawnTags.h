// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRectF>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

/// A picture as the structure tree tells of it.
struct FigureTag {
    std::uint32_t content = 0; ///< Of which marked content of its page it is.
    QString description;
    QRectF box; ///< Points, from the lower left corner of the page.
};

/// What a page that was drawn holds. All else of its structure follows from that.
struct PageTags {
    int page = 0; ///< Its position in the document, from 0.
    /// How many sequences of marked content it has: a paragraph's each, or a picture's. They are
    /// numbered from 0.
    std::uint32_t contents = 0;
    /// Those that go on with the paragraph before, perhaps of another page; in their order.
    std::vector<std::uint32_t> joined;
    std::vector<FigureTag> figures;
};

/// What the pages of a document that were drawn here hold, a few numbers for each page, so that a
/// text takes no memory for its paragraphs.
class DrawnTags {
  public:
    /// The pages of a file, as they are in pages().
    struct Source {
        QString name;
        std::size_t firstPage = 0;
        std::size_t endPage = 0;
    };

    /// What is drawn from now on comes from the file `name`.
    void beginSource(const QString &name);
    void beginPage();
    /// Keeps the page, which is that of the document at `page`, from 0. Returns its key in the
    /// parent tree; nothing where it holds no content.
    std::optional<int> endPage(int page);
    /// Forgets the pages from `count` on, counted as those of the document are.
    void truncatePages(int count);

    /// The text that follows, on this page and the next ones, is a paragraph of its own.
    void beginParagraph();
    /// To be asked before text is shown: the number of the marked content that begins with it;
    /// nothing where it belongs to the one that is open.
    std::optional<std::uint32_t> contentForText();
    /// What is open ends; text that follows in the paragraph has a marked content of its own.
    void endContent();
    /// The number of the marked content that a picture is.
    std::uint32_t addFigure(const QString &description, const QRectF &box);

    [[nodiscard]] std::span<const PageTags> pages() const { return m_pages; }
    /// Those with pages.
    [[nodiscard]] std::vector<Source> sources() const;

  private:
    std::vector<PageTags> m_pages;
    std::vector<Source> m_sources; ///< Each up to the begin of the next.
    PageTags m_page;               ///< The one that is being drawn.
    bool m_isOpen = false;         ///< A marked content of text is open.
    bool m_isNew = true;           ///< The next text begins a paragraph.
};

} // namespace folioforge
