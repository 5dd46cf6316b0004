// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftPages.h"

#include "pdf/import/Bookmarks.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <string>

namespace folioforge {

namespace {

using Handles = std::vector<QPDFObjectHandle>;

class LeftPages {
  public:
    LeftPages(QPDF &source, const std::vector<SourcePage> &all, const std::vector<SourcePage> &kept)
        : m_source(source)
        , m_all(all)
        , m_kept(kept) {
        for (const auto &[page, inherited] : all) {
            m_left.insert(page.getObjGen());
        }
        for (const auto &[page, inherited] : kept) {
            m_left.erase(page.getObjGen());
        }
    }

    PartCounts remove() {
        for (const auto &[page, inherited] : m_all) {
            if (isLeft(page)) {
                // Not every page says that it is one, by which it is known and not copied.
                QPDFObjectHandle(page).replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
            }
        }
        removeDestinations();
        removeAnnotations();
        removeBookmarks();
        removeFields();
        removeThreads();
        addParts(m_gone, PartKind::StructureElements,
                 removeStructureOf(m_source, m_left, m_goneAnnotations));
        auto catalog = m_source.getRoot();
        auto opening = catalog.getKey("/OpenAction");
        if (leads(opening.isDictionary() ? entry(opening, "/D") : opening)) {
            catalog.removeKey("/OpenAction");
        }
        return m_gone;
    }

  private:
    [[nodiscard]] bool isLeft(const QPDFObjectHandle &page) const {
        return page.isIndirect() && m_left.contains(page.getObjGen());
    }

    /// Whether a destination leads to a page that is left out.
    [[nodiscard]] bool leads(QPDFObjectHandle destination) const {
        if (destination.isName()) {
            return m_goneNames.contains(destination.getName());
        }
        if (destination.isString()) {
            return m_goneStrings.contains(destination.getStringValue());
        }
        if (destination.isDictionary()) {
            destination = destination.getKey("/D");
        }
        if (!destination.isArray() || destination.getArrayNItems() == 0) {
            return false;
        }
        auto page = destination.getArrayItem(0);
        if (!page.isInteger()) {
            return isLeft(page);
        }
        const auto number = page.getIntValue();
        return number >= 0 && number < static_cast<long long>(m_all.size()) &&
               isLeft(m_all[static_cast<std::size_t>(number)].page);
    }

    /// Whether a bookmark or a link does.
    [[nodiscard]] bool jumps(const QPDFObjectHandle &holder) const {
        const auto action = entry(holder, "/A");
        return leads(entry(holder, "/Dest")) ||
               (entry(action, "/S").isNameAndEquals("/GoTo") && leads(entry(action, "/D")));
    }

    void removeDestinations() {
        auto dictionary = m_source.getRoot().getKey("/Dests");
        for (const auto &[name, destination] :
             dictionary.isDictionary() ? dictionary.getDictAsMap() : Dictionary()) {
            if (leads(destination)) {
                m_goneNames.insert(name);
            }
        }
        for (const auto &name : m_goneNames) {
            dictionary.removeKey(name);
        }
        auto names = m_source.getRoot().getKey("/Names");
        Handles kept;
        for (const auto &[name, destination] : readNameTree(entry(names, kDestinations))) {
            if (leads(destination)) {
                m_goneStrings.insert(QPDFObjectHandle(name).getStringValue());
            } else {
                kept.push_back(name);
                kept.push_back(destination);
            }
        }
        if (!m_goneStrings.empty()) {
            auto tree = QPDFObjectHandle::newDictionary();
            tree.replaceKey("/Names", QPDFObjectHandle::newArray(kept));
            names.replaceKey(kDestinations, tree);
        }
        addParts(m_gone, PartKind::Destinations, m_goneNames.size() + m_goneStrings.size());
    }

    /// The links of pages that stay and lead to others go; of these go all.
    void removeAnnotations() {
        std::set<QPDFObjGen> seen;
        std::size_t links = 0;
        for (const auto &[page, inherited] : m_kept) {
            const auto annotations = items(annotationsOf(page));
            Handles kept;
            for (const auto &annotation : annotations) {
                const bool goes =
                    entry(annotation, "/Subtype").isNameAndEquals("/Link") && jumps(annotation);
                if (!goes) {
                    kept.push_back(annotation);
                } else if (annotation.isIndirect()) {
                    m_goneAnnotations.insert(annotation.getObjGen());
                }
                seen.insert(annotation.getObjGen());
            }
            if (kept.size() < annotations.size()) {
                links += annotations.size() - kept.size();
                QPDFObjectHandle(page).replaceKey("/Annots", QPDFObjectHandle::newArray(kept));
            }
        }
        addParts(m_gone, PartKind::Links, links);
        for (const auto &[page, inherited] : m_all) {
            for (const auto &annotation : isLeft(page) ? items(annotationsOf(page)) : Handles()) {
                if (annotation.isIndirect() && !seen.contains(annotation.getObjGen())) {
                    m_goneAnnotations.insert(annotation.getObjGen());
                }
            }
        }
    }

    /// A node of the outline or of the field tree.
    struct Node {
        QPDFObjectHandle object;
        std::size_t parent;
        bool goes;
        bool hadKids = false;
        Handles kept = {}; ///< Of what is under it.
    };

