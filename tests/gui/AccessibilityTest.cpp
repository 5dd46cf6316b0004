// SPDX-License-Identifier: Apache-2.0

#include "AccessibilityTree.h"
#include "DesktopSession.h"
#include "TestWindow.h"

#include "preview/Preview.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QComboBox>
#include <QDBusMessage>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

namespace {

using Nodes = std::vector<AtNode>;

/// Milliseconds: a run under the sanitizers takes long.
constexpr int kPatienceForRuns = 60'000;

/// What a control is to a screen reader, and the action that stands for a click or for the keys.
const std::map<QString, QString> &actionOfRole() {
    static const std::map<QString, QString> kActions{{u"push button"_s, u"Press"_s},
                                                     {u"check box"_s, u"Toggle"_s},
                                                     {u"radio button"_s, u"Toggle"_s},
                                                     {u"text"_s, u"SetFocus"_s},
                                                     {u"combo box"_s, u"Press"_s}};
    return kActions;
}

bool isControl(const AtNode &node) {
    return actionOfRole().contains(node.role);
}

QString plain(QString label) {
    return label.remove(u'&').remove(u'…').remove(u':').trimmed().toLower();
}

std::optional<AtNode> find(const Nodes &nodes, const QString &role, const QString &name) {
    const auto found = std::ranges::find_if(
        nodes, [&](const AtNode &node) { return node.role == role && node.name == name; });
    return found == nodes.end() ? std::nullopt : std::optional(*found);
}

/// The labels that one sees in `window`: of buttons and boxes, and those that stand for a field.
QStringList labelsIn(const QWidget &window) {
    QStringList labels;
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->text().isEmpty()) {
            labels += plain(button->text());
        }
    }
    for (const auto *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && qobject_cast<QLineEdit *>(label->buddy()) != nullptr) {
            labels += plain(label->text());
        }
    }
    return labels;
}

/// How many buttons, boxes, fields and lists one sees in `window`.
qsizetype controlsIn(const QWidget &window) {
    return std::ranges::count_if(window.findChildren<QWidget *>(), [](const QWidget *widget) {
        return widget->isVisible() && (qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                                       qobject_cast<const QLineEdit *>(widget) != nullptr ||
                                       qobject_cast<const QComboBox *>(widget) != nullptr);
    });
}

/// The real application with a letter in its list, and what the bus says of it.
class Reader {
  public:
    /// Whether all came up, with files of these names and bytes in the list.
    bool begin(const std::map<QString, QByteArray> &files = {}) {
        if (!m_desktop.begin()) {
            return false;
        }
        QStringList paths;
        for (const auto &[name, bytes] : files) {
            paths += writeFile(m_desktop.path(name), bytes);
        }
        return m_desktop.start(windowProgram(), m_desktop.path(u"out"_s), paths);
    }
    bool list(const QString &name, const QByteArray &words) {
        return m_desktop.press(u"Add Files…"_s) &&
               m_desktop.enter(u"File name:"_s, writeFile(m_desktop.path(name), words)) &&
               m_desktop.press(u"Open"_s) && m_desktop.find(name).has_value();
    }
    [[nodiscard]] DesktopSession &desktop() { return m_desktop; }
    [[nodiscard]] Nodes nodes() const { return accessibleNodes(m_desktop.accessibility()); }
    /// The node called `name` with `role`, which is waited for.
    [[nodiscard]] std::optional<AtNode> node(const QString &role, const QString &name) const {
        std::optional<AtNode> found;
        const bool came = QTest::qWaitFor(
            [&] {
                found = find(nodes(), role, name);
                return found.has_value();
            },
            kPatienceForRuns);
        if (!came) {
            qWarning("no %s is called \"%s\"", qPrintable(role), qPrintable(name));
        }
        return found;
    }
    [[nodiscard]] bool act(const AtNode &node, const QString &action) const {
        return folioforge::test::act(m_desktop.accessibility(), node, action);
    }
    [[nodiscard]] bool act(const QString &role, const QString &name, const QString &action) const {
        const auto found = node(role, name);
        return found && act(*found, action);
    }
    [[nodiscard]] AtNode look(const AtNode &node) const {
        return lookAgain(m_desktop.accessibility(), node);
    }
    [[nodiscard]] bool is(const AtNode &node, AtState state) const { return look(node).is(state); }

  private:
    DesktopSession m_desktop;
};

/// The settings that the options panel shows one of at a time, and the buttons that show them.
constexpr std::array<std::pair<const char *, const char *>, 3> kSettings{
    {{"Image page settings", "m_btnImageSetting"},
     {"Text page settings", "m_btnTxtSetting"},
     {"Security settings", "m_btnSecuritySetting"}}};

