// SPDX-License-Identifier: Apache-2.0

#include "OddDocuments.h"

namespace folioforge::test {

QByteArray pageObject(const QByteArray &keys, int parent) {
    return "<< /Type /Page /Parent " + QByteArray::number(parent) + " 0 R /Contents 4 0 R " + keys +
           " >>";
}

PdfFixture onePage(const QByteArray &keys, const QByteArray &content) {
    PdfFixture fixture;
    fixture.object(1, kCatalog)
        .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>")
        .object(3, pageObject(keys))
        .stream(4, {}, content)
        .object(5, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    return fixture;
}

PdfFixture pageWith(const QByteArray &resources, const QByteArray &content) {
    return onePage(kBox + "/Resources << /Font << /F 5 0 R >> " + resources + " >>", content);
}

} // namespace folioforge::test
