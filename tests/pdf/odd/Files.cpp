// SPDX-License-Identifier: Apache-2.0

#include "FileWriter.h"
#include "OddDocuments.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <functional>

namespace folioforge::test {

namespace {

/// The objects of the fixture that may stand in an object stream: all but streams.
std::vector<std::pair<int, QByteArray>> plainObjects(const PdfFixture &fixture) {
    std::vector<std::pair<int, QByteArray>> plain;
    for (const auto &[number, body] : fixture.objects()) {
        if (!body.endsWith("endstream")) {
            plain.emplace_back(number, body);
        }
    }
    return plain;
}

QByteArray streamOf(const QByteArray &data) {
    return "<< /Length " + QByteArray::number(data.size()) + " >>\nstream\n" + data + "\nendstream";
}

QByteArray withXrefStream(const XrefStreamForm &form) {
    return FileWriter().objects(onePage()).xrefStream(6, form).bytes();
}

/// Everything but the content and the cross-reference stream in one object stream.
FileWriter inObjectStream(const QByteArray &keys = {}) {
    return FileWriter().object(4, streamOf(kWords)).objectStream(6, plainObjects(onePage()), keys);
}

/// Two object streams of which the second extends the first (ISO 32000-1, 7.5.7).
QByteArray extended() {
    return FileWriter()
        .object(4, streamOf(kWords))
        .objectStream(6, {{1, onePage().objects().at(1)}, {2, onePage().objects().at(2)}})
        .objectStream(7, {{3, onePage().objects().at(3)}, {5, onePage().objects().at(5)}},
                      "/Extends 6 0 R")
        .xrefStream(8)
        .bytes();
}

QByteArray hybrid() {
    return FileWriter()
        .objects(onePage().object(5, "null"))
        .objectStream(6, {{5, onePage().objects().at(5)}})
        .hybrid(7, {5, 6})
        .bytes();
}

/// The content replaced by a second section, and again by a third.
FileWriter updatedTwice() {
    return FileWriter()
        .objects(onePage(kBox + kFont, "BT /F 40 Tf 20 60 Td (Old) Tj ET"))
        .table()
        .object(4, streamOf("BT /F 40 Tf 20 60 Td (Newer) Tj ET"))
        .table()
        .object(4, streamOf(kWords));
}

QByteArray withPageDeleted() {
    return FileWriter()
        .objects(onePage()
                     .object(2, "<< /Type /Pages /Kids [3 0 R 6 0 R] /Count 2 >>")
                     .object(6, pageObject(kBox + kFont)))
        .table()
        .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>")
        .deleted(6)
        .table()
        .bytes();
}

/// Number 4 was deleted and is used again, in its second generation.
QByteArray secondGeneration() {
    return FileWriter()
        .objects(onePage())
        .table()
        .deleted(4)
        .table()
        .object(3, "<< /Type /Page /Parent 2 0 R /Contents 4 1 R " + kBox + kFont + " >>")
        .object(4, streamOf(kWords), 1)
        .table()
        .bytes();
}

QByteArray sparseNumbers() {
    return FileWriter()
        .object(1, "<< /Type /Catalog /Pages 20000 0 R >>")
        .object(20000, "<< /Type /Pages /Kids [1000000 0 R] /Count 1 >>")
        .object(1'000'000, "<< /Type /Page /Parent 20000 0 R /Contents 8000000 0 R " + kBox +
                               "/Resources << /Font << /F 30 0 R >> >> >>")
        .object(30, onePage().objects().at(5))
        .object(8'000'000, streamOf(kWords))
        .table()
        .bytes();
}

QByteArray objectsBackToFront() {
    FileWriter file;
    const auto objects = onePage().objects();
    std::for_each(objects.rbegin(), objects.rend(),
                  [&](const auto &object) { file.object(object.first, object.second); });
    return file.table().bytes();
}

/// The length of the content stands behind it.
QByteArray lengthBehind() {
    return FileWriter()
        .objects(onePage().object(4, "<< /Length 6 0 R >>\nstream\n" + kWords + "\nendstream"))
        .object(6, QByteArray::number(kWords.size()))
        .table()
        .bytes();
}

/// Bytes before the header: offsets count from the header.
QByteArray shifted(const QByteArray &before) {
    return FileWriter(before + "%PDF-1.7\n", before.size()).objects(onePage()).table().bytes();
}

QByteArray rewritten(const std::function<void(QPDFWriter &)> &set) {
    const QByteArray plain = onePage().bytes();
    QPDF document;
    document.processMemoryFile("plain", plain.constData(), static_cast<std::size_t>(plain.size()));
    QPDFWriter writer(document);
    writer.setOutputMemory();
    set(writer);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char *>(buffer->getBuffer()),
            static_cast<qsizetype>(buffer->getSize())};
}

QByteArray linearized(qpdf_object_stream_e objectStreams) {
    return rewritten([&](QPDFWriter &writer) {
        writer.setLinearization(true);
        writer.setObjectStreamMode(objectStreams);
    });
}

} // namespace

QList<OddDocument> oddFiles() {
    return {
        {"PDF 1.0", onePage().header("%PDF-1.0\n").bytes()},
        {"PDF 2.0", onePage().header("%PDF-2.0\n%\xE2\xE3\xCF\xD3\n").bytes()},
        {"a version in the catalog",
         onePage()
             .header("%PDF-1.3\n")
             .object(1, "<< /Type /Catalog /Version /1.6 /Pages 2 0 R >>")
             .bytes()},
        {"bytes before the header", shifted("HTTP/1.1 200 OK\r\n\r\n")},
        {"bytes after the end", onePage().bytes() + QByteArray(600, '\0')},
        {"a table whose lines end with CR and LF",
         FileWriter().objects(onePage()).table("/Root 1 0 R", "\r\n").bytes()},
        {"a table whose lines end with a blank and CR",
         FileWriter().objects(onePage()).table("/Root 1 0 R", " \r").bytes()},
        {"numbers with gaps up to eight million", sparseNumbers()},
        {"objects against the order of their numbers", objectsBackToFront()},
        {"a length behind its stream", lengthBehind()},
        {"a cross-reference stream", withXrefStream({})},
        {"a cross-reference stream with a predictor", withXrefStream({{1, 4, 2}, true, {}})},
        {"a cross-reference stream with wide fields", withXrefStream({{2, 8, 4}, false, {}})},
        {"a cross-reference stream without generations", withXrefStream({{1, 2, 0}, true, {}})},
        {"objects in an object stream", inObjectStream().xrefStream(7).bytes()},
        {"objects in an object stream, predicted table",
         inObjectStream().xrefStream(7, {{1, 3, 1}, true, {}}).bytes()},
        {"an object stream that extends another", extended()},
        {"a hybrid file", hybrid()},
        {"two updates with tables", updatedTwice().table().bytes()},
        {"an update by a cross-reference stream", updatedTwice().xrefStream(6).bytes()},
        {"an update of a packed document",
         inObjectStream().xrefStream(7).object(4, streamOf(kMark)).xrefStream(8).bytes()},
        {"an update that moves an object into an object stream",
         FileWriter()
             .objects(onePage())
             .xrefStream(6)
             .objectStream(7, {{3, pageObject(kBox + kFont + "/Rotate 180")}})
             .xrefStream(8)
             .bytes()},
        {"a page deleted by an update", withPageDeleted()},
        {"an object of the second generation", secondGeneration()},
        {"linearized", linearized(qpdf_o_disable)},
        {"linearized with object streams", linearized(qpdf_o_generate)},
    };
}

} // namespace folioforge::test
