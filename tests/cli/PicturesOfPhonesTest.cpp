// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Pictures that phones and the web make today: what pdfimages finds in the PDF is what the
/// format's own program decodes.
class PicturesOfPhonesTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// Colours and opacity of 61 x 43 pixels, no multiple of any block.
    QString source(bool hasAlpha) const {
        QImage picture(61, 43, QImage::Format_ARGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int opacity = hasAlpha ? 40 + x * 3 : 255;
                picture.setPixel(x, y, qRgba(x * 4, y * 5, (x * y * 3 + 40) % 256, opacity));
            }
        }
        QString file = path("source.png");
        picture.save(file);
        return file;
    }

    static QStringList filled(const QString &arguments, const QString &in, const QString &out) {
        QStringList filled = arguments.split(u' ');
        filled.replaceInStrings(u"IN"_s, in);
        filled.replaceInStrings(u"OUT"_s, out);
        return filled;
    }

    /// The picture of the PDF, with its opacity, as pdfimages reads it; that of 16 bits, which
    /// pdfimages reads wrong, as mutool draws it.
    QImage pictureOf(const QString &pdf) const {
        if (PdfProbe(pdf).images().first().at(7) == u"16") {
            return PdfProbe(pdf).renderWithMutool(1).convertToFormat(QImage::Format_RGBA64);
        }
        runTool(u"pdfimages"_s, {u"-png"_s, pdf, path("found")});
        QImage picture = QImage(path("found-000.png")).convertToFormat(QImage::Format_RGBA64);
        const QImage mask =
            QImage(path("found-001.png")).convertToFormat(QImage::Format_Grayscale16);
        for (int y = 0; y < mask.height(); ++y) {
            for (int x = 0; x < mask.width(); ++x) {
                QColor color = picture.pixelColor(x, y);
                color.setRgba64(qRgba64(color.rgba64().red(), color.rgba64().green(),
                                        color.rgba64().blue(),
                                        mask.pixelColor(x, y).rgba64().red()));
                picture.setPixelColor(x, y, color);
            }
        }
        return picture;
    }

    /// The largest difference of a sample, in 65535 steps; colours that are not seen do not count.
    static int difference(const QImage &one, const QImage &other) {
        int largest = one.size() == other.size() ? 0 : 65536;
        for (int y = 0; y < one.height() && largest < 65536; ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QRgba64 a = one.pixelColor(x, y).rgba64();
                const QRgba64 b = other.pixelColor(x, y).rgba64();
                largest = std::max({largest, qAbs(a.red() - b.red()), qAbs(a.green() - b.green()),
                                    qAbs(a.blue() - b.blue()), qAbs(a.alpha() - b.alpha())});
            }
        }
        return largest;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void pixelsAreThoseOfTheFormatsOwnProgram_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("hasAlpha");
        QTest::addColumn<QString>("maker");
        QTest::addColumn<QString>("reader");
        QTest::addColumn<int>("rounding");
        const auto add = [](const char *name, const char *file, bool hasAlpha, const char *maker,
                            const char *reader, int rounding = 0) {
            QTest::newRow(name) << QString::fromLatin1(file) << hasAlpha
                                << QString::fromLatin1(maker) << QString::fromLatin1(reader)
                                << rounding;
        };
        constexpr int kStepOfEight = 257;
        const char *const webp = "dwebp IN -o OUT";
        add("WebP", "a.webp", false, "cwebp -q 70 IN -o OUT", webp);
        add("WebP without loss", "a.webp", false, "cwebp -lossless IN -o OUT", webp);
        add("WebP with opacity", "a.webp", true, "cwebp -q 70 IN -o OUT", webp);
        const char *const heic = "heif-convert IN OUT";
        add("HEIC", "a.heic", false, "heif-enc -q 60 IN -o OUT", heic);
        add("HEIC, other extension", "a.heif", false, "heif-enc -q 60 IN -o OUT", heic);
        add("HEIC with opacity", "a.heic", true, "heif-enc -q 60 IN -o OUT", heic);
        const char *const avif = "avifdec IN OUT";
        add("AVIF", "a.avif", false, "avifenc -j 1 -y 444 IN OUT", avif, 2 * kStepOfEight);
        add("AVIF of 10 bits", "a.avif", false, "avifenc -j 1 -y 444 -d 10 IN OUT", avif,
            kStepOfEight);
        add("AVIF of 12 bits", "a.avif", false, "avifenc -j 1 -y 444 -d 12 IN OUT", avif,
            kStepOfEight);
        add("AVIF with opacity", "a.avif", true, "avifenc -j 1 -y 444 IN OUT", avif,
            2 * kStepOfEight);
        const char *const jxl = "djxl IN OUT";
        add("JPEG XL", "a.jxl", false, "cjxl -d 1 IN OUT", jxl);
        add("JPEG XL without loss", "a.jxl", false, "cjxl -d 0 IN OUT", jxl);
        add("JPEG XL with opacity", "a.jxl", true, "cjxl -d 1 IN OUT", jxl);
    }

    void pixelsAreThoseOfTheFormatsOwnProgram() {
        QFETCH(const QString, file);
        QFETCH(const bool, hasAlpha);
        QFETCH(const QString, maker);
        QFETCH(const QString, reader);
        QFETCH(const int, rounding);
        const QString made = path(qPrintable(file));
        const QString read = path("read.png");
        QStringList arguments = filled(maker, source(hasAlpha), made);
        QCOMPARE(runTool(arguments.takeFirst(), arguments).exitCode, 0);
        arguments = filled(reader, made, read);
        QCOMPARE(runTool(arguments.takeFirst(), arguments).exitCode, 0);
        const ToolRun run = merge("a.pdf", {made});
        QCOMPARE(run.err, "");
        QCOMPARE(run.exitCode, 0);
        QVERIFY(PdfProbe(path("a.pdf")).isValid());
        QCOMPARE(PdfProbe(path("a.pdf")).images().size(), hasAlpha ? 2 : 1);
        const int worst = difference(pictureOf(path("a.pdf")),
                                     QImage(read).convertToFormat(QImage::Format_RGBA64));
        QVERIFY2(worst <= rounding, qPrintable(QString::number(worst)));
    }

    void foldersGiveThem() {
        QVERIFY(QDir(path("in")).mkpath(u"deeper"_s));
        const QString data = inSource(u"tests/data/image/colour."_s);
        for (const QString &name : {u"webp"_s, u"heic"_s, u"avif"_s, u"jxl"_s}) {
            QVERIFY(QFile::copy(data + name, path("in/deeper/a.") + name));
        }
        QVERIFY(QFile::copy(data + u"heic"_s, path("in/b.heif")));
        const ToolRun run = merge("all.pdf", {u"--recursive"_s, path("in")});
        QCOMPARE(run.err, "");
        QCOMPARE(PdfProbe(path("all.pdf")).pageCount(), 5);
    }

    void standardInputTellsThemByTheirBytes() {
        for (const QString &name : {u"webp"_s, u"heic"_s, u"avif"_s, u"jxl"_s}) {
            const QByteArray bytes = readFile(inSource(u"tests/data/image/colour."_s) + name);
            QCOMPARE(convert({u"-"_s}, bytes).exitCode, 0);
        }
        QCOMPARE(QDir(path("out")).entryList(QDir::Files).size(), 4);
    }
};

FOLIOFORGE_TEST(PicturesOfPhonesTest)
#include "PicturesOfPhonesTest.moc"
