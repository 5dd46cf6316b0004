// SPDX-License-Identifier: Apache-2.0

// How an ObjectCopier copies what leads somewhere by its name or number.

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/Threads.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

bool isAction(const Dictionary &dictionary, const char *kind) {
    return valueOf(dictionary, "/S").isNameAndEquals(kind);
}

/// Whether `dictionary` is an action of that kind that stays in its document.
bool isOwnAction(const Dictionary &dictionary, const char *kind) {
    return isAction(dictionary, kind) && !dictionary.contains("/F");
}

/// Whether an entry of a bookmark or an action refers to a structure element.
bool refersToStructure(const Dictionary &dictionary, const std::string &key) {
    if (key == "/SE") {
        return valueOf(dictionary, "/Title").isString();
    }
    static constexpr std::array kJumps{"/GoTo", "/GoToR", "/GoToE"};
    return key == "/SD" && std::ranges::any_of(kJumps, [&](const char *kind) {
               return isAction(dictionary, kind);
           });
}

/// Whether the target of an embedded go-to action is a file of the document: one of its name tree
/// or one of an annotation.
bool isOwnFile(const QPDFObjectHandle &target) {
    return entry(target, "/R").isNameAndEquals("/C");
}

} // namespace

QPDFObjectHandle ObjectCopier::copyEntry(const Dictionary &dictionary, const std::string &key,
                                         const QPDFObjectHandle &value) {
    if (key == "/Dest") {
        return copyDestination(value);
    }
    if (key == "/D") {
        return isAction(dictionary, "/GoTo")        ? copyDestination(value)
               : isOwnAction(dictionary, "/Thread") ? copyThread(value)
                                                    : copy(value);
    }
    if (refersToStructure(dictionary, key)) {
        return copyStructureReference(value);
    }
    return key == "/T" && isOwnFile(value) && isOwnAction(dictionary, "/GoToE")
               ? follow(value, &ObjectCopier::copyTarget)
               : copy(value);
}

QPDFObjectHandle ObjectCopier::copyDestination(const QPDFObjectHandle &destination) {
    QPDFObjectHandle value = destination;
    if (value.isName() || value.isString()) {
        return follow(value, &ObjectCopier::copyName);
    }
    return pageByNumber(value) ? follow(value, &ObjectCopier::copyNumbered) : copy(value);
}

// As every Fill. NOLINTNEXTLINE(performance-unnecessary-value-param)
QPDFObjectHandle ObjectCopier::copyName(QPDFObjectHandle name) {
    return m_names.renamed(kDestinations, name);
}

/// A number means a thread of this source, which may be another in the document that is made, and a
/// title may be that of others too.
QPDFObjectHandle ObjectCopier::copyThread(const QPDFObjectHandle &destination) {
    if (!m_threads) {
        m_threads.emplace(m_source);
    }
    return copy(m_threads->find(destination));
}

/// The copied page of the source's page with that number from 0, if there is one.
std::optional<std::size_t> ObjectCopier::pageIndex(QPDFObjectHandle number) const {
    const auto found = number.isInteger() ? m_pageAt.find(number.getIntValue()) : m_pageAt.end();
    return found == m_pageAt.end() ? std::nullopt : std::optional(found->second);
}

/// The copied page to which a destination leads by its number, as some writers give it.
std::optional<QPDFObjectHandle> ObjectCopier::pageByNumber(QPDFObjectHandle destination) const {
    auto array = destination.isDictionary() ? destination.getKey("/D") : destination;
    const bool hasPage = array.isArray() && array.getArrayNItems() > 0;
    const auto index = hasPage ? pageIndex(array.getArrayItem(0)) : std::nullopt;
    return index ? std::optional(m_targetPages[*index]) : std::nullopt;
}

QPDFObjectHandle ObjectCopier::copyNumbered(QPDFObjectHandle destination) {
    if (destination.isDictionary()) {
        return copyWith(destination, "/D", copyDestination(destination.getKey("/D")));
    }
    auto copied = copyArray(destination);
    copied.setArrayItem(0, pageByNumber(destination).value_or(QPDFObjectHandle::newNull()));
    return copied;
}

/// An element, or an array that begins with one as destinations do.
QPDFObjectHandle ObjectCopier::copyStructureReference(QPDFObjectHandle reference) {
    if (!reference.isArray()) {
        return copyElement(reference);
    }
    const bool isEmpty = reference.getArrayNItems() == 0;
    return isEmpty || copyElement(reference.getArrayItem(0)).isNull()
               ? QPDFObjectHandle::newNull()
               : follow(reference, &ObjectCopier::copyElementPlace);
}

/// Strings name an element of another file.
QPDFObjectHandle ObjectCopier::copyElement(QPDFObjectHandle element) {
    return element.isString() ? copy(element) : known(element);
}

QPDFObjectHandle ObjectCopier::copyElementPlace(QPDFObjectHandle place) {
    auto copied = copyArray(place);
    copied.setArrayItem(0, copyElement(place.getArrayItem(0)));
    return copied;
}

/// A target of an embedded go-to action (ISO 32000-1, 12.6.4.4), which finds the file by its name
/// or the annotation by its page. A number of no page leads nowhere.
QPDFObjectHandle ObjectCopier::copyTarget(QPDFObjectHandle target) {
    auto copied = copyDictionary(target.getDictAsMap());
    if (auto name = target.getKey("/N"); name.isString()) {
        copied.replaceKey("/N", m_names.renamed(kAttachments, name));
    }
    auto page = target.getKey("/P");
    if (page.isString()) {
        copied.replaceKey("/P", m_names.renamed(kDestinations, page));
    } else if (const auto index = pageIndex(page)) {
        copied.replaceKey(
            "/P", QPDFObjectHandle::newInteger(m_firstPage + static_cast<long long>(*index)));
    } else if (page.isInteger()) {
        copied.removeKey("/P");
    }
    return copied;
}

/// The copy of a dictionary with another value of `key`.
QPDFObjectHandle ObjectCopier::copyWith(QPDFObjectHandle dictionary, const std::string &key,
                                        const QPDFObjectHandle &value) {
    auto entries = dictionary.getDictAsMap();
    entries.erase(key);
    auto copied = copyDictionary(entries);
    copied.replaceKey(key, value);
    return copied;
}

/// The copy of what refers to a page or a file by its number or name; `fill` makes it. Any number
/// of links may share an indirect one.
QPDFObjectHandle ObjectCopier::follow(const QPDFObjectHandle &object, Fill fill) {
    if (!object.isIndirect()) {
        return (this->*fill)(object);
    }
    auto &copies = m_followed[object.getObjGen()];
    const auto known = std::ranges::find(copies, fill, &Followed::fill);
    if (known != copies.end()) {
        return known->copy;
    }
    copies.push_back({fill, QPDFObjectHandle::newReserved(&m_target)});
    m_pending.push_back({object, copies.back().copy, fill});
    return copies.back().copy;
}

} // namespace folioforge
