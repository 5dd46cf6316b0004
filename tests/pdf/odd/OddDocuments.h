// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "support/PdfFixture.h"

#include <QByteArray>
#include <QList>

namespace folioforge::test {

/// A document of a form that ISO 32000 allows and writers seldom choose.
struct OddDocument {
    const char *name;
    QByteArray bytes;
    int pages = 1;
    bool blank = false;  ///< Whether nothing is drawn on its pages.
    bool ruling = false; ///< Whether it says how all pages of a file are to be shown.
};

/// A document that breaks the rules, beside the document that was meant; none where nobody can
/// tell.
struct DamagedDocument {
    const char *name;
    QByteArray bytes;
    QByteArray meant;
};

QList<OddDocument> oddPageTrees();
QList<OddDocument> oddBoxes();
QList<OddDocument> oddFiles();
QList<OddDocument> oddSyntax();
QList<OddDocument> oddContents();
QList<OddDocument> oddFilters();
QList<OddDocument> oddGraphics();
QList<OddDocument> oddInteraction();

QList<DamagedDocument> damagedDocuments();

/// Drawing operators for a page of 200 x 100 points that show every turn, mirror and stretch.
inline const QByteArray kMark("1 0 0 rg 10 10 60 20 re f 0 0 1 rg 100 40 m 150 40 l 125 80 l f "
                              "0 0.6 0 RG 4 w 5 5 190 90 re S ");

/// The same with words in the font /F.
inline const QByteArray kWords("BT /F 20 Tf 20 60 Td (Odd page) Tj ET " + kMark);

inline const QByteArray kBox("/MediaBox [0 0 200 100] ");
inline const QByteArray kFont("/Resources << /Font << /F 5 0 R >> >> ");

/// A page's dictionary: under the node `parent`, with /Contents 4 0 R and `keys`.
QByteArray pageObject(const QByteArray &keys, int parent = 2);

/// One page: catalog 1, page tree 2, page 3 with `keys`, content 4, Helvetica 5.
PdfFixture onePage(const QByteArray &keys = kBox + kFont, const QByteArray &content = kWords);

/// One page of the usual size whose content uses `resources`, the entries of its /Resources.
PdfFixture pageWith(const QByteArray &resources, const QByteArray &content);

} // namespace folioforge::test
