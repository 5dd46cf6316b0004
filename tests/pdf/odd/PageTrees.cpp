// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

namespace folioforge::test {

namespace {

QByteArray node(const QByteArray &kids, int count, const QByteArray &keys = {}) {
    return "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(count) + " " + keys +
           " >>";
}

/// Two pages, 3 and 6, whose tree node 2 has `keys`; the pages lack them.
PdfFixture twoPages(const QByteArray &keys, const QByteArray &own = {}) {
    return onePage(keys)
        .object(2, node("3 0 R 6 0 R", 2, keys))
        .object(3, pageObject(own))
        .object(6, pageObject({}));
}

/// A chain of nodes with one kid each, `depth` long, between the root and the only page.
PdfFixture chain(int depth) {
    constexpr int kFirst = 10;
    PdfFixture fixture = onePage();
    fixture.object(2, node("10 0 R", 1));
    for (int i = 0; i < depth; ++i) {
        const int number = kFirst + i;
        const bool last = i + 1 == depth;
        const QByteArray kid = QByteArray::number(last ? 3 : number + 1) + " 0 R";
        const QByteArray parent = QByteArray::number(i == 0 ? 2 : number - 1);
        fixture.object(number, node(kid, 1, "/Parent " + parent + " 0 R"));
    }
    return fixture.object(3, pageObject(kBox + kFont, kFirst + depth - 1));
}

/// Pages at three levels: 3 under the root, 7 under 6, 9 and 10 under 8, which is under 6.
PdfFixture unbalanced() {
    return onePage()
        .object(2, node("3 0 R 6 0 R", 4, kBox))
        .object(3, pageObject(kFont))
        .object(6, node("7 0 R 8 0 R", 3, "/Parent 2 0 R /Rotate 90"))
        .object(7, pageObject(kFont, 6))
        .object(8, node("9 0 R 10 0 R", 2, "/Parent 6 0 R /CropBox [0 0 150 100] " + kFont))
        .object(9, pageObject({}, 8))
        .object(10, pageObject("/Rotate 180 /MediaBox [0 0 180 100]", 8));
}

PdfFixture emptyNodes() {
    return onePage()
        .object(2, node("6 0 R 3 0 R 7 0 R", 1))
        .object(6, node({}, 0, "/Parent 2 0 R"))
        .object(7, node("8 0 R", 0, "/Parent 2 0 R"))
        .object(8, node({}, 0, "/Parent 7 0 R"));
}

PdfFixture manyKids(int count) {
    constexpr int kFirst = 10;
    QByteArray kids;
    PdfFixture fixture = onePage();
    for (int i = 0; i < count; ++i) {
        kids += QByteArray::number(kFirst + i) + " 0 R ";
        fixture.object(kFirst + i, pageObject(kBox + kFont));
    }
    return fixture.object(2, node(kids, count)).object(3, "null");
}

PdfFixture indirectTree() {
    return onePage()
        .object(2, "<< /Type /Pages /Kids 6 0 R /Count 7 0 R /MediaBox 8 0 R /Rotate 9 0 R >>")
        .object(3, pageObject("/Resources 10 0 R"))
        .object(6, "[3 0 R]")
        .object(7, "1")
        .object(8, "[0 0 11 0 R 100]")
        .object(9, "90")
        .object(10, "<< /Font 12 0 R >>")
        .object(11, "200")
        .object(12, "<< /F 5 0 R >>");
}

PdfFixture kidsBackToFront() {
    return onePage()
        .object(2, node("6 0 R 3 0 R", 2))
        .object(6, pageObject(kBox + kFont + "/Rotate 180"));
}

} // namespace

QList<OddDocument> oddPageTrees() {
    const QByteArray catalogLast("<< /Pages 2 0 R /Type /Catalog /PageLayout /TwoColumnLeft >>");
    return {
        {"a chain of 60 nodes with one kid each", chain(60).bytes()},
        {"pages at three levels", unbalanced().bytes(), 4},
        {"nodes without pages", emptyNodes().bytes()},
        {"forty kids in one node", manyKids(40).bytes(), 40},
        {"a tree of indirect values", indirectTree().bytes()},
        {"pages against the order of their numbers", kidsBackToFront().bytes(), 2},
        {"the catalog's type after its pages", onePage().object(1, catalogLast).bytes()},
        {"everything inherited",
         twoPages(kBox + kFont + "/CropBox [10 0 190 90] /Rotate 270").bytes(), 2},
        {"an inherited turn taken back", twoPages(kBox + kFont + "/Rotate 90", "/Rotate 0").bytes(),
         2},
        {"inherited boxes overridden",
         twoPages(kBox + kFont + "/CropBox [0 0 90 90]",
                  "/MediaBox [0 0 160 100] /CropBox [0 0 150 95]")
             .bytes(),
         2},
        {"inherited resources overridden by none",
         twoPages(kBox + kFont, "/Resources << >>").bytes(), 2},
        {"a null instead of an inherited value", twoPages(kBox + kFont, "/Rotate null").bytes(), 2},
    };
}

} // namespace folioforge::test
