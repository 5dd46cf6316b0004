// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfFixture.h"

#include <QByteArrayList>

namespace folioforge::test {

/// A document of one page (object 4), tagged: its words are the marked contents 0, 1, 2 ... The
/// root of the structure tree is object 10 and holds `root`; elements are for the test to add, from
/// object 11 on.
inline PdfFixture taggedPage(const QByteArrayList &words, const QByteArray &root,
                             const QByteArray &catalog = {}) {
    PdfFixture fixture;
    fixture.object(1, "<< /Type /Catalog /Pages 2 0 R /MarkInfo << /Marked true >> "
                      "/StructTreeRoot 10 0 R " +
                          catalog + " >>");
    QByteArray content;
    for (qsizetype i = 0; i < words.size(); ++i) {
        content += "/Span << /MCID " + QByteArray::number(i) + " >> BDC BT /F 12 Tf 10 " +
                   QByteArray::number(80 - 15 * i) + " Td (" + words[i] + ") Tj ET EMC\n";
    }
    fixture.pages(4, 1).stream(5, {}, content);
    fixture.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /StructParents 7 "
                      "/Resources << /Font << /F 3 0 R >> >> /Contents 5 0 R >>");
    return fixture.object(10, "<< /Type /StructTreeRoot " + root + " >>");
}

/// An element of `type` on page 4 with `kids`, which a `keys` may follow.
inline QByteArray element(const QByteArray &type, int parent, const QByteArray &kids,
                          const QByteArray &keys = {}) {
    return "<< /Type /StructElem /S /" + type + " /P " + QByteArray::number(parent) +
           " 0 R /Pg 4 0 R /K " + kids + ' ' + keys + " >>";
}

/// A tagged page with a heading and a paragraph.
inline PdfFixture headingAndText(const QByteArray &heading, const QByteArray &text,
                                 const QByteArray &root = {}) {
    return taggedPage({heading, text}, "/K 11 0 R " + root)
        .object(11, element("Document", 10, "[12 0 R 13 0 R]"))
        .object(12, element("H1", 11, "0"))
        .object(13, element("P", 11, "1"));
}

} // namespace folioforge::test
