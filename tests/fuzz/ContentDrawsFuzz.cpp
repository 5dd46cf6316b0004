// SPDX-License-Identifier: Apache-2.0

// Any bytes as the content of a page and of all that a page can draw with: every image is found
// once and its size is a size.

#include "FuzzSupport.h"
#include "compress/ImageUses.h"

#include <set>
#include <string>

#include <qpdf/QPDF.hh>

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

QPDFObjectHandle stream(QPDF &document, const std::string &content, const std::string &dictionary) {
    QPDFObjectHandle made = QPDFObjectHandle::newStream(&document, content);
    made.replaceDict(QPDFObjectHandle::parse(&document, dictionary));
    return made;
}

/// A page with an image, two forms (one with resources of its own), a pattern, a soft mask and a
/// Type 3 font, all of the same content.
void drawEverywhere(QPDF &document, const std::string &content) {
    document.emptyPDF();
    auto resources = document.makeIndirectObject(QPDFObjectHandle::parse(
        "<< /XObject << >> /Pattern << >> /ExtGState << >> /Font << >> >>"));
    const auto put = [&](const char *kind, const char *name, const QPDFObjectHandle &object) {
        resources.getKey(kind).replaceKey(name, object);
    };
    put("/XObject", "/I", stream(document, "", "<< /Subtype /Image >>"));
    put("/XObject", "/F", stream(document, content, "<< /Subtype /Form /Matrix [2 0 0 2 1 1] >>"));
    auto own = stream(document, content, "<< /Subtype /Form >>");
    own.getDict().replaceKey("/Resources", resources);
    put("/XObject", "/G", own);
    put("/Pattern", "/P", stream(document, content, "<< /PatternType 1 >>"));
    auto state = QPDFObjectHandle::parse("<< /SMask << /S /Alpha >> >>");
    state.getKey("/SMask").replaceKey("/G", own);
    put("/ExtGState", "/S", state);
    auto font = document.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Subtype /Type3 /CharProcs << >> >>"));
    font.getKey("/CharProcs").replaceKey("/a", stream(document, content, "<< >>"));
    put("/Font", "/T", font);
    auto page = document.makeIndirectObject(
        QPDFObjectHandle::parse("<< /Type /Page /MediaBox [0 0 200 100] >>"));
    page.replaceKey("/Resources", resources);
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&document, content));
    document.addPage(page, false);
}

} // namespace

FUZZ_TARGET(ContentDraws) {
    QPDF document;
    document.setSuppressWarnings(true);
    drawEverywhere(document, std::string(bytes.begin(), bytes.end()));
    std::set<QPDFObjGen> seen;
    for (const ImageUse &use : findImageUses(document)) {
        require(seen.insert(use.image).second);
        require(use.page == 1);
        require(use.width >= 0 && use.height >= 0); // False where they are no number.
    }
}
