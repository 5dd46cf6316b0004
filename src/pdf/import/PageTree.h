// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// A value that pages inherit from a node of the page tree.
struct InheritedValue {
    int number = 0; ///< The same for all pages that inherit it.
    QPDFObjectHandle value;
};

/// By key: /Resources, /MediaBox, /CropBox and /Rotate (ISO 32000-1, 7.7.3.4).
using InheritedValues = std::map<std::string, InheritedValue>;

struct SourcePage {
    QPDFObjectHandle page;
    std::shared_ptr<const InheritedValues> inherited;
};

struct SourcePages {
    std::vector<SourcePage> pages;
    std::optional<long long> stated; ///< How many there are by the root of the tree.
    /// Kids that are no pages, such as objects that are missing: how many pages precede each.
    std::vector<std::size_t> unreadable;
};

/// The pages of a source document in their order, however deep its page tree is. A page that is in
/// the tree twice is two pages. Throws Error when there is no page tree or it contains itself.
SourcePages readSourcePages(QPDF &source);

/// Makes a balanced page tree (ISO 32000-1, 7.7.3) of `pages`, so that readers find any page of a
/// long document quickly.
void buildPageTree(QPDF &document, const std::vector<QPDFObjectHandle> &pages);

} // namespace folioforge
