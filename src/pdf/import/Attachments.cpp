// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Attachments.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <iterator>
#include <set>

namespace folioforge {

namespace {

constexpr std::array kNameKeys{"/F", "/UF"};

/// The file specifications of embedded files, each once. Others name files outside.
std::vector<QPDFObjectHandle> embeddedFiles(const TreeEntries &tree,
                                            const ImportedAttachments &attachments) {
    std::vector<QPDFObjectHandle> files = attachments.associated;
    std::ranges::copy(attachments.ofParts, std::back_inserter(files));
    std::ranges::transform(tree, std::back_inserter(files),
                           [](const auto &pair) { return pair.second; });
    std::set<QPDFObjGen> visited;
    std::erase_if(files, [&](QPDFObjectHandle file) {
        return !isEntry(file) || !file.getKey("/EF").isDictionary() || !isFirstVisit(file, visited);
    });
    return files;
}

} // namespace

bool hasFiles(const Dictionary &part) {
    return part.contains("/AF") || valueOf(part, "/Subtype").isNameAndEquals("/FileAttachment");
}

std::vector<QPDFObjectHandle> filesOf(const std::vector<QPDFObjectHandle> &parts) {
    std::vector<QPDFObjectHandle> files;
    std::set<QPDFObjGen> visited; // Parts may share their lists.
    for (const auto &part : parts) {
        const auto list = entry(part, "/AF");
        if (isFirstVisit(list, visited)) {
            std::ranges::copy(items(list), std::back_inserter(files));
        }
        if (entry(part, "/Subtype").isNameAndEquals("/FileAttachment")) {
            files.push_back(entry(part, "/FS"));
        }
    }
    return files;
}

ImportedAttachments importAttachments(QPDF &source, ObjectCopier &copier, ImportScope scope) {
    const auto catalog = source.getRoot();
    ImportedAttachments imported;
    imported.associated = copier.copyItems(entry(catalog, "/AF"));
    imported.portfolio = scope == ImportScope::WholeDocument
                             ? copier.copy(entry(catalog, "/Collection"))
                             : QPDFObjectHandle::newNull();
    return imported;
}

std::size_t countFiles(const TreeEntries &tree, const ImportedAttachments &attachments) {
    return embeddedFiles(tree, attachments).size();
}

void tellFilesApart(const TreeEntries &tree, const ImportedAttachments &attachments,
                    SourceNames &names) {
    const auto files = embeddedFiles(tree, attachments);
    std::vector<QPDFObjectHandle> own;
    for (QPDFObjectHandle file : files) {
        for (const char *key : kNameKeys) {
            if (file.getKey(key).isString()) {
                own.push_back(file.getKey(key));
            }
        }
    }
    names.declare(kFileNames, own);
    for (QPDFObjectHandle file : files) {
        for (const char *key : kNameKeys) {
            if (file.getKey(key).isString()) {
                file.replaceKey(key, names.renamed(kFileNames, file.getKey(key)));
            }
        }
    }
}

void AttachmentMerger::add(const ImportedAttachments &imported) {
    std::ranges::copy(imported.associated, std::back_inserter(m_attachments.associated));
    m_attachments.portfolio = imported.portfolio;
}

void AttachmentMerger::finish(QPDF &document) const {
    auto catalog = document.getRoot();
    putItems(catalog, "/AF", m_attachments.associated);
    if (isEntry(m_attachments.portfolio)) {
        catalog.replaceKey("/Collection", m_attachments.portfolio);
    }
}

} // namespace folioforge
