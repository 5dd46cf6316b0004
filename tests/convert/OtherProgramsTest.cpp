// SPDX-License-Identifier: Apache-2.0

#include "compress/CompressionPass.h"
#include "pdf/PDFContext.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <map>
#include <set>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Documents that other programs write, each merged with each: what these programs' readers find in
/// them is in the merged document.
class OtherProgramsTest : public QObject {
    Q_OBJECT

    /// A document, and what other programs read of it.
    struct Source {
        QString path;
        QList<QByteArray> structure;
        QList<QByteArray> attachments;
        QJsonArray fields;
        int pages = 0;
    };

    struct Pair {
        const Source &one;
        const Source &other;
        QString both; ///< Where the merge of them is.
    };

    /// Attributes, one a line, stand in no order.
    static void sortAttributes(QList<QByteArray> &lines) {
        const auto isAttribute = [](const QByteArray &line) { return line.startsWith('/'); };
        for (auto from = lines.begin(); from != lines.end();) {
            const auto first = std::find_if(from, lines.end(), isAttribute);
            from = std::find_if_not(first, lines.end(), isAttribute);
            std::sort(first, from);
        }
    }

    /// What `program` says; the test fails where it does.
    static ToolRun succeeding(const QString &program, const QStringList &arguments) {
        ToolRun run = runTool(program, arguments);
        if (run.exitCode != 0) {
            QTest::qFail(qPrintable(program + u": "_s + QString::fromUtf8(run.err)), __FILE__,
                         __LINE__);
        }
        return run;
    }

    /// The tree of a tagged document with its text, without the elements that only hold all others,
    /// its depth and the numbers of objects, which differ from file to file.
    static QList<QByteArray> structureOf(const QString &path) {
        static const QRegularExpression document(u"^Document( <[^>]*>)?( \\(block\\))?:?$"_s);
        static const QRegularExpression number(u" <[^>]*>|(?<=Object )\\d+ \\d+"_s);
        // Identifiers that another source has too get a number, and another one in a further merge.
        static const QRegularExpression suffix(u"(_\\d+)+(?=\\))"_s);
        QList<QByteArray> lines;
        const ToolRun run = succeeding(u"pdfinfo"_s, {u"-struct-text"_s, path});
        for (const QByteArray &line : run.out.split('\n')) {
            QString text = QString::fromUtf8(line.trimmed());
            if (!text.isEmpty() && !document.match(text).hasMatch()) {
                lines += text.remove(number).remove(suffix).toUtf8();
            }
        }
        sortAttributes(lines);
        return lines;
    }

