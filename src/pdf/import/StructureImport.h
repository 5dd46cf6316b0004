// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// A page or a form whose marked content belongs to structure elements.
struct MarkedContent {
    QPDFObjectHandle holder; ///< Of the copy: the page, or the stream of the form.
    /// The element of each sequence of marked content, by its number in the content (/MCID).
    std::vector<std::pair<long long, QPDFObjectHandle>> elements;
};

/// The structure tree of a source document (ISO 32000-1, 14.7), copied. Which content belongs to
/// which element is taken from the elements alone, so the parent tree is right even where that of
/// the source is not.
struct ImportedStructure {
    using Elements = std::vector<QPDFObjectHandle>;

    bool marked = false;         ///< The source says that all its content is tagged.
    QPDFObjectHandle markInfo;   ///< /MarkInfo; null where there is none.
    QPDFObjectHandle language;   ///< /Lang of the source's catalog; null where there is none.
    QPDFObjectHandle properties; ///< What else the root holds; null where there is no tree.
    Elements kids;               ///< The elements of the first level.
    std::vector<MarkedContent> content;
    /// Annotations and other objects, each with the element that it belongs to.
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> objects;
    std::map<std::string, QPDFObjectHandle> roleMap;
    std::map<std::string, Elements> byRole; ///< The elements whose type stands in `roleMap`.
    std::set<std::string> standardRoles;    ///< Types of elements that do not stand in it.
    std::map<std::string, QPDFObjectHandle> classMap;
    Elements withClass;                                          ///< Elements with /C.
    Elements withAttributes;                                     ///< Elements with /A.
    std::vector<std::pair<std::string, QPDFObjectHandle>> named; ///< Elements with /ID.
    /// Pages that are in the page tree again: the copy of which `content` tells, and the further
    /// one.
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> repeatedPages;
    std::size_t elements = 0; ///< How many the whole tree has.
    std::size_t damaged = 0;  ///< Kids of elements that are none, or whose page is missing.
};

/// Copies the structure tree of `source` from its root down, without recursion and each element
/// once. The kids of the first level have no parent yet. To be called when the pages are made and
/// before anything else is copied, since bookmarks and actions refer to elements.
ImportedStructure importStructure(QPDF &source, QPDF &target, ObjectCopier &copier);

} // namespace folioforge
