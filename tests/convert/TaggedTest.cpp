// SPDX-License-Identifier: Apache-2.0

#include "ConversionCase.h"
#include "support/OpenedPdf.h"
#include "support/Places.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The tags that texts and pictures get, as other programs read them.
class TaggedTest : public QObject, private ConversionCase {
    Q_OBJECT

    /// The paragraphs of a document, each with the text that poppler finds in it, blanks as one.
    static QStringList paragraphsOf(const QString &pdf) {
        QStringList paragraphs;
        bool inParagraph = false;
        for (const QString &line : PdfProbe(pdf).structureText().split(u'\n')) {
            const QString trimmed = line.trimmed();
            if (trimmed.startsWith(u'"')) {
                if (inParagraph) {
                    paragraphs.last() += trimmed.sliced(1).chopped(1);
                }
                continue;
            }
            inParagraph = trimmed.startsWith(u"P ");
            if (inParagraph) {
                paragraphs += QString();
            }
        }
        for (QString &paragraph : paragraphs) {
            paragraph = paragraph.simplified();
        }
        return paragraphs;
    }
    static PdfFixture untagged() { return PdfFixture().object(1, kCatalog).pages(4, 1); }
    static QString sentences() {
        return u"It was a bright cold day in April, and the clocks were striking thirteen, while "
               "Winston Smith slipped quickly through the glass doors."_s;
    }

  private Q_SLOTS:
    void init() {
        setUp();
        m_options.tagged = true;
        m_options.language = u"en"_s;
    }

    void aLineOfThePlainLayoutIsAParagraph() {
        const QString text = sentences();
        addText("a.txt", u"%1\n\nshort\n  %1\t%1\n"_s.arg(text).toUtf8());
        const QStringList paragraphs = paragraphsOf(converted("out/all.pdf"));
        QCOMPARE(paragraphs, QStringList({text, u"short"_s, text + u' ' + text}));
    }

    void aLongLineIsOneParagraphOverPages() {
        const QString line = (sentences() + u' ').repeated(60).trimmed();
        addText("a.txt", ("first\n" + line.toUtf8() + "\nlast\n"));
        const QString pdf = converted("out/all.pdf");
        QVERIFY(PdfProbe(pdf).pageCount() > 2);
        QCOMPARE(paragraphsOf(pdf), QStringList({u"first"_s, line, u"last"_s}));
    }

    void theReadableLayoutHasAParagraphBetweenBlankLines_data() {
        QTest::addColumn<QString>("words");
        QTest::newRow("English") << sentences();
        QTest::newRow("Arabic")
            << u"كان يا ما كان في قديم الزمان، ملكٌ عادلٌ يحكم بلادًا (1742 كم)."_s;
        QTest::newRow("Hebrew") << u"בראשית ברא אלהים את השמים (1742 abc) ואת הארץ."_s;
        QTest::newRow("Hindi") << u"सभी मनुष्यों को गौरव और अधिकारों के मामले में स्वतन्त्रता है। क्षेत्र"_s;
        QTest::newRow("Tamil") << u"மனிதப் பிறிவியினர் சகலரும் பிறக்கின்றனர்; கொள்கை பொது."_s;
        QTest::newRow("Thai") << u"มนุษย์ทั้งหลายเกิดมามีอิสระและเสมอภาคกันในเกียรติศักดิ์"_s;
        QTest::newRow("Bengali") << u"সমস্ত মানুষ স্বাধীনভাবে সমান মর্যাদা নিয়ে জন্মগ্রহণ করে। কোন"_s;
        QTest::newRow("Khmer") << u"មនុស្សទាំងអស់ កើតមកមានសេរីភាព"_s;
        QTest::newRow("Japanese")
            << u"すべての人間は、生まれながらにして自由であり、かつ平等である。"_s;
        QTest::newRow("Korean") << u"모든 인간은 태어날 때부터 자유로우며 동등하다."_s;
        QTest::newRow("Russian") << u"Все люди рождаются свободными и равными."_s;
        QTest::newRow("tabs") << u"one\ttwo\tthree   four"_s;
    }
    void theReadableLayoutHasAParagraphBetweenBlankLines() {
        QFETCH(QString, words);
        m_options.readable.emplace();
        const QString one = words + u'\n' + words + u' ' + words + u' ' + words + u'\n';
        addText("a.txt", u"%1\n \n%1\f%2"_s.arg(one, words).toUtf8());
        QCOMPARE(paragraphsOf(converted("out/all.pdf")),
                 QStringList({one.simplified(), one.simplified(), words.simplified()}));
    }

    void theReadableLayoutLooksAsItDoesWithoutTags() {
        addText("a.txt",
                (sentences() + u"\nكان يا ما كان (1742 كم)\nसभी मनुष्यों को\n\na\tb\n"_s).toUtf8());
        m_options.readable.emplace();
        const QString with = converted("out/all.pdf");
        m_options.tagged = false;
        const QString without = converted("out/without.pdf");
        QCOMPARE(PdfProbe(with).render(1), PdfProbe(without).render(1));
        QCOMPARE(PdfProbe(with).text().simplified(), PdfProbe(without).text().simplified());
    }