    /// The contents of the files in a document, in no order.
    QList<QByteArray> attachmentsOf(const QString &path) const {
        QTemporaryDir folder;
        QList<QByteArray> contents;
        succeeding(u"pdfdetach"_s, {u"-saveall"_s, u"-o"_s, folder.path(), path});
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files)) {
            contents += readFile(folder.filePath(name));
        }
        std::ranges::sort(contents);
        return contents;
    }

    static QJsonArray fieldsOf(const QString &path) {
        const ToolRun run = succeeding(u"qpdf"_s, {u"--json"_s, u"--json-key=acroform"_s, path});
        return QJsonDocument::fromJson(run.out)[u"acroform"_s][u"fields"_s].toArray();
    }

    /// A field behind `page` pages. It is `numbered` where its name was taken before.
    static QByteArray fieldRow(const QJsonObject &field, int page, bool numbered) {
        const QString name = field[u"fullname"_s].toString();
        const QString number = numbered ? u"_2"_s : QString();
        return u"%1 %2 %3 %4 %5 %6 %7"_s.arg(field[u"pageposfrom1"_s].toInt() + page)
            .arg(name.section(u'.', 0, 0) + number + name.sliced(name.section(u'.', 0, 0).size()),
                 field[u"fieldtype"_s].toString(), field[u"value"_s].toString(),
                 field[u"defaultvalue"_s].toString(),
                 field[u"annotation"_s][u"appearancestate"_s].toString(),
                 QString::number(field[u"fieldflags"_s].toInt()))
            .toUtf8();
    }

    static QSet<QString> firstNames(const Source &source) {
        QSet<QString> names;
        for (const auto &field : source.fields) {
            names += field[u"fullname"_s].toString().section(u'.', 0, 0);
        }
        return names;
    }

    static QList<QByteArray> fieldsOfBoth(const Source &one, const Source &other) {
        const QSet<QString> taken = firstNames(one);
        QList<QByteArray> rows;
        for (const auto &field : one.fields) {
            rows += fieldRow(field.toObject(), 0, false);
        }
        for (const auto &field : other.fields) {
            const QString name = field[u"fullname"_s].toString().section(u'.', 0, 0);
            rows += fieldRow(field.toObject(), one.pages, taken.contains(name));
        }
        return rows;
    }

    /// The PDF of all of `sources`.
    QString merged(const QStringList &sources) {
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        QString path = m_folder.filePath(u"merged%1.pdf"_s.arg(++m_number));
        PDFContext context(path, std::move(settings));
        for (const QString &source : sources) {
            context.addDocument(source);
        }
        const CloseResult result = context.close();
        if (result.status != CloseResult::Status::Written) {
            QTest::qFail(qPrintable(result.reason), __FILE__, __LINE__);
        }
        return path;
    }

    /// A page with a photo that the compression pass makes smaller.
    QString photoDocument() const {
        constexpr int kWidth = 600;
        constexpr int kHeight = 450;
        QString path = m_folder.filePath(u"photo.pdf"_s);
        const bool written =
            photoPage("q 144 0 0 108 50 20 cm /Im0 Do Q")
                .stream(5, imageKeys(kWidth, kHeight, kJpegRgb), jpeg(photo(kWidth, kHeight)))
                .write(path);
        return written ? path : QString();
    }

    static QString nameOfBoth(const Source &one, const Source &other) {
        return QFileInfo(one.path).baseName() + u" + "_s + QFileInfo(other.path).baseName();
    }

  private Q_SLOTS:
    void initTestCase() {
        std::map<QString, QString> documents;
        for (const QDir &folder : // Of one name, what was made now.
             {QDir(madeBy(u"make-documents"_s)), QDir(inSource(u"tests/data/pdf"_s))}) {
            for (const QString &name : folder.entryList({u"*.pdf"_s}, QDir::Files)) {
                documents.emplace(name, folder.filePath(name));
            }
        }
        for (const auto &[name, path] : documents) {
            m_sources.push_back({path, structureOf(path), attachmentsOf(path), fieldsOf(path),
                                 PdfProbe(path).pageCount()});
        }
        QVERIFY(m_sources.size() >= 6);
        const auto anyHas = [this](auto part) {
            return std::ranges::any_of(
                m_sources, [part](const Source &source) { return !(source.*part).isEmpty(); });
        };
        QVERIFY(anyHas(&Source::structure));
        QVERIFY(anyHas(&Source::attachments));
        QVERIFY(anyHas(&Source::fields));
        for (auto one = m_sources.cbegin(); one != m_sources.cend(); ++one) {
            for (auto other = one; other != m_sources.cend(); ++other) {
                m_pairs.push_back({*one, *other, merged({one->path, other->path})});
            }
        }
    }

    void everyPairHasTheStructureOfBoth() {
        for (const auto &[one, other, both] : m_pairs) {
            QVERIFY2(structureOf(both) == one.structure + other.structure,
                     qPrintable(nameOfBoth(one, other)));
        }
    }

    void everyPairHasTheFieldsOfBoth() {
        for (const auto &[one, other, both] : m_pairs) {
            if (!one.fields.isEmpty() || !other.fields.isEmpty()) {
                QList<QByteArray> rows;
                for (const auto &field : fieldsOf(both)) {
                    rows += fieldRow(field.toObject(), 0, false);
                }
                QCOMPARE(rows.join('\n'), fieldsOfBoth(one, other).join('\n'));
            }
        }
    }

    void everyPairHasTheAttachmentsOfBoth() {
        for (const auto &[one, other, both] : m_pairs) {
            auto expected = one.attachments + other.attachments;
            if (!expected.isEmpty()) {
                std::ranges::sort(expected);
                QCOMPARE(attachmentsOf(both), expected);
            }
        }
    }

    /// The documents of all pairs in one, as it is, compressed, and in another document. Under the
    /// sanitizers of neighbours alone: what they watch is the same for each pair.
    void pairsThatAreMergedAgainAndCompressedHaveTheSame() {
        QStringList paths{photoDocument()};
        QList<QByteArray> structure;
        QList<QByteArray> attachments;
        std::set<QString> taken;
        for (const auto &[one, other, both] : m_pairs) {
            if (!isSanitized() || &other == &one + 1) {
                paths += both;
                structure += one.structure + other.structure;
                attachments += one.attachments + other.attachments;
                taken.insert({one.path, other.path});
            }
        }
        QCOMPARE(taken.size(), m_sources.size());
        std::ranges::sort(attachments);
        const QString all = merged(paths);
        const auto fields = fieldsOf(all).size();

        CompressionOptions options;
        options.filterFile = inSource(u"resources/filters/150m.qfilter"_s);
        options.temporaryFolder = m_folder.path();
        const CompressionOutcome outcome = compress(all, options);
        QVERIFY2(outcome.convertInfo, qPrintable(outcome.error));
        const QString compressed = outcome.convertInfo->tempFilePathName;
        const QString again = merged({compressed, photoDocument()});
        for (const QString &path : {all, compressed, again}) {
            QString log;
            QVERIFY2(PdfProbe(path).isValid(&log), qPrintable(log));
            QCOMPARE(structureOf(path), structure);
            QCOMPARE(attachmentsOf(path), attachments);
            QCOMPARE(fieldsOf(path).size(), fields);
        }
    }

    void thePagesOfEachLookAsTheyDid() {
        // By mutool: poppler finds no sign for ticks where a form's fonts are an object of their
        // own.
        const auto drawn = [](const QString &path, const QString &format) {
            return runTool(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-r"_s, u"36"_s, u"-F"_s, format,
                                         u"-o"_s, u"-"_s, path})
                .out;
        };
        for (const Source &source : m_sources) {
            const QString twice = merged({source.path, source.path});
            for (const QString &format : {u"txt"_s, u"pgm"_s}) {
                const QByteArray once = drawn(source.path, format);
                QVERIFY(!once.isEmpty());
                QCOMPARE(drawn(twice, format), once + once);
            }
        }
    }

  private:
    QTemporaryDir m_folder;
    std::vector<Source> m_sources;
    std::vector<Pair> m_pairs; ///< Each source with itself and with every one behind it.
    int m_number = 0;
};

FOLIOFORGE_TEST(OtherProgramsTest)
#include "OtherProgramsTest.moc"
