// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <utility>
#include <vector>

namespace folioforge {

/// The keys and values of a name tree or a number tree (ISO 32000-1, 7.9.6 and 7.9.7) in their
/// order. `leafKey` is /Names or /Nums. A node that the tree contains more than once is read once.
std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>>
readTreeEntries(const QPDFObjectHandle &root, const char *leafKey);

} // namespace folioforge
