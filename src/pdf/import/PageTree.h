#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <memory>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// A value that a node of the page tree hands down to its pages.
struct InheritedValue {
    int number = 0; ///< The same for all pages that it comes to.
    QPDFObjectHandle value;
};

/// By key: /Resources, /MediaBox, /CropBox and /Rotate (ISO 32000-1, 7.7.3.4).
using InheritedValues = std::map<std::string, InheritedValue>;

struct SourcePage {
    QPDFObjectHandle page;
    std::shared_ptr<const InheritedValues> inherited;
};

/// The pages of a source document in their order, however deep its page tree is. What is no
/// dictionary is passed over; a page that stands in the tree twice is two pages. Throws Error where
/// there is no page tree or it contains itself.
std::vector<SourcePage> readSourcePages(QPDF &source);

/// Puts `pages` into the document's page tree (ISO 32000-1, 7.7.3) as a balanced tree, so that
/// readers find any page of a long document at once.
void buildPageTree(QPDF &document, const std::vector<QPDFObjectHandle> &pages);

} // namespace folioforge
