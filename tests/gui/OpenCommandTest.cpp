#include "mainwnd/OpenCommand.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace folioforge;

class OpenCommandTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theCommandQuotesThePath() {
        QCOMPARE(openCommand(QStringLiteral("open"), QStringLiteral("/a b/c.pdf")),
                 QByteArray("open \"/a b/c.pdf\""));
    }

    void onlyTheDollarSignIsEscaped() {
        QCOMPARE(openCommand(QStringLiteral("open"), QStringLiteral("/$HOME/$.pdf")),
                 QByteArray("open \"/\\$HOME/\\$.pdf\""));
    }

    void aDoubleQuoteIsPassedAsItIs() {
        QCOMPARE(openCommand(QStringLiteral("open"), QStringLiteral("/a\"b.pdf")),
                 QByteArray("open \"/a\"b.pdf\""));
    }

    void namesOtherThanASCIIAreTheFileSystemsBytes() {
        QCOMPARE(openCommand(QStringLiteral("open"), QStringLiteral("/会.pdf")),
                 QByteArray("open \"/\xe4\xbc\x9a.pdf\""));
    }

    void whatEndsOrEscapesTheQuotesIsNotSafe_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("safe");
        QTest::newRow("plain") << QStringLiteral("/a/b c.pdf") << true;
        QTest::newRow("dollar") << QStringLiteral("/a/$(x).pdf") << true;
        QTest::newRow("single quote, semicolon") << QStringLiteral("/a/b';c.pdf") << true;
        QTest::newRow("double quote") << QStringLiteral("/a/\".pdf") << false;
        QTest::newRow("backquote") << QStringLiteral("/a/`x`.pdf") << false;
        QTest::newRow("backslash") << QStringLiteral("/a/\\.pdf") << false;
        QTest::newRow("line feed") << QStringLiteral("/a/\n.pdf") << false;
        QTest::newRow("carriage return") << QStringLiteral("/a/\r.pdf") << false;
        QTest::newRow("relative") << QStringLiteral("--version/a.pdf") << false;
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
        QTest::newRow("expansion") << QStringLiteral("/x/$HOME ${PATH}.pdf");
        QTest::newRow("substitution") << QStringLiteral("/x/$(touch pwned).pdf");
        QTest::newRow("separators") << QStringLiteral("/x/a; b & c | d > e.pdf");
        QTest::newRow("patterns") << QStringLiteral("/x/* ? [a] ~ ! #.pdf");
        QTest::newRow("other scripts") << QStringLiteral("/x/会議 é.pdf");
    }

    void aSafePathReachesItsCommandAsOneUnchangedWord() {
        QFETCH(const QString, path);
        QVERIFY(isSafeInShell(path));
        const QTemporaryDir folder;
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        const QByteArray command = openCommand(QStringLiteral("printf '<%s>'"), path);
        shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QFile::decodeName(command)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(QFile::decodeName(shell.readAllStandardOutput()), u'<' + path + u'>');
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void theVerbIsOneOfTheTwo() {
        QVERIFY(
            QStringList({QStringLiteral("open"), QStringLiteral("xdg-open")}).contains(openVerb()));
    }
};

QTEST_GUILESS_MAIN(OpenCommandTest)
#include "OpenCommandTest.moc"
