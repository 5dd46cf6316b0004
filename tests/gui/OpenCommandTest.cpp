// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/Desktop.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

class OpenCommandTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theCommandQuotesThePath() {
        QCOMPARE(openCommand(u"open"_s, u"/a b/c.pdf"_s), QByteArray("open \"/a b/c.pdf\""));
    }

    void onlyTheDollarSignIsEscaped() {
        QCOMPARE(openCommand(u"open"_s, u"/$HOME/$.pdf"_s),
                 QByteArray("open \"/\\$HOME/\\$.pdf\""));
    }

    void aDoubleQuoteIsPassedAsItIs() {
        QCOMPARE(openCommand(u"open"_s, u"/a\"b.pdf"_s), QByteArray("open \"/a\"b.pdf\""));
    }

    void namesOtherThanASCIIAreTheFileSystemsBytes() {
        QCOMPARE(openCommand(u"open"_s, u"/会.pdf"_s), QByteArray("open \"/\xe4\xbc\x9a.pdf\""));
    }

    void whatEndsOrEscapesTheQuotesIsNotSafe_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("safe");
        QTest::newRow("plain") << u"/a/b c.pdf"_s << true;
        QTest::newRow("dollar") << u"/a/$(x).pdf"_s << true;
        QTest::newRow("single quote, semicolon") << u"/a/b';c.pdf"_s << true;
        QTest::newRow("double quote") << u"/a/\".pdf"_s << false;
        QTest::newRow("backquote") << u"/a/`x`.pdf"_s << false;
        QTest::newRow("backslash") << u"/a/\\.pdf"_s << false;
        QTest::newRow("line feed") << u"/a/\n.pdf"_s << false;
        QTest::newRow("carriage return") << u"/a/\r.pdf"_s << false;
        QTest::newRow("relative") << u"--version/a.pdf"_s << false;
        QTest::newRow("null") << QString(QChar(u'\0')) << false;
    }

    void whatEndsOrEscapesTheQuotesIsNotSafe() {
        QFETCH(const QString, path);
        QFETCH(const bool, safe);
        QCOMPARE(isSafeInShell(path), safe);
    }

    /// The real shell is the judge of what a path can do in it.
    void aSafePathReachesItsCommandAsOneUnchangedWord_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("expansion") << u"/x/$HOME ${PATH}.pdf"_s;
        QTest::newRow("substitution") << u"/x/$(touch pwned).pdf"_s;
        QTest::newRow("separators") << u"/x/a; b & c | d > e.pdf"_s;
        QTest::newRow("patterns") << u"/x/* ? [a] ~ ! #.pdf"_s;
        QTest::newRow("other scripts") << u"/x/会議 é.pdf"_s;
    }

    void aSafePathReachesItsCommandAsOneUnchangedWord() {
        QFETCH(const QString, path);
        QVERIFY(isSafeInShell(path));
        const QTemporaryDir folder;
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        const QByteArray command = openCommand(u"printf '<%s>'"_s, path);
        shell.start(u"/bin/sh"_s, {u"-c"_s, QFile::decodeName(command)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(QFile::decodeName(shell.readAllStandardOutput()), u'<' + path + u'>');
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void theVerbIsOneOfTheTwo() {
        QVERIFY(QStringList({u"open"_s, u"xdg-open"_s}).contains(openVerb()));
    }
};

FOLIOFORGE_TEST(OpenCommandTest)
#include "OpenCommandTest.moc"