/// A box and the field that it enables.
struct BoxOfField {
    const char *settings;
    const char *role;
    const char *name;
    const char *field;
};
constexpr std::array<BoxOfField, 4> kBoxes{
    {{"Image page settings", "check box", "Merge into one PDF", "Name of the merged PDF"},
     {"Image page settings", "radio button", "Page of this size:", "Custom page width"},
     {"Text page settings", "radio button", "Page of this size:", "Custom page height"},
     {"Security settings", "check box", "User password, to open the PDF", "User password"}}};

} // namespace

/// Hears whose descriptions change, as a screen reader does: without one that listens, applications
/// say nothing.
class DescriptionListener : public QObject {
    Q_OBJECT

  public:
    /// Whether the accessibility bus brings what is said from now on.
    bool begin(QDBusConnection bus) {
        QDBusMessage wish = QDBusMessage::createMethodCall(
            u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s,
            u"org.a11y.atspi.Registry"_s, u"RegisterEvent"_s);
        wish.setArguments({u"Object:PropertyChange:AccessibleDescription"_s});
        return bus.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"PropertyChange"_s, this,
                           SLOT(hear(QDBusMessage))) &&
               bus.call(wish).type() == QDBusMessage::ReplyMessage;
    }
    /// The objects that have said so, one for each time.
    [[nodiscard]] const Nodes &heard() const { return m_heard; }

  private Q_SLOTS:
    void hear(const QDBusMessage &message) {
        if (message.arguments().value(0) == u"accessible-description"_s) {
            AtNode node;
            node.service = message.service();
            node.path = QDBusObjectPath(message.path());
            m_heard.push_back(node);
        }
    }

  private:
    Nodes m_heard;
};

/// What a screen reader gets of the real application, over the accessibility bus.
class AccessibilityTest : public QObject {
    Q_OBJECT

  private:
    static void checkControl(const AtNode &node) {
        const QByteArray what = (node.role + u" \""_s + node.name + u'"').toUtf8();
        QVERIFY2(!node.name.isEmpty(), what);
        QVERIFY2(!node.is(AtState::Enabled) || node.actions.contains(actionOfRole().at(node.role)),
                 what + " has " + node.actions.join(u',').toUtf8());
    }

    /// The controls of the application are those that one sees in `window`, by number and labels.
    static void checkControls(const Reader &reader, const QWidget &window) {
        Nodes controls;
        std::ranges::copy_if(reader.nodes(), std::back_inserter(controls), isControl);
        QTRY_COMPARE(controlsIn(window), qsizetype(controls.size()));
        for (const AtNode &node : controls) {
            checkControl(node);
        }
        for (const QString &label : labelsIn(window)) {
            const bool isNamed = std::ranges::any_of(
                controls, [&](const AtNode &node) { return node.name.toLower().contains(label); });
            QVERIFY2(isNamed, qPrintable(label));
        }
    }

    static void checkBox(const Reader &reader, const BoxOfField &box) {
        const Nodes nodes = reader.nodes();
        const auto node = find(nodes, QLatin1StringView(box.role), QLatin1StringView(box.name));
        const auto field = find(nodes, u"text"_s, QLatin1StringView(box.field));
        QVERIFY2(node && !node->is(AtState::Checked), box.name);
        QVERIFY2(field && !field->is(AtState::Enabled), box.field);
        QVERIFY2(reader.act(*node, u"Toggle"_s), box.name);
        QVERIFY2(reader.is(*node, AtState::Checked), box.name);
        QVERIFY2(reader.is(*field, AtState::Enabled), box.field);
    }

  private Q_SLOTS:
    void everyControlHasARoleANameWithItsLabelAndAnAction() {
        Reader reader;
        QVERIFY(reader.begin() && reader.list(u"letter.txt"_s, "words\n"));
        QVERIFY(reader.act(u"push button"_s, u"Show options"_s, u"Press"_s));
        TestWindow same(WindowWorld::realBundle()); // Its labels are those that one sees.
        same.ctrl.addFiles({same.file(u"letter.txt"_s)}, -1);
        same.press("m_btnExpand");
        for (const auto &[settings, button] : kSettings) {
            QVERIFY(reader.act(u"check box"_s, QLatin1StringView(settings), u"Toggle"_s));
            same.press(button);
            checkControls(reader, *same.ctrl.window());
        }
    }

