// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "FileParts.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include "image/description/Description.h"

#include <QImage>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A chunk of a WebP file.
QByteArray webpChunk(const char *type, const QByteArray &content) {
    return type + little(quint32(content.size())) + content + QByteArray(content.size() % 2, '\0');
}

/// A directory of a TIFF that begins the file, with entries for the tag ImageDescription, each of
/// which has these characters.
QByteArray describedTiff(const QByteArrayList &texts) {
    QByteArray entries;
    QByteArray values;
    const qsizetype end = 8 + 2 + 12 * texts.size() + 4;
    for (const QByteArray &text : texts) {
        entries += QByteArray::fromHex("010e0002") + big(quint32(text.size())) +
                   big(quint32(end + values.size()));
        values += text;
    }
    return QByteArray::fromHex("4d4d002a00000008") + big(quint16(texts.size())) + entries + big(0) +
           values;
}

/// The caption "A meadow" as a data set of IPTC.
QByteArray captionSet() {
    return QByteArray("\x1C\x02\x78\0\x08", 5) + "A meadow";
}

/// An EXIF block whose directory would stand behind its end.
const QByteArray &damagedExif() {
    static const QByteArray block = QByteArray::fromHex("4d4d002a7fffffff");
    return block;
}

const QByteArray &xmpLead() {
    static const QByteArray lead("http://ns.adobe.com/xap/1.0/\0", 29);
    return lead;
}

QByteArray pngPacket(const QByteArray &packet) {
    return pngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + packet);
}

} // namespace

