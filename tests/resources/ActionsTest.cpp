// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QXmlStreamReader>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

namespace {

/// Stands in for what nautilus-python gives to extensions, and chooses the entry argv[2] of the
/// extension argv[1] for the files behind; "none" prints the labels of all entries.
constexpr const char *kNautilus = R"(
import importlib.util, mimetypes, os, pathlib, sys, types

class MenuItem:
    def __init__(self, **said): self.said = said
    def connect(self, signal, called): self.called = called

class FileInfo:
    def __init__(self, path): self.path = path
    def get_uri(self): return pathlib.Path(self.path).as_uri()
    def get_uri_scheme(self): return "file"
    def get_mime_type(self): return mimetypes.guess_type(self.path)[0]

repository = types.ModuleType("gi.repository")
repository.GLib = types.SimpleNamespace(
    get_language_names=lambda: [os.environ["LANGUAGE"] + ".UTF-8", os.environ["LANGUAGE"], "C"])
repository.GObject = types.SimpleNamespace(GObject=type("G", (), {}))
repository.Nautilus = types.SimpleNamespace(MenuProvider=type("P", (), {}), MenuItem=MenuItem)
sys.modules["gi"] = types.ModuleType("gi")
sys.modules["gi.repository"] = repository
spec = importlib.util.spec_from_file_location("extension", sys.argv[1])
extension = importlib.util.module_from_spec(spec)
spec.loader.exec_module(extension)
items = extension.FolioforgeMenu().get_file_items([FileInfo(path) for path in sys.argv[3:]])
if sys.argv[2] == "none":
    print("\n".join(item.said["label"] for item in items))
else:
    chosen = [item for item in items if item.said["name"] == "Folioforge::" + sys.argv[2]]
    chosen[0].called(chosen[0])
    sys.exit(os.waitstatus_to_exitcode(os.wait()[1]))
)";

/// The value of `key` in the group of a file of keys.
QString valueOf(const QString &file, const QString &group, const QString &key) {
    for (bool inGroup = false; const QByteArray &line : readFile(file).split('\n')) {
        if (line.startsWith('[')) {
            inGroup = line == '[' + group.toUtf8() + ']';
        } else if (inGroup && line.startsWith(key.toUtf8() + '=')) {
            return QString::fromUtf8(line.sliced(key.size() + 1));
        }
    }
    return {};
}

/// The texts of all elements `name` of an XML file; empty where it is none.
QStringList textsOf(const QString &file, const QString &name) {
    QXmlStreamReader xml(readFile(file));
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == name) {
            texts += xml.readElementText();
        }
    }
    return xml.hasError() ? QStringList() : texts;
}

} // namespace

