// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftParts.h"

#include "pdf/XmpPacket.h"
#include "pdf/import/CatalogParts.h"
#include "pdf/import/Entries.h"
#include "pdf/import/ImportOptions.h"
#include "pdf/import/Layers.h"
#include "pdf/import/NameTrees.h"

#include <qpdf/QPDF.hh>

#include <QString>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// Whether a metadata stream (XMP) says more than document properties do, which are given to each
/// run, and than the account that programs keep of their own work: a copyright, a standard such as
/// PDF/A that the document keeps, a catalogue number. Its namespaces tell.
bool saysMoreThanProperties(QPDF &source) {
    static constexpr std::array<std::string_view, 9> kMissedByNobody{
        "http://ns.adobe.com/iX/",      "adobe:ns:meta/",
        "http://www.w3.org/",           "http://purl.org/dc/elements/",
        "http://ns.adobe.com/xap/1.0/", "http://ns.adobe.com/pdf/",
        "http://ns.adobe.com/pdfx/",    "http://ns.adobe.com/illustrator/",
        "http://ns.adobe.com/xmp/"};
    constexpr std::string_view kRights = "http://ns.adobe.com/xap/1.0/rights/";
    constexpr std::string_view kDeclaration = "xmlns:";
    constexpr std::string_view kQuotes = "\"'";
    if (!source.getRoot().getKey("/Metadata").isStream()) {
        return false;
    }
    const auto packet = readXmpPacket(source);
    if (!packet) {
        return true;
    }
    const std::string text = packet->toStdString();
    std::string_view rest = text;
    for (auto at = rest.find(kDeclaration); at != std::string_view::npos;
         at = rest.find(kDeclaration)) {
        rest.remove_prefix(std::min(rest.find_first_of(kQuotes, at), rest.size() - 1) + 1);
        const auto name = rest.substr(0, rest.find_first_of(kQuotes));
        const auto begins = [&](std::string_view known) { return name.starts_with(known); };
        if (name == kRights || std::ranges::none_of(kMissedByNobody, begins)) {
            return true;
        }
    }
    return false;
}

bool hasUsageRights(const QPDFObjectHandle &catalog) {
    const auto permissions = entry(catalog, "/Perms");
    return !entry(permissions, "/UR3").isNull() || !entry(permissions, "/UR").isNull();
}

} // namespace

PartCounts countLeft(QPDF &source, const ImportOptions &options) {
    auto catalog = source.getRoot();
    PartCounts left;
    const auto add = [&left](PartKind kind, bool present) {
        addParts(left, kind, present ? 1 : 0);
    };
    add(PartKind::XfaForm, !entry(entry(catalog, "/AcroForm"), "/XFA").isNull());
    add(PartKind::UsageRights, hasUsageRights(catalog));
    if (options.scope == ImportScope::OneOfSeveral) {
        addParts(left, PartKind::FurtherNames, furtherNames(source).size());
        add(PartKind::Portfolio, entry(catalog, "/Collection").isDictionary());
        add(PartKind::Metadata, saysMoreThanProperties(source));
        addParts(left, PartKind::LayerSettings,
                 countLayerSettings(entry(catalog, "/OCProperties")));
        for (const auto &[kind, count] : countCatalogParts(catalogPartsLeft(source, options))) {
            addParts(left, kind, count);
        }
    }
    return left;
}

Warnings namePartsLeft(const PartCounts &left) {
    if (left.empty()) {
        return {};
    }
    return {{WarningCode::PdfPartsLeft, u"Not carried over: %1"_s.arg(inWords(left))}};
}

} // namespace folioforge
