// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftPages.h"

#include "pdf/import/Entries.h"
#include "pdf/import/LeftTargets.h"
#include "pdf/import/LeftTopics.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

/// Annotations of a source.
struct Annotations {
    std::set<QPDFObjGen> met;  ///< On pages that stay.
    std::set<QPDFObjGen> gone; ///< With the pages that are left out, and the links to these.
};

/// Removes the links of `page`, which stays, to pages that do not; gives how many.
std::size_t removeLinks(QPDFObjectHandle page, const LeftTargets &left, Annotations &annotations) {
    const auto all = items(annotationsOf(page));
    std::vector<QPDFObjectHandle> kept;
    for (const auto &annotation : all) {
        const bool goes =
            entry(annotation, "/Subtype").isNameAndEquals("/Link") && left.jumps(annotation);
        if (!goes) {
            kept.push_back(annotation);
        } else if (annotation.isIndirect()) {
            annotations.gone.insert(annotation.getObjGen());
        }
        annotations.met.insert(annotation.getObjGen());
    }
    if (kept.size() < all.size()) {
        page.replaceKey("/Annots", QPDFObjectHandle::newArray(kept));
    }
    return all.size() - kept.size();
}

/// `page` is left out.
void leavePage(QPDFObjectHandle page, Annotations &annotations) {
    // Not every page says that it is one, by which it is known and not copied.
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    for (const auto &annotation : items(annotationsOf(page))) {
        if (annotation.isIndirect() && !annotations.met.contains(annotation.getObjGen())) {
            annotations.gone.insert(annotation.getObjGen());
        }
    }
}

void removeOpening(const LeftTargets &left, QPDF &source) {
    auto catalog = source.getRoot();
    auto opening = catalog.getKey("/OpenAction");
    if (left.leads(opening.isDictionary() ? entry(opening, "/D") : opening)) {
        catalog.removeKey("/OpenAction");
    }
}

} // namespace

PartCounts removeLeftPages(QPDF &source, const std::vector<SourcePage> &all,
                           const std::vector<SourcePage> &kept) {
    LeftTargets left(all, kept);
    PartCounts gone;
    addParts(gone, PartKind::Destinations, left.removeNames(source));
    Annotations annotations;
    for (const auto &[page, inherited] : kept) {
        addParts(gone, PartKind::Links, removeLinks(page, left, annotations));
    }
    for (const auto &[page, inherited] : all) {
        if (left.contains(page)) {
            leavePage(page, annotations);
        }
    }
    addParts(gone, PartKind::Bookmarks, removeBookmarksTo(left, source));
    addParts(gone, PartKind::Fields, removeFieldsOf(annotations.gone, source, kept));
    addParts(gone, PartKind::ArticleThreads, removeThreadsOn(left, source, kept));
    addParts(gone, PartKind::StructureElements,
             removeStructureOf(source, left.pages(), annotations.gone));
    removeOpening(left, source);
    return gone;
}

} // namespace folioforge