/// The entries in the menus of file managers, each called as its file manager does it.
class ActionsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_prefix;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_desktop;
    QString m_language;

    QString installed(const char *path) const { return m_prefix.filePath(QLatin1StringView(path)); }

    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    /// Runs `command` where the installed programs, and those of the test, are found first.
    ToolRun run(const QStringList &command) const {
        return runTool(u"env"_s,
                       QStringList{u"PATH=%1/bin:%2/bin:/usr/bin:/bin"_s.arg(m_prefix.path(),
                                                                             m_folder->path()),
                                   u"HOME="_s + m_folder->path(), u"XDG_CONFIG_HOME="_s,
                                   u"XDG_CURRENT_DESKTOP="_s + m_desktop, u"DISPLAY=:none"_s,
                                   u"WAYLAND_DISPLAY="_s, u"DBUS_SESSION_BUS_ADDRESS="_s,
                                   u"LANGUAGE="_s + m_language} +
                           command);
    }

    /// Puts a program in place that keeps what it is asked to show, ends with `exitCode` and
    /// reaches no desktop.
    void standIn(const QString &program, int exitCode = 0) const {
        const QString script =
            writeFile(inFolder(u"bin/"_s + program),
                      "#!/bin/sh\nprintf '%s\\n' \"$@\" >>\"$HOME/${0##*/}.shown\"\nexit " +
                          QByteArray::number(exitCode) + '\n');
        QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
    }

    /// What the stand-in for `program` was asked to show.
    QString shownBy(const QString &program) const {
        QFile shown(inFolder(program + u".shown"_s));
        return shown.open(QFile::ReadOnly) ? QString::fromUtf8(shown.readAll()) : QString();
    }

    /// The entry `what` of Dolphin, chosen for `files`.
    ToolRun dolphin(const QString &what, const QStringList &files) const {
        QStringList command = QProcess::splitCommand(
            valueOf(installed("share/kio/servicemenus/folioforge-dolphin.desktop"),
                    u"Desktop Action folioforge-"_s + what, u"Exec"_s));
        return command.takeLast() == u"%F" ? run(command + files) : ToolRun();
    }

    /// Nemo puts addresses in quotes as its file asks for, and splits the line as a shell does.
    ToolRun nemo(const QString &what, const QStringList &files) const {
        const QString file =
            installed("share/nemo/actions/folioforge-%.nemo_action").replace(u'%', what);
        const QString group = u"Nemo Action"_s;
        const QString quote = valueOf(file, group, u"Quote"_s) == u"double" ? u"\""_s : QString();
        QStringList words;
        for (const QString &name : files) {
            words += quote + QUrl::fromLocalFile(name).toString(QUrl::FullyEncoded) + quote;
        }
        return run(QProcess::splitCommand(
            valueOf(file, group, u"Exec"_s).replace(u"%U"_s, words.join(u' '))));
    }

    ToolRun nautilus(const QString &what, const QStringList &files) const {
        return run(QStringList{u"python3"_s, u"-c"_s, QString::fromLatin1(kNautilus),
                               installed("share/nautilus-python/extensions/folioforge-nautilus.py"),
                               what} +
                   files);
    }

    /// Thunar hands paths over as a shell wants them quoted.
    ToolRun thunar(const QString &what, const QStringList &files) const {
        run({u"folioforge-action"_s, u"--add-to-thunar"_s});
        QStringList words;
        for (QString name : files) {
            words += u'\'' + name.replace(u'\'', u"'\\''"_s) + u'\'';
        }
        for (QString command : textsOf(inFolder(u".config/Thunar/uca.xml"_s), u"command"_s)) {
            if (command.contains(u' ' + what + u' ')) {
                return run({u"sh"_s, u"-c"_s, command.replace(u"%F"_s, words.join(u' '))});
            }
        }
        return {};
    }

    ToolRun choose(const QString &manager, const QString &what, const QStringList &files) const {
        return manager == u"Dolphin"    ? dolphin(what, files)
               : manager == u"Nemo"     ? nemo(what, files)
               : manager == u"Nautilus" ? nautilus(what, files)
                                        : thunar(what, files);
    }

    static void managers() {
        QTest::addColumn<QString>("manager");
        for (const char *manager : {"Dolphin", "Nemo", "Nautilus", "Thunar"}) {
            QTest::newRow(manager) << QString::fromLatin1(manager);
        }
    }

    QStringList inputs() const {
        QDir(m_folder->path()).mkpath(u"a b"_s);
        return {writeFile(inFolder(u"a b/it's 5% \"off\" for $HOME.txt"_s), "words"),
                writeFile(inFolder(u"a b/page.txt"_s), "words"),
                writePng(inFolder(u"a b/page.png"_s), 20, 10)};
    }

    QStringList pdfs() const {
        return QDir(inFolder(u"a b"_s)).entryList({u"*.pdf"_s}, QDir::Files, QDir::Name);
    }

    /// Makes a PDF of each, and gives the exit status.
    int makeEach(const QStringList &files) const {
        return run(QStringList{u"folioforge-action"_s, u"each"_s} + files).exitCode;
    }

    QString badPicture(const QString &name) const { return writeFile(inFolder(name), "no"); }

  private Q_SLOTS:
    void initTestCase() {
        const ToolRun made =
            runTool(u"cmake"_s, {u"--install"_s, inBuild({}), u"--prefix"_s, m_prefix.path()});
        QVERIFY2(made.exitCode == 0, made.err.constData());
    }
    void init() {
        m_desktop = u"GNOME"_s;
        m_language = u"en"_s;
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"bin"_s));
        for (const QString &program : {u"notify-send"_s, u"zenity"_s, u"kdialog"_s}) {
            standIn(program);
        }
    }

    void eachFileBecomesAPdfBesideIt_data() { managers(); }
    void eachFileBecomesAPdfBesideIt() {
        QFETCH(const QString, manager);
        const ToolRun made = choose(manager, u"each"_s, inputs());
        QVERIFY2(made.exitCode == 0, made.err.constData());
        QCOMPARE(pdfs(), QStringList({u"it's 5% \"off\" for $HOME.pdf"_s, u"page(1).pdf"_s,
                                      u"page.pdf"_s}));
    }

    void allFilesBecomeOnePdfNamedForTheirFolder_data() { managers(); }
    void allFilesBecomeOnePdfNamedForTheirFolder() {
        QFETCH(const QString, manager);
        const QStringList files = inputs();
        QCOMPARE(choose(manager, u"one"_s, files).exitCode, 0);
        QCOMPARE(choose(manager, u"one"_s, files).exitCode, 0);
        QCOMPARE(pdfs(), QStringList({u"a b(1).pdf"_s, u"a b.pdf"_s}));
        QCOMPARE(PdfProbe(inFolder(u"a b/a b.pdf"_s)).pageCount(), 3);
    }

    void pagesOfOnePdfCountTheirNumbers() {
        QStringList files;
        for (const char *name : {"page10", "page9"}) {
            files += writeFile(inFolder(QLatin1StringView(name) + u".txt"_s), name);
        }
        QCOMPARE(run(QStringList{u"folioforge-action"_s, u"one"_s} + files).exitCode, 0);
        const QString made = m_folder->path().section(u'/', -1) + u".pdf"_s;
        QCOMPARE(PdfProbe(inFolder(made)).text(1).trimmed(), u"page9"_s);
    }

    void aFailureIsShownAndTheRestIsMade() {
        QStringList files = inputs();
        files += badPicture(u"a b/bad.jpg"_s);
        QCOMPARE(makeEach(files), 1);
        const QString shown = shownBy(u"zenity"_s);
        QVERIFY2(shown.startsWith(u"--title=Folioforge\n"_s) &&
                     shown.contains(u"/bad.jpg: The JPEG file "_s),
                 qPrintable(shown));
        QCOMPARE(pdfs().size(), 3);
    }

    void aBoxClosedByItsCrossIsNotShownAgain() {
        standIn(u"zenity"_s, 1);
        QCOMPARE(makeEach({badPicture(u"bad.jpg"_s)}), 1);
        QVERIFY(!shownBy(u"zenity"_s).isEmpty());
        QCOMPARE(shownBy(u"notify-send"_s), QString());
        QCOMPARE(shownBy(u"kdialog"_s), QString());
    }

    void kdeShowsAFailureInItsOwnBox() {
        m_desktop = u"KDE"_s;
        QCOMPARE(makeEach({badPicture(u"bad.jpg"_s)}), 1);
        QVERIFY(shownBy(u"kdialog"_s).contains(u"--error\n"_s));
        QCOMPARE(shownBy(u"zenity"_s), QString());
    }

    void manyFailuresAreCounted() {
        QStringList files;
        for (int i = 10; i < 33; ++i) {
            files += badPicture(u"bad%1.jpg"_s.arg(i));
        }
        QCOMPARE(makeEach(files), 1);
        const QString shown = shownBy(u"zenity"_s);
        QVERIFY2(shown.contains(u"/bad29.jpg: "_s) && !shown.contains(u"/bad30.jpg"_s) &&
                     shown.endsWith(u"\nand 3 more\n"_s),
                 qPrintable(shown));
    }

    void aWarningIsShown() {
        const QString latin1 = writeFile(inFolder(u"menu.txt"_s), "caf\xe9");
        QCOMPARE(makeEach({latin1}), 0);
        const QString shown = shownBy(u"notify-send"_s);
        QVERIFY2(shown.contains(u"menu.txt: warning: "_s), qPrintable(shown));
    }

    void notificationsShowNamesThatLookLikeMarkup() {
        const QString latin1 = writeFile(inFolder(u"<b>&.txt"_s), "caf\xe9");
        QCOMPARE(makeEach({latin1}), 0);
        QVERIFY(shownBy(u"notify-send"_s).contains(u"/&lt;b&gt;&amp;.txt: warning: "_s));
    }

    void thunarsListStaysTheLinkThatItIs() {
        QDir(m_folder->path()).mkpath(u".config/Thunar"_s);
        const QString kept = writeFile(inFolder(u"kept.xml"_s), "<actions>\n</actions>\n");
        QFile::setPermissions(kept, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        const QFile::Permissions rights = QFile::permissions(kept);
        const QString link = inFolder(u".config/Thunar/uca.xml"_s);
        QVERIFY(QFile::link(kept, link));
        QCOMPARE(run({u"folioforge-action"_s, u"--add-to-thunar"_s}).exitCode, 0);
        QCOMPARE(QFileInfo(link).symLinkTarget(), kept);
        QCOMPARE(textsOf(kept, u"unique-id"_s).size(), 2);
        QCOMPARE(QFile::permissions(kept), rights);
    }

    void thunarsListIsLeftAloneWhereItIsNone() {
        QDir(m_folder->path()).mkpath(u".config/Thunar"_s);
        const QString file = writeFile(inFolder(u".config/Thunar/uca.xml"_s), "<actions/>\n");
        QCOMPARE(run({u"folioforge-action"_s, u"--add-to-thunar"_s}).exitCode, 1);
        QCOMPARE(readFile(file), "<actions/>\n");
        QCOMPARE(QDir(inFolder(u".config/Thunar"_s)).entryList(QDir::Files).size(), 1);
    }

    void thunarKeepsItsOtherEntries() {
        QDir(m_folder->path()).mkpath(u".config/Thunar"_s);
        const QString file = inFolder(u".config/Thunar/uca.xml"_s);
        writeFile(file, "<?xml version=\"1.0\"?>\n<actions>\n<action><unique-id>mine</unique-id>"
                        "</action>\n</actions>\n");
        for (int time = 0; time < 2; ++time) {
            QCOMPARE(run({u"folioforge-action"_s, u"--add-to-thunar"_s}).exitCode, 0);
            QCOMPARE(textsOf(file, u"unique-id"_s),
                     QStringList({u"mine"_s, u"folioforge-each"_s, u"folioforge-one"_s}));
        }
    }

    void theEntriesSpeakTheLanguagesOfTheWindow_data() {
        QTest::addColumn<QString>("language");
        for (QString name : QDir(inSource(u"translations"_s)).entryList({u"*.ts"_s})) {
            name = name.section(u'.', 0, 0).section(u'_', 1);
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    void theEntriesSpeakTheLanguagesOfTheWindow() {
        QFETCH(const QString, language);
        m_language = language;
        const QStringList texts = QString::fromUtf8(nautilus(u"none"_s, {u"/a.txt"_s}).out)
                                      .split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(texts.size(), 2);
        const QString key = u"Name[%1]"_s.arg(language);
        const QString thunar =
            QString::fromUtf8(readFile(installed("share/folioforge/thunar-actions.xml")));
        for (const auto &[what, text] :
             {std::pair(u"each"_s, texts[0]), std::pair(u"one"_s, texts[1])}) {
            QVERIFY(!text.contains(u"these"));
            QCOMPARE(valueOf(installed("share/kio/servicemenus/folioforge-dolphin.desktop"),
                             u"Desktop Action folioforge-"_s + what, key),
                     text);
            QCOMPARE(
                valueOf(
                    installed("share/nemo/actions/folioforge-%.nemo_action").replace(u'%', what),
                    u"Nemo Action"_s, key),
                text);
            QVERIFY(thunar.contains(u"<name xml:lang=\"%1\">%2</name>"_s.arg(language, text)));
        }
    }

    void nautilusOffersNothingForOtherFiles() {
        QCOMPARE(nautilus(u"none"_s, {u"/a.txt"_s, u"/b.png"_s}).out.trimmed(),
                 "Make a PDF of these\nMake one PDF of these");
        QCOMPARE(nautilus(u"none"_s, {u"/a.txt"_s, u"/b.zip"_s}).out.trimmed(), "");
    }
};

FOLIOFORGE_TEST(ActionsTest)
#include "ActionsTest.moc"
