// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/StructureNames.h"

#include "pdf/import/Entries.h"
#include "pdf/import/FreeName.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <set>
#include <string>

namespace folioforge {

namespace {

using Names = std::map<std::string, std::string>;
using Members = std::map<std::string, QPDFObjectHandle>;

/// The roles of all trees, each with one meaning.
class RoleNames {
  public:
    explicit RoleNames(std::span<const ImportedStructure> trees) {
        for (const ImportedStructure &tree : trees) {
            m_standard.insert(tree.standardRoles.begin(), tree.standardRoles.end());
            for (const auto &[role, meaning] : meaningsOf(tree)) {
                m_standard.insert(meaning);
                m_used.insert(role);
            }
        }
        m_used.insert(m_standard.begin(), m_standard.end());
    }

    /// The name under which `role` keeps its meaning.
    std::string add(const std::string &role, const std::string &meaning) {
        const auto known = m_meanings.find(role);
        const bool taken = known != m_meanings.end() && known->second != meaning;
        if (!taken && !m_standard.contains(role)) {
            m_meanings.emplace(role, meaning);
            return role;
        }
        auto &renamed = m_renamed[{role, meaning}];
        if (renamed.empty()) {
            renamed = freeName(role, m_numbers,
                               [&](const std::string &name) { return m_used.contains(name); });
            m_used.insert(renamed);
            m_meanings.emplace(renamed, meaning);
        }
        return renamed;
    }

    [[nodiscard]] const Names &meanings() const { return m_meanings; }

