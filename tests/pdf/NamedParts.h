// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfFixture.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFNameTreeObjectHelper.hh>

#include <QByteArrayList>

namespace folioforge::test {

/// Two pages; what `target` names is led to by a link over the text of the first.
inline PdfFixture linked(const QByteArray &catalog, const QByteArray &target) {
    PdfFixture fixture;
    fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + catalog + " >>").pages(4, 2);
    return fixture.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources "
                             "<< /Font << /F 3 0 R >> >> /Contents 6 0 R /Annots [<< /Type "
                             "/Annot /Subtype /Link /Rect [0 0 200 100] " +
                                 target + " >>] >>");
}

/// The names in the name tree `tree` of the catalog, such as "/Dests".
inline QByteArrayList namesIn(QPDF &document, const char *tree) {
    QByteArrayList names;
    auto root = document.getRoot().getKey("/Names").getKey(tree);
    for (const auto &[name, object] : QPDFNameTreeObjectHelper(root, document).getAsMap()) {
        names += QByteArray::fromStdString(name);
    }
    return names;
}

} // namespace folioforge::test
