// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

namespace folioforge::test {

namespace {

/// One page with these entries for its boxes.
QByteArray boxed(const QByteArray &keys) {
    return onePage(keys + " " + kFont).bytes();
}

/// A page of this box and a drawing as large.
QByteArray boxedMark(const QByteArray &box, const QByteArray &matrix) {
    return onePage("/MediaBox " + box, matrix + " cm " + kMark).bytes();
}

/// The usual page with these entries beside its /MediaBox.
QByteArray turned(const QByteArray &keys) {
    return boxed(kBox + keys);
}

} // namespace

QList<OddDocument> oddBoxes() {
    const QByteArray indirect = onePage("/MediaBox [6 0 R 7 0 R 8 0 R 9 0 R] " + kFont)
                                    .object(6, "-10")
                                    .object(7, "0.5")
                                    .object(8, "190")
                                    .object(9, "99.5")
                                    .bytes();
    return {
        {"a negative origin", boxed("/MediaBox [-50 -20 150 80]")},
        {"an origin far off", boxedMark("[-20000 10000 -19800 10100]", "1 0 0 1 -20000 10000")},
        {"corners from upper right to lower left", boxed("/MediaBox [200 100 0 0]")},
        {"corners from upper left to lower right", boxed("/MediaBox [0 100 200 0]")},
        {"fractions", boxed("/MediaBox [0.25 -.5 +200.75 99.]")},
        {"numbers of odd forms", boxed("/MediaBox [-.0 00 0200.000000 +100.]")},
        {"comments and line ends in a box",
         boxed("/MediaBox[%left\n0%bottom\r0\t\f200%right\r\n100]")},
        {"a box of indirect numbers", indirect},
        {"a crop box", turned("/CropBox [20 10 150 90]")},
        {"a crop box that reaches beyond", turned("/CropBox [-100 -100 150 300]")},
        {"a crop box outside the page", turned("/CropBox [500 500 600 600]")},
        {"a crop box with its corners exchanged", turned("/CropBox [150 90 20 10]")},
        {"all five boxes", turned("/CropBox [5 5 195 95] /BleedBox [8 8 192 92] /TrimBox [10 10 "
                                  "190 90] /ArtBox [20 20 180 80]")},
        {"a page of three points", boxedMark("[0 0 3 3]", "0.015 0 0 0.03 0 0")},
        {"a page of 200 inches", boxedMark("[0 0 14400 14400]", "72 0 0 144 0 0")},
        {"a strip", boxed("/MediaBox [0 0 2000 10]")},
        {"units of two and a half points", turned("/UserUnit 2.5")},
        {"turned by 90", turned("/Rotate 90")},
        {"turned by 180", turned("/Rotate 180")},
        {"turned by 270", turned("/Rotate 270")},
        {"turned by -90", turned("/Rotate -90")},
        {"turned by 450", turned("/Rotate 450")},
        {"turned by an indirect number",
         onePage(kBox + kFont + "/Rotate 6 0 R").object(6, "180").bytes()},
        {"turned, cropped and off the origin",
         boxed("/MediaBox [-50 -20 150 80] /CropBox [-40 -10 120 70] /Rotate 90 /UserUnit 2")},
    };
}

} // namespace folioforge::test
