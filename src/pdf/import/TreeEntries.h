// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

/// The keys and values of a name tree or a number tree (ISO 32000-1, 7.9.6 and 7.9.7).
using TreeEntries = std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>>;

/// The entries of a tree in their order. `leafKey` is /Names or /Nums. A node that the tree
/// contains more than once is read once.
TreeEntries readTreeEntries(const QPDFObjectHandle &root, const char *leafKey);

/// Makes a balanced tree of `entries`, which are in the order of their keys and have no key twice.
/// `leafKey` as above.
QPDFObjectHandle buildTree(QPDF &document, const TreeEntries &entries, const char *leafKey);

/// Objects by the bytes of their names.
using NamedObjects = std::map<std::string, QPDFObjectHandle>;

/// The entries of a name tree, with keys that are strings, as they have to be. Where a key stands
/// more than once, each object under it comes once.
TreeEntries readNameTree(const QPDFObjectHandle &root);
/// Adds `entries`, whose keys are strings. The first of one name stays.
void addNames(NamedObjects &objects, const TreeEntries &entries);
/// /Names of the catalog, which is made where it is missing.
QPDFObjectHandle namesOf(QPDF &document);
/// Makes `objects` the name tree `key` of the catalog's /Names; nothing where there is none.
void putNameTree(QPDF &document, const std::string &key, const NamedObjects &objects);

} // namespace folioforge
