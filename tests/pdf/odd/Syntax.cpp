// SPDX-License-Identifier: Apache-2.0

#include "FileWriter.h"
#include "OddDocuments.h"

namespace folioforge::test {

namespace {

/// The document with every line end outside of streams replaced.
QByteArray withLineEnds(const QByteArray &lineEnd) {
    const auto ended = [&](QByteArray text) { return text.replace('\n', lineEnd); };
    FileWriter file(ended("%PDF-1.7\n"));
    for (const auto &[number, body] : onePage().objects()) {
        QByteArray text = ended(QByteArray::number(number) + " 0 obj\n" + body + "\nendobj\n");
        // A CR alone may not follow "stream" (ISO 32000-1, 7.3.8.1).
        text.replace("stream" + lineEnd + "BT", "stream\r\nBT");
        file.objectText(number, text);
    }
    return file.table("/Root 1 0 R", lineEnd.size() == 1 ? ' ' + lineEnd : lineEnd).bytes();
}

PdfFixture commented() {
    return onePage()
        .object(1, "%one\n<<%two\r/Type%three\n/Catalog%>>\n/Pages%4 0 R\n2%\n0%\nR%\n>>%endobj\n")
        .object(3, "<<%<<\n" + pageObject(kBox + kFont).sliced(2).chopped(2) + "%>>\n>>")
        .stream(4, "%stream\n", "%BT\n" + QByteArray(kWords).replace(" Tf", "%(\rTf"));
}

QByteArray withoutBlanks() {
    const QByteArray content(
        "BT/F 20 Tf 20 60 Td[(Odd)-300<70616765>]TJ ET 1 0 0 rg 9 9 50 9 re f");
    return FileWriter()
        .objectText(1, "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj ")
        .objectText(2, "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj ")
        .objectText(3, "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 100]/Resources<</Font<<"
                       "/F 5 0 R>>>>/Contents 4 0 R>>endobj ")
        .objectText(4, "4 0 obj<</Length " + QByteArray::number(content.size()) + ">>stream\n" +
                           content + "\nendstream endobj ")
        .objectText(5, "5 0 obj<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>endobj ")
        .table()
        .bytes();
}

PdfFixture everyBlank() {
    const QByteArray blanks("\0\t\n\f\r ", 6);
    return onePage()
        .object(1, "<<" + blanks + "/Type" + blanks + "/Catalog" + blanks + "/Pages" + blanks +
                       "2" + blanks + "0" + blanks + "R" + blanks + ">>")
        .stream(4, {}, QByteArray(kWords).replace(' ', blanks));
}

/// Names written with number signs, and names of bytes that are no text.
PdfFixture oddNames() {
    return onePage(kBox + "/Resources << /Font << /A#20B#2FC 5 0 R /\xFF\xFE 5 0 R >> >>",
                   "BT /A#20B#2FC 20 Tf 20 60 Td (Odd) Tj /\xFF\xFE 10 Tf (names) Tj ET " + kMark)
        .object(2, "<< /#54ype /P#61ges /Kids [3 0 R] /Count 1 >>");
}

PdfFixture oddStrings() {
    const QByteArray content("BT /F 12 Tf 14 TL 10 80 Td (nested (paren(theses))) Tj T* "
                             "(octal \\101\\7z\\0502\\51) Tj T* (joined \\\nline\\r) Tj T* "
                             "<4 8 6 5 7 8\n2> Tj T* <> Tj () Tj (\\n\\t\\b\\f\\\\ \\q) Tj ET");
    return onePage(kBox + kFont, content)
        .trailer("/Info << /Title <FEFF00F60064> /Author (\\(a\\)\\) \\\r\nb) >>");
}

QByteArray nested(int depth) {
    return QByteArray(depth, '[') + "1" + QByteArray(depth, ']');
}

PdfFixture streamEnds(const QByteArray &afterKeyword, const QByteArray &beforeEnd) {
    return onePage().object(4, "<< /Length " + QByteArray::number(kWords.size()) + " >> stream" +
                                   afterKeyword + kWords + beforeEnd + "endstream");
}

} // namespace

QList<OddDocument> oddSyntax() {
    return {
        {"lines that end with CR", withLineEnds("\r")},
        {"lines that end with CR and LF", withLineEnds("\r\n")},
        {"comments everywhere", commented().bytes()},
        {"no blank that can be left out", withoutBlanks()},
        {"every kind of blank", everyBlank().bytes()},
        {"names with number signs", oddNames().bytes()},
        {"strings with every escape", oddStrings().bytes()},
        {"CR and LF after the keyword stream", streamEnds("\r\n", "\r\n").bytes()},
        {"no line end before endstream", streamEnds("\n", "").bytes()},
        {"nulls where nothing should be",
         onePage(kBox + kFont + "/Annots null /CropBox null /Group 99 0 R /AA null").bytes()},
        {"arrays nested 200 deep",
         onePage(kBox + kFont + "/PieceInfo << /Odd << /Private " + nested(200) + " >> >>")
             .bytes()},
        {"an array of 20,000 numbers", onePage(kBox + kFont + "/PieceInfo << /Odd << /Private [" +
                                               QByteArray("7 ").repeated(20'000) + "] >> >>")
                                           .bytes()},
        {"numbers at the limits",
         onePage(kBox + kFont +
                 "/PieceInfo << /Odd << /Private [2147483647 -2147483648 9223372036854775807 "
                 "0.00000000000000001 -123456789012345.678] >> >>")
             .bytes()},
    };
}

} // namespace folioforge::test
