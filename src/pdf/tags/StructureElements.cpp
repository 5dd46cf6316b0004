// SPDX-License-Identifier: Apache-2.0

#include "pdf/tags/StructureElements.h"

#include "pdf/ContentNumber.h"
#include "pdf/writing/ObjectStreams.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace folioforge {

namespace {

/// Readers look through all kids of a node. Longer lists are split into about as many parts as each
/// part has kids.
constexpr std::size_t kMaxKids = 500;

std::size_t partSize(std::size_t kids) {
    return std::max(kMaxKids, static_cast<std::size_t>(std::sqrt(static_cast<double>(kids))) + 1);
}

std::string reference(int number) {
    return std::to_string(number) + " 0 R";
}

/// A string of text, such as "(notes.txt)".
std::string textString(const std::string &text) {
    return QPDFObjectHandle::newUnicodeString(text).unparse();
}

/// The node of a tree that leads from the keys of pages to what elements their content belongs to.
class ParentTree {
  public:
    ParentTree(ObjectStreams &streams, std::size_t pages)
        : m_streams(streams)
        , m_leafSize(partSize(pages)) {}

    /// To be called in the order of the keys.
    void add(std::size_t key, int parents) {
        if (m_count++ == 0) {
            m_first = key;
        }
        m_last = key;
        m_pairs.append(std::to_string(key)).append(" ").append(reference(parents)).append(" ");
        if (m_count == m_leafSize) {
            endLeaf();
        }
    }

    void finish(int number) {
        endLeaf();
        const std::string limits =
            "[0 " + std::to_string(m_last) + "]"; // Also of a first page without content.
        m_streams.add(ObjectStreams::Lists, number,
                      "<</Limits" + limits + "/Kids[" + m_leaves + "]>>");
    }

  private:
    void endLeaf() {
        if (m_count == 0) {
            return;
        }
        const int leaf = m_streams.newNumber();
        m_streams.add(ObjectStreams::Lists, leaf,
                      "<</Limits[" + std::to_string(m_first) + " " + std::to_string(m_last) +
                          "]/Nums[" + m_pairs + "]>>");
        m_leaves.append(reference(leaf)).append(" ");
        m_pairs.clear();
        m_count = 0;
    }

    ObjectStreams &m_streams;
    std::size_t m_leafSize;
    std::size_t m_count = 0; ///< Of keys in the leaf that is being filled.
    std::size_t m_first = 0;
    std::size_t m_last = 0;
    std::string m_pairs;
    std::string m_leaves;
};

/// Writes the elements of one source, in the order of its pages.
class SourceElements {
  public:
    SourceElements(const DrawnStructure &structure, std::span<const QPDFObjectHandle> pages,
                   const NumberOf &numberOf, ObjectStreams &streams, ParentTree &parents)
        : m_structure(structure)
        , m_pages(pages)
        , m_numberOf(numberOf)
        , m_streams(streams)
        , m_parents(parents) {}

    void write(const DrawnTags::Source &source, std::span<const PageTags> pages, int document) {
        m_partSize = 0;
        for (const PageTags &page : pages) {
            m_partSize += page.contents - page.joined.size();
        }
        m_isParted = m_partSize > kMaxKids;
        m_partSize = partSize(m_partSize);
        m_document = document;
        m_parent = document;
        m_kids.clear();
        m_parts.clear();
        for (std::size_t i = 0; i < pages.size(); ++i) {
            addPage(pages[i], source.firstPage + i);
        }
        endElement();
        endPart();
        const std::string language =
            m_structure.language.empty() ? "" : "/Lang" + textString(m_structure.language);
        m_streams.add(ObjectStreams::Lists, document,
                      "<</S/Document/P " + reference(m_numberOf(m_structure.root.getObjGen())) +
                          "/T" + textString(source.name.toStdString()) + language + "/K[" +
                          m_parts + "]>>");
    }

  private:
    void addPage(const PageTags &page, std::size_t key) {
        m_page = m_numberOf(m_pages[static_cast<std::size_t>(page.page)].getObjGen());
        std::string elements;
        auto joined = page.joined.begin();
        for (std::uint32_t content = 0; content < page.contents; ++content) {
            if (joined != page.joined.end() && *joined == content) {
                continueElement(content);
                ++joined;
            } else {
                beginElement(page, content);
            }
            elements.append(reference(m_element)).append(" ");
        }
        if (page.contents > 0) {
            m_pageParents.emplace_back(key, elements);
        }
    }

