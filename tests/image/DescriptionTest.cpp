// SPDX-License-Identifier: Apache-2.0

#include "image/description/Description.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the files of pictures, as other programs write them, say that there is to see.
class DescriptionTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    static QByteArray packet(const QByteArray &items) {
        return "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta "
               "xmlns:x='adobe:ns:meta/'>"
               "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
               "rdf:about='' "
               "xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title><rdf:Alt><rdf:li "
               "xml:lang='x-default'>Title</rdf:li></rdf:Alt></dc:title><dc:description><rdf:Alt>" +
               items +
               "</rdf:Alt></dc:description></rdf:Description></rdf:RDF></x:xmpmeta>"
               "<?xpacket end='w'?>";
    }
    /// A picture that ImageMagick wrote with these arguments.
    QString written(const QString &name, const QStringList &arguments) {
        const ToolRun run = runTool(u"convert"_s, QStringList{u"-size"_s, u"8x8"_s, u"xc:red"_s} +
                                                      arguments + QStringList(path(name)));
        return run.exitCode == 0 ? path(name) : QString();
    }
    QString xmpProfile(const QByteArray &items) {
        return writeFile(path(u"packet.xmp"_s), packet(items));
    }

  private Q_SLOTS:
    void theDescriptionOfXmpCounts_data() {
        QTest::addColumn<QString>("name");
        for (const QString &name : {u"a.jpg"_s, u"a.tif"_s}) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    void theDescriptionOfXmpCounts() {
        QFETCH(QString, name);
        const QString profile =
            xmpProfile("<rdf:li xml:lang='de'>Wiese</rdf:li><rdf:li xml:lang='x-default'> A meadow "
                       "\xC3\xA4\n</rdf:li>");
        QCOMPARE(ownDescription(written(name, {u"-profile"_s, u"xmp:"_s + profile})),
                 u"A meadow ä"_s);
    }

    void theFirstLanguageCountsWhereNoneIsForAll() {
        const QString profile = xmpProfile("<rdf:li xml:lang='de'>Wiese</rdf:li><rdf:li "
                                           "xml:lang='fr'>Pré</rdf:li>");
        QCOMPARE(ownDescription(written(u"a.jpg"_s, {u"-profile"_s, u"xmp:"_s + profile})),
                 u"Wiese"_s);
    }

    void theCaptionOfIptcCounts() {
        const QString caption =
            writeFile(path(u"caption.txt"_s), "2#5#Title=\"Name\"\n2#120#Caption=\"Two dogs\"\n");
        const QString picture = written(u"a.jpg"_s, {u"-profile"_s, u"8BIMTEXT:"_s + caption});
        QVERIFY(readFile(picture).contains("Two dogs"));
        QCOMPARE(ownDescription(picture), u"Two dogs"_s);
    }

    void theTextOfAPngCounts() {
        QImage image(4, 4, QImage::Format_RGB888);
        image.setText(u"Title"_s, u"no"_s);
        image.setText(u"Description"_s, u"Ein Bild: ä"_s);
        QVERIFY(image.save(path(u"t.png"_s)));
        QCOMPARE(ownDescription(path(u"t.png"_s)), u"Ein Bild: ä"_s);
    }

    void theImageDescriptionOfATiffCounts() {
        const QString picture = written(u"d.tif"_s, {u"-set"_s, u"tiff:document"_s, u"Doc"_s,
                                                     u"-set"_s, u"comment"_s, u"Three cats"_s});
        QVERIFY(readFile(picture).contains("Three cats"));
        QCOMPARE(ownDescription(picture), u"Three cats"_s);
    }

    void damagedFilesSayNothingOrWhatIsWhole() {
        const QString profile = xmpProfile("<rdf:li xml:lang='x-default'>A meadow</rdf:li>");
        const QByteArray whole =
            readFile(written(u"a.jpg"_s, {u"-profile"_s, u"xmp:"_s + profile}));
        for (qsizetype size = 0; size < whole.size(); size += 7) {
            const QString said = ownDescription(writeFile(path(u"cut.jpg"_s), whole.first(size)));
            QVERIFY(said.isEmpty() || said == u"A meadow");
        }
        QVERIFY(ownDescription(path(u"missing.jpg"_s)).isEmpty());
        QVERIFY(ownDescription(writeFile(path(u"x.bmp"_s), "BM")).isEmpty());
    }
};

FOLIOFORGE_TEST(DescriptionTest)
#include "DescriptionTest.moc"
