// SPDX-License-Identifier: Apache-2.0

#include "ConversionCase.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QRandomGenerator>

#include <map>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Finished PDFs and their sources with single bits or bytes changed: what a verification lets pass
/// shows no difference on any page. FOLIOFORGE_MUTATIONS sets how many are tried; ten thousand take
/// longer than QTEST_FUNCTION_TIMEOUT lets them by itself.
class MutationsTest : public QObject, protected ConversionCase {
    Q_OBJECT

    static constexpr int kUsual = 400;
    static int count() {
        const int wanted = qEnvironmentVariableIntValue("FOLIOFORGE_MUTATIONS");
        return wanted > 0 ? wanted : kUsual;
    }

    QString copied(const char *name) const {
        QString to = path(name);
        QFile::copy(inSource(u"tests/data/"_s + QLatin1StringView(name)), to);
        QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
        return to;
    }

    void addSources() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"image"_s) &&
                QDir(m_folder->path()).mkpath(u"pdf"_s));
        addText("a.txt", "words (in brackets) \xE6\xBC\xA2\xE5\xAD\x97 \xC5\xBElu\xC5\xA5\n" +
                             QByteArray("and some more of them, too\n").repeated(80));
        for (const char *name :
             {"image/photo.jpg", "image/palette.png", "image/translucent.png",
              "image/bilevel-g4.tif", "image/bilevel-strips.tif", "image/colour.jp2",
              "pdf/writer-form.pdf", "pdf/chromium-letter.pdf"}) {
            addFile(copied(name));
        }
    }

    /// Whether the PDF is held to be all of the sources, without a word.
    bool passes(const QString &pdf) {
        ConversionOptions usual = std::exchange(m_options, m_options);
        m_options.dryRun = true;
        m_options.verifyOnly = pdf;
        for (auto &entry : m_list) {
            entry = std::make_unique<PDFFileInfo>(entry->filePathName());
        }
        const PDFOutcome outcome = convertTo(pdf);
        m_options = usual;
        return outcome.isWritten() &&
               std::ranges::all_of(outcome.entries, [](const EntryOutcome &entry) {
                   return entry.written && entry.verification && entry.verification->holds() &&
                          !entry.verification->isLaidOutOtherwise;
               });
    }

    /// What readers see of a PDF: pixels and characters.
    struct Seen {
        QList<QImage> pages;
        QString text;
        bool operator==(const Seen &) const = default;
    };
    static Seen seen(const QString &pdf) {
        const PdfProbe probe(pdf);
        return {probe.renderAll(300), probe.text()};
    }

    static void flip(QByteArray &bytes, qsizetype at, QRandomGenerator &random, bool oneBit) {
        const int change = oneBit ? 1 << random.bounded(8) : random.bounded(1, 256);
        bytes[at] = static_cast<char>(bytes[at] ^ change);
    }

  private Q_SLOTS:
    void init() {
        setUp();
        m_options.merge = true;
    }

    void aChangedByteOfThePdfIsFoundOrHasNoEffect() {
        addSources();
        const QString pdf = convertTo(path("out/whole.pdf")).close.path;
        const QByteArray whole = readFile(pdf);
        const Seen before = seen(pdf);
        QVERIFY(passes(pdf));
        QRandomGenerator random(20'250'101);
        int found = 0;
        int withoutEffect = 0;
        for (int i = 0; i < count(); ++i) {
            QByteArray changed = whole;
            const auto at = random.bounded(static_cast<quint32>(whole.size()));
            flip(changed, at, random, false);
            const QString file = writeFile(path("changed.pdf"), changed);
            if (!passes(file)) {
                ++found;
                continue;
            }
            ++withoutEffect;
            QVERIFY2(seen(file) == before,
                     qPrintable(u"byte %1, now %2: %3"_s.arg(at)
                                    .arg(static_cast<uchar>(changed[at]))
                                    .arg(QString::fromLatin1(
                                        whole.mid(std::max<qsizetype>(0, at - 40), 80)))));
        }
        qInfo("%d changes found, %d without effect on a page", found, withoutEffect);
        QVERIFY(found > withoutEffect);
    }

    void aChangedBitOfASourceIsFoundOrHasNoEffect() {
        addSources();
        const QString pdf = convertTo(path("out/whole.pdf")).close.path;
        const Seen before = seen(pdf);
        QRandomGenerator random(20'250'102);
        int found = 0;
        int withoutEffect = 0;
        for (int i = 0; i < count() / 4; ++i) {
            const QString source =
                m_list[random.bounded(static_cast<quint32>(m_list.size()))]->filePathName();
            const QByteArray whole = readFile(source);
            QByteArray changed = whole;
            const auto at = random.bounded(static_cast<quint32>(whole.size()));
            flip(changed, at, random, true);
            writeFile(source, changed);
            if (!passes(pdf)) {
                ++found;
            } else {
                ++withoutEffect;
                ConversionOptions usual = m_options;
                m_options.overwrite = Overwrite::Always;
                const QString again = convertTo(path("out/again.pdf")).close.path;
                m_options = usual;
                QVERIFY2(seen(again) == before, qPrintable(u"%1, byte %2"_s.arg(source).arg(at)));
            }
            writeFile(source, whole);
        }
        qInfo("%d changes found, %d without effect on a page", found, withoutEffect);
        QVERIFY(found > 0);
    }
};

FOLIOFORGE_TEST(MutationsTest)
#include "MutationsTest.moc"