  private:
    std::set<std::string> m_standard; ///< Types that some tree uses as they are.
    std::set<std::string> m_used;
    Names m_meanings;
    std::map<std::pair<std::string, std::string>, std::string> m_renamed;
    NameNumbers m_numbers;
};

/// The name of an attribute class in /C: one, or several with numbers of revisions between.
void renameClasses(QPDFObjectHandle element, const Names &renames) {
    const auto renamed = [&renames](QPDFObjectHandle item) -> QPDFObjectHandle {
        const auto found = item.isName() ? renames.find(item.getName()) : renames.end();
        return found == renames.end() ? item : QPDFObjectHandle::newName(found->second);
    };
    auto classes = element.getKey("/C");
    if (classes.isName()) {
        element.replaceKey("/C", renamed(classes));
        return;
    }
    auto members = items(classes);
    for (auto &member : members) {
        member = renamed(member);
    }
    putItems(element, "/C", members);
}

/// The dictionaries of attributes that an element or a class has: one, or several with numbers of
/// revisions between.
std::vector<QPDFObjectHandle> attributesOf(QPDFObjectHandle attributes) {
    return attributes.isArray() ? items(attributes) : std::vector{attributes};
}

void renameHeaders(QPDFObjectHandle attributes, const Names &renames) {
    auto headers = items(entry(attributes, "/Headers"));
    for (auto &header : headers) {
        const auto found =
            header.isString() ? renames.find(header.getStringValue()) : renames.end();
        if (found != renames.end()) {
            header = QPDFObjectHandle::newString(found->second);
        }
    }
    putItems(attributes, "/Headers", headers);
}

/// Renames the identifiers of header cells, which attributes of tables name (ISO 32000-1, table
/// 349).
void renameHeaders(const ImportedStructure &tree, const Names &renames) {
    std::vector<QPDFObjectHandle> holders;
    for (QPDFObjectHandle element : tree.withAttributes) {
        holders.push_back(element.getKey("/A"));
    }
    for (const auto &[name, attributes] : tree.classMap) {
        holders.push_back(attributes);
    }
    std::set<QPDFObjGen> visited; // Elements may share their attributes.
    for (const auto &holder : holders) {
        for (const auto &attributes : attributesOf(holder)) {
            if (!attributes.isIndirect() || visited.insert(attributes.getObjGen()).second) {
                renameHeaders(attributes, renames);
            }
        }
    }
}

} // namespace

RoleMeanings meaningsOf(const ImportedStructure &tree) {
    RoleMeanings meanings;
    for (const auto &[first, ignored] : tree.roleMap) {
        std::string role = first;
        std::vector<std::string> way; // Roles may stand for each other.
        for (auto next = tree.roleMap.find(role);
             next != tree.roleMap.end() && meanings.try_emplace(role, role).second;
             next = tree.roleMap.find(role)) {
            way.push_back(role);
            QPDFObjectHandle meaning = next->second;
            if (!meaning.isName()) {
                break;
            }
            role = meaning.getName();
        }
        const auto known = meanings.find(role);
        const std::string meaning = known == meanings.end() ? role : known->second;
        for (const std::string &passed : way) {
            meanings[passed] = meaning;
        }
    }
    return meanings;
}

void putNames(const ImportedStructure &tree, QPDFObjectHandle root) {
    if (!tree.roleMap.empty()) {
        root.replaceKey("/RoleMap", QPDFObjectHandle::newDictionary(tree.roleMap));
    }
    if (!tree.classMap.empty()) {
        root.replaceKey("/ClassMap", QPDFObjectHandle::newDictionary(tree.classMap));
    }
}

void mergeRoles(std::span<ImportedStructure> trees, QPDFObjectHandle root) {
    RoleNames names(trees);
    for (ImportedStructure &tree : trees) {
        for (const auto &[role, meaning] : meaningsOf(tree)) {
            const std::string name = names.add(role, meaning);
            if (name == role) {
                continue;
            }
            for (auto &element : tree.byRole[role]) {
                element.replaceKey("/S", QPDFObjectHandle::newName(name));
            }
        }
    }
    auto roleMap = QPDFObjectHandle::newDictionary();
    for (const auto &[role, meaning] : names.meanings()) {
        roleMap.replaceKey(role, QPDFObjectHandle::newName(meaning));
    }
    if (!names.meanings().empty()) {
        root.replaceKey("/RoleMap", roleMap);
    }
}

void mergeClasses(std::span<ImportedStructure> trees, QPDFObjectHandle root) {
    Members classes;
    NameNumbers numbers;
    for (ImportedStructure &tree : trees) {
        Names renames;
        for (const auto &[name, attributes] : tree.classMap) {
            const std::string text = QPDFObjectHandle(attributes).unparse();
            const auto free = freeName(name, numbers, [&](const std::string &candidate) {
                const auto known = classes.find(candidate);
                return known != classes.end() && known->second.unparse() != text;
            });
            classes.emplace(free, attributes);
            if (free != name) {
                renames.emplace(name, free);
            }
        }
        for (const auto &element : tree.withClass) {
            if (!renames.empty()) {
                renameClasses(element, renames);
            }
        }
    }
    if (!classes.empty()) {
        root.replaceKey("/ClassMap", QPDFObjectHandle::newDictionary(classes));
    }
}

void mergeIdentifiers(QPDF &document, std::span<ImportedStructure> trees, QPDFObjectHandle root) {
    Members identifiers;
    NameNumbers numbers;
    for (ImportedStructure &tree : trees) {
        Names renames;
        std::set<std::string> own;
        for (auto &[identifier, element] : tree.named) {
            if (!own.insert(identifier).second) {
                continue; // The first that has it is the one that is meant.
            }
            const auto free = freeName(identifier, numbers, [&](const std::string &candidate) {
                return identifiers.contains(candidate);
            });
            identifiers.emplace(free, element);
            if (free != identifier) {
                element.replaceKey("/ID", QPDFObjectHandle::newString(free));
                renames.emplace(identifier, free);
            }
        }
        if (renames.empty()) {
            continue;
        }
        renameHeaders(tree, renames);
    }
    TreeEntries entries;
    for (const auto &[identifier, element] : identifiers) {
        entries.emplace_back(QPDFObjectHandle::newString(identifier), element);
    }
    if (!entries.empty()) {
        root.replaceKey("/IDTree", buildTree(document, entries, "/Names"));
    }
}

} // namespace folioforge
