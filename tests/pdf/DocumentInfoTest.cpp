// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the document information takes over from a source.
class DocumentInfoTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A source whose document information has `entries`.
    QString withInfo(const QByteArray &entries) {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        return saved(source.object(20, "<< " + entries + " >>").trailer("/Info 20 0 R"));
    }
    QString kept(const QStringList &sources, const DocumentInfo &given) {
        QString path = newPath();
        PDFContext::Settings settings = unflushed();
        settings.info = given;
        settings.keepInfo = true;
        PDFContext context(path, std::move(settings));
        for (const QString &source : sources) {
            context.addDocument(source);
        }
        context.close();
        return path;
    }

  private Q_SLOTS:
    void whatIsNotGivenComesFromTheFirstSource() {
        DocumentInfo given;
        given.title = u"Given"_s;
        given.author = u""_s;
        const PdfProbe probe(
            kept({withInfo("/Title (First) /Author (A) /Subject <FEFF00E4> /Keywords (k) /Creator "
                           "(Writer) /Producer (P)"),
                  withInfo("/Title (Second) /Subject (S)")},
                 given));
        QCOMPARE(probe.info(u"Title"_s), u"Given"_s);
        QCOMPARE(probe.info(u"Author"_s), QString());
        QCOMPARE(probe.info(u"Subject"_s), u"\u00e4"_s);
        QCOMPARE(probe.info(u"Keywords"_s), u"k"_s);
        QCOMPARE(probe.info(u"Creator"_s), u"Writer"_s);
        QVERIFY(probe.info(u"Producer"_s).startsWith(u"Folioforge"_s));
    }

    void aSourceWithoutInformationGivesNone() {
        const PdfProbe probe(
            kept({withInfo("/Title [1] /Creator 7"), withInfo("/Title (Second)")}, {}));
        QCOMPARE(probe.info(u"Title"_s), QString());
        QCOMPARE(probe.info(u"Creator"_s), u"Vesprin-Folioforge"_s);
    }

    void theInformationOfASourceIsNotTakenUnasked() {
        QCOMPARE(PdfProbe(merged({withInfo("/Title (First)")}, true)).info(u"Title"_s), QString());
    }
};

FOLIOFORGE_TEST(DocumentInfoTest)
#include "DocumentInfoTest.moc"
