// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftParts.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/CatalogParts.h"
#include "pdf/import/Entries.h"

#include <qpdf/Pl_String.hh>
#include <qpdf/QPDF.hh>

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// An XMP packet, as far as it is short enough to be looked through.
std::optional<std::string> readPacket(QPDFObjectHandle metadata) {
    constexpr qsizetype kMaxLength = 1 << 20;
    constexpr qsizetype kMaxFilteredLength = 16 << 10; // It may unpack to a thousand times as much.
    auto filter = metadata.getDict().getKey("/Filter");
    const bool several = filter.isArray() && filter.getArrayNItems() > 1;
    const auto length = statedLength(metadata.getDict().getKey("/Length"));
    if (several || length > (filter.isNull() ? kMaxLength : kMaxFilteredLength)) {
        return std::nullopt;
    }
    std::string packet;
    Pl_String collect("metadata", nullptr, packet);
    metadata.pipeStreamData(&collect, nullptr, 0, qpdf_dl_generalized, true, false);
    return packet;
}

/// Whether a metadata stream (XMP) says more than document properties do, which are given to each
/// run, and than the account that programs keep of their own work: a copyright, a standard such as
/// PDF/A that the document keeps, a catalogue number. Its namespaces tell.
bool saysMoreThanProperties(QPDFObjectHandle metadata) {
    static constexpr std::array<std::string_view, 9> kMissedByNobody{
        "http://ns.adobe.com/iX/",      "adobe:ns:meta/",
        "http://www.w3.org/",           "http://purl.org/dc/elements/",
        "http://ns.adobe.com/xap/1.0/", "http://ns.adobe.com/pdf/",
        "http://ns.adobe.com/pdfx/",    "http://ns.adobe.com/illustrator/",
        "http://ns.adobe.com/xmp/"};
    constexpr std::string_view kRights = "http://ns.adobe.com/xap/1.0/rights/";
    constexpr std::string_view kDeclaration = "xmlns:";
    constexpr std::string_view kQuotes = "\"'";
    const auto packet = metadata.isStream() ? readPacket(metadata) : std::string();
    if (!packet) {
        return true;
    }
    std::string_view rest = *packet;
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

PartCounts countLeft(QPDF &source, ImportScope scope) {
    auto catalog = source.getRoot();
    PartCounts left;
    const auto add = [&left](PartKind kind, bool present) {
        addParts(left, kind, present ? 1 : 0);
    };
    add(PartKind::XfaForm, !entry(entry(catalog, "/AcroForm"), "/XFA").isNull());
    add(PartKind::UsageRights, hasUsageRights(catalog));
    add(PartKind::Metadata, saysMoreThanProperties(entry(catalog, "/Metadata")));
    if (scope == ImportScope::OneOfSeveral) {
        add(PartKind::Portfolio, entry(catalog, "/Collection").isDictionary());
        addParts(left, PartKind::LayerSettings,
                 items(entry(entry(catalog, "/OCProperties"), "/Configs")).size());
        for (const auto &[kind, count] : countCatalogParts(catalog.getDictAsMap())) {
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
