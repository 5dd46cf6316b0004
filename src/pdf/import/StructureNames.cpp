// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/StructureNames.h"

#include "pdf/import/Entries.h"
#include "pdf/import/FreeName.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <set>
#include <string>

namespace folioforge {

namespace {

using Names = std::map<std::string, std::string>;

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

/// Renames the members of an array in place, since elements may share it. `textOf` gives the name
/// in a member, and `named` makes one.
template<typename TextOf, typename Named>
void renameMembers(QPDFObjectHandle array, const Names &renames, const TextOf &textOf,
                   const Named &named) {
    for (int i = 0; array.isArray() && i < array.getArrayNItems(); ++i) {
        const auto found = renames.find(textOf(array.getArrayItem(i)));
        if (found != renames.end()) {
            array.setArrayItem(i, named(found->second));
        }
    }
}

std::string nameOf(QPDFObjectHandle object) {
    return object.isName() ? object.getName() : std::string();
}

std::string stringOf(QPDFObjectHandle object) {
    return object.isString() ? object.getStringValue() : std::string();
}

/// Renames the attribute classes in the /C of each element: one, or several with numbers of
/// revisions between.
void renameClasses(const ImportedStructure &tree, const Names &renames) {
    std::set<QPDFObjGen> visited;
    for (QPDFObjectHandle element : tree.withClass) {
        auto classes = element.getKey("/C");
        const auto found = renames.find(nameOf(classes));
        if (found != renames.end()) {
            element.replaceKey("/C", QPDFObjectHandle::newName(found->second));
        } else if (isFirstVisit(classes, visited)) {
            renameMembers(classes, renames, nameOf, QPDFObjectHandle::newName);
        }
    }
}

/// The dictionaries of attributes that an element or a class has: one, or several with numbers of
/// revisions between.
std::vector<QPDFObjectHandle> attributesOf(QPDFObjectHandle attributes) {
    return attributes.isArray() ? items(attributes) : std::vector{attributes};
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
    std::set<QPDFObjGen> visited; // Elements may share all of it.
    for (const auto &holder : holders) {
        if (!isFirstVisit(holder, visited)) {
            continue;
        }
        for (const auto &attributes : attributesOf(holder)) {
            const auto headers = entry(attributes, "/Headers");
            if (isFirstVisit(attributes, visited) && isFirstVisit(headers, visited)) {
                renameMembers(headers, renames, stringOf, QPDFObjectHandle::newString);
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
            role = shortened(meaning).getName(); // Roles may share one.
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
    Dictionary classes;
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
        if (!renames.empty()) {
            renameClasses(tree, renames);
        }
    }
    if (!classes.empty()) {
        root.replaceKey("/ClassMap", QPDFObjectHandle::newDictionary(classes));
    }
}

void mergeIdentifiers(QPDF &document, std::span<ImportedStructure> trees, QPDFObjectHandle root) {
    Dictionary identifiers;
    NameNumbers numbers;
    for (ImportedStructure &tree : trees) {
        Names renames;
        std::set<std::string> own;
        for (const auto &[identifier, element] : tree.named) {
            own.insert(identifier);
        }
        for (auto &named : tree.named) {
            const std::string &identifier = named.first;
            if (renames.contains(identifier)) {
                continue; // The first that has it is the one that is meant.
            }
            const auto free = freeName(identifier, numbers, [&](const std::string &candidate) {
                return identifiers.contains(candidate) ||
                       (candidate != identifier && own.contains(candidate));
            });
            identifiers.emplace(free, named.second);
            renames.emplace(identifier, free);
            if (free != identifier) {
                named.second.replaceKey("/ID", QPDFObjectHandle::newString(free));
            }
        }
        std::erase_if(renames, [](const auto &name) { return name.first == name.second; });
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
