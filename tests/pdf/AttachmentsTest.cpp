// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The files that are attached to documents.
class AttachmentsTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys, const QByteArray &page = {}) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 5 "
                                 "0 R " +
                                     page + " >>");
    }
    /// An embedded file `name` as objects `number` and the next, which begins with `content`.
    static PdfFixture &withFile(PdfFixture &fixture, const QByteArray &name,
                                const QByteArray &content, int number = 20) {
        return fixture
            .object(number, "<< /Type /Filespec /F (" + name + ") /UF (" + name +
                                ") /AFRelationship /Data /EF << /F " +
                                QByteArray::number(number + 1) + " 0 R >> >>")
            .stream(number + 1, "/Type /EmbeddedFile /Subtype /text#2Fxml", content + bytes());
    }
    static PdfFixture attached(const QByteArray &key, const QByteArray &name,
                               const QByteArray &content) {
        PdfFixture fixture = withCatalog("/Names << /EmbeddedFiles << /Names [(" + key +
                                         ") 20 0 R] >> >> /AF [20 0 R]");
        return withFile(fixture, name, content);
    }
    /// Every byte there is.
    static QByteArray bytes() {
        QByteArray all;
        for (int i = 0; i < 256; ++i) {
            all += static_cast<char>(i);
        }
        return all;
    }

    /// The files that pdfdetach saves, "name=content" without the bytes behind it.
    QStringList detached(const QString &path) {
        const QString folder = newPath();
        if (!QDir().mkpath(folder) ||
            runTool(u"pdfdetach"_s, {u"-saveall"_s, u"-o"_s, folder, path}).exitCode != 0) {
            return {};
        }
        QStringList files;
        for (const QString &name : QDir(folder).entryList(QDir::Files, QDir::Name)) {
            QByteArray content = readFile(folder + u'/' + name);
            files += name + u'=' +
                     (content.endsWith(bytes()) ? QString::fromUtf8(content.chopped(256))
                                                : u"damaged"_s);
        }
        return files;
    }
    /// The keys of the name tree, each with the name of its file, by qpdf.
    static QStringList listed(const QString &path) {
        const auto document = opened(path);
        QStringList files;
        for (const auto &[key, file] :
             QPDFEmbeddedFileDocumentHelper(*document).getEmbeddedFiles()) {
            files +=
                QString::fromStdString(key) + u':' + QString::fromStdString(file->getFilename());
        }
        return files;
    }

    /// A document with the files "one" (20) and "two" (22), which hold "1" and "2", under `keys`.
    static PdfFixture twoFiles(const QByteArray &keys) {
        PdfFixture source = withCatalog("/Names << /EmbeddedFiles << /Names [" + keys + "] >> >>");
        withFile(source, "one", "1");
        return withFile(source, "two", "2", 22);
    }

  private Q_SLOTS:
    void attachmentsComeWithEveryByte() {
        const QString one = savedAs(u"a.pdf"_s, attached("1", "one.xml", "first"));
        const QString two = savedAs(u"b.pdf"_s, attached("2", "two.xml", "second"));
        QCOMPARE(detached(merged({one, two})),
                 QStringList({u"one.xml=first"_s, u"two.xml=second"_s}));
        QCOMPARE(detached(merged({one}, true)), QStringList({u"one.xml=first"_s}));
    }

    void filesOfOneNameAreToldApartByTheirSource() {
        const auto source = [this](const QString &name, const QByteArray &content) {
            return savedAs(name, attached("factur-x.xml", "factur-x.xml", content));
        };
        const QString result = merged({source(u"a.pdf"_s, "A"), source(u"b.pdf"_s, "B"),
                                       source(u"b.pdf"_s, "B2"), source(u"c.pdf"_s, "C")});
        QCOMPARE(detached(result), QStringList({u"factur-x (b 2).xml=B2"_s, u"factur-x (b).xml=B"_s,
                                                u"factur-x (c).xml=C"_s, u"factur-x.xml=A"_s}));
        QCOMPARE(listed(result), QStringList({u"factur-x (b 2).xml:factur-x (b 2).xml"_s,
                                              u"factur-x (b).xml:factur-x (b).xml"_s,
                                              u"factur-x (c).xml:factur-x (c).xml"_s,
                                              u"factur-x.xml:factur-x.xml"_s}));
    }

    void filesOfOneNameUnderOtherKeysAreToldApart() {
        const QString result = merged({savedAs(u"a.pdf"_s, attached("1", "data", "A")),
                                       savedAs(u"b.pdf"_s, attached("2", "data", "B"))});
        QCOMPARE(listed(result), QStringList({u"1:data"_s, u"2:data (b)"_s}));
    }

    void filesWhoseKeysAreNoStringsCome() {
        const QString path = savedAs(u"s.pdf"_s, twoFiles("/one 20 0 R 2 22 0 R"));
        for (const bool whole : {true, false}) {
            const QString result = merged({path}, whole);
            QCOMPARE(detached(result), QStringList({u"one=1"_s, u"two=2"_s}));
            QCOMPARE(listed(result), QStringList({u"2:two"_s, u"one:one"_s}));
        }
    }

    void filesUnderOneKeyOfTheirSourceAllCome() {
        const QString path = savedAs(u"s.pdf"_s, twoFiles("(a) 20 0 R (a) 22 0 R (a) 22 0 R"));
        QCOMPARE(detached(merged({path}, true)), QStringList({u"one=1"_s, u"two=2"_s}));
        const QString result = merged({path, path});
        QCOMPARE(detached(result),
                 QStringList({u"one=1"_s, u"one (s)=1"_s, u"two=2"_s, u"two (s)=2"_s}));
        QCOMPARE(listed(result), QStringList({u"a:one"_s, u"a (s 2):one (s)"_s,
                                              u"a (s 3):two (s)"_s, u"a (s):two"_s}));
    }

    void filesUnderOneKeyInTwoEncodingsAllCome() {
        const QString path = savedAs(u"s.pdf"_s, twoFiles("(a) 20 0 R <FEFF0061> 22 0 R"));
        QCOMPARE(detached(mergedOfOdd({path, path})),
                 QStringList({u"one=1"_s, u"one (s)=1"_s, u"two=2"_s, u"two (s)=2"_s}));
    }

    void aLongNameOfASourceIsCut() {
        const PdfFixture source = attached("data", "data", "A");
        const QString path = savedAs(QString(240, u'n') + u".pdf"_s, source);
        const QStringList names = listed(merged({path, path}));
        QCOMPARE(names.size(), 2);
        QVERIFY(names.at(1).endsWith(u'n' + u")"_s));
        QVERIFY(names.at(1).size() < 2 * 80);
    }

    void associatedFilesOfTheCatalogsAreAllThereAndAreTheAttachedOnes() {
        const QString one = savedAs(u"a.pdf"_s, attached("data", "data", "A"));
        const QString two = savedAs(u"b.pdf"_s, attached("data", "data", "B"));
        const auto document = opened(merged({one, two}));
        auto associated = document->getRoot().getKey("/AF");
        QCOMPARE(associated.getArrayNItems(), 2);
        auto pairs = document->getRoot().getKey("/Names").getKey("/EmbeddedFiles").getKey("/Names");
        QCOMPARE(associated.getArrayItem(0).getObjGen(), pairs.getArrayItem(1).getObjGen());
        QCOMPARE(associated.getArrayItem(1).getObjGen(), pairs.getArrayItem(3).getObjGen());
        QCOMPARE(associated.getArrayItem(1).getKey("/UF").getUTF8Value(), std::string("data (b)"));
        QCOMPARE(associated.getArrayItem(1).getKey("/AFRelationship").getName(),
                 std::string("/Data"));
    }

    void aFileOutsideTheDocumentKeepsItsName() {
        const QString path = savedAs(
            u"a.pdf"_s, withCatalog("/AF [20 0 R]")
                            .object(20, "<< /Type /Filespec /FS /URL /F (http://example.org/) >>"));
        const auto document = opened(merged({path, path}));
        auto associated = document->getRoot().getKey("/AF");
        QCOMPARE(associated.getArrayItem(1).getKey("/F").getStringValue(),
                 std::string("http://example.org/"));
    }

    void filesOfPagesAnnotationsAndPicturesCome() {
        PdfFixture source =
            withCatalog({}, "/AF [20 0 R] /Resources << /XObject << /X 22 0 R >> >> /Annots [<< "
                            "/Type /Annot /Subtype /FileAttachment /Rect [0 0 9 9] /FS 20 0 R >> "
                            "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /AF [20 0 R] >>]");
        withFile(source, "one.xml", "first");
        source.stream(22, "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /AF [20 0 R]", {});
        const QString path = saved(source);
        const QString result = merged({path});
        QCOMPARE(detached(result), QStringList({u"one.xml=first"_s}));
        const auto document = opened(result);
        QPDFObjectHandle page = document->getAllPages().at(0);
        const auto file = page.getKey("/AF").getArrayItem(0).getObjGen();
        auto annotations = page.getKey("/Annots");
        QCOMPARE(annotations.getArrayItem(0).getKey("/FS").getObjGen(), file);
        QCOMPARE(annotations.getArrayItem(1).getKey("/AF").getArrayItem(0).getObjGen(), file);
        auto picture = page.getKey("/Resources").getKey("/XObject").getKey("/X").getDict();
        QCOMPARE(picture.getKey("/AF").getArrayItem(0).getObjGen(), file);
    }

    void filesOfAnnotationsAreToldApartByTheirSource() {
        const auto source = [this](const QString &name, const QByteArray &content) {
            PdfFixture fixture =
                withCatalog({}, "/Annots [<< /Type /Annot /Subtype /FileAttachment /Rect [0 0 9 9] "
                                "/FS 20 0 R >>]");
            return savedAs(name, withFile(fixture, "note.txt", content));
        };
        QCOMPARE(detached(merged({source(u"a.pdf"_s, "A"), source(u"b.pdf"_s, "B")})),
                 QStringList({u"note (b).txt=B"_s, u"note.txt=A"_s}));
    }

    void filesOfPagesAreToldApartByTheirSource() {
        const auto source = [this](const QString &name) {
            PdfFixture fixture = withCatalog({}, "/AF [20 0 R]");
            return savedAs(name, withFile(fixture, "note.txt", "A"));
        };
        const auto document = opened(merged({source(u"a.pdf"_s), source(u"b.pdf"_s)}));
        QPDFObjectHandle page = document->getAllPages().at(1);
        QCOMPARE(page.getKey("/AF").getArrayItem(0).getKey("/UF").getUTF8Value(),
                 std::string("note (b).txt"));
    }

    void anActionFollowsTheNameOfItsFile() {
        PdfFixture source = withCatalog(
            "/Names << /EmbeddedFiles << /Names [(inner) 20 0 R] >> >>",
            "/Annots [<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S /GoToE /D (one) /T "
            "<< /R /C /N (inner) /T << /R /C /N (inner) >> >> >> >> << /Type /Annot /Subtype /Link "
            "/Rect [0 0 9 9] /A << /S /GoToE /F (other.pdf) /D (one) /T << /R /C /N (inner) >> >> "
            ">>]");
        const QString path = savedAs(u"a.pdf"_s, withFile(source, "inner.pdf", "A"));
        const auto document = opened(merged({path, path}));
        QPDFObjectHandle page = document->getAllPages().at(1);
        const auto target = [&](int link) {
            return page.getKey("/Annots").getArrayItem(link).getKey("/A").getKey("/T");
        };
        QCOMPARE(target(0).getKey("/N").getUTF8Value(), std::string("inner (a)"));
        QCOMPARE(target(0).getKey("/T").getKey("/N").getUTF8Value(), std::string("inner"));
        QCOMPARE(target(1).getKey("/N").getUTF8Value(), std::string("inner"));
    }

    void anActionFollowsThePageOfTheAnnotationThatHoldsItsFile() {
        const QByteArray link = "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S /GoToE /D "
                                "[0 /Fit] /T << /R /C /A 0 /P ";
        PdfFixture source = withCatalog(
            "/Names << /Dests << /Names [(page) [4 0 R /Fit]] >> >>",
            "/Annots [<< /Type /Annot /Subtype /FileAttachment /Rect [0 0 9 9] /FS 20 0 R >> " +
                link + "0 >> >> >> " + link + "(page) >> >> >> " + link + "1 >> >> >>]");
        const QString path = savedAs(u"a.pdf"_s, withFile(source, "inner.pdf", "A"));
        const auto document = opened(merged({path, path}));
        QPDFObjectHandle page = document->getAllPages().at(1);
        const auto target = [&](int number) {
            return page.getKey("/Annots").getArrayItem(number).getKey("/A").getKey("/T");
        };
        QCOMPARE(target(1).getKey("/P").getIntValue(), 1);
        QCOMPARE(target(2).getKey("/P").getUTF8Value(), std::string("page (a)"));
        QVERIFY(!target(3).hasKey("/P"));
        QCOMPARE(target(3).getKey("/A").getIntValue(), 0);
    }

    void aTargetThatIsADestinationTooIsFollowedAsBoth() {
        for (const bool targetFirst : {false, true}) {
            const QByteArray target = "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S "
                                      "/GoToE /D (one) /T 22 0 R >> >>";
            const QByteArray place =
                "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /Dest 22 0 R >>";
            PdfFixture source =
                withCatalog("/Names << /EmbeddedFiles << /Names [(inner) 20 0 R] >> >>",
                            "/Annots [" + (targetFirst ? target + place : place + target) + "]")
                    .object(22, "<< /R /C /N (inner) /D [0 /Fit] >>");
            const QString path = savedAs(u"a.pdf"_s, withFile(source, "inner.pdf", "A"));
            const auto document = opened(merged({path, path}));
            QPDFObjectHandle page = document->getAllPages().at(1);
            auto links = page.getKey("/Annots");
            auto action = links.getArrayItem(targetFirst ? 0 : 1).getKey("/A");
            QCOMPARE(action.getKey("/T").getKey("/N").getUTF8Value(), std::string("inner (a)"));
            auto shown = links.getArrayItem(targetFirst ? 1 : 0).getKey("/Dest").getKey("/D");
            QCOMPARE(shown.getArrayItem(0).getObjGen(), page.getObjGen());
        }
    }

    void theSourceOfPagesThatAreTakenBackIsNotAttached() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        const auto addSource = [&](const QString &name) {
            const PDFContext::Mark before = context.mark();
            context.beginPage({0, 0, 10, 10});
            context.endPage();
            const QString file = writeFile(m_folder.filePath(name), name.toUtf8() + bytes());
            context.attachSource({FileVersion::of(file), name, "text/plain"}, before);
            return before;
        };
        addSource(u"one"_s);
        context.rollBack(addSource(u"two"_s));
        addSource(u"three"_s);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QCOMPARE(detached(path), QStringList({u"one=one"_s, u"three=three"_s}));
    }

    void aPortfolioStaysOneWhereItIsAllOfTheDocument() {
        PdfFixture source = withCatalog("/Names << /EmbeddedFiles << /Names [(one.xml) 20 0 R] >> "
                                        ">> /Collection << /View /T /D (one.xml) >>");
        const QString path = saved(withFile(source, "one.xml", "first"));
        const QString whole = merged({path}, true);
        QCOMPARE(opened(whole)->getRoot().getKey("/Collection").getKey("/D").getUTF8Value(),
                 std::string("one.xml"));
        const QString part = merged({path});
        QVERIFY(!opened(part)->getRoot().hasKey("/Collection"));
        QCOMPARE(detached(part), QStringList({u"one.xml=first"_s}));
    }

    void attachmentsOfAnotherProgramComeAsTheyWere() {
        const QString plain = saved(withCatalog({}));
        const QString source = newPath();
        const QString attachment = m_folder.filePath(u"Übersicht.bin"_s);
        QVERIFY(!writeFile(attachment, "other" + bytes()).isEmpty());
        QCOMPARE(runTool(u"qpdf"_s, {plain, u"--add-attachment"_s, attachment, u"--"_s, source})
                     .exitCode,
                 0);
        QCOMPARE(detached(merged({source})), QStringList({u"Übersicht.bin=other"_s}));
        QCOMPARE(detached(merged({source, source})),
                 QStringList({u"Übersicht (2).bin=other"_s.replace(
                                  u"(2)"_s, u"(%1)"_s.arg(QFileInfo(source).completeBaseName())),
                              u"Übersicht.bin=other"_s}));
    }
};

FOLIOFORGE_TEST(AttachmentsTest)
#include "AttachmentsTest.moc"