/// What the files of pictures, as other programs write them, say that there is to see.
class DescriptionTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// A packet whose node has these attributes and properties.
    static QByteArray packetOf(const QByteArray &attributes, const QByteArray &properties) {
        return "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta "
               "xmlns:x='adobe:ns:meta/'>"
               "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
               "rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' " +
               attributes +
               "><dc:title><rdf:Alt><rdf:li "
               "xml:lang='x-default'>Title</rdf:li></rdf:Alt></dc:title>" +
               properties +
               "</rdf:Description></rdf:RDF></x:xmpmeta>"
               "<?xpacket end='w'?>";
    }
    static QByteArray packet(const QByteArray &items) {
        return packetOf({}, "<dc:description><rdf:Alt>" + items + "</rdf:Alt></dc:description>");
    }
    static QByteArray saying(const QByteArray &text) {
        return packet("<rdf:li xml:lang='x-default'>" + text + "</rdf:li>");
    }
    /// What a JPEG with these segments behind its begin says.
    QString saidByJpeg(const QByteArray &segments) {
        return ownDescription(
            writeFile(path(u"s.jpg"_s), readFile(imageFile(u"photo.jpg"_s)).insert(2, segments)));
    }
    QString saidByPacket(const QByteArray &packet) {
        return saidByJpeg(segment(0xE1, xmpLead() + packet));
    }
    /// Such a file with more chunks behind what it has; of a PNG in front of its end.
    QByteArray withChunks(const QString &name, const QByteArray &chunks) {
        QByteArray bytes = readFile(imageFile(name));
        return bytes.insert(name.endsWith(u".png") ? bytes.size() - 12 : bytes.size(), chunks);
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

    void aDescriptionIsReadHoweverItIsSpelled_data() {
        QTest::addColumn<QByteArray>("packet");
        QTest::newRow("attribute") << packetOf("dc:description='A meadow'", {});
        QTest::newRow("plain text") << packetOf({}, "<dc:description>A meadow</dc:description>");
        QTest::newRow("behind an empty one")
            << packet("<rdf:li xml:lang='x-default'/><rdf:li xml:lang='en'>A meadow</rdf:li>");
        QTest::newRow("16 bits") << [] {
            const QString text = u"\uFEFF"_s + QString::fromUtf8(saying("A meadow"));
            return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
        }();
    }
    void aDescriptionIsReadHoweverItIsSpelled() {
        QFETCH(QByteArray, packet);
        QCOMPARE(saidByPacket(packet), u"A meadow"_s);
    }

    void whatAPartOfThePictureSaysIsNotSaidOfAll() {
        QCOMPARE(saidByPacket(packetOf({}, "<dc:source><rdf:Bag><rdf:li><rdf:Description>"
                                           "<dc:description>A part</dc:description>"
                                           "</rdf:Description></rdf:li></rdf:Bag></dc:source>")),
                 QString());
    }

    void aPacketThatTakesForEverSaysNothing() {
        QByteArray attributes;
        for (int i = 0; i < 2000; ++i) {
            attributes += "dc:a" + QByteArray::number(i) + "='' ";
        }
        QCOMPARE(saidByPacket(packetOf(attributes, "<dc:description>no</dc:description>")),
                 QString());
    }

    void damageOfOneBlockCostsNoOther_data() {
        QTest::addColumn<QByteArray>("file");
        const QByteArray said = saying("A meadow");
        QTest::newRow("jpg") << readFile(imageFile(u"photo.jpg"_s))
                                    .insert(2, segment(0xE1,
                                                       QByteArray("Exif\0\0", 6) + damagedExif()) +
                                                   segment(0xE1, xmpLead() + said));
        QTest::newRow("png") << withChunks(
            u"colour.png"_s, pngChunk("eXIf", damagedExif()) +
                                 pngChunk("zTXt", QByteArray("Description\0\0?", 14)) +
                                 pngPacket(said));
        QTest::newRow("webp") << withChunks(u"colour.webp"_s, webpChunk("EXIF", damagedExif()) +
                                                                  webpChunk("XMP ", said));
    }
    void damageOfOneBlockCostsNoOther() {
        QFETCH(QByteArray, file);
        QCOMPARE(ownDescription(writeFile(path(u"file"_s), file)), u"A meadow"_s);
    }

    void ofSeveralBlocksOfAKindTheFirstCounts_data() {
        QTest::addColumn<QByteArray>("file");
        const QByteArray one = saying("First");
        const QByteArray other = saying("Second");
        QTest::newRow("jpg") << readFile(imageFile(u"photo.jpg"_s))
                                    .insert(2, segment(0xE1, xmpLead() + one) +
                                                   segment(0xE1, xmpLead() + other));
        QTest::newRow("png") << withChunks(u"colour.png"_s, pngPacket(one) + pngPacket(other));
        QTest::newRow("webp") << withChunks(u"colour.webp"_s,
                                            webpChunk("XMP ", one) + webpChunk("XMP ", other));
        QTest::newRow("tiff") << describedTiff({"First", "Second"});
    }
    void ofSeveralBlocksOfAKindTheFirstCounts() {
        QFETCH(QByteArray, file);
        QCOMPARE(ownDescription(writeFile(path(u"file"_s), file)), u"First"_s);
    }

    void whatStandsBehindTheEndOfAPngIsNone() {
        const QByteArray bytes = readFile(imageFile(u"colour.png"_s)) + pngPacket(saying("no"));
        QCOMPARE(ownDescription(writeFile(path(u"behind.png"_s), bytes)), QString());
    }

    void resourcesThatGoOnInAnotherSegmentAreRead() {
        const QByteArray all =
            photoshopResource(1000, QByteArray(60, 'x')) +
            photoshopResource(1028, QByteArray("\x1C\x02\x78\0\x08Two dogs", 13));
        const QByteArray lead("Photoshop 3.0\0", 14);
        QCOMPARE(
            saidByJpeg(segment(0xED, lead + all.first(80)) + segment(0xED, lead + all.sliced(80))),
            u"Two dogs"_s);
    }

    void aWebpOfItsProgramsIsRead() {
        const QString made = path(u"made.webp"_s);
        QCOMPARE(runTool(u"webpmux"_s,
                         {u"-set"_s, u"xmp"_s, writeFile(path(u"p.xmp"_s), saying("A meadow")),
                          imageFile(u"colour.webp"_s), u"-o"_s, made})
                     .exitCode,
                 0);
        QCOMPARE(ownDescription(made), u"A meadow"_s);
    }

    void picturesOfHeifAreDescribed_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        const QString jpeg = path(u"described.jpg"_s);
        const QString heic = path(u"made.heic"_s);
        const QString avif = path(u"made.avif"_s);
        const QString packet = writeFile(path(u"made.xmp"_s), saying("A meadow"));
        const QString exif = writeFile(path(u"made.exif"_s), describedTiff({"A meadow"}));
        writeFile(jpeg, readFile(imageFile(u"photo.jpg"_s))
                            .insert(2, segment(0xE1, xmpLead() + saying("A meadow"))));
        QTest::newRow("heic, XMP") << u"heif-enc"_s << QStringList{jpeg, u"-o"_s, heic};
        QTest::newRow("avif, XMP")
            << u"avifenc"_s
            << QStringList{u"-j"_s, u"1"_s, u"--xmp"_s, packet, imageFile(u"colour.png"_s), avif};
        QTest::newRow("avif, EXIF")
            << u"avifenc"_s
            << QStringList{u"-j"_s, u"1"_s, u"--exif"_s, exif, imageFile(u"colour.png"_s), avif};
    }
    void picturesOfHeifAreDescribed() {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QCOMPARE(runTool(program, arguments).exitCode, 0);
        QVERIFY(readFile(arguments.last()).contains("A meadow"));
        QCOMPARE(ownDescription(arguments.last()), u"A meadow"_s);
    }

    void boxesOfJpegXlAreRead_data() {
        QTest::addColumn<QByteArray>("added");
        QTest::newRow("XMP") << box("xml ", saying("A meadow"));
        QTest::newRow("behind a long one")
            << box("Exif", QByteArray(2 << 20, '\0')) + box("xml ", saying("A meadow"));
        QTest::newRow("EXIF") << box("Exif", big(0) + describedTiff({"A meadow"}));
    }
    void boxesOfJpegXlAreRead() {
        QFETCH(QByteArray, added);
        const QByteArray start =
            box("JXL ", "\r\n\x87\n") + box("ftyp", QByteArray("jxl \0\0\0\0jxl ", 12));
        const QByteArray picture = box("jxlc", readFile(imageFile(u"colour.jxl"_s)));
        for (const QByteArray &bytes : {start + added + picture, start + picture + added}) {
            QCOMPARE(ownDescription(writeFile(path(u"box.jxl"_s), bytes)), u"A meadow"_s);
        }
    }

    void aJpegXlThatWasAJpegSaysWhatThatSaid_data() {
        QTest::addColumn<QByteArray>("segments");
        const auto xmp = [](const QByteArray &packet) { return segment(0xE1, xmpLead() + packet); };
        QTest::newRow("XMP") << xmp(saying("A meadow"));
        QTest::newRow("IPTC beside XMP without a description")
            << xmp(packetOf({}, {})) + segment(0xED, QByteArray("Photoshop 3.0\0", 14) +
                                                         photoshopResource(1028, captionSet()));
    }
    void aJpegXlThatWasAJpegSaysWhatThatSaid() {
        QFETCH(QByteArray, segments);
        const QString jpeg =
            writeFile(path(u"was.jpg"_s), readFile(imageFile(u"photo.jpg"_s)).insert(2, segments));
        QCOMPARE(runTool(u"cjxl"_s, {jpeg, path(u"was.jxl"_s)}).exitCode, 0);
        QCOMPARE(ownDescription(path(u"was.jxl"_s)), u"A meadow"_s);
    }

    void boxesOfJpeg2000AreRead_data() {
        QTest::addColumn<QByteArray>("boxes");
        const auto uuid = [](const QByteArray &number, const QByteArray &content) {
            return box("uuid", number + content);
        };
        const QByteArray packet = saying("A meadow");
        const QByteArray xmp = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
        const QByteArray iptc = QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38");
        QTest::newRow("XMP") << uuid(xmp, packet);
        QTest::newRow("XML of others before it") << box("xml ", "<a/>") + box("xml ", packet);
        QTest::newRow("IPTC") << uuid(iptc, captionSet());
        QTest::newRow("EXIF") << uuid("JpgTiffExif->JP2", describedTiff({"A meadow"}));
    }
    void boxesOfJpeg2000AreRead() {
        QFETCH(QByteArray, boxes);
        const QByteArray bytes = readFile(imageFile(u"colour.jp2"_s)) + boxes;
        QCOMPARE(ownDescription(writeFile(path(u"boxes.jp2"_s), bytes)), u"A meadow"_s);
    }

    void resourcesOfAPhotoshopFileAreRead_data() {
        QTest::addColumn<QByteArray>("added");
        QTest::newRow("XMP") << photoshopResource(1060, saying("A meadow"));
        QTest::newRow("EXIF") << photoshopResource(1058, describedTiff({"A meadow"}));
        QTest::newRow("IPTC") << photoshopResource(1028, QByteArray("\x1C\x02\x78\0\x08", 5) +
                                                             "A meadow");
    }
    void resourcesOfAPhotoshopFileAreRead() {
        QFETCH(QByteArray, added);
        QByteArray bytes = readFile(imageFile(u"colour.psd"_s));
        const auto length = qFromBigEndian<quint32>(bytes.constData() + 30);
        QCOMPARE(bytes.sliced(26, 4), big(0)); // No table of colours.
        bytes.replace(30, 4, big(length + quint32(added.size()))).insert(34, added);
        QCOMPARE(ownDescription(writeFile(path(u"resources.psd"_s), bytes)), u"A meadow"_s);
    }

    void damagedFilesSayNothingOrWhatIsWhole() {
        const QString profile = xmpProfile("<rdf:li xml:lang='x-default'>A meadow</rdf:li>");
        const QByteArray whole =
            readFile(written(u"a.jpg"_s, {u"-profile"_s, u"xmp:"_s + profile}));
        for (qsizetype size = 0; size < whole.size(); size += 7) {
            const QString said = ownDescription(writeFile(path(u"cut.jpg"_s), whole.first(size)));
            QVERIFY(said.isEmpty() || said == u"A meadow");
        }
        QVERIFY(ownDescription(writeFile(path(u"x.bmp"_s), "BM")).isEmpty());
    }

    void aFileThatCannotBeReadIsNotTakenForOneThatSaysNothing() {
        const QString profile = xmpProfile("<rdf:li xml:lang='x-default'>A meadow</rdf:li>");
        const QString file = written(u"a.jpg"_s, {u"-profile"_s, u"xmp:"_s + profile});
        FaultyCalls counted;
        QCOMPARE(ownDescription(file, counted), u"A meadow"_s);
        const int opened = 1;
        for (int call = 1; call <= opened + counted.moves(); ++call) {
            FaultyCalls calls;
            calls.fault = {call, EIO, false, {}};
            QVERIFY_THROWS_EXCEPTION(Error, ownDescription(file, calls));
        }
        QVERIFY_THROWS_EXCEPTION(Error, ownDescription(path(u"missing.jpg"_s)));
    }
};

FOLIOFORGE_TEST(DescriptionTest)
#include "DescriptionTest.moc"
