// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/StructureMerger.h"

#include "pdf/import/Entries.h"
#include "pdf/import/StructureNames.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <map>

namespace folioforge {

namespace {

QPDFObjectHandle dictionaryOf(QPDFObjectHandle object) {
    return object.isStream() ? object.getDict() : object;
}

/// The elements of a page or a form by the number of their content. Numbers far beyond the others,
/// which no writer gives, stay out.
QPDFObjectHandle parentsOf(const MarkedContent &content) {
    constexpr std::size_t kMaxGap = 4096;
    std::vector<QPDFObjectHandle> parents;
    auto elements = content.elements;
    std::ranges::stable_sort(elements, {}, [](const auto &element) { return element.first; });
    for (const auto &[number, element] : elements) {
        const auto index = static_cast<std::size_t>(number);
        if (index > parents.size() + kMaxGap) {
            break;
        }
        if (index >= parents.size()) { // Else its number is another's, too.
            parents.resize(index, QPDFObjectHandle::newNull());
            parents.push_back(element);
        }
    }
    return QPDFObjectHandle::newArray(parents);
}

/// The parent tree of pages that were drawn, with `tree`, which holds the `entries` of the others,
/// behind theirs.
QPDFObjectHandle behindDrawn(QPDF &document, QPDFObjectHandle tree, const TreeEntries &entries,
                             const DrawnStructure &drawn) {
    std::vector<QPDFObjectHandle> kids{drawn.parents};
    if (!entries.empty()) {
        tree.replaceKey("/Limits",
                        QPDFObjectHandle::newArray({entries.front().first, entries.back().first}));
        kids.push_back(tree);
    }
    auto root = document.makeIndirectObject(QPDFObjectHandle::newDictionary());
    putItems(root, "/Kids", kids);
    return root;
}

/// Makes the parent tree, and gives pages, forms and annotations their keys in it.
void putParentTree(QPDF &document, const std::vector<ImportedStructure> &trees,
                   const DrawnStructure &drawn, QPDFObjectHandle root) {
    TreeEntries entries;
    const auto add = [&entries, first = drawn.keys](const QPDFObjectHandle &holder,
                                                    const char *name, const auto &makeParents) {
        auto dictionary = dictionaryOf(holder);
        if (!dictionary.isDictionary() || dictionary.hasKey(name)) {
            return;
        }
        const auto key =
            QPDFObjectHandle::newInteger(first + static_cast<long long>(entries.size()));
        dictionary.replaceKey(name, key);
        entries.emplace_back(key, makeParents());
    };
    for (const ImportedStructure &tree : trees) {
        for (const MarkedContent &content : tree.content) {
            add(content.holder, "/StructParents",
                [&] { return document.makeIndirectObject(parentsOf(content)); });
        }
        for (const auto &[object, element] : tree.objects) {
            add(object, "/StructParent", [&parent = element] { return parent; });
        }
    }
    for (const ImportedStructure &tree : trees) {
        for (auto [page, again] : tree.repeatedPages) {
            again.replaceKey("/StructParents", page.getKey("/StructParents"));
        }
    }
    auto tree = buildTree(document, entries, "/Nums");
    const auto next =
        QPDFObjectHandle::newInteger(drawn.keys + static_cast<long long>(entries.size()));
    root.replaceKey("/ParentTree",
                    drawn.keys > 0 ? behindDrawn(document, tree, entries, drawn) : tree);
    root.replaceKey("/ParentTreeNextKey", next);
}

/// Joins what the roots hold beside their trees, such as namespaces.
void putProperties(const std::vector<ImportedStructure> &trees, QPDFObjectHandle root) {
    for (const ImportedStructure &tree : trees) {
        QPDFObjectHandle properties = tree.properties;
        for (const auto &[key, value] : properties.getDictAsMap()) {
            if (!root.hasKey(key)) {
                root.replaceKey(key, value);
            } else if (root.getKey(key).isArray()) {
                auto joined = items(root.getKey(key));
                std::ranges::copy(items(value), std::back_inserter(joined));
                root.replaceKey(key, QPDFObjectHandle::newArray(joined));
            }
        }
    }
}

/// The document elements of a tree: a merged document has several. Where other elements stand on
/// the first level, one is put above them.
std::vector<QPDFObjectHandle> documentsOf(const ImportedStructure &tree, QPDF &document) {
    const RoleMeanings meanings = meaningsOf(tree);
    if (std::ranges::all_of(tree.kids, [&meanings](QPDFObjectHandle kid) {
            const std::string role = kid.getKey("/S").getName();
            const auto known = meanings.find(role);
            return (known == meanings.end() ? role : known->second) == "/Document";
        })) {
        return tree.kids;
    }
    auto element = document.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /StructElem /S /Document >>"));
    for (QPDFObjectHandle kid : tree.kids) {
        kid.replaceKey("/P", element);
    }
    putItems(element, "/K", tree.kids);
    return {element};
}

} // namespace

void StructureMerger::add(const ImportedStructure &structure, std::size_t pages, ImportScope scope,
                          int firstPage) {
    m_scope = scope;
    if (scope == ImportScope::WholeDocument) {
        m_wholeMarkInfo = structure.markInfo;
    }
    if (structure.marked) {
        m_markedPages += pages;
    }
    if (!structure.kids.empty()) {
        m_trees.push_back(structure);
        m_firstPages.push_back(firstPage);
    }
}

void StructureMerger::add(const DrawnStructure &structure, std::size_t pages) {
    m_drawn = structure;
    m_markedPages += pages;
}

QPDFObjectHandle StructureMerger::markInfo(std::size_t pages) const {
    auto result = QPDFObjectHandle::newDictionary();
    if (m_markedPages == pages) {
        result.replaceKey("/Marked", QPDFObjectHandle::newBool(true));
    }
    for (const char *key : {"/UserProperties", "/Suspects"}) {
        if (std::ranges::any_of(m_trees, [key](const ImportedStructure &tree) {
                return isTrue(entry(tree.markInfo, key));
            })) {
            result.replaceKey(key, QPDFObjectHandle::newBool(true));
        }
    }
    return result.getKeys().empty() ? QPDFObjectHandle::newNull() : result;
}

/// The elements under the root. Of several sources each has one, which says its language.
std::vector<QPDFObjectHandle> StructureMerger::topElements(QPDF &document) const {
    if (m_scope == ImportScope::WholeDocument) {
        return m_trees.front().kids;
    }
    std::multimap<int, QPDFObjectHandle> elements; // By first page.
    for (std::size_t i = 0; i < m_trees.size(); ++i) {
        for (QPDFObjectHandle element : documentsOf(m_trees[i], document)) {
            QPDFObjectHandle language = m_trees[i].language;
            if (language.isString() && !element.hasKey("/Lang")) {
                element.replaceKey("/Lang", language);
            }
            elements.emplace(m_firstPages[i], element);
        }
    }
    if (m_drawn) {
        for (const DrawnDocument &drawn : m_drawn->documents) {
            elements.emplace(drawn.firstPage, drawn.element);
        }
    }
    std::vector<QPDFObjectHandle> inOrder;
    inOrder.reserve(elements.size());
    for (const auto &[page, element] : elements) {
        inOrder.push_back(element);
    }
    return inOrder;
}

void StructureMerger::finish(QPDF &document, std::size_t pages) {
    auto catalog = document.getRoot();
    const bool whole = m_scope == ImportScope::WholeDocument;
    catalog.replaceKey("/MarkInfo", whole ? m_wholeMarkInfo : markInfo(pages));
    if (m_trees.empty() && !m_drawn) {
        return;
    }
    auto root =
        m_drawn
            ? m_drawn->root
            : document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /StructTreeRoot >>"));
    catalog.replaceKey("/StructTreeRoot", root);
    const auto elements = topElements(document);
    for (QPDFObjectHandle element : elements) {
        element.replaceKey("/P", root);
    }
    putItems(root, "/K", elements);
    putProperties(m_trees, root);
    putParentTree(document, m_trees, m_drawn.value_or(DrawnStructure()), root);
    mergeIdentifiers(document, m_trees, root); // Classes may name header cells.
    if (whole) {
        putNames(m_trees.front(), root);
    } else {
        mergeRoles(m_trees, root);
        mergeClasses(m_trees, root);
    }
}

} // namespace folioforge
