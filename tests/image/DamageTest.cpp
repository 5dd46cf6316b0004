// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Damaged files of every format give an image or a reason, nothing else; the sanitizers watch.
class DamageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cutFilesGiveAnImageOrAReason_data() { addFiles(); }

    void cutFilesGiveAnImageOrAReason() {
        QFETCH(QString, name);
        const QByteArray bytes = bytesOf(imageFile(name));
        const qsizetype step = std::max<qsizetype>(bytes.size() / 40, 1);
        for (qsizetype length = 0; length < bytes.size(); length += step) {
            QVERIFY2(isInOrder(name, bytes.first(length)), qPrintable(QString::number(length)));
        }
    }

    void changedBytesGiveAnImageOrAReason_data() { addFiles(); }

    void changedBytesGiveAnImageOrAReason() {
        QFETCH(QString, name);
        const QByteArray bytes = bytesOf(imageFile(name));
        std::mt19937 random(20240229); // The same changes in every run.
        for (int round = 0; round < 60; ++round) {
            QByteArray changed = bytes;
            // Headers stand at the start and, in TIFF files, at the end: half of the changes go
            // there.
            for (int i = 0; i <= round % 3; ++i) {
                const auto reach = static_cast<quint32>(
                    round % 2 == 0 ? changed.size() : std::min<qsizetype>(changed.size(), 64));
                changed[static_cast<qsizetype>(random() % reach)] = static_cast<char>(random());
            }
            QVERIFY2(isInOrder(name, changed), qPrintable(QString::number(round)));
        }
    }

    void pixelsBehindTheEndAreRefusedWithoutAWord() {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        // A bitmap of 4 x 4 pixels whose first stands at 1000, where the file has ended.
        const QByteArray bitmap =
            "BM" +
            QByteArray::fromHex("6600000000000000e803000028000000040000000400000001001800"
                                "00000000300000000000000000000000000000000000000000") +
            QByteArray(48, '\x7f');
        const QString path = writeFile(m_folder.filePath(u"behind.bmp"_s), bitmap);
        QVERIFY(!refusalOf(path).isEmpty());
    }

    void aCutHeicFileIsRefused() {
        const QByteArray bytes = bytesOf(imageFile(u"colour.heic"_s));
        const QString path =
            writeFile(m_folder.filePath(u"cut.heic"_s), bytes.first(bytes.size() / 2));
        QVERIFY(refusalOf(path).startsWith(u"The HEIC or AVIF file cannot be read: "));
    }

  private:
    QTemporaryDir m_folder;
    int m_files = 0;

    static void addFiles() {
        QTest::addColumn<QString>("name");
        const QStringList names = QDir(imageFile({})).entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }

    /// Writes the bytes under the name's extension and reads them; whether what came is in order.
    bool isInOrder(const QString &name, const QByteArray &bytes) {
        // A new file each time: some file systems flush one that is cut and written again.
        const QString path = writeFile(
            m_folder.filePath(u"%1.%2"_s.arg(++m_files).arg(QFileInfo(name).suffix())), bytes);
        const auto remove = qScopeGuard([&] { QFile::remove(path); });
        const QString reason = refusalOf(path);
        if (!reason.isEmpty()) {
            return true;
        }
        const PdfImage image = toPdfImage(path);
        const bool hasData = !image.data.isEmpty() || !image.slices.empty();
        return hasData && image.width > 0 && image.height > 0 &&
               std::ranges::all_of(image.slices, [&](const FileSlice &slice) {
                   return slice.offset >= 0 && slice.length >= 0 &&
                          slice.offset + slice.length <= bytes.size();
               });
    }
};

FOLIOFORGE_TEST(DamageTest)
#include "DamageTest.moc"