    void continueElement(std::uint32_t content) {
        const std::string number = std::to_string(content);
        m_content += m_page == m_elementPage
                         ? " " + number
                         : "<</Type/MCR/Pg " + reference(m_page) + "/MCID " + number + ">>";
        m_isList = true;
    }

    void beginElement(const PageTags &page, std::uint32_t content) {
        endElement();
        if (m_isParted && (m_count == 0 || m_count == m_partSize)) {
            endPart();
            m_parent = m_streams.newNumber();
        }
        ++m_count;
        m_element = m_streams.newNumber();
        m_kids.append(reference(m_element)).append(" ");
        const auto figure = std::ranges::find(page.figures, content, &FigureTag::content);
        m_keys = figure == page.figures.end() ? "/S/P" : keysOf(*figure);
        m_keys += "/P " + reference(m_parent) + "/Pg " + reference(m_page);
        m_content = std::to_string(content);
        m_elementPage = m_page;
        m_isList = false;
    }

    static std::string keysOf(const FigureTag &figure) {
        std::string box;
        for (const double edge :
             {figure.box.left(), figure.box.top(), figure.box.right(), figure.box.bottom()}) {
            appendNumber(box, edge);
        }
        return "/S/Figure/Alt" + textString(figure.description.toStdString()) +
               "/A<</O/Layout/Placement/Block/BBox[" + box + "]>>";
    }

    void endElement() {
        if (m_element == 0) {
            return;
        }
        const std::string kids = m_isList ? "[" + m_content + "]" : " " + m_content;
        m_streams.add(ObjectStreams::Elements, m_element, "<<" + m_keys + "/K" + kids + ">>");
        m_element = 0;
    }

    void endPart() {
        for (const auto &[key, elements] : m_pageParents) {
            const int number = m_streams.newNumber();
            m_streams.add(ObjectStreams::Lists, number, "[" + elements + "]");
            m_parents.add(key, number);
        }
        m_pageParents.clear();
        if (!m_isParted) {
            m_parts = m_kids;
        } else if (m_count > 0) {
            m_streams.add(ObjectStreams::Lists, m_parent,
                          "<</S/NonStruct/P " + reference(m_document) + "/K[" + m_kids + "]>>");
            m_parts.append(reference(m_parent)).append(" ");
        }
        m_kids.clear();
        m_count = 0;
    }

    const DrawnStructure &m_structure;
    std::span<const QPDFObjectHandle> m_pages;
    const NumberOf &m_numberOf;
    ObjectStreams &m_streams;
    ParentTree &m_parents;
    std::size_t m_partSize = 0;
    bool m_isParted = false;
    int m_document = 0;
    int m_parent = 0;
    int m_page = 0;
    int m_element = 0;     ///< The one that is not written yet; 0 for none.
    int m_elementPage = 0; ///< On which it begins.
    std::string m_keys;
    std::string m_content; ///< Of the element.
    bool m_isList = false; ///< The element has several contents.
    std::string m_kids;    ///< Elements of the part.
    std::size_t m_count = 0;
    std::string m_parts;
    std::vector<std::pair<std::size_t, std::string>> m_pageParents; ///< By the keys of pages.
};

} // namespace

DrawnStructure makeStructure(QPDF &document, const DrawnTags &tags, const std::string &language) {
    const auto make = [&document](const char *object) {
        return document.makeIndirectObject(QPDFObjectHandle::parse(object));
    };
    DrawnStructure structure;
    structure.root = make("<< /Type /StructTreeRoot >>");
    for (const DrawnTags::Source &source : tags.sources()) {
        structure.documents.push_back(
            {tags.pages()[source.firstPage].page, make("<< /S /Document >>")});
    }
    structure.parents = make("<< >>");
    structure.keys = static_cast<long long>(tags.pages().size());
    structure.language = language;
    return structure;
}

void writeElements(const DrawnTags &tags, const DrawnStructure &structure,
                   std::span<const QPDFObjectHandle> pages, const NumberOf &numberOf,
                   ObjectStreams &streams) {
    ParentTree parents(streams, tags.pages().size());
    SourceElements elements(structure, pages, numberOf, streams, parents);
    const auto sources = tags.sources();
    for (std::size_t i = 0; i < sources.size(); ++i) {
        const auto &source = sources[i];
        elements.write(source,
                       tags.pages().subspan(source.firstPage, source.endPage - source.firstPage),
                       numberOf(structure.documents.at(i).element.getObjGen()));
    }
    parents.finish(numberOf(structure.parents.getObjGen()));
}

} // namespace folioforge