    void headersAndFootersAreNotRead() {
        m_options.readable.emplace().header = u"HEAD {page}"_s;
        addText("a.txt", "told\n");
        const QString pdf = converted("out/all.pdf");
        QVERIFY(PdfProbe(pdf).text().contains(u"HEAD 1"_s));
        QCOMPARE(paragraphsOf(pdf), QStringList(u"told"_s));
    }

    void textBesideATaggedPdfIsTaggedByItself() {
        m_options.tagged = false;
        m_options.merge = true;
        addText("plain.txt", "words\n");
        addListed(saved("tagged.pdf", headingAndText("a", "b")));
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY(outcome.close.warnings.empty());
        QCOMPARE(PdfProbe(outcome.close.path).info(u"Tagged"_s), u"yes"_s);
        QCOMPARE(paragraphsOf(outcome.close.path), QStringList({u"words"_s, u"b"_s}));
        QVERIFY(PdfProbe(outcome.close.path).info(u"Title"_s).isEmpty());
    }

    void textBesideAnUntaggedPdfIsAsItWas() {
        m_options.tagged = false;
        m_options.merge = true;
        addText("plain.txt", "words\n");
        addFile(saved("untagged.pdf", untagged()));
        QCOMPARE(PdfProbe(converted("out/all.pdf")).info(u"Tagged"_s), u"no"_s);
    }

    void untaggedPdfsAmongTaggedTextsAreNamed() {
        m_options.merge = true;
        addText("plain.txt", "words\n");
        addFile(saved("untagged.pdf", untagged()));
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QCOMPARE(outcome.close.warnings.size(), 1U);
        QCOMPARE(outcome.close.warnings.front().text,
                 u"Not all of the PDF is tagged, as these are not: untagged.pdf"_s);
        QCOMPARE(PdfProbe(outcome.close.path).info(u"Tagged"_s), u"no"_s);
    }

    void readersShowATitle_data() {
        QTest::addColumn<bool>("merge");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("title");
        QTest::newRow("given") << true << u"My Book"_s << u"My Book"_s;
        QTest::newRow("the merged file's name") << true << QString() << u"report v1.2"_s;
        QTest::newRow("the file's name") << false << QString() << u"a.b"_s;
    }
    void readersShowATitle() {
        QFETCH(bool, merge);
        QFETCH(QString, given);
        QFETCH(QString, title);
        m_options.merge = merge;
        m_options.outputName = u"report v1.2"_s;
        m_options.info.title = given;
        addText("a.b.txt", "words\n");
        const QString pdf = converted(merge ? "out/report v1.2.pdf" : "out/a.b.pdf");
        QCOMPARE(PdfProbe(pdf).info(u"Title"_s), title);
        auto preferences = opened(pdf)->getRoot().getKey("/ViewerPreferences");
        QVERIFY(preferences.getKey("/DisplayDocTitle").getBoolValue());
    }

    void picturesAreDescribedByTheListOrTheirNames() {
        m_options.merge = true;
        m_options.descriptions.add(u"a.png"_s, u"any a"_s);
        m_options.descriptions.add(u"two/a.png"_s, u"the second a"_s);
        for (const char *name : {"one/a.png", "two/a.png", "b.png"}) {
            QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
            QVERIFY(QImage(4, 4, QImage::Format_Grayscale8).save(path(name)));
            addFile(path(name));
        }
        QStringList descriptions;
        const auto document = opened(converted("out/all.pdf"));
        for (auto source :
             document->getRoot().getKey("/StructTreeRoot").getKey("/K").getArrayAsVector()) {
            auto figure = source.getKey("/K").getArrayItem(0);
            descriptions += QString::fromStdString(figure.getKey("/Alt").getUTF8Value());
        }
        QCOMPARE(descriptions, QStringList({u"any a"_s, u"the second a"_s, u"b.png"_s}));
    }

    void thePicturesOfAFileAreToldApart() {
        m_options.allPictures = true;
        addFile(inSource(u"tests/data/image/two.gif"_s));
        const auto document = opened(converted("out/all.pdf"));
        const auto figures =
            document->getRoot().getKey("/StructTreeRoot").getKey("/K").getArrayItem(0).getKey("/K");
        QStringList descriptions;
        for (QPDFObjectHandle figure : QPDFObjectHandle(figures).getArrayAsVector()) {
            descriptions += QString::fromStdString(figure.getKey("/Alt").getUTF8Value());
        }
        QCOMPARE(descriptions, QStringList({u"two.gif"_s, u"two.gif (2)"_s}));
    }
};

FOLIOFORGE_TEST(TaggedTest)
#include "TaggedTest.moc"
