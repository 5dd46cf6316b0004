// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/StructureImport.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace folioforge {

namespace {

/// What a kid of an element is (ISO 32000-1, 14.7.4).
enum class KidKind { Element, MarkedContent, Object, Damaged };

KidKind kindOf(QPDFObjectHandle kid) {
    if (kid.isInteger()) {
        return KidKind::MarkedContent;
    }
    if (!kid.isDictionary()) {
        return KidKind::Damaged;
    }
    // Not every writer gives the type.
    if (kid.isDictionaryOfType("/MCR") || (kid.hasKey("/MCID") && !kid.hasKey("/S"))) {
        return KidKind::MarkedContent;
    }
    if (kid.isDictionaryOfType("/OBJR") || (kid.hasKey("/Obj") && !kid.hasKey("/S"))) {
        return KidKind::Object;
    }
    return KidKind::Element;
}

Dictionary membersOf(QPDFObjectHandle dictionary) {
    return dictionary.isDictionary() ? dictionary.getDictAsMap() : Dictionary();
}

bool isOneOf(std::string_view key, std::initializer_list<std::string_view> keys) {
    return std::ranges::find(keys, key) != keys.end();
}

class StructureWalk {
  public:
    StructureWalk(QPDF &target, ObjectCopier &copier)
        : m_target(target)
        , m_copier(copier) {}

    ImportedStructure walk(QPDFObjectHandle catalog);

  private:
    /// An element whose copy is still empty.
    struct Open {
        QPDFObjectHandle source;
        QPDFObjectHandle target;
        QPDFObjectHandle page; ///< Of the element above it, in the copy; null where none.
    };

    void readRoles(const QPDFObjectHandle &roleMap);
    void copyProperties(QPDFObjectHandle root);
    void fill(const Open &open);
    void fillReferences();
    void note(Dictionary &members, const QPDFObjectHandle &target);
    void copyKids(QPDFObjectHandle kids, const Open &parent, std::vector<QPDFObjectHandle> &copies);
    void copyKid(const QPDFObjectHandle &kid, const Open &parent,
                 std::vector<QPDFObjectHandle> &kids);
    void addElement(const QPDFObjectHandle &kid, const Open &parent,
                    std::vector<QPDFObjectHandle> &kids);
    void addContent(QPDFObjectHandle kid, const Open &parent, std::vector<QPDFObjectHandle> &kids);
    void addObject(const QPDFObjectHandle &kid, const Open &parent,
                   std::vector<QPDFObjectHandle> &kids);
    MarkedContent &contentOf(const QPDFObjectHandle &holder);

