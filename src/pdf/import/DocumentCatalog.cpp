// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentCatalog.h"

#include "pdf/XmpRewriter.h"
#include "pdf/archive/NamedLayers.h"
#include "pdf/import/FurtherInfo.h"
#include "pdf/import/PageTree.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <utility>

namespace folioforge {

namespace {

/// "data (2).csv" for "data.csv".
std::string numberedFileName(const std::string &name, int number) {
    const std::size_t dot = name.rfind('.');
    const std::size_t end = dot == std::string::npos || dot == 0 ? name.size() : dot;
    return name.substr(0, end) + " (" + std::to_string(number) + ')' + name.substr(end);
}

} // namespace

void DocumentCatalog::addPage(const QPDFObjectHandle &page) {
    m_pageLabels.addPage(pageCount());
    m_pages.push_back(page);
}

void DocumentCatalog::truncatePages(int count) {
    m_pages.resize(static_cast<std::size_t>(std::min(count, pageCount())));
    m_pageLabels.truncatePages(pageCount());
    std::erase_if(m_documents, [count](const Added &added) { return added.firstPage >= count; });
    std::erase_if(m_files, [count](const AttachedFile &file) { return file.page >= count; });
}

Warnings DocumentCatalog::addDocument(ImportedDocument imported) {
    static_assert(std::is_nothrow_move_constructible_v<Added>); // Else moving it may lose it.
    Warnings warnings = imported.warnings;
    if (imported.pages.empty()) {
        return warnings;
    }
    const int firstPage = pageCount();
    m_pageLabels.add(imported.pageLabels, firstPage);
    std::ranges::copy(imported.pages, std::back_inserter(m_pages));
    m_names.add(imported.names);
    std::ranges::copy(m_forms.tellFieldsApart(imported.form), std::back_inserter(warnings));
    m_documents.push_back({firstPage, std::move(imported)});
    return warnings;
}

void DocumentCatalog::merge(const ImportedDocument &imported, int firstPage, QPDF &document) {
    m_structure.add(imported.structure, imported.pages.size(), imported.scope, firstPage);
    m_language.add(imported.structure);
    m_bookmarks.add(imported.bookmarks, firstPage);
    m_forms.add(imported.form, document);
    m_layers.add(imported.layers);
    m_destinations.add(imported.destinations);
    m_nameTrees.add(imported.nameTrees);
    m_nameTrees.addFurther(imported.furtherNames);
    m_attachments.add(imported.attachments);
    m_threads.add(imported.threads);
    m_parts.insert(imported.catalogParts.begin(), imported.catalogParts.end());
    m_furtherInfo.insert(imported.furtherInfo.begin(), imported.furtherInfo.end());
    m_outputIntents.add(imported.outputIntents);
    m_importedPages += imported.pages.size();
    m_metadata = imported.metadata;
    m_version.updateIfGreater(imported.version);
}

void DocumentCatalog::attachFiles() {
    TreeEntries entries;
    ImportedAttachments attachments;
    std::set<std::string> taken;
    std::map<std::string, int> numbers; // Of the last file of each name.
    const auto isTaken = [&](const std::string &name) {
        return taken.contains(name) || m_names.contains(kAttachments, name) ||
               m_names.contains(kFileNames, name);
    };
    for (auto &[page, file] : m_files) {
        const std::string own = file.getKey("/UF").getUTF8Value();
        std::string name = own;
        while (isTaken(name)) {
            int &number = numbers.try_emplace(own, 1).first->second;
            name = numberedFileName(own, ++number);
        }
        taken.insert(name);
        const auto text = QPDFObjectHandle::newUnicodeString(name);
        file.replaceKey("/F", text);
        file.replaceKey("/UF", text);
        entries.emplace_back(text, file);
        attachments.associated.push_back(file);
    }
    m_nameTrees.add({{kAttachments, entries}});
    m_attachments.add(attachments);
}

std::vector<PartKind> DocumentCatalog::leftInTheEnd() const {
    std::vector<PartKind> left;
    if (m_language.isLeft()) {
        left.push_back(PartKind::Language);
    }
    if (m_outputIntents.areLeft()) {
        left.push_back(PartKind::OutputIntents);
    }
    return left;
}

const ImportedOutputIntents *DocumentCatalog::outputIntents() const {
    const auto found = std::ranges::find_if(m_documents, [](const Added &added) {
        return !added.document.outputIntents.intents.empty();
    });
    return found == m_documents.end() ? nullptr : &found->document.outputIntents;
}

void DocumentCatalog::claimArchive(Claims claims, const QPDFObjectHandle &outputIntent) {
    m_archive = std::move(claims);
    m_outputIntents.keepFirst(outputIntent);
}

DocumentForm DocumentCatalog::form() const {
    DocumentForm form = formFor(m_metadata.claims);
    if (!form.classic) {
        form.version = {1, 7};
    }
    form.version.updateIfGreater(m_version);
    if (m_archive || m_accessible) { // Its header must not name any other.
        form.version = form.classic ? PDFVersion(1, 4) : PDFVersion(1, 7);
    }
    return form;
}

void DocumentCatalog::claimAccessible(const std::string &language) {
    m_accessible = language;
}

/// What PDF/UA-1 asks of a catalog and of pages that sources brought.
void DocumentCatalog::keepAccessible(QPDF &document) {
    auto catalog = document.getRoot();
    if (!catalog.hasKey("/Lang")) {
        catalog.replaceKey("/Lang", QPDFObjectHandle::newUnicodeString(*m_accessible));
    }
    for (QPDFObjectHandle &page : m_pages) {
        if (page.hasKey("/Annots")) {
            page.replaceKey("/Tabs", QPDFObjectHandle::newName("/S"));
        }
    }
    m_metadata.claims.pdfUA = QStringLiteral("1");
}

void DocumentCatalog::finish(QPDF &document, const DocumentInfo &info,
                             const DrawnStructure *drawn) {
    for (Added &added : m_documents) {
        merge(added.document, added.firstPage, document);
        added.document = {}; // Its lists would take the memory twice.
    }
    if (!m_files.empty()) {
        attachFiles();
    }
    const std::size_t drawnPages = m_pages.size() - m_importedPages;
    if (drawn) {
        m_structure.add(*drawn, drawnPages);
    }
    buildPageTree(document, m_pages);
    m_structure.finish(document, m_pages.size());
    m_bookmarks.finish(document, m_pages);
    m_forms.finish(document);
    m_layers.finish(document);
    m_destinations.finish(document);
    m_nameTrees.finish(document);
    m_attachments.finish(document);
    m_threads.finish(document);
    m_pageLabels.finish(document);
    if (drawnPages > 0) {
        m_outputIntents.addDrawnPage();
        m_language.addDrawn(drawn ? drawn->language : std::string());
    }
    m_language.finish(document);
    putCatalogParts(document, m_parts);
    m_outputIntents.finish(document);
    putFurtherInfo(document, m_furtherInfo);
    if (m_archive) {
        m_metadata.claims.pdfA = m_archive->pdfA;
        m_metadata.claims.conformance = m_archive->conformance;
    }
    if (m_accessible) {
        keepAccessible(document);
    }
    if (m_archive || m_accessible) { // Claims take a packet, and layers that have names.
        m_metadata.packet = m_metadata.packet.isEmpty() ? emptyXmp() : m_metadata.packet;
        nameLayers(document);
    }
    putMetadata(document, m_metadata, info);
}

} // namespace folioforge