    void eachRowIsNamedByWhatItShows() {
        Reader reader;
        QVERIFY(reader.begin() && reader.list(u"a & b <c>.txt"_s, "words\n"));
        const auto cells = [&] {
            QStringList found;
            for (const AtNode &node : reader.nodes()) {
                if (node.role == u"cell") {
                    found += node.name;
                }
            }
            return found;
        };
        QTRY_COMPARE(cells().size(), 4);
        QStringList names = cells();
        QVERIFY(names.takeAt(2).endsWith(u" KB"_s)); // File systems differ in the number.
        QCOMPARE(names, (QStringList{u"1"_s, u"a & b <c>.txt"_s, u"Waiting..."_s}));
    }

    void togglesActAsClicksDo() {
        Reader reader;
        QVERIFY(reader.begin() && reader.list(u"letter.txt"_s, "words\n"));
        QVERIFY(reader.act(u"push button"_s, u"Show options"_s, u"Press"_s));
        for (const BoxOfField &box : kBoxes) {
            const auto settings = reader.node(u"check box"_s, QLatin1StringView(box.settings));
            QVERIFY(settings && reader.act(*settings, u"Toggle"_s));
            QVERIFY(reader.is(*settings, AtState::Checked)); // Also where it was.
            checkBox(reader, box);
        }
    }

    void aRunIsADialogOverDisabledControlsAndEndsWithAnAnswer() {
        Reader reader;
        const int lines = isSanitized() ? 200'000 : 1'000'000; // For the sheet to be seen.
        QVERIFY(reader.begin() &&
                reader.list(u"long.txt"_s, QByteArray("a line of words\n").repeated(lines)));
        const auto add = reader.node(u"push button"_s, u"Add Files…"_s);
        QVERIFY(add && add->is(AtState::Enabled));
        QVERIFY(reader.act(u"push button"_s, u"Create"_s, u"Press"_s));
        QVERIFY(reader.desktop().find(u"Creating PDF documents"_s));
        const Nodes nodes = reader.nodes();
        QVERIFY(find(nodes, u"dialog"_s, u"Creating PDF documents"_s));
        QVERIFY(find(nodes, u"progress bar"_s, u"Progress of the run"_s));
        QVERIFY(!reader.is(*add, AtState::Enabled));

        QVERIFY(reader.node(u"cell"_s, u"long.pdf"_s));
        QVERIFY(std::ranges::any_of(reader.nodes(), [](const AtNode &node) {
            return node.role == u"label" && node.name.startsWith(u"long.pdf made"_s);
        }));
        QVERIFY(reader.node(u"push button"_s, u"Show in folder"_s));
        QVERIFY(reader.act(u"push button"_s, u"Open"_s, u"Press"_s));
        QTRY_VERIFY(reader.desktop().opened().trimmed().endsWith(
            QFile::encodeName(reader.desktop().path(u"out/long.pdf"_s))));
    }

    void howFarARunIsComesToTheReaderByItself() {
        Reader reader;
        const int lines = isSanitized() ? 200'000 : 1'000'000; // To be asked in time.
        QVERIFY(reader.begin({{u"a.txt"_s, "words\n"},
                              {u"long.txt"_s, QByteArray("a line of words\n").repeated(lines)}}));
        QVERIFY(reader.node(u"cell"_s, u"long.txt"_s));
        DescriptionListener listener;
        QVERIFY(listener.begin(reader.desktop().accessibility()));
        QVERIFY(reader.act(u"push button"_s, u"Create"_s, u"Press"_s));
        // Qt 6.4 leaves what changed out of its message.
        AtNode speaker;
        const auto isSpeaker = [&](const AtNode &node) {
            speaker = reader.look(node);
            return speaker.description == u"long.pdf 1 of 2 done"_s;
        };
        const bool came = QTest::qWaitFor(
            [&] { return std::ranges::any_of(listener.heard(), isSpeaker); }, kPatienceForRuns);
        QVERIFY(came);
        QCOMPARE(speaker.role, u"dialog"_s);
    }

    void theItemsOfTheMenuAreNamedAndPressed() {
        Reader reader;
        QVERIFY(reader.begin() && reader.list(u"letter.txt"_s, "words\n"));
        int items = 0;
        for (const AtNode &node : reader.nodes()) {
            if (node.role == u"menu item") {
                QVERIFY(!node.name.isEmpty());
                QVERIFY2(node.actions.contains(u"Press"_s) || node.actions.contains(u"ShowMenu"_s),
                         qPrintable(node.name));
                ++items;
            }
        }
        QVERIFY(items > 15);
        if (QFile::exists(folioforge::Preview::programIn(bundlePath()))) {
            QVERIFY(reader.act(u"menu item"_s, u"Preview"_s, u"Press"_s));
            QVERIFY(reader.node(u"push button"_s, u"Close the preview"_s));
        }
    }
};

FOLIOFORGE_TEST(AccessibilityTest)
#include "AccessibilityTest.moc"
