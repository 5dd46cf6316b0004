// SPDX-License-Identifier: Apache-2.0

#include "preview/EntryWriter.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class EntryWriterTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] PDFFileInfo text(const QByteArray &words) const {
        return PDFFileInfo(writeFile(path(u"text.txt"_s), words));
    }

    /// What becomes of what was asked for last.
    static WrittenEntry result(EntryWriter &writer) {
        WrittenEntry result;
        bool isDone = false;
        const auto connection =
            connect(&writer, &EntryWriter::written, &writer, [&](const WrittenEntry &entry) {
                result = entry;
                isDone = true;
            });
        [&] { QTRY_VERIFY_WITH_TIMEOUT(isDone, 30'000); }();
        disconnect(connection);
        return result;
    }

  private Q_SLOTS:
    void anEntryIsWrittenWithItsOptions() {
        EntryWriter writer(bundlePath());
        ConversionOptions options;
        options.textPage = {TextPageCustom, 300, 200, {10, 10, 10, 10}};
        writer.write(text("words of the moment\n"), options);
        const WrittenEntry entry = result(writer);
        QCOMPARE(entry.pages, 1);
        const PdfProbe probe(entry.path);
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(0, 0, 300, 200));
        QCOMPARE(probe.text().trimmed(), u"words of the moment"_s);
    }

    void ofALongTextTheFirstPagesAreWritten() {
        EntryWriter writer(bundlePath());
        ConversionOptions options;
        options.maxTextPages = 3;
        writer.write(text(QByteArray("a line of a long text\n").repeated(1'000'000)), options);
        const WrittenEntry entry = result(writer);
        QCOMPARE(entry.pages, 3);
        QCOMPARE(PdfProbe(entry.path).pageCount(), 3);
    }

    void aPictureIsCompressedAsInARun() {
        photo(600, 400).save(path(u"photo.png"_s));
        const auto sizeWith = [this](int compressIndex) {
            EntryWriter writer(bundlePath());
            ConversionOptions options;
            options.imagePage = {ImagePageCustom, 60, 40, {0, 0, 0, 0}};
            options.compressIndex = compressIndex;
            writer.write(PDFFileInfo(path(u"photo.png"_s)), options);
            return QFileInfo(result(writer).path).size();
        };
        QVERIFY(sizeWith(3) < sizeWith(0) / 10);
    }

    void whatIsShownIsNotVerified() {
        const auto bytesMoved = [this](bool verify) {
            FaultyCalls calls;
            ConversionOptions options;
            options.calls = calls;
            options.verify = verify;
            EntryWriter writer(bundlePath());
            writer.write(text("words"), options);
            return result(writer).pages == 1 ? calls.moves() : -1;
        };
        const int moves = bytesMoved(false);
        QVERIFY(moves > 0);
        QCOMPARE(bytesMoved(true), moves);
    }

    void whatIsToBeProtectedIsProtectedInTheTemporaryFile_data() {
        QTest::addColumn<bool>("owners");
        QTest::newRow("user password") << false;
        QTest::newRow("owner password") << true;
    }
    void whatIsToBeProtectedIsProtectedInTheTemporaryFile() {
        QFETCH(const bool, owners);
        EntryWriter writer(bundlePath());
        ConversionOptions options;
        (owners ? options.security.useOwnerPassword : options.security.useUserPassword) = true;
        writer.write(text("secret\n"), options);
        const WrittenEntry entry = result(writer);
        QVERIFY(!entry.password.isEmpty());
        QVERIFY(runTool(u"pdftotext"_s, {entry.path, u"-"_s}).exitCode != 0);
        QCOMPARE(PdfProbe(entry.path, entry.password).text().trimmed(), u"secret"_s);
    }

    void anEntryThatCannotBeWrittenSaysWhy() {
        EntryWriter writer(bundlePath());
        writer.write(PDFFileInfo(writeFile(path(u"broken.png"_s), "no picture\n")), {});
        const WrittenEntry entry = result(writer);
        QVERIFY(entry.path.isEmpty());
        QVERIFY(!entry.reason.isEmpty());
    }

    void onlyTheLastOfManyIsHandedOver() {
        EntryWriter writer(bundlePath());
        const QSignalSpy written(&writer, &EntryWriter::written);
        const PDFFileInfo entry = text(QByteArray("line\n").repeated(20'000));
        for (const qint64 width : {300, 400, 500}) {
            ConversionOptions options;
            options.textPage = {TextPageCustom, width, 200, {0, 0, 0, 0}};
            writer.write(entry, options);
        }
        const WrittenEntry last = result(writer);
        QCOMPARE(PdfProbe(last.path).box(u"MediaBox"_s, 1).width(), 500.0);
        QTest::qWait(100);
        QCOMPARE(written.count(), 1);
    }

    void onlyTheLastFileIsKeptAndGoesWithTheWriter() {
        auto writer = std::make_unique<EntryWriter>(bundlePath());
        writer->write(text("first\n"), {});
        const QString first = result(*writer).path;
        QVERIFY(QFileInfo::exists(first));
        writer->write(text("second\n"), {});
        const QString second = result(*writer).path;
        QVERIFY(!QFileInfo::exists(first));
        QVERIFY(QFileInfo::exists(second));
        writer.reset();
        QVERIFY(!QFileInfo::exists(QFileInfo(second).path()));
    }
};

FOLIOFORGE_TEST(EntryWriterTest)
#include "EntryWriterTest.moc"
