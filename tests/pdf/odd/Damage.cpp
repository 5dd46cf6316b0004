// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

namespace folioforge::test {

namespace {

const PdfFixture &two() {
    static const PdfFixture fixture =
        onePage()
            .object(2, "<< /Type /Pages /Kids [3 0 R 6 0 R] /Count 2 >>")
            .object(6, pageObject(kBox + kFont + "/Rotate 90"));
    return fixture;
}

QByteArray replaced(const QByteArray &what, const QByteArray &by) {
    QByteArray bytes = two().bytes();
    Q_ASSERT(bytes.contains(what));
    return bytes.replace(what, by);
}

QByteArray cutBefore(const QByteArray &word) {
    const QByteArray bytes = two().bytes();
    return bytes.first(bytes.lastIndexOf(word));
}

PdfFixture with(int number, const QByteArray &body) {
    return PdfFixture(two()).object(number, body);
}

} // namespace

QList<DamagedDocument> damagedDocuments() {
    const QByteArray meant = two().bytes();
    const QByteArray kids("/Kids [3 0 R 6 0 R]");
    const QByteArray size = QByteArray::number(kWords.size());
    const QByteArray empty("%PDF-1.7\n%no table, no trailer\n");
    return {
        {"the table's place is wrong", replaced("startxref\n", "startxref\n9"), meant},
        {"the table's place is missing", cutBefore("startxref"), meant},
        {"the table is missing",
         meant.first(meant.indexOf("xref\n")) + meant.sliced(meant.indexOf("trailer")), meant},
        {"the table and the trailer are missing", cutBefore("xref\n0"), meant},
        {"the table counts one too many", replaced("xref\n0 7", "xref\n0 8"), meant},
        {"the table begins at 1", replaced("xref\n0 7", "xref\n1 7"), meant},
        {"every offset is wrong",
         replaced("%PDF-1.7\n", "%PDF-1.7\n" + QByteArray("%junk\n").repeated(9)), meant},
        {"the line ends were converted", QByteArray(meant).replace('\n', "\r\n"), meant},
        {"a length is too small", replaced("/Length " + size, "/Length 7"), meant},
        {"a length is too large", replaced("/Length " + size, "/Length 9999"), meant},
        {"a length is no number", replaced("/Length " + size, "/Length (x)"), meant},
        {"a length is missing", replaced("/Length " + size, ""), meant},
        {"an endobj is missing", replaced("/Helvetica >>\nendobj", "/Helvetica >>"), meant},
        {"the trailer's size is too small", replaced("/Size 7", "/Size 3"), meant},
        {"no version in the header", replaced("%PDF-1.7", "%PDF-"), meant},
        {"megabytes after the end", meant + QByteArray(2 << 20, '\0'), meant},
        {"/Count too small", with(2, "<< /Type /Pages " + kids + " /Count 1 >>").bytes(), meant},
        {"/Count too large", with(2, "<< /Type /Pages " + kids + " /Count 99 >>").bytes(), meant},
        {"/Count below zero", with(2, "<< /Type /Pages " + kids + " /Count -2 >>").bytes(), meant},
        {"/Count missing", with(2, "<< /Type /Pages " + kids + " >>").bytes(), meant},
        {"no /Type in the page tree", with(2, "<< " + kids + " /Count 2 >>").bytes(), meant},
        {"no /Type in a page",
         with(3, QByteArray(two().objects().at(3)).replace("/Type /Page", "")).bytes(), meant},
        {"no /Parent in a page",
         with(3, QByteArray(two().objects().at(3)).replace("/Parent 2 0 R", "")).bytes(), meant},
        {"a wrong /Parent", with(3, pageObject(kBox + kFont, 5)).bytes(), meant},
        {"kids that are missing",
         with(2, "<< /Type /Pages /Kids [99 0 R 3 0 R null 6 0 R] /Count 2 >>").bytes(), meant},
        {"a page within the tree itself",
         with(2, "<< /Type /Pages /Count 2 /Kids [3 0 R " + two().objects().at(6) + "] >>").bytes(),
         meant},
        {"cut in the middle of the last object", cutBefore("/Rotate"),
         with(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>").bytes()},
        {"nothing but a header", empty, {}},
        {"no catalog", with(1, "null").bytes(), {}},
        {"no page tree", with(1, "<< /Type /Catalog >>").bytes(), {}},
        {"a page tree that is its own kid",
         with(2, "<< /Type /Pages /Kids [2 0 R] /Count 1 >>").bytes(),
         {}},
    };
}

} // namespace folioforge::test
