// SPDX-License-Identifier: Apache-2.0

#include "files/SourceReader.h"

#include "error/Error.h"
#include "files/SourceFile.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

constexpr qint64 kSize = 1 << 20;

/// What happens to a file while it is read.
void shrink(const QByteArray &path) {
    QCOMPARE(::truncate(path.constData(), kSize / 2), 0);
}
void grow(const QByteArray &path) {
    QCOMPARE(::truncate(path.constData(), kSize * 2), 0);
}
void overwrite(const QByteArray &path) {
    QFile file(QFile::decodeName(path));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write("other"), 5);
    file.close();
    // As some moments later: the clock of file systems ticks only every few milliseconds.
    const std::array<timespec, 2> later{{{0, UTIME_OMIT}, {2'000'000'000, 0}}};
    QCOMPARE(::utimensat(AT_FDCWD, path.constData(), later.data(), 0), 0);
}

using Change = void (*)(const QByteArray &);

} // namespace

Q_DECLARE_METATYPE(Change)

/// Source files that change while they are read give an error.
class SourceReaderTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_path;

    static void addChanges() {
        QTest::addColumn<Change>("change");
        QTest::newRow("shrinks") << Change(shrink);
        QTest::newRow("grows") << Change(grow);
        QTest::newRow("is overwritten") << Change(overwrite);
    }

  private Q_SLOTS:
    void init() {
        m_path = m_folder.filePath(u"source"_s);
        test::writeFile(m_path, QByteArray(kSize, 'x'));
    }

    void aFileThatStaysIsRead() {
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        const auto bytes = reader.view(file, kSize - 4, 4);
        QCOMPARE(QByteArray(bytes.data(), 4), QByteArray("xxxx"));
        reader.finish();
        QVERIFY(!reader.failure());
    }

    void aChangeWhileItIsReadIsAnError_data() { addChanges(); }
    void aChangeWhileItIsReadIsAnError() {
        QFETCH(Change, change);
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        QCOMPARE(reader.view(file, 0, 4).size(), std::size_t(4));
        change(QFile::encodeName(m_path));
        QVERIFY_THROWS_EXCEPTION(Error, reader.finish());
        QVERIFY(reader.failure()->contains(m_path));
    }

    void aChangeIsFoundWhenTheNextFileIsRead_data() { addChanges(); }
    void aChangeIsFoundWhenTheNextFileIsRead() {
        QFETCH(Change, change);
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        const FileVersion next =
            FileVersion::of(test::writeFile(m_folder.filePath(u"next"_s), "next"));
        QCOMPARE(reader.view(file, 0, 4).size(), std::size_t(4));
        change(QFile::encodeName(m_path));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(reader.view(next, 0, 4)));
        QVERIFY(reader.failure()->contains(m_path));
    }

    void aChangeBeforeItIsReadIsAnError_data() { addChanges(); }
    void aChangeBeforeItIsReadIsAnError() {
        QFETCH(Change, change);
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        change(QFile::encodeName(m_path));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(reader.view(file, 0, 4)));
    }

    void bytesThatAreGoneAreAnError() {
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        QCOMPARE(reader.view(file, 0, 4).size(), std::size_t(4));
        shrink(QFile::encodeName(m_path));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(reader.view(file, kSize / 2, 4)));
    }

    void aPipeThatTookTheNameIsNotWaitedFor() {
        SourceReader reader;
        const FileVersion file = FileVersion::of(m_path);
        QVERIFY(QFile::remove(m_path));
        QCOMPARE(::mkfifo(QFile::encodeName(m_path).constData(), 0600), 0);
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(reader.view(file, 0, 4)));
        QVERIFY(QFile::remove(m_path));
    }

    void anImageThatChangesWhileItIsDecodedIsAnError_data() { addChanges(); }
    void anImageThatChangesWhileItIsDecodedIsAnError() {
        QFETCH(Change, change);
        const SourceFile file = SourceFile::open(m_path);
        file.requireUnchanged();
        change(QFile::encodeName(m_path));
        QVERIFY_THROWS_EXCEPTION(Error, file.requireUnchanged());
    }
};

FOLIOFORGE_TEST(SourceReaderTest)
#include "SourceReaderTest.moc"
