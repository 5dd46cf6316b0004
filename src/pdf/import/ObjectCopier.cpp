// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ObjectCopier.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldRenames.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/Threads.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

using Dictionary = std::map<std::string, QPDFObjectHandle>;

QPDFObjectHandle entry(const Dictionary &dictionary, const std::string &key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? QPDFObjectHandle::newNull() : found->second;
}

/// Whether `dictionary` is an action of that kind that stays in its document.
bool isOwnAction(const Dictionary &dictionary, const char *kind) {
    return entry(dictionary, "/S").isNameAndEquals(kind) && !dictionary.contains("/F");
}

/// Whether an entry is the key of a page, an annotation or a form in the parent tree of the source.
/// The tree is made anew. The same keys may name anything else in other dictionaries, such as fonts
/// in resources.
bool isParentTreeKey(const Dictionary &dictionary, const std::string &key) {
    return (key == "/StructParent" || key == "/StructParents") &&
           entry(dictionary, key).isInteger() &&
           (entry(dictionary, "/Subtype").isName() ||
            entry(dictionary, "/Type").isNameAndEquals("/Page"));
}

/// Whether an entry of a bookmark or an action refers to a structure element.
bool refersToStructure(const Dictionary &dictionary, const std::string &key) {
    if (key == "/SE") {
        return entry(dictionary, "/Title").isString();
    }
    static constexpr std::array kJumps{"/GoTo", "/GoToR", "/GoToE"};
    return key == "/SD" && std::ranges::any_of(kJumps, [&](const char *kind) {
               return entry(dictionary, "/S").isNameAndEquals(kind);
           });
}

/// Whether `object` belongs to the source document as a whole and is not copied.
bool isLeftOut(QPDFObjectHandle object) {
    if (!object.isDictionary()) {
        return false;
    }
    static constexpr std::array kTypes{"/Pages", "/Page", "/Catalog", "/StructTreeRoot",
                                       "/StructElem"};
    auto type = object.getKey("/Type");
    return type.isName() &&
           std::ranges::any_of(kTypes, [&](const char *name) { return type.getName() == name; });
}

/// Whether `object` is the value of a signature field, which holds for a range of bytes of its
/// file.
bool isSignature(QPDFObjectHandle object) {
    return object.isDictionary() && object.hasKey("/ByteRange") && object.hasKey("/Contents");
}

} // namespace

ObjectCopier::ObjectCopier(QPDF &source, QPDF &target, SharedStreams &shared, SourceNames &names)
    : m_source(source)
    , m_target(target)
    , m_shared(shared)
    , m_names(names) {}

void ObjectCopier::makePages(const std::vector<SourcePage> &pages) {
    // The library walks the tree again at every stream, with a recursion as deep as the tree.
    m_source.getRoot().replaceKey("/Pages",
                                  QPDFObjectHandle::parse("<< /Type /Pages /Kids [] /Count 0 >>"));
    m_targetPages.reserve(pages.size());
    for (const auto &[page, inherited] : pages) {
        m_targetPages.push_back(m_target.makeIndirectObject(QPDFObjectHandle::newDictionary()));
        if (page.isIndirect()) {
            // A reference to a page that is in the tree twice leads to the first one.
            m_copies.try_emplace(page.getObjGen(), m_targetPages.back());
        }
    }
}

std::vector<QPDFObjectHandle> ObjectCopier::fillPages(const std::vector<SourcePage> &pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
        fillPage(pages[i], m_targetPages[i]);
    }
    return m_targetPages;
}

void ObjectCopier::fillPage(const SourcePage &source, QPDFObjectHandle target) {
    auto entries = QPDFObjectHandle(source.page).getDictAsMap();
    entries.erase("/Parent");
    entries["/Type"] = QPDFObjectHandle::newName("/Page");
    auto copied = copyDictionary(entries);
    for (const auto &[key, value] : copied.getDictAsMap()) {
        target.replaceKey(key, value);
    }
    for (const auto &[key, inherited] : *source.inherited) {
        if (!target.hasKey(key)) {
            target.replaceKey(key, copyInherited(inherited));
        }
    }
    if (!target.hasKey("/MediaBox")) {
        // Readers show a page without one in US letter size.
        target.replaceKey("/MediaBox", QPDFObjectHandle::parse("[0 0 612 792]"));
    }
}

