// SPDX-License-Identifier: Apache-2.0

#include "convert/Run.h"

#include "error/Error.h"
#include "files/TemporaryFolder.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

namespace {

/// Writes down what it hears.
class Recorder : public RunObserver {
  public:
    void progressChanged(float value) override { values += value; }
    void entryDone(std::size_t index, bool written) override {
        heard += u"entry %1%2"_s.arg(index).arg(written ? u"+"_s : u"-"_s);
    }
    void pdfBegins(std::size_t firstEntry) override { heard += u"begins %1"_s.arg(firstEntry); }
    void pdfDone(const RunResult &result) override {
        heard += u"done %1"_s.arg(result.firstEntry);
        results.push_back(result);
        if (afterPDF) {
            afterPDF();
        }
    }

    QStringList heard;
    QList<float> values;
    std::vector<RunResult> results;
    std::function<void()> afterPDF;
};

} // namespace

class RunTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::vector<PDFFileInfo> m_entries;
    ConversionOptions m_options;

    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    void addTexts(const QStringList &names) {
        for (const QString &name : names) {
            m_entries.emplace_back(
                test::writeFile(m_folder->filePath(name + u".txt"_s), name.toUtf8()),
                SourceReading::WhenWritten);
        }
    }
    void convertAll(Recorder &recorder, const std::stop_token &stop = {}) const {
        TemporaryFolder temporary(path("temporary"));
        Run run(m_entries, m_options, path("bundle"), stop);
        run.convertAll(temporary, recorder);
    }
    QString outputs() const {
        return QDir(path("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' ');
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char *name : {"out", "temporary", "bundle/Contents/Resources"}) {
            QVERIFY(QDir().mkpath(path(name)));
        }
        m_entries.clear();
        m_options = {};
        m_options.outputFolder = path("out");
        m_options.flush = Flush::Never;
    }

    void everyEntryBecomesAPdfInItsTurn() {
        addTexts({u"a"_s, u"b"_s});
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(recorder.heard,
                 u"begins 0,entry 0+,done 0,begins 1,entry 0+,done 1"_s.split(u','));
        QCOMPARE(outputs(), u"a.pdf b.pdf"_s);
        QCOMPARE(PdfProbe(path("out/b.pdf")).text().simplified(), u"b"_s);
    }

    void entriesOfOneNameGetNumbers() {
        addTexts({u"a"_s, u"a"_s});
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(outputs(), u"a(1).pdf a.pdf"_s);
        QCOMPARE(recorder.results.back().outcome.close.path, path("out/a(1).pdf"));
    }

    void aMergeIsOnePdfOfAllEntries() {
        addTexts({u"a"_s, u"b"_s});
        m_options.merge = true;
        m_options.outputName = u"all"_s;
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(recorder.heard, u"begins 0,entry 0+,entry 1+,done 0"_s.split(u','));
        QCOMPARE(outputs(), u"all.pdf"_s);
    }

    void aMergedNameWithASlashIsRefused() {
        addTexts({u"a"_s});
        m_options.merge = true;
        m_options.outputName = u"../all"_s;
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(recorder.results.front().outcome.close.reason,
                 u"A file name cannot hold a slash"_s);
        QVERIFY(!QFile::exists(path("all.pdf")));
    }

    void aFileSystemThatCannotFlushIsNamedOnceInARun() {
        addTexts({u"a"_s, u"b"_s});
        test::FaultyCalls calls;
        calls.failing["fsync"] = EINVAL;
        m_options.calls = calls;
        m_options.flush = Flush::Always;
        Recorder recorder;
        convertAll(recorder);
        const auto remarks = [&](std::size_t pdf) {
            return recorder.results.at(pdf).outcome.entries.front().remarks().join(u'\n');
        };
        QCOMPARE(remarks(0), u"The file system cannot flush files to the disk"_s);
        QCOMPARE(remarks(1), QString());
    }

    void anEntryThatFailsDoesNotEndTheRun() {
        addTexts({u"a"_s, u"b"_s});
        QVERIFY(QFile::remove(path("a.txt")));
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(outputs(), u"b.pdf"_s);
        QVERIFY(
            recorder.results.front().outcome.entries.front().reason.contains(u"No such file"_s));
    }

    void aTextIsReadWhenItsTurnComes() {
        addTexts({u"a"_s, u"b"_s});
        Recorder recorder;
        recorder.afterPDF = [&] { test::writeFile(path("b.txt"), "changed"); };
        convertAll(recorder);
        QCOMPARE(PdfProbe(path("out/b.pdf")).text().simplified(), u"changed"_s);
    }

    void aStopEndsTheRunAfterThePdfInWork() {
        addTexts({u"a"_s, u"b"_s, u"c"_s});
        std::stop_source stop;
        Recorder recorder;
        recorder.afterPDF = [&] { stop.request_stop(); };
        convertAll(recorder, stop.get_token());
        QCOMPARE(outputs(), u"a.pdf"_s);
        QCOMPARE(recorder.results.size(), 1);
    }

    void aPdfThatCannotBeCompressedStaysAsItWas() {
        addTexts({u"a"_s});
        Recorder plain;
        convertAll(plain);
        QVERIFY(!plain.results.front().compression);
        m_options.compressIndex = 1; // The bundle has no filters.
        Recorder recorder;
        convertAll(recorder);
        const auto &compression = recorder.results.front().compression;
        QVERIFY(compression && !compression->error.isEmpty());
        QCOMPARE(PdfProbe(path("out/a(1).pdf")).text().simplified(), u"a"_s);
        QCOMPARE(QDir(path("temporary")).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    void thePassFillsTheSecondHalfOfTheProgressPageByPage() {
        QVERIFY(QFile::copy(test::inSource(u"resources/filters/150m.qfilter"_s),
                            path("bundle/Contents/Resources/150m.qfilter")));
        m_entries.emplace_back(test::writePdf(path("four.pdf"), 4));
        m_options.compressIndex = 1;
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(recorder.results.front().compression->error, QString());
        QCOMPARE(recorder.values, (QList<float>{50, 62.5, 75, 87.5, 100}));
    }

    void aFolderThatLooksLikeATemporaryOneStaysAmongTheOutputs() {
        addTexts({u"a"_s});
        const QString folder = path("out/.folder.x.folioforge-part");
        QCOMPARE(::mkdir(QFile::encodeName(folder).constData(), S_IRWXU), 0);
        Recorder recorder;
        convertAll(recorder);
        QVERIFY(QDir(folder).exists());
    }

    void whatAKilledRunLeftIsRemoved() {
        addTexts({u"a"_s});
        test::writeFile(path("out/.old.abc.folioforge-part"), "half");
        Recorder recorder;
        convertAll(recorder);
        QCOMPARE(outputs(), u"a.pdf"_s);
    }
};

FOLIOFORGE_TEST(RunTest)
#include "RunTest.moc"
