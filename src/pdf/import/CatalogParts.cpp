// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/CatalogParts.h"

#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <array>

namespace folioforge {

ImportedCatalogParts importCatalogParts(QPDF &source, ObjectCopier &copier, ImportScope scope) {
    static constexpr std::array kKeys{"/ViewerPreferences", "/PageMode", "/PageLayout", "/URI"};
    ImportedCatalogParts parts;
    if (scope == ImportScope::OneOfSeveral) {
        return parts;
    }
    auto catalog = source.getRoot();
    for (const char *key : kKeys) {
        auto value = copier.copy(catalog.getKey(key));
        if (!value.isNull()) {
            parts.emplace(key, value);
        }
    }
    return parts;
}

void putCatalogParts(QPDF &document, const ImportedCatalogParts &parts) {
    auto catalog = document.getRoot();
    for (const auto &[key, value] : parts) {
        catalog.replaceKey(key, value);
    }
}

} // namespace folioforge
