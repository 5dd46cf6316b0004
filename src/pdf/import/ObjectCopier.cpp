// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ObjectCopier.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldRenames.h"

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

bool isGoTo(const Dictionary &dictionary) {
    return entry(dictionary, "/S").isNameAndEquals("/GoTo");
}

/// Whether an entry points into the structure tree, which is not copied: of pages and of what has a
/// subtype (annotations, forms, images) by number, of bookmarks and of actions by reference. The
/// same keys may name anything else in other dictionaries, such as fonts in resources.
bool pointsIntoStructure(const Dictionary &dictionary, const std::string &key) {
    if (key == "/StructParent" || key == "/StructParents") {
        return entry(dictionary, key).isInteger() &&
               (entry(dictionary, "/Subtype").isName() ||
                entry(dictionary, "/Type").isNameAndEquals("/Page"));
    }
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

ObjectCopier::ObjectCopier(QPDF &source, QPDF &target, SharedStreams &shared)
    : m_source(source)
    , m_target(target)
    , m_shared(shared)
    , m_destinations(source) {}

std::vector<QPDFObjectHandle> ObjectCopier::copyPages(const std::vector<SourcePage> &pages) {
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

QPDFObjectHandle ObjectCopier::copyValue(QPDFObjectHandle source) {
    if (isSignature(source)) {
        ++m_signaturesLeftOut;
        return QPDFObjectHandle::newNull();
    }
    if (source.isDictionary()) {
        return copyDictionary(source.getDictAsMap());
    }
    if (source.isArray()) {
        return copyArray(source);
    }
    return source.shallowCopy();
}

QPDFObjectHandle ObjectCopier::copyArray(QPDFObjectHandle array) {
    std::vector<QPDFObjectHandle> items = array.getArrayAsVector();
    for (auto &item : items) {
        item = copy(item);
    }
    return QPDFObjectHandle::newArray(items);
}

QPDFObjectHandle ObjectCopier::copyDictionary(const Dictionary &dictionary) {
    const bool goTo = isGoTo(dictionary);
    auto target = QPDFObjectHandle::newDictionary();
    for (const auto &[key, value] : dictionary) {
        if (pointsIntoStructure(dictionary, key)) {
            continue;
        }
        const bool destination = key == "/Dest" || (goTo && key == "/D");
        auto copied = destination ? copyDestination(value) : copy(value);
        if (!copied.isNull()) {
            target.replaceKey(key, copied);
        }
    }
    if (namesFields(dictionary)) {
        m_fieldActions.push_back(target);
    }
    return target;
}

QPDFObjectHandle ObjectCopier::copyDestination(const QPDFObjectHandle &destination) {
    auto explicitOne = m_destinations.resolve(destination);
    if (explicitOne.isNull()) {
        return copy(destination);
    }
    auto items = explicitOne.getArrayAsVector();
    for (std::size_t i = 0; i < items.size(); ++i) {
        // Some writers give the page by its number, which is another page in the copy.
        const bool number = i == 0 && items[i].isInteger();
        const auto page = number ? items[i].getIntValue() : -1;
        if (page >= 0 && page < static_cast<long long>(m_targetPages.size())) {
            items[i] = m_targetPages[static_cast<std::size_t>(page)];
        } else {
            items[i] = copy(items[i]);
        }
    }
    return QPDFObjectHandle::newArray(items);
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
