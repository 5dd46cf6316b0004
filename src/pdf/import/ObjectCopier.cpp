// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/ObjectCopier.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/Attachments.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldRenames.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

/// Whether an entry is the key of a page, an annotation or a form in the parent tree of the source.
/// The tree is made anew. The same keys may name anything else in other dictionaries, such as fonts
/// in resources.
bool isParentTreeKey(const Dictionary &dictionary, const std::string &key) {
    return (key == "/StructParent" || key == "/StructParents") &&
           valueOf(dictionary, key).isInteger() &&
           (valueOf(dictionary, "/Subtype").isName() ||
            valueOf(dictionary, "/Type").isNameAndEquals("/Page"));
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

void ObjectCopier::makePages(const std::vector<SourcePage> &pages, int firstPage,
                             const std::vector<std::size_t> &positions) {
    m_firstPage = firstPage;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        m_pageAt.try_emplace(static_cast<long long>(positions[i]), i);
    }
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
    auto first = known(source.page);
    if (first.isNull() || first.isSameObjectAs(target)) {
        copyEntries(entries, target);
    } else {
        shareEntries(entries, first, target);
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
    if (!target.hasKey("/Resources")) {
        // It is required, of pages that need none as well.
        target.replaceKey("/Resources", QPDFObjectHandle::newDictionary());
    }
}

/// Gives a page that is in the tree again all that its first copy has of its own `entries`, since a
/// small file may name a large page any number of times.
void ObjectCopier::shareEntries(const Dictionary &entries, QPDFObjectHandle first,
                                QPDFObjectHandle target) {
    for (const auto &[key, ignored] : entries) {
        auto value = first.getKey(key);
        if (!value.isIndirect() && (value.isArray() || value.isDictionary())) {
            value = m_target.makeIndirectObject(value);
            first.replaceKey(key, value);
        }
        target.replaceKey(key, value);
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
        m_pending.push_back({object, target, &ObjectCopier::copyValue});
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
    copyEntries(dictionary, target);
    return target;
}

void ObjectCopier::copyEntries(const Dictionary &dictionary, QPDFObjectHandle target) {
    for (const auto &[key, value] : dictionary) {
        if (isParentTreeKey(dictionary, key)) {
            continue;
        }
        auto copied = copyEntry(dictionary, key, value);
        if (!copied.isNull()) {
            target.replaceKey(key, copied);
        }
    }
    if (namesFields(dictionary)) {
        m_fieldActions.push_back(target);
    }
    noteFiles(dictionary, target);
}

void ObjectCopier::noteFiles(const Dictionary &dictionary, const QPDFObjectHandle &target) {
    if (hasFiles(dictionary)) {
        m_fileHolders.push_back(target);
    }
}

void ObjectCopier::fillStream(PendingStream &stream) {
    stream.dictionary.erase("/Length");
    copyEntries(stream.dictionary, stream.target.getDict());
}

void ObjectCopier::run() {
    while (!m_pending.empty() || !m_pendingStreams.empty()) {
        if (!m_pending.empty()) {
            const auto [source, target, fill] = m_pending.front();
            m_pending.pop_front();
            m_target.replaceReserved(target, (this->*fill)(source));
        } else {
            auto stream = m_pendingStreams.front();
            m_pendingStreams.pop_front();
            fillStream(stream);
        }
    }
}

} // namespace folioforge
