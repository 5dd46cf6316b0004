// SPDX-License-Identifier: Apache-2.0

#include "preview/PageProcess.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;
using namespace std::chrono_literals;

namespace {

constexpr QSize kRoom(100, 100);

/// What became of a request.
struct Answer {
    int pages = 0; ///< Of the document; 0 where there is no page.
    QString reason;
};

} // namespace

/// The programs are scripts that behave as a page drawer may that a stranger's file has in its
/// hands.
class PageProcessTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// A program that runs `lines` of shell.
    [[nodiscard]] QString program(const QByteArray &lines) const {
        QString script = writeFile(path(u"drawer"_s), "#!/bin/sh\n" + lines);
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return script;
    }

    /// A program that never ends. It writes the number of its process.
    [[nodiscard]] QString sleeping() const {
        return program("echo $$ >'" + QFile::encodeName(path(u"number"_s)) +
                       "'\nexec sleep 1000\n");
    }

    /// A program that answers with `page`.
    [[nodiscard]] QString answering(const DrawnPage &page) const {
        writeFile(path(u"answer"_s), toBytes(page));
        return program("cat '" + QFile::encodeName(path(u"answer"_s)) + "'\n");
    }

    static Answer answerOf(PageProcess &process) {
        Answer answer;
        connect(&process, &PageProcess::drawn, &process,
                [&](const DrawnPage &page) { answer.pages = page.pages; });
        connect(&process, &PageProcess::failed, &process,
                [&](const QString &reason) { answer.reason = reason; });
        process.draw({u"/some.pdf"_s, 0, kRoom}, {});
        [&] { QTRY_VERIFY(answer.pages > 0 || !answer.reason.isEmpty()); }();
        process.disconnect(&process);
        return answer;
    }

    /// Whether the process whose number the script wrote has gone.
    [[nodiscard]] bool hasEnded() const {
        const pid_t number = readFile(path(u"number"_s)).trimmed().toInt();
        return number > 0 && ::kill(number, 0) != 0;
    }

  private Q_SLOTS:
    void aPageComesWithTheCountOfPages() {
        PageProcess process(answering({1, 3, {2, 1}, QByteArray(8, 'x')}));
        QCOMPARE(answerOf(process).pages, 3);
    }

    void noAnswerButAWholePageThatFitsIsTaken_data() {
        QTest::addColumn<DrawnPage>("page");
        QTest::newRow("too few bytes") << DrawnPage{0, 1, {2, 2}, QByteArray(15, 'x')};
        QTest::newRow("too many bytes") << DrawnPage{0, 1, {2, 2}, QByteArray(17, 'x')};
        QTest::newRow("too wide") << DrawnPage{0, 1, {101, 1}, QByteArray(404, 'x')};
        QTest::newRow("no page of the document") << DrawnPage{1, 1, {1, 1}, QByteArray(4, 'x')};
        QTest::newRow("less than nothing") << DrawnPage{0, 1, {-1, -1}, QByteArray(4, 'x')};
    }
    void noAnswerButAWholePageThatFitsIsTaken() {
        QFETCH(const DrawnPage, page);
        PageProcess process(answering(page));
        QCOMPARE(answerOf(process).reason, u"The page cannot be shown"_s);
    }

    void whateverEndsTheProgramIsSaidInWords_data() {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("reason");
        const QString cannot = u"The page cannot be shown"_s;
        QTest::newRow("a crash") << QByteArray("kill -SEGV $$\n") << cannot;
        QTest::newRow("no answer") << QByteArray("true\n") << cannot;
        QTest::newRow("no end of an answer") << QByteArray("exec cat /dev/zero\n") << cannot;
        QTest::newRow("no PDF") << QByteArray("exit 3\n") << u"The PDF cannot be read"_s;
        QTest::newRow("password") << QByteArray("exit 4\n") << u"The PDF asks for a password"_s;
    }
    void whateverEndsTheProgramIsSaidInWords() {
        QFETCH(const QByteArray, script);
        QFETCH(const QString, reason);
        PageProcess process(program(script));
        QCOMPARE(answerOf(process).reason, reason);
    }

    void aProgramThatIsMissingIsSaidInWords() {
        PageProcess process(path(u"none"_s));
        QCOMPARE(answerOf(process).reason, u"The page cannot be shown"_s);
    }

    void aProgramThatNeverEndsIsEnded() {
        PageProcess process(sleeping(), 300ms);
        QCOMPARE(answerOf(process).reason, u"The page takes too long to be shown"_s);
        QTRY_VERIFY(hasEnded());
    }

    void nothingIsHeardOfAProcessThatIsGoing() {
        auto process = std::make_unique<PageProcess>(sleeping());
        const QSignalSpy failed(process.get(), &PageProcess::failed);
        process->draw({u"/some.pdf"_s, 0, kRoom}, {});
        QTRY_VERIFY(QFileInfo(path(u"number"_s)).size() > 0);
        process.reset();
        QCOMPARE(failed.size(), 0);
        QTRY_VERIFY(hasEnded());
    }

    void onlyTheLastRequestIsAnswered() {
        // The pages of the answer are those of the request.
        const QString drawer = program("sleep 0.1\nexit $2\n");
        PageProcess process(drawer);
        const QSignalSpy failed(&process, &PageProcess::failed);
        process.draw({u"/some.pdf"_s, 3, kRoom}, {});
        process.draw({u"/some.pdf"_s, 4, kRoom}, {});
        QTRY_COMPARE(failed.count(), 1);
        QTest::qWait(200);
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.front().front().toString(), u"The PDF asks for a password"_s);
    }

    void thePasswordIsNoArgument() {
        PageProcess process(program("cat >'" + QFile::encodeName(path(u"in"_s)) +
                                    "'\necho \"$@\" >'" + QFile::encodeName(path(u"arguments"_s)) +
                                    "'\n"));
        const QSignalSpy failed(&process, &PageProcess::failed);
        process.draw({u"/some.pdf"_s, 7, kRoom}, u"s€cret"_s);
        QTRY_COMPARE(failed.count(), 1);
        QCOMPARE(readFile(path(u"in"_s)), QByteArray("s€cret"));
        QCOMPARE(readFile(path(u"arguments"_s)), QByteArray("/some.pdf 7 100 100\n"));
    }
};

FOLIOFORGE_TEST(PageProcessTest)
#include "PageProcessTest.moc"
