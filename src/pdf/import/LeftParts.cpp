// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftParts.h"

#include "error/Reasons.h"
#include "pdf/import/CatalogParts.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FurtherInfo.h"
#include "pdf/import/ImportOptions.h"
#include "pdf/import/Layers.h"
#include "pdf/import/NameTrees.h"

#include <qpdf/QPDF.hh>

#include <QString>

namespace folioforge {

namespace {

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
        addParts(left, PartKind::Properties, countFurtherInfo(furtherInfo(source)));
        addParts(left, PartKind::FurtherNames, furtherNames(source).size());
        add(PartKind::Portfolio, entry(catalog, "/Collection").isDictionary());
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
    return {{WarningCode::PdfPartsLeft, Reasons::tr("Not carried over: %1").arg(inWords(left))}};
}

} // namespace folioforge
