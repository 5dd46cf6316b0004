// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

#include "support/PhotoPage.h"

namespace folioforge::test {

namespace {

/// The page with the given value of /Contents; objects 6, 7, ... are streams of these parts.
PdfFixture partedPage(const QByteArray &contents, const QList<QByteArray> &parts) {
    PdfFixture fixture = onePage();
    fixture.object(3, "<< /Type /Page /Parent 2 0 R /Contents " + contents + " " + kBox + kFont +
                          " >>");
    for (qsizetype i = 0; i < parts.size(); ++i) {
        fixture.stream(static_cast<int>(6 + i), {}, parts.at(i));
    }
    return fixture;
}

/// A word in each of many streams; only whole tokens may stand in one.
PdfFixture wordByWord() {
    const QList<QByteArray> words = kMark.simplified().split(' ');
    QByteArray contents("[");
    for (qsizetype i = 0; i < words.size(); ++i) {
        contents += QByteArray::number(6 + i) + " 0 R ";
    }
    return partedPage(contents + "]", words);
}

QByteArray inlineImage(const QByteArray &keys, const QByteArray &data) {
    return "q 100 0 0 60 50 20 cm BI " + keys + " ID " + data + "\nEI Q";
}

QByteArray drawn(const QByteArray &content) {
    return onePage(kBox + kFont, content).bytes();
}

} // namespace

QList<OddDocument> oddContents() {
    const QByteArray rgb("/W 2 /H 2 /BPC 8 /CS /RGB ");
    const QByteArray samples("\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\0", 12);
    // A tint row in which the end of the image seems to stand.
    const QByteArray misleading("a EI b c");
    return {
        {"no contents",
         onePage().object(3, "<< /Type /Page /Parent 2 0 R " + kBox + kFont + " >>").bytes(), 1,
         true},
        {"contents that are null", partedPage("null", {}).bytes(), 1, true},
        {"contents of no stream", partedPage("[]", {}).bytes(), 1, true},
        {"contents of one stream", partedPage("[6 0 R]", {kWords}).bytes()},
        {"an empty stream as contents", drawn({}), 1, true},
        {"empty streams between others",
         partedPage("[6 0 R 7 0 R 8 0 R 7 0 R]", {"BT /F 20 Tf", "", "20 60 Td (Odd) Tj ET"})
             .bytes()},
        {"contents word by word", wordByWord().bytes()},
        {"the same stream twice in the contents",
         partedPage("[6 0 R 7 0 R 6 0 R]", {"0 0 1 rg 5 5 50 40 re f", "1 0 0 1 90 30 cm"})
             .bytes()},
        {"contents in an indirect array",
         partedPage("8 0 R", {"BT /F 20 Tf", "20 60 Td (Odd) Tj ET"})
             .object(8, "[6 0 R 7 0 R]")
             .bytes()},
        {"operators split between streams",
         partedPage("[6 0 R 7 0 R]", {"q 1 0 0 rg 10 10", "60 20 re f Q BT /F 9 Tf (Odd) Tj ET"})
             .bytes()},
        {"states saved and never restored", drawn("q q q 0.5 0 0 0.5 20 20 cm " + kWords)},
        {"an unknown operator within BX and EX", drawn("BX 1 2 odd EX " + kWords)},
        {"marked content",
         drawn("/Artifact << /Type /Pagination >> BDC " + kMark + "EMC /Span BMC /P MP EMC")},
        {"an inline image in hexadecimal",
         drawn(inlineImage(rgb + "/F /AHx", samples.toHex(' ') + ">"))},
        {"an inline image of raw bytes", drawn(inlineImage(rgb, samples))},
        {"an inline image with its full names",
         drawn(inlineImage("/Width 2 /Height 2 /BitsPerComponent 8 /ColorSpace /DeviceRGB /Filter "
                           "/FlateDecode /Interpolate false",
                           flate(samples)))},
        {"an inline image with EI in its data",
         drawn(inlineImage("/W 8 /H 1 /BPC 8 /CS /G /L 8", misleading))},
        {"an inline stencil",
         drawn("1 0 0 rg " + inlineImage("/W 8 /H 2 /IM true /D [1 0]", "\xAA\x0F"))},
        {"an inline image with a palette",
         drawn(inlineImage("/W 4 /H 1 /BPC 2 /CS [/I /RGB 3 <000000FF000000FF000000FF>]", "\x1B"))},
        {"text in every mode",
         drawn("BT /F 30 Tf 1 w 10 60 Td 1 0 0 RG 0 0 1 rg 0 Tr (A) Tj 1 Tr (B) Tj 2 Tr (C) Tj 3 "
               "Tr (D) Tj 5 Ts 50 Tz 3 Tc 7 Tw 0 Tr (E F) Tj 7 Tr (GH) Tj ET 0 0 200 100 re f")},
        {"a path of every operator",
         drawn("[6 2] 1 d 2 J 1 j 3 M 10 10 m 30 90 60 90 80 10 c 90 60 120 10 v 150 90 170 10 y h "
               "B* 20 20 30 30 re W* n 0 0.5 1 0.2 k 0 0 200 100 re f")},
    };
}

} // namespace folioforge::test
