// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/TreeEntries.h"

#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <map>
#include <set>

namespace folioforge {

namespace {

constexpr std::size_t kMaxEntries = 64;

/// A node of a tree that is built, and the least and the greatest key under it.
struct EntryNode {
    QPDFObjectHandle object;
    QPDFObjectHandle least;
    QPDFObjectHandle greatest;
};

EntryNode leaf(const TreeEntries &entries, std::size_t from, std::size_t to, const char *leafKey) {
    std::vector<QPDFObjectHandle> pairs;
    pairs.reserve(2 * (to - from));
    for (std::size_t i = from; i < to; ++i) {
        pairs.push_back(entries[i].first);
        pairs.push_back(entries[i].second);
    }
    auto object = QPDFObjectHandle::newDictionary();
    object.replaceKey(leafKey, QPDFObjectHandle::newArray(pairs));
    return {object, entries[from].first, entries[to - 1].first};
}

QPDFObjectHandle limitsOf(const EntryNode &node) {
    return QPDFObjectHandle::newArray({node.least, node.greatest});
}

/// The nodes one level above `nodes`, each over the next ones.
std::vector<EntryNode> groupedEntries(QPDF &document, const std::vector<EntryNode> &nodes) {
    std::vector<EntryNode> parents;
    for (std::size_t from = 0; from < nodes.size(); from += kMaxEntries) {
        const std::size_t to = std::min(from + kMaxEntries, nodes.size());
        std::vector<QPDFObjectHandle> kids;
        for (std::size_t i = from; i < to; ++i) {
            QPDFObjectHandle kid = nodes[i].object;
            kid.replaceKey("/Limits", limitsOf(nodes[i])); // The root alone has none.
            kids.push_back(document.makeIndirectObject(kid));
        }
        auto object = QPDFObjectHandle::newDictionary();
        object.replaceKey("/Kids", QPDFObjectHandle::newArray(kids));
        parents.push_back({object, nodes[from].least, nodes[to - 1].greatest});
    }
    return parents;
}

/// The key of a name tree, which has to be a string, of what a damaged one has in its place.
QPDFObjectHandle stringKey(QPDFObjectHandle key) {
    return key.isString() ? key
                          : QPDFObjectHandle::newString(key.isName() ? key.getName().substr(1)
                                                                     : key.unparse());
}

} // namespace

TreeEntries readTreeEntries(const QPDFObjectHandle &root, const char *leafKey) {
    TreeEntries entries;
    std::vector<QPDFObjectHandle> pending{root};
    std::set<QPDFObjGen> visited; // Lists as well: one may hold nodes that lead to it again.
    while (!pending.empty()) {
        auto node = pending.back();
        pending.pop_back();
        if (!node.isDictionary() || !isFirstVisit(node, visited)) {
            continue;
        }
        const auto leaf = node.getKey(leafKey);
        const auto pairs =
            isFirstVisit(leaf, visited) ? items(leaf) : std::vector<QPDFObjectHandle>();
        for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
            entries.emplace_back(pairs[i], pairs[i + 1]);
        }
        const auto list = node.getKey("/Kids");
        if (isFirstVisit(list, visited)) {
            const auto kids = items(list);
            pending.insert(pending.end(), kids.rbegin(), kids.rend());
        }
    }
    return entries;
}

QPDFObjectHandle buildTree(QPDF &document, const TreeEntries &entries, const char *leafKey) {
    std::vector<EntryNode> nodes;
    for (std::size_t from = 0; from < entries.size(); from += kMaxEntries) {
        nodes.push_back(leaf(entries, from, std::min(from + kMaxEntries, entries.size()), leafKey));
    }
    while (nodes.size() > 1) {
        nodes = groupedEntries(document, nodes);
    }
    auto root = nodes.empty() ? QPDFObjectHandle::newDictionary() : nodes.front().object;
    return document.makeIndirectObject(root);
}

TreeEntries readNameTree(const QPDFObjectHandle &root) {
    TreeEntries entries = readTreeEntries(root, "/Names");
    for (auto &[name, object] : entries) {
        name = stringKey(name);
    }
    std::map<std::string, QPDFObjectHandle> first;
    std::map<std::string, std::set<std::string>> repeated;
    std::erase_if(entries, [&](auto &pair) {
        auto &[name, object] = pair;
        const auto [known, isNew] = first.try_emplace(name.getStringValue(), object);
        if (isNew) {
            return false;
        }
        std::set<std::string> &objects = repeated[known->first];
        objects.insert(known->second.unparse());
        return !objects.insert(object.unparse()).second;
    });
    return entries;
}

void addNames(NamedObjects &objects, const TreeEntries &entries) {
    for (const auto &[name, object] : entries) {
        objects.emplace(QPDFObjectHandle(name).getStringValue(), object);
    }
}

QPDFObjectHandle namesOf(QPDF &document) {
    auto root = document.getRoot();
    auto names = entry(root, "/Names");
    if (!names.isDictionary()) {
        names = document.makeIndirectObject(QPDFObjectHandle::newDictionary());
        root.replaceKey("/Names", names);
    }
    return names;
}

void putNameTree(QPDF &document, const std::string &key, const NamedObjects &objects) {
    if (objects.empty()) {
        return;
    }
    TreeEntries entries;
    for (const auto &[name, object] : objects) {
        entries.emplace_back(QPDFObjectHandle::newString(name), object);
    }
    namesOf(document).replaceKey(key, buildTree(document, entries, "/Names"));
}

} // namespace folioforge