/// The copy of a value that pages inherit. They share it if it is a dictionary, such as /Resources.
QPDFObjectHandle ObjectCopier::copyInherited(const InheritedValue &inherited) {
    auto &copied = m_inherited[inherited.number];
    if (!copied.isInitialized()) {
        copied = copy(inherited.value);
        if (copied.isDictionary() && !copied.isIndirect()) {
            copied = m_target.makeIndirectObject(copied);
        }
    }
    return copied.isIndirect() ? copied : copied.shallowCopy();
}

QPDFObjectHandle ObjectCopier::copy(const QPDFObjectHandle &object) {
    return object.isIndirect() ? copyIndirect(object) : copyValue(object);
}

std::vector<QPDFObjectHandle> ObjectCopier::copyItems(const QPDFObjectHandle &array) {
    std::vector<QPDFObjectHandle> copies;
    for (auto item : items(array)) {
        if (!item.isNull()) {
            copies.push_back(copy(item));
        }
    }
    return copies;
}

QPDFObjectHandle ObjectCopier::known(const QPDFObjectHandle &object) const {
    const auto found = m_copies.find(object.getObjGen());
    const bool has = object.isIndirect() && found != m_copies.end();
    return has ? found->second : QPDFObjectHandle::newNull();
}

bool ObjectCopier::setCopy(const QPDFObjectHandle &object, const QPDFObjectHandle &target) {
    return !object.isIndirect() || m_copies.try_emplace(object.getObjGen(), target).second;
}

QPDFObjectHandle ObjectCopier::copyIndirect(QPDFObjectHandle object) {
    const auto known = m_copies.find(object.getObjGen());
    if (known != m_copies.end()) {
        return known->second;
    }
    QPDFObjectHandle target;
    if (object.isStream()) {
        target = reserveStream(object);
    } else if (object.isNull() || isLeftOut(object)) {
        target = QPDFObjectHandle::newNull();
    } else {
        // Not null: a dictionary drops an entry that is null.
        target = QPDFObjectHandle::newReserved(&m_target);
        m_pending.emplace_back(object, target);
    }
    m_copies[object.getObjGen()] = target;
    return target;
}

QPDFObjectHandle ObjectCopier::reserveStream(QPDFObjectHandle object) {
    auto known = m_shared.find(object.getObjGen());
    if (!known.isNull()) {
        return known;
    }
    // The library would copy the dictionary with all that it refers to. It is emptied first and
    // copied later by the rules of this class.
    auto dictionary = object.getDict();
    PendingStream pending{{}, dictionary.getDictAsMap()};
    for (const auto &[key, value] : pending.dictionary) {
        dictionary.removeKey(key);
    }
    pending.target = m_target.copyForeignObject(object);
    if (pending.dictionary.contains("/Filter")) {
        // The copy gets its bytes unchanged.
        pending.target.setFilterOnWrite(false);
    }
    m_shared.add(object.getObjGen(), pending.target);
    m_pendingStreams.push_back(pending);
    return pending.target;
}

QPDFObjectHandle ObjectCopier::copyValue(QPDFObjectHandle object) {
    if (isSignature(object)) {
        ++m_signaturesLeftOut;
        return QPDFObjectHandle::newNull();
    }
    if (object.isDictionary()) {
        return copyDictionary(object.getDictAsMap());
    }
    if (object.isArray()) {
        return copyArray(object);
    }
    return object.shallowCopy();
}

QPDFObjectHandle ObjectCopier::copyArray(QPDFObjectHandle array) {
    std::vector<QPDFObjectHandle> items = array.getArrayAsVector();
    for (auto &item : items) {
        item = copy(item);
    }
    return QPDFObjectHandle::newArray(items);
}

QPDFObjectHandle ObjectCopier::copyDictionary(const Dictionary &dictionary) {
    auto target = QPDFObjectHandle::newDictionary();
    for (const auto &[key, value] : dictionary) {
        if (isParentTreeKey(dictionary, key)) {
            continue;
        }
        auto copied = copyEntry(dictionary, key);
        if (!copied.isNull()) {
            target.replaceKey(key, copied);
        }
    }
    if (namesFields(dictionary)) {
        m_fieldActions.push_back(target);
    }
    return target;
}

