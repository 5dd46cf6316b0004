// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Entries.h"
#include "pdf/import/LeftTopics.h"

#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {

namespace {

/// What becomes of the structure tree when pages are left out.
class StructurePruning {
  public:
    StructurePruning(const std::set<QPDFObjGen> &pages, const std::set<QPDFObjGen> &objects)
        : m_pages(pages)
        , m_objects(objects) {}

    std::size_t prune(const QPDFObjectHandle &root) {
        m_nodes.push_back({root, 0, QPDFObjGen()});
        read(0);
        while (!m_open.empty()) {
            const std::size_t node = m_open.back();
            m_open.pop_back();
            read(node);
        }
        // Elements stand behind the ones above them.
        for (std::size_t i = m_nodes.size(); --i > 0;) {
            m_nodes[m_nodes[i].parent].hasKept |= m_nodes[i].hasKept;
            m_nodes[m_nodes[i].parent].hasLeft |= m_nodes[i].hasLeft;
        }
        return writeKids();
    }

  private:
    struct Node {
        QPDFObjectHandle element;
        std::size_t parent;
        QPDFObjGen page; ///< On which its contents stand where they do not say it.
        bool hasKept = false;
        bool hasLeft = false;
        std::vector<QPDFObjectHandle> kids =
            {}; ///< Contents that are kept, elements in their place.
        std::vector<std::size_t> elements = {}; ///< Of kids that are elements; 0 for contents.
    };

    static bool isContent(QPDFObjectHandle kid) {
        return kid.isInteger() || (kid.isDictionary() && !kid.hasKey("/S") &&
                                   (kid.hasKey("/MCID") || kid.hasKey("/Obj")));
    }

    [[nodiscard]] bool isLeft(const QPDFObjectHandle &content, QPDFObjGen page) const {
        const auto own = entry(content, "/Pg");
        return m_pages.contains(own.isIndirect() ? own.getObjGen() : page) ||
               m_objects.contains(entry(content, "/Obj").getObjGen());
    }

    void read(std::size_t index) {
        auto kids = m_nodes[index].element.getKey("/K");
        if (kids.isArray() && !isFirstVisit(kids, m_visited)) {
            return;
        }
        const auto listed = kids.isArray() ? items(kids) : std::vector<QPDFObjectHandle>{kids};
        if (listed.empty() || kids.isNull()) {
            noteEmpty(m_nodes[index]);
        }
        for (const auto &kid : listed) {
            if (isContent(kid)) {
                addContent(m_nodes[index], kid);
            } else if (kid.isIndirect() && entry(kid, "/S").isName() &&
                       m_visited.insert(kid.getObjGen()).second) {
                addElement(index, kid);
            }
        }
    }

    void noteEmpty(Node &node) const { node.hasLeft = node.hasLeft || m_pages.contains(node.page); }

    void addContent(Node &node, const QPDFObjectHandle &content) const {
        const bool left = isLeft(content, node.page);
        (left ? node.hasLeft : node.hasKept) = true;
        if (!left) {
            node.kids.push_back(content);
            node.elements.push_back(0);
        }
    }

    void addElement(std::size_t parent, const QPDFObjectHandle &element) {
        const auto page = entry(element, "/Pg");
        m_nodes[parent].kids.push_back(element);
        m_nodes[parent].elements.push_back(m_nodes.size());
        m_open.push_back(m_nodes.size());
        m_nodes.push_back(
            {element, parent, page.isIndirect() ? page.getObjGen() : m_nodes[parent].page});
    }

    /// Elements of which nothing was left stay, also those without contents.
    static bool isKept(const Node &node) { return node.hasKept || !node.hasLeft; }

    std::size_t writeKids() {
        std::vector<bool> stays(m_nodes.size(), true);
        std::size_t removed = 0;
        for (std::size_t i = 0; i < m_nodes.size(); ++i) {
            Node &node = m_nodes[i];
            stays[i] = stays[node.parent] && (i == 0 || isKept(node));
            removed += stays[i] ? 0 : 1;
            if (!stays[i] || !node.hasLeft) {
                continue;
            }
            std::vector<QPDFObjectHandle> kids;
            for (std::size_t k = 0; k < node.kids.size(); ++k) {
                if (node.elements[k] == 0 || isKept(m_nodes[node.elements[k]])) {
                    kids.push_back(node.kids[k]);
                }
            }
            node.element.replaceKey("/K", QPDFObjectHandle::newArray(kids));
            if (m_pages.contains(entry(node.element, "/Pg").getObjGen())) {
                node.element.removeKey("/Pg");
            }
        }
        return removed;
    }

    const std::set<QPDFObjGen> &m_pages;
    const std::set<QPDFObjGen> &m_objects;
    std::vector<Node> m_nodes; ///< The first is the root.
    std::vector<std::size_t> m_open;
    std::set<QPDFObjGen> m_visited;
};

} // namespace

std::size_t removeStructureOf(QPDF &source, const std::set<QPDFObjGen> &pages,
                              const std::set<QPDFObjGen> &objects) {
    auto root = source.getRoot().getKey("/StructTreeRoot");
    return root.isDictionary() ? StructurePruning(pages, objects).prune(root) : 0;
}

} // namespace folioforge
