// SPDX-License-Identifier: Apache-2.0

#include "files/LinePieces.h"

#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

/// In which pieces a file of lines is read.
class LinePiecesTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_path;

    LinePieces piecesOf(const QByteArray &bytes) const {
        return LinePieces(SourceFile::open(test::writeFile(m_path, bytes)));
    }
    static QByteArrayList all(LinePieces &pieces) {
        QByteArrayList read;
        while (!pieces.isAtEnd()) {
            read += pieces.next();
        }
        return read;
    }

  private Q_SLOTS:
    void init() { m_path = m_folder.filePath(u"source"_s); }

    void aLongFileComesInPiecesOfWholeLines() {
        const QByteArray bytes = QByteArray("seven\n").repeated(LinePieces::kUsual / 2) + "the end";
        LinePieces pieces = piecesOf(bytes);
        const QByteArrayList read = all(pieces);
        QCOMPARE(read.size(), 4);
        QCOMPARE(read.join(), bytes);
        for (qsizetype i = 0; i < 3; ++i) {
            QVERIFY(read[i].size() < 2 * LinePieces::kUsual);
            QVERIFY(read[i].endsWith('\n'));
        }
        QVERIFY(pieces.next().isEmpty());
    }

    void aLineLongerThanAPieceStaysWhole() {
        const QByteArray line = QByteArray(3 * LinePieces::kUsual, 'x') + '\n';
        const QByteArray rest = QByteArray("short\n").repeated(LinePieces::kUsual);
        LinePieces pieces = piecesOf(line + rest);
        const QByteArrayList read = all(pieces);
        QVERIFY(read.size() > 2);
        QVERIFY(read.front().startsWith(line));
        QCOMPARE(read.join(), line + rest);
    }

    void anEmptyFileHasNoPiece() {
        LinePieces pieces = piecesOf({});
        QVERIFY(pieces.next().isEmpty());
        QVERIFY(pieces.isAtEnd());
    }

    /// As those of the system, which are made while they are read.
    void aFileThatStatesNoSizeIsReadToItsEnd() {
        const QString path = u"/proc/kallsyms"_s;
        const QByteArray bytes = test::readFile(path);
        if (bytes.size() <= LinePieces::kUsual || QFileInfo(path).size() != 0) {
            QSKIP("this system has no such file");
        }
        LinePieces pieces(SourceFile::open(path));
        QCOMPARE(all(pieces).join(), bytes);
    }

    void afterRewindingTheFirstPieceComesAgain() {
        LinePieces pieces = piecesOf(QByteArray("seven\n").repeated(LinePieces::kUsual / 2));
        const QByteArray first = pieces.next();
        pieces.rewind();
        QVERIFY(pieces.isAtBegin());
        QCOMPARE(pieces.next(), first);
    }

    void aFileThatChangesIsRefusedAtItsEnd() {
        LinePieces pieces = piecesOf(QByteArray("seven\n").repeated(LinePieces::kUsual / 4));
        QVERIFY(!pieces.next().isEmpty());
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
        file.close();
        QVERIFY_THROWS_EXCEPTION(Error, all(pieces));
    }
};

FOLIOFORGE_TEST(LinePiecesTest)
#include "LinePiecesTest.moc"