QPDFObjectHandle ObjectCopier::copyEntry(const Dictionary &dictionary, const std::string &key) {
    const QPDFObjectHandle &value = dictionary.at(key);
    if (key == "/Dest") {
        return copyDestination(value);
    }
    if (key == "/D") {
        return entry(dictionary, "/S").isNameAndEquals("/GoTo") ? copyDestination(value)
               : isOwnAction(dictionary, "/Thread")             ? copy(threadOf(m_source, value))
                                                                : copy(value);
    }
    if (refersToStructure(dictionary, key)) {
        return copyStructureReference(value);
    }
    return key == "/T" && isOwnAction(dictionary, "/GoToE") ? copyEmbeddedTarget(value)
                                                            : copy(value);
}

/// An element, or an array that begins with one as destinations do. Strings name an element of
/// another file.
QPDFObjectHandle ObjectCopier::copyStructureReference(QPDFObjectHandle reference) {
    if (!reference.isArray()) {
        return reference.isString() ? copy(reference) : known(reference);
    }
    auto members = items(reference);
    if (members.empty()) {
        return QPDFObjectHandle::newNull();
    }
    auto element = copyStructureReference(members.front());
    if (element.isNull()) {
        return element;
    }
    for (auto &member : members) {
        member = copy(member);
    }
    members.front() = element;
    return QPDFObjectHandle::newArray(members);
}

QPDFObjectHandle ObjectCopier::copyDestination(const QPDFObjectHandle &destination) {
    QPDFObjectHandle value = destination;
    if (value.isName() || value.isString()) {
        return m_names.renamed(kDestinations, value);
    }
    auto array = value.isDictionary() ? value.getKey("/D") : value;
    const bool hasPage = array.isArray() && array.getArrayNItems() > 0;
    auto page = hasPage ? array.getArrayItem(0) : QPDFObjectHandle::newNull();
    const auto number = page.isInteger() ? page.getIntValue() : -1;
    if (number < 0 || number >= static_cast<long long>(m_targetPages.size())) {
        return copy(value);
    }
    // Some writers give the page by its number, which is another page in the copy.
    auto &known = m_numberedDestinations[value.getObjGen()];
    if (value.isIndirect() && known.isInitialized()) {
        return known;
    }
    auto copied = copyArray(array);
    copied.setArrayItem(0, m_targetPages[static_cast<std::size_t>(number)]);
    if (value.isDictionary()) {
        auto dictionary = value.getDictAsMap();
        dictionary.erase("/D");
        const auto inner = copied;
        copied = copyDictionary(dictionary);
        copied.replaceKey("/D", inner);
    }
    return known = value.isIndirect() ? m_target.makeIndirectObject(copied) : copied;
}

/// A target of an embedded go-to action, which may name a file attached to the document.
QPDFObjectHandle ObjectCopier::copyEmbeddedTarget(const QPDFObjectHandle &target) {
    auto name = folioforge::entry(target, "/N");
    if (!name.isString() || !folioforge::entry(target, "/R").isNameAndEquals("/C")) {
        return copy(target);
    }
    const auto renamed = m_names.renamed(kAttachments, name);
    if (nameText(renamed) == nameText(name)) {
        return copy(target);
    }
    auto copied = copyDictionary(QPDFObjectHandle(target).getDictAsMap());
    copied.replaceKey("/N", renamed);
    return copied;
}

void ObjectCopier::fillStream(PendingStream &stream) {
    m_longestStream = std::max(m_longestStream, statedLength(stream.dictionary["/Length"]));
    stream.dictionary.erase("/Length");
    auto target = stream.target.getDict();
    for (const auto &[key, value] : copyDictionary(stream.dictionary).getDictAsMap()) {
        target.replaceKey(key, value);
    }
}

void ObjectCopier::run() {
    while (!m_pending.empty() || !m_pendingStreams.empty()) {
        if (!m_pending.empty()) {
            const auto [source, target] = m_pending.front();
            m_pending.pop_front();
            m_target.replaceReserved(target, copyValue(source));
        } else {
            auto stream = m_pendingStreams.front();
            m_pendingStreams.pop_front();
            fillStream(stream);
        }
    }
}

} // namespace folioforge