    /// The tree under `root`, each node before those under it. `kidsOf` gives what is under one.
    template<typename KidsOf, typename Goes>
    static std::vector<Node> readTree(const QPDFObjectHandle &root, const KidsOf &kidsOf,
                                      const Goes &goes) {
        std::vector<Node> nodes{{root, 0, false}};
        std::set<QPDFObjGen> visited{root.getObjGen()};
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            for (auto kid : kidsOf(nodes[i].object)) {
                if (kid.isDictionary() && isFirstVisit(kid, visited)) {
                    nodes[i].hadKids = true;
                    nodes.push_back({kid, i, goes(kid)});
                }
            }
        }
        return nodes;
    }

    /// Calls `write` for each node that stays, with those under it that stay in `kept`, from the
    /// last to the root; gives those that go. One stays where something under it does.
    template<typename Stays, typename Write>
    static Handles settleTree(std::vector<Node> &nodes, const Stays &stays, const Write &write) {
        Handles gone;
        for (std::size_t i = nodes.size(); i-- > 0;) {
            Node &node = nodes[i];
            std::ranges::reverse(node.kept);
            if (i > 0 && node.kept.empty() && !stays(node)) {
                gone.push_back(node.object);
                continue;
            }
            write(node);
            if (i > 0) {
                nodes[node.parent].kept.push_back(node.object);
            }
        }
        return gone;
    }

    static void writeBookmarks(Node &node) {
        if (node.goes) { // It stays for those under it.
            node.object.removeKey("/Dest");
            node.object.removeKey("/A");
        }
        putBookmarksUnder(node.object, node.kept);
    }

    void removeBookmarks() {
        auto root = m_source.getRoot().getKey("/Outlines");
        if (!root.isDictionary()) {
            return;
        }
        auto nodes = readTree(
            root, [&](const auto &parent) { return bookmarksUnder(m_source, parent); },
            [&](const auto &item) { return jumps(item); });
        const auto stays = [](const Node &node) {
            auto item = node.object;
            return !node.goes && (!node.hadKids || item.hasKey("/Dest") || item.hasKey("/A"));
        };
        addParts(m_gone, PartKind::Bookmarks, settleTree(nodes, stays, writeBookmarks).size());
    }

    void removeFields() {
        auto form = m_source.getRoot().getKey("/AcroForm");
        if (!form.isDictionary()) {
            return;
        }
        auto roots = items(form.getKey("/Fields"));
        const auto unlisted = unlistedFields(m_kept, roots);
        roots.insert(roots.end(), unlisted.begin(), unlisted.end());
        auto holder = QPDFObjectHandle::newDictionary();
        holder.replaceKey("/Kids", QPDFObjectHandle::newArray(roots));
        auto nodes = readTree(
            holder, [](const auto &field) { return items(entry(field, "/Kids")); },
            [&](const auto &field) { return m_goneAnnotations.contains(field.getObjGen()); });
        const Handles gone = settleTree(
            nodes, [](const Node &node) { return !node.goes && !node.hadKids; },
            [](Node &node) {
                if (node.hadKids) {
                    node.object.replaceKey("/Kids", QPDFObjectHandle::newArray(node.kept));
                }
            });
        form.replaceKey("/Fields", holder.getKey("/Kids"));
        removeFrom(form, "/CO", gone);
        addParts(m_gone, PartKind::Fields,
                 static_cast<std::size_t>(std::ranges::count_if(
                     gone, [](const auto &field) { return entry(field, "/T").isString(); })));
    }

    static void removeFrom(QPDFObjectHandle holder, const char *key, const Handles &gone) {
        std::set<QPDFObjGen> objects;
        for (const auto &object : gone) {
            objects.insert(object.getObjGen());
        }
        auto list = items(entry(holder, key));
        if (std::erase_if(list, [&](auto item) { return objects.contains(item.getObjGen()); }) >
            0) {
            holder.replaceKey(key, QPDFObjectHandle::newArray(list));
        }
    }

    /// A thread of which a part is left out goes with all its beads.
    void removeThreads() {
        auto catalog = m_source.getRoot();
        Handles goneBeads;
        Handles goneThreads;
        for (const auto &thread : items(catalog.getKey("/Threads"))) {
            Handles beads;
            std::set<QPDFObjGen> visited;
            bool goes = false;
            for (auto bead = entry(thread, "/F");
                 bead.isDictionary() && visited.insert(bead.getObjGen()).second;
                 bead = bead.getKey("/N")) {
                goes = goes || isLeft(bead.getKey("/P"));
                beads.push_back(bead);
            }
            if (goes) {
                goneThreads.push_back(thread);
                goneBeads.insert(goneBeads.end(), beads.begin(), beads.end());
            }
        }
        removeFrom(catalog, "/Threads", goneThreads);
        for (const auto &[page, inherited] :
             goneBeads.empty() ? std::vector<SourcePage>() : m_kept) {
            removeFrom(page, "/B", goneBeads);
        }
        addParts(m_gone, PartKind::ArticleThreads, goneThreads.size());
    }

    QPDF &m_source;
    const std::vector<SourcePage> &m_all;
    const std::vector<SourcePage> &m_kept;
    std::set<QPDFObjGen> m_left;
    std::set<std::string> m_goneNames;   ///< With their slash.
    std::set<std::string> m_goneStrings; ///< Their bytes.
    std::set<QPDFObjGen> m_goneAnnotations;
    PartCounts m_gone;
};

} // namespace

PartCounts removeLeftPages(QPDF &source, const std::vector<SourcePage> &all,
                           const std::vector<SourcePage> &kept) {
    return LeftPages(source, all, kept).remove();
}

} // namespace folioforge
