// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What people reach for a command line for, typed as they type it.
class EverydayJobsTest : public QObject, CommandLineCase {
    Q_OBJECT

    void photo(const char *name, int width, int height) const {
        QVERIFY(test::photo(width, height).save(path(name), "JPG", 92));
    }

    [[nodiscard]] QString encryptionOf(const char *name, const char *password = "") const {
        return QString::fromUtf8(
            runTool(u"qpdf"_s, {u"--show-encryption"_s,
                                u"--password="_s + QLatin1StringView(password), path(name)})
                .out);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void whatAProgramWritesGoesThroughPipes() {
        const ToolRun run =
            shell("printf 'one\\ntwo\\n' | folioforge-cli --merge - - | pdftotext - -");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(run.out.simplified(), QByteArray("one two"));
    }

    void scansBecomeABookInTheOrderOfTheirNumbers() {
        QVERIFY(QDir().mkpath(path("scans")));
        for (const auto &[name, width] :
             {std::pair("scans/page10.png", 100), std::pair("scans/page2.png", 80)}) {
            QVERIFY(test::photo(width, 50).save(path(name)));
        }
        const ToolRun run = shell("folioforge-cli --sort natural --merge book.pdf scans");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const PdfProbe book(path("book.pdf"));
        QCOMPARE(book.pageCount(), 2);
        QVERIFY(book.box(u"MediaBox"_s, 1).width() < book.box(u"MediaBox"_s, 2).width());
    }

    void photosLieOnPaperAsTheyAreHeld() {
        photo("wide.jpg", 600, 400);
        photo("high.jpg", 400, 600);
        const ToolRun run = shell("folioforge-cli --image-page-size A4 --image-orientation auto "
                                  "--image-margins 10mm --merge album.pdf wide.jpg high.jpg");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const PdfProbe album(path("album.pdf"));
        QCOMPARE(album.box(u"MediaBox"_s, 1).size(), QSizeF(842, 595));
        QCOMPARE(album.box(u"MediaBox"_s, 2).size(), QSizeF(595, 842));
        QCOMPARE(album.images()[0][8], u"jpeg"_s); // As the camera made it.
    }

    void aFewPagesAreTakenOutOfAReport() {
        writePdf(path("report.pdf"), 9); // Pages of 200, 210, ... x 100.
        const ToolRun run = shell("folioforge-cli --merge part.pdf report.pdf --pages 2-3,z "
                                  "--rotate +90:1");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const PdfProbe part(path("part.pdf"));
        QCOMPARE(part.pageCount(), 3);
        QCOMPARE(part.box(u"MediaBox"_s, 1).width(), 210.0);
        QCOMPARE(part.box(u"MediaBox"_s, 3).width(), 280.0);
        QVERIFY(part.geometry()[0].contains("90"));
    }

    void lockedPDFsAreOpenedAndMerged() {
        writePdf(path("plain.pdf"), 2);
        QCOMPARE(shell("qpdf --encrypt open own 256 -- plain.pdf locked.pdf && echo open >words")
                     .exitCode,
                 0);
        const ToolRun run = shell(
            "folioforge-cli --input-password-file words --merge all.pdf locked.pdf plain.pdf");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(PdfProbe(path("all.pdf")).pageCount(), 4);
        QVERIFY(encryptionOf("all.pdf").contains(u"File is not encrypted"_s));
    }

    void anOfferIsProtected() {
        text("offer.txt", "Our price");
        const ToolRun run =
            shell("folioforge-cli --user-password-file <(echo open) --owner-password-file "
                  "<(echo own) --refuse-copy --merge offer.pdf offer.txt");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const QString encryption = encryptionOf("offer.pdf", "open");
        QVERIFY2(encryption.contains(u"extract for any purpose: not allowed"_s),
                 qPrintable(encryption));
        QVERIFY(encryption.contains(u"AESv3"_s));
        QCOMPARE(PdfProbe(path("offer.pdf"), u"open"_s).text().trimmed(), u"Our price"_s);
        QVERIFY(PdfProbe(path("offer.pdf")).text().isEmpty());
    }

    void photosBecomeSmallEnoughToSend() {
        QVERIFY(QDir().mkpath(path("photos")));
        photo("photos/a.jpg", 2400, 1600);
        const ToolRun run = shell("folioforge-cli --image-page-size A4^T --compress 96m --merge "
                                  "mail.pdf photos");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QVERIFY(QFileInfo(path("mail.pdf")).size() * 4 < QFileInfo(path("photos/a.jpg")).size());
        const QStringList image = PdfProbe(path("mail.pdf")).images()[0];
        QVERIFY2(image[12].toInt() >= 90 && image[12].toInt() <= 116, qPrintable(image.join(u' ')));
    }

    void aTreeOfFilesIsArchived() {
        QVERIFY(QDir().mkpath(path("archive/1998")) && QDir().mkpath(path("archive/1999")));
        for (const char *name : {"archive/1998/a b.txt", "archive/1999/c\nd.txt"}) {
            text(name, "kept");
        }
        const ToolRun run = shell("find archive -name '*.txt' -print0 | folioforge-cli -0 "
                                  "--files-from - --jobs 4 --output-folder pdfs");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        for (const char *name : {"pdfs/a b.pdf", "pdfs/c\nd.pdf"}) {
            QCOMPARE(PdfProbe(path(name)).text().trimmed(), u"kept"_s);
        }
    }

    void onlyWhatIsNewIsMadeAgain() {
        QVERIFY(QDir().mkpath(path("notes")));
        text("notes/a.txt", "first");
        text("notes/b.txt", "second");
        const QByteArray line("folioforge-cli --overwrite older --output-folder pdfs notes");
        QCOMPARE(shell(line).exitCode, 0);
        text("pdfs/b.pdf", "made by another program"); // Made anew it would be a PDF again.
        QCOMPARE(shell("touch -d '1 hour ago' pdfs/a.pdf && echo third >notes/a.txt").exitCode, 0);
        QCOMPARE(shell(line).exitCode, 0);
        QCOMPARE(PdfProbe(path("pdfs/a.pdf")).text().trimmed(), u"third"_s);
        QCOMPARE(readFile(path("pdfs/b.pdf")), "made by another program");
    }

    void textsBecomeABookWithNumbersAndBookmarks() {
        text("1 Intro.md", QByteArray("Words that stand whole in their lines. ").repeated(8));
        text("2 Code.c", "int main()\n{\n\treturn 0;\n}\n");
        const ToolRun run =
            shell("folioforge-cli --as-text --text-layout readable --header '{file}' "
                  "--footer '{page} of {pages}' --bookmarks files --title Book "
                  "--merge book.pdf *.md *.c");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const PdfProbe book(path("book.pdf"));
        QVERIFY(book.isValid());
        QCOMPARE(book.info(u"Title"_s), u"Book"_s);
        QCOMPARE(linesOf(book, 1).first(), u"1 Intro.md"_s);
        QCOMPARE(linesOf(book, 2), QStringList({u"2 Code.c"_s, u"int main()"_s, u"{"_s,
                                                u"return 0;"_s, u"}"_s, u"2 of 2"_s}));
        const QByteArray outline = outlineOf("book.pdf");
        QVERIFY2(outline.contains("1 Intro") && outline.contains("2 Code"), outline);
    }
};

FOLIOFORGE_TEST(EverydayJobsTest)
#include "EverydayJobsTest.moc"
