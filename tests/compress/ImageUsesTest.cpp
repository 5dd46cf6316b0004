// SPDX-License-Identifier: Apache-2.0

#include "compress/ImageUses.h"

#include "support/Memory.h"
#include "support/PdfFixture.h"
#include "support/TestUnit.h"

#include <QTest>

#include <algorithm>

#include <qpdf/QPDF.hh>

using namespace folioforge;
using namespace folioforge::test;

namespace {

QByteArray numbered(const char *text, int number) {
    return QByteArray(text).replace("#", QByteArray::number(number));
}

/// Where the pages of a document have their resources.
enum class Place {
    Object,
    TwoObjects, ///< Taken in turn.
    PageTree    ///< Which the pages inherit from; the dictionary is no object of its own.
};

/// `count` pages that share one dictionary of resources: an image and a font each. Page n, from 0,
/// draws image n at n + 1 points; its data are damaged where `damaged` is set.
struct SharedResources {
    int count;
    Place place = Place::Object;
    bool damaged = false;

    [[nodiscard]] QByteArray bytes() const {
        const int firstImage = 10;
        const int firstContent = firstImage + count;
        const int firstPage = firstContent + count;
        PdfFixture pdf;
        QByteArray kids;
        QByteArray images;
        QByteArray fonts;
        const bool inherited = place == Place::PageTree;
        const QByteArray keys(damaged ? "/Filter /FlateDecode" : "");
        for (int n = 0; n < count; ++n) {
            images += "/Im" + numbered("# ", n) + numbered("# 0 R ", firstImage + n);
            fonts += "/F" + numbered("# 4 0 R ", n);
            kids += numbered("# 0 R ", firstPage + n);
            pdf.stream(firstImage + n, "/Type /XObject /Subtype /Image /Width 1 /Height 1", "x");
            pdf.stream(firstContent + n, keys,
                       numbered("# 0 0 1 0 0 cm ", n + 1) + numbered("/Im# Do", n));
            pdf.object(firstPage + n,
                       "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Contents " +
                           numbered("# 0 R", firstContent + n) +
                           (inherited ? QByteArray() : resourcesOf(n)) + " >>");
        }
        const QByteArray shared = "<< /XObject << " + images + ">> /Font << " + fonts + ">> >>";
        pdf.object(1, kCatalog);
        pdf.object(2, "<< /Type /Pages /Count " + QByteArray::number(count) + " /Kids [" + kids +
                          "]" + (inherited ? " /Resources " + shared : "") + " >>");
        pdf.object(3, shared);
        pdf.object(5, shared);
        pdf.object(4, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
        return pdf.bytes();
    }

  private:
    [[nodiscard]] QByteArray resourcesOf(int page) const {
        return numbered(" /Resources # 0 R", place == Place::TwoObjects && page % 2 == 1 ? 5 : 3);
    }
};

/// The uses of a document's images and the bytes of memory that finding them asks for.
struct Found {
    explicit Found(const SharedResources &source) {
        const QByteArray file = source.bytes();
        QPDF document;
        document.setSuppressWarnings(true);
        document.processMemoryFile("shared", file.constData(), std::size_t(file.size()));
        document.getAllPages();
        const std::size_t before = allocatedBytes();
        uses = findImageUses(document);
        bytes = allocatedBytes() - before;
    }

    std::vector<ImageUse> uses;
    std::size_t bytes = 0;
};

} // namespace

class ImageUsesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void pagesThatShareTheirResourcesAreReadEachForItself_data() { addPlaces(); }

    void pagesThatShareTheirResourcesAreReadEachForItself() {
        QFETCH(const Place, place);
        const Found found({3, place});
        QCOMPARE(found.uses.size(), 3U);
        for (int n = 0; n < 3; ++n) {
            QCOMPARE(found.uses[n].page, n + 1);
            QCOMPARE(found.uses[n].width, n + 1.0);
            QVERIFY(!found.uses[n].isUnclear);
        }
    }

    void workGrowsWithThePagesThatShareTheirResources_data() { addPlaces(); }

    void workGrowsWithThePagesThatShareTheirResources() {
        QFETCH(const Place, place);
        growsLinearly({0, place});
    }

    void workGrowsWithThePagesThatCannotBeRead() { growsLinearly({0, Place::Object, true}); }

    void whatAPageThatCannotBeReadSharesIsUnclear() {
        const Found found({3, Place::Object, true});
        QCOMPARE(found.uses.size(), 3U);
        QVERIFY(std::ranges::all_of(found.uses, &ImageUse::isUnclear));
    }

  private:
    static void addPlaces() {
        QTest::addColumn<Place>("place");
        QTest::newRow("an object") << Place::Object;
        QTest::newRow("two objects in turn") << Place::TwoObjects;
        QTest::newRow("in the page tree") << Place::PageTree;
    }

    /// Four times the pages ask for about four times the memory, and sixteen times where each page
    /// looks at everything that all share.
    static void growsLinearly(SharedResources source) {
        source.count = 500;
        const std::size_t few = Found(source).bytes;
        source.count = 2000;
        const Found many(source);
        QCOMPARE(many.uses.size(), 2000U);
        QVERIFY2(many.bytes < 6 * few,
                 qPrintable(QStringLiteral("%1 and %2 bytes").arg(few).arg(many.bytes)));
    }
};

FOLIOFORGE_TEST(ImageUsesTest)
#include "ImageUsesTest.moc"
