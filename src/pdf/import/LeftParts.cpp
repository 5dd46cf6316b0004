// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftParts.h"

#include "pdf/QpdfErrors.h"
#include "pdf/import/Entries.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/Pl_String.hh>
#include <qpdf/QPDF.hh>

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

bool hasItems(QPDFObjectHandle object) {
    return !items(object).empty() || (object.isDictionary() && !object.getKeys().empty());
}

bool hasNames(const QPDFObjectHandle &catalog, const char *tree) {
    return !readTreeEntries(entry(entry(catalog, "/Names"), tree), "/Names").empty();
}

/// Files that belong to the whole document. Those of pages and annotations are copied with them.
std::size_t countAttachments(const QPDFObjectHandle &catalog) {
    std::vector<QPDFObjectHandle> files = items(entry(catalog, "/AF"));
    for (const auto &[name, file] :
         readTreeEntries(entry(entry(catalog, "/Names"), "/EmbeddedFiles"), "/Names")) {
        files.push_back(file);
    }
    std::set<QPDFObjGen> indirect;
    return static_cast<std::size_t>(std::ranges::count_if(files, [&](QPDFObjectHandle file) {
        return file.isDictionary() &&
               (!file.isIndirect() || indirect.insert(file.getObjGen()).second);
    }));
}

/// What runs when the document is opened, printed or closed. An action that only shows a page is
/// none: the reader decides where it opens a document of several sources.
bool hasScripts(const QPDFObjectHandle &catalog) {
    auto opening = entry(catalog, "/OpenAction");
    return hasNames(catalog, "/JavaScript") || hasItems(entry(catalog, "/AA")) ||
           (opening.isDictionary() && !entry(opening, "/S").isNameAndEquals("/GoTo"));
}

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

Warnings namePartsLeft(QPDF &source, ImportScope scope) {
    const auto catalog = source.getRoot();
    QStringList parts;
    const auto add = [&parts](bool present, const QString &name) {
        if (present) {
            parts.append(name);
        }
    };
    const auto attachments = countAttachments(catalog);
    add(!entry(entry(catalog, "/StructTreeRoot"), "/K").isNull(), u"structure tags"_s);
    add(attachments == 1, u"1 attachment"_s);
    add(attachments > 1, u"%1 attachments"_s.arg(attachments));
    add(entry(catalog, "/Collection").isDictionary(), u"a portfolio"_s);
    add(!entry(entry(catalog, "/AcroForm"), "/XFA").isNull(), u"an XFA form"_s);
    add(hasScripts(catalog), u"document scripts"_s);
    add(hasNames(catalog, "/Templates"), u"page templates"_s);
    add(hasItems(entry(catalog, "/Threads")), u"article threads"_s);
    add(hasItems(entry(entry(catalog, "/OCProperties"), "/Configs")), u"further layer settings"_s);
    add(scope == ImportScope::OneOfSeveral && !entry(entry(catalog, "/URI"), "/Base").isNull(),
        u"a base address of links"_s);
    add(hasUsageRights(catalog), u"usage rights"_s);
    add(saysMoreThanProperties(entry(catalog, "/Metadata")), u"metadata"_s);
    add(hasItems(entry(catalog, "/OutputIntents")), u"output intents"_s);
    if (parts.isEmpty()) {
        return {};
    }
    return {{WarningCode::PdfPartsLeft, u"Not carried over: %1"_s.arg(parts.join(u", "_s))}};
}

} // namespace folioforge
