// SPDX-License-Identifier: Apache-2.0

#include "HostilePdfs.h"

#include "ZerosInFlate.h"
#include "support/ByteOrder.h"
#include "support/PdfFixture.h"
#include "support/PhotoPage.h"

namespace folioforge::test {

namespace {

const QByteArray kPage("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] ");

QByteArray number(qint64 value) {
    return QByteArray::number(value);
}

QByteArray reference(int object) {
    return number(object) + " 0 R";
}

PdfFixture onePage(const QByteArray &pageKeys = {}, const QByteArray &catalogKeys = {}) {
    PdfFixture fixture;
    fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + catalogKeys + " >>")
        .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>")
        .object(3, kPage + pageKeys + " >>");
    return fixture;
}

/// `count` nodes from object `first` on, each made by `body` of its number and the next one's.
template<typename Body> void addChain(PdfFixture &fixture, int first, int count, const Body &body) {
    for (int i = 0; i < count; ++i) {
        fixture.object(first + i, body(first + i, reference(first + (i + 1) % count)));
    }
}

/// A file that ends in a cross-reference stream of these rows, of 1 + 4 + 2 bytes.
QByteArray withXrefStream(const QByteArray &file, const QByteArray &rows, int self) {
    const QByteArray data = flate(rows);
    return file + reference(self).chopped(1) + "obj << /Type /XRef /W [1 4 2] /Root 1 0 R /Size " +
           number(rows.size() / 7) + " /Filter /FlateDecode /Length " + number(data.size()) +
           " >>\nstream\n" + data + "\nendstream endobj\nstartxref\n" + number(file.size()) +
           "\n%%EOF\n";
}

QByteArray xrefRow(char type, quint32 place, quint16 index) {
    return type + big(place) + big(index);
}

QByteArray twiceInFlate(qint64 count) {
    return flate(zerosInFlate(count));
}

} // namespace

QByteArray deepPageTree(qint64 nodes) {
    const auto depth = static_cast<int>(nodes);
    constexpr int kFirst = 10;
    PdfFixture fixture = onePage({}, {});
    fixture.object(2, "<< /Type /Pages /Kids [" + reference(kFirst) + "] /Count " + number(depth) +
                          " /MediaBox [0 0 300 100] >>");
    addChain(fixture, kFirst, depth, [&](int self, const QByteArray &next) {
        const bool last = self + 1 == kFirst + depth;
        return "<< /Type /Pages /Parent " + reference(self == kFirst ? 2 : self - 1) + " /Kids [" +
               reference(self + depth) + " " + (last ? QByteArray() : next) + "] /Count " +
               number(kFirst + depth - self) + " >>";
    });
    addChain(fixture, kFirst + depth, depth, [&](int self, const QByteArray &) {
        return "<< /Type /Page /Parent " + reference(self - depth) + " >>";
    });
    return fixture.bytes();
}

QByteArray deepTrees(qint64 nodes) {
    const auto depth = static_cast<int>(nodes);
    const int bookmark = 10;
    const int field = bookmark + depth;
    const int name = field + depth;
    PdfFixture fixture = onePage(
        "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Dest (a) >>]",
        "/Outlines << /First 10 0 R /Last 10 0 R >> /AcroForm << /Fields [" + reference(field) +
            "] /DA (/F 9 Tf) /DR << /Font << /F null >> >> >> /Names << "
            "/Dests " +
            reference(name) + " >>");
    const auto below = [&](int self, int first, const QByteArray &text) {
        return self + 1 == first + depth ? QByteArray() : text;
    };
    addChain(fixture, bookmark, depth, [&](int self, const QByteArray &next) {
        return "<< /Title (a) /Dest (a) " +
               below(self, bookmark, "/First " + next + " /Last " + next) + " >>";
    });
    addChain(fixture, field, depth, [&](int self, const QByteArray &next) {
        return "<< /T (a) /FT /Tx " + below(self, field, "/Kids [" + next + "]") + " >>";
    });
    addChain(fixture, name, depth, [&](int self, const QByteArray &next) {
        return "<< /Names [(a) [3 0 R /Fit]] " + below(self, name, "/Kids [" + next + "]") + " >>";
    });
    return fixture.bytes();
}