    QPDF &m_target;
    ObjectCopier &m_copier;
    ImportedStructure m_structure;
    std::vector<Open> m_open;
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> m_references; ///< Owner and /Ref.
    std::map<QPDFObjGen, std::size_t> m_contentOf; ///< Positions in `content` by holder.
    std::set<QPDFObjGen> m_lists;                  ///< Arrays of kids that were read.
};

ImportedStructure StructureWalk::walk(QPDFObjectHandle catalog) {
    m_structure.properties = QPDFObjectHandle::newNull();
    auto root = catalog.getKey("/StructTreeRoot");
    if (root.isDictionary()) {
        readRoles(root.getKey("/RoleMap"));
        const Open none{{}, {}, QPDFObjectHandle::newNull()};
        copyKids(root.getKey("/K"), none, m_structure.kids);
        while (!m_open.empty()) {
            const Open open = m_open.back();
            m_open.pop_back();
            fill(open);
        }
        fillReferences();
        copyProperties(root);
    }
    m_structure.markInfo = m_copier.copy(catalog.getKey("/MarkInfo"));
    m_structure.language = m_copier.copy(catalog.getKey("/Lang"));
    m_structure.marked = isTrue(entry(m_structure.markInfo, "/Marked"));
    return std::move(m_structure);
}

void StructureWalk::readRoles(const QPDFObjectHandle &roleMap) {
    for (const auto &[role, meaning] : membersOf(roleMap)) {
        if (QPDFObjectHandle(meaning).isName()) {
            m_structure.roleMap.emplace(role, m_copier.copy(meaning));
        } else {
            ++m_structure.damaged;
        }
    }
}

/// What the root holds beside the tree. It comes behind the tree, of which no element may be copied
/// by anything that refers to it.
void StructureWalk::copyProperties(QPDFObjectHandle root) {
    for (const auto &[name, attributes] : membersOf(root.getKey("/ClassMap"))) {
        m_structure.classMap.emplace(name, m_copier.copy(attributes));
    }
    m_structure.properties = QPDFObjectHandle::newDictionary();
    for (const auto &[key, value] : root.getDictAsMap()) {
        if (!isOneOf(key, {"/Type", "/K", "/ParentTree", "/ParentTreeNextKey", "/IDTree",
                           "/RoleMap", "/ClassMap"})) {
            m_structure.properties.replaceKey(key, m_copier.copy(value));
        }
    }
}

/// Keeps what the merging of several trees asks for.
void StructureWalk::note(Dictionary &members, const QPDFObjectHandle &target) {
    const bool ownNamespace = members.contains("/NS"); // It has roles of its own.
    auto &role = members["/S"];
    if (!role.isName()) {
        role = QPDFObjectHandle::newName("/NonStruct");
        ++m_structure.damaged;
    } else if (!ownNamespace) {
        const std::string name = role.getName();
        if (m_structure.roleMap.contains(name)) {
            m_structure.byRole[name].push_back(target);
        } else {
            m_structure.standardRoles.insert(name);
        }
    }
    if (members.contains("/C")) {
        m_structure.withClass.push_back(target);
    }
    if (members.contains("/A")) {
        m_structure.withAttributes.push_back(target);
    }
    const auto id = members.find("/ID");
    constexpr std::size_t kMaxLength = 1000; // Far beyond any writer's; elements may share one.
    if (id != members.end() && id->second.isString() &&
        id->second.getStringValue().size() <= kMaxLength) {
        m_structure.named.emplace_back(id->second.getStringValue(), target);
    }
    ++m_structure.elements;
}

void StructureWalk::fill(const Open &open) {
    Dictionary members = membersOf(open.source);
    QPDFObjectHandle target = open.target;
    note(members, target);
    m_copier.noteFiles(members, target);
    Open parent = open;
    for (const auto &[key, value] : members) {
        if (key == "/Ref") {
            m_references.emplace_back(target, value);
        } else if (!isOneOf(key, {"/P", "/K"})) {
            auto copied = m_copier.copy(value);
            if (!copied.isNull()) {
                target.replaceKey(key, copied);
            }
        }
    }
    if (target.hasKey("/Pg")) {
        parent.page = target.getKey("/Pg");
    }
    std::vector<QPDFObjectHandle> kids;
    copyKids(entry(open.source, "/K"), parent, kids);
    if (kids.size() == 1) {
        target.replaceKey("/K", kids.front());
    } else {
        putItems(target, "/K", kids);
    }
}

/// Elements refer to others, which may come later in the tree.
void StructureWalk::fillReferences() {
    std::map<QPDFObjGen, QPDFObjectHandle> lists; // Elements may share them.
    for (auto &[owner, references] : m_references) {
        auto &list = lists[references.getObjGen()];
        if (!references.isIndirect() || !list.isInitialized()) {
            std::vector<QPDFObjectHandle> copies;
            for (const auto &reference : items(references)) {
                auto copied = m_copier.known(reference);
                if (!copied.isNull()) {
                    copies.push_back(copied);
                }
            }
            list = QPDFObjectHandle::newArray(copies);
            list = references.isIndirect() ? m_target.makeIndirectObject(list) : list;
        }
        owner.replaceKey("/Ref", list);
    }
}

void StructureWalk::copyKids(QPDFObjectHandle kids, const Open &parent,
                             std::vector<QPDFObjectHandle> &copies) {
    if (!kids.isArray()) {
        if (!kids.isNull()) {
            copyKid(kids, parent, copies);
        }
        return;
    }
    if (!isFirstVisit(kids, m_lists)) {
        ++m_structure.damaged; // They are the kids of another element, perhaps of one above.
        return;
    }
    const auto first = static_cast<std::ptrdiff_t>(m_open.size());
    for (const auto &kid : items(kids)) {
        copyKid(kid, parent, copies);
    }
    std::ranges::reverse(m_open.begin() + first, m_open.end()); // The first one is on top.
}

void StructureWalk::copyKid(const QPDFObjectHandle &kid, const Open &parent,
                            std::vector<QPDFObjectHandle> &kids) {
    const std::size_t before = kids.size();
    switch (kindOf(kid)) {
    case KidKind::Element:
        addElement(kid, parent, kids);
        break;
    case KidKind::MarkedContent:
        addContent(kid, parent, kids);
        break;
    case KidKind::Object:
        addObject(kid, parent, kids);
        break;
    case KidKind::Damaged:
        break;
    }
    m_structure.damaged += kids.size() == before ? 1 : 0;
}

void StructureWalk::addElement(const QPDFObjectHandle &kid, const Open &parent,
                               std::vector<QPDFObjectHandle> &kids) {
    if (!m_copier.known(kid).isNull()) {
        return; // It has a parent already.
    }
    auto target = m_target.makeIndirectObject(QPDFObjectHandle::newDictionary());
    m_copier.setCopy(kid, target);
    if (parent.target.isInitialized()) {
        target.replaceKey("/P", parent.target);
    }
    kids.push_back(target);
    m_open.push_back({kid, target, parent.page});
}

MarkedContent &StructureWalk::contentOf(const QPDFObjectHandle &holder) {
    const auto [found, isNew] =
        m_contentOf.try_emplace(holder.getObjGen(), m_structure.content.size());
    if (isNew) {
        m_structure.content.push_back({holder, {}});
    }
    return m_structure.content[found->second];
}

void StructureWalk::addContent(QPDFObjectHandle kid, const Open &parent,
                               std::vector<QPDFObjectHandle> &kids) {
    auto number = kid.isInteger() ? kid : kid.getKey("/MCID");
    const auto copied = m_copier.copyValue(kid);
    auto holder = parent.page;
    for (const char *key : {"/Pg", "/Stm"}) {
        const auto named = entry(copied, key);
        holder = named.isIndirect() ? named : holder;
    }
    if (!number.isInteger() || number.getIntValue() < 0 || !holder.isIndirect() ||
        !parent.target.isInitialized()) {
        return;
    }
    contentOf(holder).elements.emplace_back(number.getIntValue(), parent.target);
    kids.push_back(copied);
}

void StructureWalk::addObject(const QPDFObjectHandle &kid, const Open &parent,
                              std::vector<QPDFObjectHandle> &kids) {
    const auto copied = m_copier.copyValue(kid);
    const auto object = entry(copied, "/Obj");
    if (!object.isIndirect() || !parent.target.isInitialized()) {
        return;
    }
    m_structure.objects.emplace_back(object, parent.target);
    kids.push_back(copied);
}

} // namespace

ImportedStructure importStructure(QPDF &source, QPDF &target, ObjectCopier &copier) {
    return StructureWalk(target, copier).walk(source.getRoot());
}

} // namespace folioforge
