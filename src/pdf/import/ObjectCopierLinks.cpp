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

using Dictionary = std::map<std::string, QPDFObjectHandle>;

QPDFObjectHandle valueOf(const Dictionary &dictionary, const char *key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? QPDFObjectHandle::newNull() : found->second;
}

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

/// Whether the target of an embedded go-to action is a file attached to the document.
bool namesAttachment(const QPDFObjectHandle &target) {
    return entry(target, "/N").isString() && entry(target, "/R").isNameAndEquals("/C");
}

} // namespace

QPDFObjectHandle ObjectCopier::copyEntry(const Dictionary &dictionary, const std::string &key,
                                         const QPDFObjectHandle &value) {
    if (key == "/Dest") {
        return copyDestination(value);
    }
    if (key == "/D") {
        return isAction(dictionary, "/GoTo")        ? copyDestination(value)
               : isOwnAction(dictionary, "/Thread") ? copy(threadOf(m_source, value))
                                                    : copy(value);
    }
    if (refersToStructure(dictionary, key)) {
        return copyStructureReference(value);
    }
    return key == "/T" && namesAttachment(value) && isOwnAction(dictionary, "/GoToE")
               ? follow(value, &ObjectCopier::copyTarget)
               : copy(value);
}

QPDFObjectHandle ObjectCopier::copyDestination(const QPDFObjectHandle &destination) {
    QPDFObjectHandle value = destination;
    if (value.isName() || value.isString()) {
        return m_names.renamed(kDestinations, value);
    }
    return pageByNumber(value) ? follow(value, &ObjectCopier::copyNumbered) : copy(value);
}

/// The copied page to which a destination leads by its number, as some writers give it.
std::optional<QPDFObjectHandle> ObjectCopier::pageByNumber(QPDFObjectHandle destination) const {
    auto array = destination.isDictionary() ? destination.getKey("/D") : destination;
    const bool hasPage = array.isArray() && array.getArrayNItems() > 0;
    auto page = hasPage ? array.getArrayItem(0) : QPDFObjectHandle::newNull();
    const auto number = page.isInteger() ? page.getIntValue() : -1;
    const bool isPage = number >= 0 && number < static_cast<long long>(m_targetPages.size());
    return isPage ? std::optional(m_targetPages[static_cast<std::size_t>(number)]) : std::nullopt;
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

/// A target of an embedded go-to action, which may name a file attached to the document.
QPDFObjectHandle ObjectCopier::copyTarget(QPDFObjectHandle target) {
    return copyWith(target, "/N", m_names.renamed(kAttachments, target.getKey("/N")));
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
    auto &copied = m_followed[object.getObjGen()];
    if (!copied.isInitialized()) {
        copied = QPDFObjectHandle::newReserved(&m_target);
        m_pending.push_back({object, copied, fill});
    }
    return copied;
}

} // namespace folioforge