QByteArray formOfOneField() {
    return onePage("/Annots [4 0 R]", "/AcroForm << /Fields [4 0 R] /DR << /Font << /F 5 0 R >> >> "
                                      "/DA (/F 9 Tf) >>")
        .object(4, "<< /Type /Annot /Subtype /Widget /Rect [0 0 99 20] /FT /Tx /T (a) /V (b) >>")
        .object(5, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>")
        .bytes();
}

QByteArray manyObjects(qint64 objects) {
    const auto count = static_cast<int>(objects);
    constexpr int kInOneStream = 10'000;
    constexpr int kFirst = 10;
    QByteArray file("%PDF-1.7\n");
    QByteArray rows = xrefRow(0, 0, 0xFFFF);
    const auto add = [&](int self, const QByteArray &body) {
        rows.resize(qsizetype{7} * self, '\0');
        rows += xrefRow(1, static_cast<quint32>(file.size()), 0);
        file += number(self) + " 0 obj\n" + body + "\nendobj\n";
    };
    QByteArray all;
    for (int i = 0; i < count; ++i) {
        all += reference(kFirst + i) + ' ';
    }
    add(1, "<< /Type /Catalog /Pages 2 0 R >>");
    add(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>");
    add(3, kPage + "/PieceInfo << /Odd << /Private [" + all + "] >> >> >>");
    rows.resize(qsizetype{7} * kFirst, '\0');
    for (int i = 0; i < count; ++i) {
        rows += xrefRow(2, static_cast<quint32>(kFirst + count + i / kInOneStream),
                        static_cast<quint16>(i % kInOneStream));
    }
    for (int start = 0, self = kFirst + count; start < count; start += kInOneStream, ++self) {
        QByteArray offsets;
        for (int i = 0; i < kInOneStream; ++i) {
            offsets += number(kFirst + start + i) + ' ' + number(2LL * i) + ' ';
        }
        const QByteArray data = flate(offsets + QByteArray("7 ").repeated(kInOneStream));
        add(self, "<< /Type /ObjStm /N " + number(kInOneStream) + " /First " +
                      number(offsets.size()) + " /Filter /FlateDecode /Length " +
                      number(data.size()) + " >>\nstream\n" + data + "\nendstream");
    }
    const auto self = static_cast<int>(rows.size() / 7);
    return withXrefStream(file, rows + xrefRow(1, static_cast<quint32>(file.size()), 0), self);
}

QByteArray manyEntries(qint64 count) {
    QByteArray file("%PDF-1.7\n");
    QByteArray rows = xrefRow(0, 0, 0xFFFF);
    const auto objects = onePage().objects();
    for (const auto &[self, body] : objects) {
        rows += xrefRow(1, static_cast<quint32>(file.size()), 0);
        file += number(self) + " 0 obj\n" + body + "\nendobj\n";
    }
    rows += QByteArray(7 * count, '\0');
    const auto self = static_cast<int>(rows.size() / 7);
    return withXrefStream(file, rows + xrefRow(1, static_cast<quint32>(file.size()), 0), self);
}

QList<std::pair<const char *, QByteArray>> circles() {
    const QByteArray form("/Type /XObject /Subtype /Form /BBox [0 0 9 9] ");
    const QByteArray link("/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Dest (a) >>] ");
    return {
        {"a page tree", onePage()
                            .object(2, "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>")
                            .object(4, "<< /Type /Pages /Parent 2 0 R /Kids [2 0 R] /Count 1 >>")
                            .bytes()},
        {"parents", onePage()
                        .object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 /Parent 4 0 R >>")
                        .object(4, "<< /Kids [2 0 R] /Parent 2 0 R >>")
                        .bytes()},
        {"forms", onePage("/Contents 4 0 R /Resources << /XObject << /A 5 0 R >> >>")
                      .stream(4, {}, "/A Do")
                      .stream(5, form + "/Resources << /XObject << /A 6 0 R >> >>", "/A Do")
                      .stream(6, form + "/Resources << /XObject << /A 5 0 R >> >>", "/A Do")
                      .bytes()},
        {"bookmarks side by side", onePage({}, "/Outlines << /First 4 0 R /Last 5 0 R >>")
                                       .object(4, "<< /Title (a) /Next 5 0 R >>")
                                       .object(5, "<< /Title (b) /Next 4 0 R >>")
                                       .bytes()},
        {"bookmarks within each other",
         onePage({}, "/Outlines << /First 4 0 R /Last 4 0 R >>")
             .object(4, "<< /Title (a) /First 5 0 R /Last 5 0 R >>")
             .object(5, "<< /Title (b) /First 4 0 R /Last 4 0 R /Parent 4 0 R >>")
             .bytes()},
        {"fields", onePage("/Annots [4 0 R]", "/AcroForm << /Fields [4 0 R] /DR << /Font << /F 9 0 "
                                              "R >> >> >>")
                       .object(4, "<< /T (a) /Kids [5 0 R] /Parent 5 0 R >>")
                       .object(5, "<< /T (b) /Kids [4 0 R] /Parent 4 0 R >>")
                       .bytes()},
        {"names", onePage(link, "/Names << /Dests 4 0 R >>")
                      .object(4, "<< /Kids [5 0 R] >>")
                      .object(5, "<< /Kids [4 0 R 5 0 R] >>")
                      .bytes()},
        {"a page tree by its list", onePage()
                                        .object(2, "<< /Type /Pages /Kids 4 0 R /Count 1 >>")
                                        .object(4, "[3 0 R << /Type /Pages /Kids 4 0 R >>]")
                                        .bytes()},
        {"names by their list", onePage(link, "/Names << /Dests << /Kids 4 0 R >> >>")
                                    .object(4, "[<< /Kids 4 0 R >>]")
                                    .bytes()},
        {"page labels", onePage({}, "/PageLabels 4 0 R")
                            .object(4, "<< /Kids [5 0 R] >>")
                            .object(5, "<< /Kids [4 0 R] >>")
                            .bytes()},
        {"destinations", onePage(link, "/Dests << /a 4 0 R >> /Names << /Dests << /Names [(a) 4 0 R"
                                       "] >> >>")
                             .object(4, "<< /D 4 0 R >>")
                             .bytes()},
        {"a length", onePage("/Contents 4 0 R")
                         .object(4, "<< /Length 4 0 R >>\nstream\n0 0 9 9 re f\nendstream")
                         .bytes()},
        {"resources",
         onePage("/Resources 4 0 R").object(4, "<< /XObject 4 0 R /Font 4 0 R >>").bytes()},
    };
}

QByteArray doublingNames(qint64 nodes) {
    const auto depth = static_cast<int>(nodes);
    constexpr int kFirst = 10;
    PdfFixture fixture =
        onePage("/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Dest (a) >>]",
                "/Names << /Dests 10 0 R >>");
    addChain(fixture, kFirst, depth, [&](int self, const QByteArray &next) {
        return self + 1 == kFirst + depth ? QByteArray("<< /Names [(a) [3 0 R /Fit]] >>")
                                          : "<< /Kids [" + next + " " + next + "] >>";
    });
    return fixture.bytes();
}

QByteArray sharedNames(qint64 count) {
    constexpr int kFirst = 10; // Two objects for each use.
    const QByteArray name(1 << 20, 'n');
    QByteArray files;
    QByteArray fields;
    QByteArray destinations;
    QByteArray intents;
    QByteArray roles;
    for (qint64 i = 0; i < count; ++i) {
        files += number(kFirst + 2 * i) + " 0 R ";
        fields += number(kFirst + 2 * i + 1) + " 0 R ";
        destinations += "4 0 R [3 0 R /XYZ 0 " + number(i) + " 0] ";
        intents += "<< /S /GTS_PDFX /OutputConditionIdentifier 4 0 R >> ";
        roles += "/R" + number(i) + " 5 0 R ";
    }
    PdfFixture fixture =
        onePage({}, "/AF [" + files + "] /AcroForm << /Fields [" + fields +
                        "] >> /Names << /Dests << /Names [" + destinations +
                        "] >> >> /OutputIntents [" + intents + "] /StructTreeRoot << /RoleMap << " +
                        roles + " >> /K << /S /R1 /K 0 /Pg 3 0 R >> >>");
    fixture.object(4, '(' + name + ')').object(5, '/' + name).stream(6, {}, "data");
    for (int i = 0; i < static_cast<int>(count); ++i) {
        fixture.object(kFirst + 2 * i, "<< /Type /Filespec /F 4 0 R /EF << /F 6 0 R >> >>");
        fixture.object(kFirst + 2 * i + 1, "<< /FT /Tx /T 4 0 R >>");
    }
    return fixture.bytes();
}

QByteArray sharedKids(qint64 count) {
    constexpr int kField = 10;
    const auto bookmark = kField + static_cast<int>(count);
    PdfFixture fixture = onePage({}, "/AcroForm << /Fields 5 0 R >> /Outlines 6 0 R");
    QByteArray fields;
    for (int field = kField; field < bookmark; ++field) {
        fields += reference(field) + ' ';
        fixture.object(field, "<< /T (a) /Kids 5 0 R >>");
    }
    addChain(fixture, bookmark, static_cast<int>(count), [&](int, const QByteArray &next) {
        return "<< /Title (a) /Dest [3 0 R /Fit] /First " + reference(bookmark) + " /Next " + next +
               " >>";
    });
    return fixture.object(2, "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>")
        .object(4, kPage + " >>")
        .object(5, '[' + fields + ']')
        .object(6, "<< /First " + reference(bookmark) + " >>")
        .bytes();
}

QByteArray repeatedPage(qint64 count) {
    PdfFixture fixture = onePage(
        "/Annots [" + QByteArray("<< /Subtype /Link /Rect [0 0 9 9] >> ").repeated(count) + "]");
    fixture.object(2, "<< /Type /Pages /Kids [" + QByteArray("3 0 R ").repeated(count) +
                          "] /Count " + number(count) + " >>");
    return fixture.bytes();
}

QByteArray unfoldingContent(qint64 count) {
    return onePage("/Contents 4 0 R /Resources << /XObject << /A 5 0 R >> >>")
        .stream(4, "/Filter [/FlateDecode /FlateDecode]", twiceInFlate(count))
        .stream(5, "/Type /XObject /Subtype /Form /BBox [0 0 9 9]", "0 0 9 9 re f")
        .bytes();
}

QByteArray unfoldingImage(qint64 count) {
    constexpr int kSide = 1000;
    return onePage("/Contents 4 0 R /Resources << /XObject << /A 5 0 R >> >>")
        .stream(4, {}, "q 9 0 0 9 0 0 cm /A Do Q")
        .stream(5,
                imageKeys(kSide, kSide,
                          "/ColorSpace [/Indexed /DeviceRGB 255 6 0 R] "
                          "/BitsPerComponent 8 /Filter [/FlateDecode "
                          "/FlateDecode]"),
                twiceInFlate(count))
        .stream(6, "/Filter [/FlateDecode /FlateDecode]", twiceInFlate(count))
        .bytes();
}

QByteArray unfoldingObjects(qint64 count) {
    const QByteArray data = twiceInFlate(count);
    QByteArray file("%PDF-1.7\n");
    QByteArray rows = xrefRow(0, 0, 0xFFFF) + xrefRow(2, 2, 0);
    rows += xrefRow(1, static_cast<quint32>(file.size()), 0);
    file += "2 0 obj << /Type /ObjStm /N 1 /First 4 /Filter [/FlateDecode /FlateDecode] /Length " +
            number(data.size()) + " >>\nstream\n" + data + "\nendstream endobj\n";
    return withXrefStream(file, rows + xrefRow(1, static_cast<quint32>(file.size()), 0), 3);
}

} // namespace folioforge::test
