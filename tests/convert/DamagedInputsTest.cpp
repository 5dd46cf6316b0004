// SPDX-License-Identifier: Apache-2.0

#include "convert/Conversion.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kPlaces = 10; ///< At which each file is damaged.

/// Bytes of a file, from the first to the one behind the last.
struct Range {
    qsizetype start;
    qsizetype end;
};

/// Where the damage of number `place` is done to a file of `size` bytes.
Range damagedRange(qsizetype size, int place) {
    constexpr int kMaxLength = 64;
    std::mt19937 random(static_cast<unsigned>(size + place));
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(limit));
    };
    const qsizetype start = below(size);
    return {start, std::min(start + 1 + below(kMaxLength), size)};
}

/// `bytes` with the damage of number `place`: cut off, a gap, or noise instead of what stood there.
QByteArray damaged(const QByteArray &bytes, int place) {
    const auto [start, end] = damagedRange(bytes.size(), place);
    QByteArray before = bytes.first(start);
    const QByteArray after = bytes.sliced(end);
    switch (place % 3) {
    case 0:
        return before;
    case 1:
        return before + after;
    default:
        std::mt19937 random(static_cast<unsigned>(start));
        QByteArray noise(end - start, '\0');
        for (char &byte : noise) {
            byte = static_cast<char>(random());
        }
        return before + noise + after;
    }
}

/// Where the data of fonts stand in the PDF `bytes`. They go into a copy as they are: nobody looks
/// for damage in them.
std::vector<Range> fontData(const QByteArray &bytes) {
    QPDF document;
    document.processMemoryFile("fonts", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    std::vector<Range> ranges;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        for (const char *key : {"/FontFile", "/FontFile2", "/FontFile3"}) {
            if (object.isDictionary() && object.hasKey(key)) {
                auto font = object.getKey(key);
                const qsizetype start = font.getParsedOffset();
                ranges.push_back({start, start + font.getDict().getKey("/Length").getIntValue()});
            }
        }
    }
    return ranges;
}

} // namespace

/// What is damaged looks as it did before, or something is said about it.
class DamagedInputsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// The pages of the PDF at `file` as mutool draws them.
    static QByteArray drawn(const QString &file) {
        return runTool(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-r"_s, u"36"_s, u"-F"_s, u"pnm"_s,
                                     u"-o"_s, u"-"_s, file})
            .out;
    }

    /// What is said about the PDF that is made of the file at `source` alone; it is written to
    /// `target`.
    static QStringList wordsOn(const QString &source, const QString &target) {
        ConversionOptions options;
        options.flush = Flush::Never;
        const PDFFileInfo info(source);
        const PDFOutcome outcome = createPDF(std::array{&info}, target, options);
        QStringList words{outcome.close.reason};
        for (const EntryOutcome &entry : outcome.entries) {
            words += entry.reason;
            for (const Warning &warning : entry.warnings) {
                words += warning.text;
            }
        }
        words.removeAll(QString());
        return words;
    }

    /// Damages the file at `file` at kPlaces places. Each copy must give the same pixels as the
    /// file itself, or words. What stands in `apart` is not damaged.
    void requirePixelsOrWords(const QString &file, const std::vector<Range> &apart = {}) {
        const QByteArray bytes = readFile(file);
        const QString target = path(u"target.pdf"_s);
        const auto convert = [&](const QByteArray &source) {
            QFile::remove(target);
            return wordsOn(writeFile(path(u"damaged."_s + QFileInfo(file).suffix()), source),
                           target);
        };
        QCOMPARE(convert(bytes), QStringList());
        const QByteArray pixels = drawn(target);
        QVERIFY(!pixels.isEmpty());
        for (int place = 0, done = 0; done < kPlaces; ++place) {
            const Range range = damagedRange(bytes.size(), place);
            if (std::ranges::any_of(apart, [&](const Range &kept) {
                    return range.start < kept.end && kept.start < range.end;
                })) {
                continue;
            }
            ++done;
            const QStringList words = convert(damaged(bytes, place));
            QVERIFY2(!words.isEmpty() || drawn(target) == pixels,
                     qPrintable(u"%1, damage %2"_s.arg(file).arg(place)));
        }
    }

  private Q_SLOTS:
    void pdfs_data() {
        QTest::addColumn<QStringList>("maker");
        QTest::newRow("by hand") << QStringList();
        QTest::newRow("by cairo") << QStringList{u"pdftocairo"_s, u"-pdf"_s, u"IN"_s, u"OUT"_s};
        QTest::newRow("by mutool")
            << QStringList{u"mutool"_s, u"clean"_s, u"-z"_s, u"IN"_s, u"OUT"_s};
        QTest::newRow("with object streams")
            << QStringList{u"qpdf"_s, u"--object-streams=generate"_s, u"IN"_s, u"OUT"_s};
        QTest::newRow("linearized") << QStringList{u"qpdf"_s, u"--linearize"_s, u"IN"_s, u"OUT"_s};
    }
    void pdfs() {
        QFETCH(QStringList, maker);
        const QString plain = path(u"plain.pdf"_s);
        QVERIFY(PdfFixture().object(1, kCatalog).pages(4, 3).write(plain));
        if (maker.isEmpty()) {
            requirePixelsOrWords(plain);
            return;
        }
        const QString made = path(u"made.pdf"_s);
        QFile::remove(made);
        maker.replaceInStrings(u"IN"_s, plain).replaceInStrings(u"OUT"_s, made);
        runTool(maker.first(), maker.sliced(1));
        requirePixelsOrWords(made, fontData(readFile(made)));
    }
};

FOLIOFORGE_TEST(DamagedInputsTest)
#include "DamagedInputsTest.moc"
