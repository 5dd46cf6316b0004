// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What elements of several structure trees are called when they stand in one.
class StructureNamesTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A tagged page whose only element has `keys`; the root holds `names`.
    static PdfFixture page(const QByteArray &type, const QByteArray &names,
                           const QByteArray &keys = {}) {
        return taggedPage({"a"}, "/K 11 0 R " + names)
            .object(11, element("Document", 10, "[12 0 R]"))
            .object(12, element(type, 11, "0", keys));
    }
    std::unique_ptr<QPDF> mergedDocument(const std::vector<PdfFixture> &sources) {
        QStringList paths;
        for (const PdfFixture &source : sources) {
            paths += saved(source);
        }
        return opened(merged(paths));
    }
    static QByteArray rootEntry(QPDF &document, const char *key) {
        auto root = document.getRoot().getKey("/StructTreeRoot");
        return QByteArray::fromStdString(root.getKey(key).unparseResolved());
    }
    /// An entry of the only element of the source at `index`.
    static QByteArray entryOf(QPDF &document, int index, const char *key) {
        auto root = document.getRoot().getKey("/StructTreeRoot");
        auto element = root.getKey("/K").getArrayItem(index).getKey("/K");
        return QByteArray::fromStdString(element.getKey(key).unparseResolved());
    }

    /// A header cell (12) with the ID "h" and a cell (13) with `keys`, under a root with
    /// `rootKeys`.
    static PdfFixture headerAndCell(const QByteArray &rootKeys, const QByteArray &keys) {
        return taggedPage({"a", "b"}, "/K 11 0 R " + rootKeys)
            .object(11, element("Document", 10, "[12 0 R 13 0 R]"))
            .object(12, element("TH", 11, "0", "/ID (h)"))
            .object(13, element("TD", 11, "1", keys));
    }

  private Q_SLOTS:
    void rolesOfOneMeaningAreOne() {
        const auto document = mergedDocument({page("Para", "/RoleMap << /Para /P >>"),
                                              page("Para", "/RoleMap << /Para /Text /Text /P >>")});
        QCOMPARE(rootEntry(*document, "/RoleMap"), "<< /Para /P /Text /P >>");
        QCOMPARE(entryOf(*document, 1, "/S"), "/Para");
    }

    void aRoleOfTwoMeaningsIsTwoRoles() {
        const PdfFixture paragraph = page("Para", "/RoleMap << /Para /P >>");
        const PdfFixture heading = page("Para", "/RoleMap << /Para /H1 >>");
        const auto document = mergedDocument({paragraph, heading, paragraph, heading});
        QCOMPARE(rootEntry(*document, "/RoleMap"), "<< /Para /P /Para_2 /H1 >>");
        QCOMPARE(entryOf(*document, 0, "/S"), "/Para");
        QCOMPARE(entryOf(*document, 1, "/S"), "/Para_2");
        QCOMPARE(entryOf(*document, 2, "/S"), "/Para");
        QCOMPARE(entryOf(*document, 3, "/S"), "/Para_2");
    }

    void aStandardTypeKeepsItsMeaningBesideARoleOfItsName() {
        const auto document =
            mergedDocument({page("Note", {}), page("Note", "/RoleMap << /Note /P >>")});
        QCOMPARE(rootEntry(*document, "/RoleMap"), "<< /Note_2 /P >>");
        QCOMPARE(entryOf(*document, 0, "/S"), "/Note");
        QCOMPARE(entryOf(*document, 1, "/S"), "/Note_2");
    }

    void rolesThatStandForEachOtherEnd() {
        const PdfFixture source = page("A", "/RoleMap << /A /B /B /A >>");
        const auto document = mergedDocument({source, source});
        QCOMPARE(entryOf(*document, 0, "/S"), entryOf(*document, 1, "/S"));
    }

    void aChainOf20000RolesHasOneMeaning() {
        constexpr int kRoles = 20'000;
        QByteArray roles;
        for (int i = 0; i < kRoles; ++i) {
            roles += "/R" + QByteArray::number(i) + " /R" + QByteArray::number(i + 1) + ' ';
        }
        const QByteArray last = "/R" + QByteArray::number(kRoles) + " /P";
        const PdfFixture source = page("R0", "/RoleMap << " + roles + last + " >>");
        const auto document = mergedDocument({source, source});
        auto merged = document->getRoot().getKey("/StructTreeRoot").getKey("/RoleMap");
        QCOMPARE(merged.getKeys().size(), std::size_t{kRoles + 1});
        QCOMPARE(merged.getKey("/R0").getName(), std::string("/P"));
        QCOMPARE(merged.getKey("/R777").getName(), std::string("/P"));
    }

    void aClassOfTwoMeaningsIsTwoClasses() {
        const QByteArray narrow = "/ClassMap << /Box << /O /Layout /Width 1 >> >>";
        const QByteArray wide = "/ClassMap << /Box << /O /Layout /Width 9 >> >>";
        const auto document =
            mergedDocument({page("P", narrow, "/C /Box"), page("P", wide, "/C [/Box 0 /Other]")});
        QCOMPARE(rootEntry(*document, "/ClassMap"),
                 "<< /Box << /O /Layout /Width 1 >> /Box_2 << /O /Layout /Width 9 >> >>");
        QCOMPARE(entryOf(*document, 0, "/C"), "/Box");
        QCOMPARE(entryOf(*document, 1, "/C"), "[ /Box_2 0 /Other ]");
    }

    void identifiersStayUniqueAndHeadersFollow() {
        const PdfFixture source =
            headerAndCell("/IDTree << /Names [(h) 12 0 R] >>", "/A << /O /Table /Headers [(h)] >>");
        const auto document = mergedDocument({source, source});
        auto root = document->getRoot().getKey("/StructTreeRoot");
        auto names = root.getKey("/IDTree").getKey("/Names");
        QCOMPARE(names.getArrayNItems(), 4);
        for (const int index : {0, 1}) {
            const std::string identifier = index == 0 ? "h" : "h_2";
            auto cells = root.getKey("/K").getArrayItem(index).getKey("/K");
            QCOMPARE(cells.getArrayItem(0).getKey("/ID").getStringValue(), identifier);
            QCOMPARE(names.getArrayItem(2 * index).getStringValue(), identifier);
            QVERIFY(names.getArrayItem(2 * index + 1).isSameObjectAs(cells.getArrayItem(0)));
            auto headers = cells.getArrayItem(1).getKey("/A").getKey("/Headers");
            QCOMPARE(headers.getArrayItem(0).getStringValue(), identifier);
        }
    }

    void headersThatElementsShareFollowOnce() {
        const QByteArray attributes = "/A 20 0 R";
        const auto table = [&](const QByteArray &identifiers) {
            const QList<QByteArray> two = identifiers.split(' ');
            return taggedPage({"a", "b"}, "/K 11 0 R")
                .object(11, element("Document", 10, "[12 0 R 13 0 R 14 0 R]"))
                .object(12, element("TH", 11, "0", "/ID (" + two[0] + ")"))
                .object(13, element("TH", 11, "1", "/ID (" + two[1] + ") " + attributes))
                .object(14, element("TD", 11, "[]", attributes))
                .object(20, "[<< /O /Table /Headers [(h)] >>]");
        };
        const auto document = mergedDocument({table("h g"), table("h h_2")});
        auto cells = document->getRoot().getKey("/StructTreeRoot").getKey("/K").getArrayItem(1);
        auto cell = cells.getKey("/K").getArrayItem(2);
        const auto header = cells.getKey("/K").getArrayItem(0).getKey("/ID").getStringValue();
        QCOMPARE(header, std::string("h_3")); // "h_2" is another's of its own source.
        QCOMPARE(
            cell.getKey("/A").getArrayItem(0).getKey("/Headers").getArrayItem(0).getStringValue(),
            header);
    }

    void classesThatNameHeadersAreToldApart() {
        const PdfFixture source =
            headerAndCell("/ClassMap << /Cell << /O /Table /Headers [(h)] >> >>", "/C /Cell");
        const auto document = mergedDocument({source, source});
        auto root = document->getRoot().getKey("/StructTreeRoot");
        for (const int index : {0, 1}) {
            auto cells = root.getKey("/K").getArrayItem(index).getKey("/K");
            auto attributes =
                root.getKey("/ClassMap").getKey(cells.getArrayItem(1).getKey("/C").getName());
            QCOMPARE(attributes.getKey("/Headers").getArrayItem(0).getStringValue(),
                     cells.getArrayItem(0).getKey("/ID").getStringValue());
        }
    }
};

FOLIOFORGE_TEST(StructureNamesTest)
#include "StructureNamesTest.moc"
