// SPDX-License-Identifier: Apache-2.0

#include "support/PdfFixture.h"

#include <QFile>

namespace folioforge::test {

PdfFixture &PdfFixture::object(int number, const QByteArray &body) {
    m_objects[number] = body;
    return *this;
}

PdfFixture &PdfFixture::stream(int number, const QByteArray &dictionary, const QByteArray &data) {
    return object(number, "<< " + dictionary + " /Length " + QByteArray::number(data.size()) +
                              " >>\nstream\n" + data + "\nendstream");
}

PdfFixture &PdfFixture::pages(int first, int count) {
    QByteArray kids;
    for (int i = 0; i < count; ++i) {
        const QByteArray content = QByteArray::number(first + count + i);
        kids += QByteArray::number(first + i) + " 0 R ";
        object(first + i, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << "
                          "/Font << /F 3 0 R >> >> /Contents " +
                              content + " 0 R >>");
        stream(first + count + i, {},
               "BT /F 20 Tf 20 40 Td (Page " + QByteArray::number(i + 1) + ") Tj ET");
    }
    object(3, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    return object(2, "<< /Type /Pages /Count " + QByteArray::number(count) + " /Kids [ " + kids +
                         "] >>");
}

PdfFixture &PdfFixture::spread() {
    constexpr qsizetype kLargerThanBuffers = 70'000;
    m_comment = '%' + QByteArray(kLargerThanBuffers, '-') + '\n';
    return *this;
}

PdfFixture &PdfFixture::header(const QByteArray &line) {
    m_header = line;
    return *this;
}

PdfFixture &PdfFixture::trailer(const QByteArray &keys) {
    m_trailerKeys = keys;
    return *this;
}

QByteArray PdfFixture::bytes() const {
    QByteArray file = m_header;
    std::map<int, qsizetype> offsets;
    for (const auto &[number, body] : m_objects) {
        file += m_comment;
        offsets[number] = file.size();
        file += QByteArray::number(number) + " 0 obj\n" + body + "\nendobj\n";
    }
    const qsizetype table = file.size();
    const int size = m_objects.empty() ? 1 : m_objects.rbegin()->first + 1;
    file += "xref\n0 " + QByteArray::number(size) + "\n0000000000 65535 f \n";
    for (int number = 1; number < size; ++number) {
        const bool used = offsets.contains(number);
        const auto offset = used ? offsets[number] : 0;
        file += QByteArray::number(offset).rightJustified(10, '0') +
                (used ? " 00000 n \n" : " 65535 f \n");
    }
    return file + "trailer << /Size " + QByteArray::number(size) + " /Root " +
           QByteArray::number(m_root) + " 0 R " + m_trailerKeys + " >>\nstartxref\n" +
           QByteArray::number(table) + "\n%%EOF\n";
}

bool PdfFixture::write(const QString &path) const {
    QFile file(path);
    const QByteArray content = bytes();
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace folioforge::test
