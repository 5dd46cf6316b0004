// SPDX-License-Identifier: Apache-2.0

#include "DesktopSession.h"

#include "support/Files.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge::test {
namespace {

constexpr auto kAtSpi = "org.a11y.atspi.";

QString atSpi(const char *interface) {
    return QLatin1StringView(kAtSpi) + QLatin1StringView(interface);
}

/// The first line that `process` prints; empty when none comes.
QByteArray firstLine(QProcess &process) {
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(kPatience)) {
            return {};
        }
    }
    return process.readLine().trimmed();
}

void end(QProcess &process) {
    if (process.state() != QProcess::NotRunning) {
        process.terminate();
        if (!process.waitForFinished(kPatience)) {
            process.kill();
            process.waitForFinished();
        }
    }
}

QDBusMessage callTo(const DesktopSession::Element &element, const char *interface,
                    const char *method, const QVariantList &arguments = {}) {
    QDBusMessage call = QDBusMessage::createMethodCall(element.service, element.path.path(),
                                                       atSpi(interface), QLatin1StringView(method));
    call.setArguments(arguments);
    return call;
}

/// What takes the title of a visible window and gives its number.
QStringList searchFor(const QString &window) {
    return {u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^%1$"_s.arg(window)};
}

} // namespace

DesktopSession::~DesktopSession() {
    end(m_application);
    if (!m_accessibilityBus.isEmpty()) {
        QDBusConnection::disconnectFromBus(m_accessibilityBus);
    }
    end(m_bus);
    end(m_windowManager);
    end(m_screen);
}

bool DesktopSession::begin(const DesktopKind &desktop) {
    const QString screen = u"%1x%2x24"_s.arg(desktop.size.width()).arg(desktop.size.height());
    m_screen.start(u"Xvfb"_s,
                   {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen, u"-noreset"_s});
    const QByteArray display = firstLine(m_screen);
    QDir(m_home.path()).mkpath(u"bin"_s);
    QDir().mkpath(temporaryFolder());
    makeOpener();

    m_environment = QProcessEnvironment::systemEnvironment();
    const auto set = [this](const char *name, const QString &value) {
        m_environment.insert(QLatin1StringView(name), value);
    };
    set("DISPLAY", u':' + QString::fromLatin1(display));
    set("HOME", m_home.path());
    set("XDG_CONFIG_HOME", path(u"config"_s));
    set("XDG_RUNTIME_DIR", m_home.path());
    set("TMPDIR", temporaryFolder());
    set("PATH", path(u"bin"_s) + u':' + qEnvironmentVariable("PATH"));
    set("QT_QPA_PLATFORM", u"xcb"_s);
    set("QT_SCALE_FACTOR", desktop.scale);
    set("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", u"1"_s);
    // Qt warns of each element that is asked for while its dialog closes.
    set("QT_LOGGING_RULES", u"qt.accessibility.atspi.warning=false"_s);

    m_bus.setProcessEnvironment(m_environment);
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    const QString address = QString::fromLatin1(firstLine(m_bus));
    set("DBUS_SESSION_BUS_ADDRESS", address);

    if (!desktop.windowManager.isEmpty()) {
        m_windowManager.setProcessEnvironment(m_environment);
        m_windowManager.setStandardErrorFile(QProcess::nullDevice());
        m_windowManager.start(desktop.windowManager, QStringList());
        if (!QTest::qWaitFor([this] { return hasWindowManager(this->display()); }, kPatience)) {
            return false;
        }
    }

    const QString session = u"session of %1"_s.arg(m_home.path());
    QDBusInterface launcher(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s,
                            QDBusConnection::connectToBus(address, session));
    const QDBusReply<QString> bus = launcher.call(u"GetAddress"_s);
    QDBusConnection::disconnectFromBus(session);
    m_accessibilityBus = u"accessibility of %1"_s.arg(m_home.path());
    return !display.isEmpty() && bus.isValid() &&
           QDBusConnection::connectToBus(bus.value(), m_accessibilityBus).isConnected();
}

/// Both verbs, so that the test does not hang on what the machine has.
void DesktopSession::makeOpener() const {
    for (const auto *verb : {"bin/open", "bin/xdg-open"}) {
        const QString program = path(QLatin1StringView(verb));
        writeFile(program, "#!/bin/sh\nprintf '%s\\n' \"$@\" >>\"$HOME/opened\"\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

bool DesktopSession::start(const QString &program, const QString &outputFolder,
                           const QStringList &files) {
    QDir().mkpath(outputFolder);
    QDir().mkpath(path(u"config/Vesprin"_s));
    writeFile(path(u"config/Vesprin/Folioforge.conf"_s),
              "[General]\nCustomizeOutputDir=" + QFile::encodeName(outputFolder) + '\n');
    m_application.setProcessEnvironment(m_environment);
    m_application.setWorkingDirectory(m_home.path());
    m_application.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_application.start(program, files);
    return m_application.waitForStarted(kPatience) && find(u"Create"_s).has_value();
}

QByteArray DesktopSession::opened() const {
    return readFile(path(u"opened"_s));
}

QList<DesktopSession::Element> DesktopSession::children(const Element &parent) const {
    const QDBusMessage reply =
        QDBusConnection(m_accessibilityBus).call(callTo(parent, "Accessible", "GetChildren"));
    QList<Element> list;
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return list;
    }
    const auto argument = reply.arguments().constFirst().value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        Element child;
        argument.beginStructure();
        argument >> child.service >> child.path;
        argument.endStructure();
        list += child;
    }
    argument.endArray();
    return list;
}

QString DesktopSession::nameOf(const Element &element) const {
    QDBusMessage call = QDBusMessage::createMethodCall(
        element.service, element.path.path(), u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call.setArguments({atSpi("Accessible"), u"Name"_s});
    const QDBusReply<QDBusVariant> reply = QDBusConnection(m_accessibilityBus).call(call);
    return reply.value().variant().toString();
}

bool DesktopSession::canBeSeen(const Element &element) const {
    constexpr unsigned kShowing = 25; // ATSPI_STATE_SHOWING
    const QDBusReply<QList<unsigned>> states =
        QDBusConnection(m_accessibilityBus).call(callTo(element, "Accessible", "GetState"));
    return !states.value().isEmpty() && (states.value().constFirst() >> kShowing & 1U) != 0;
}

/// A label has the name of the field beside it.
bool DesktopSession::isLabel(const Element &element) const {
    constexpr unsigned kLabel = 29; // ATSPI_ROLE_LABEL
    const QDBusReply<unsigned> role =
        QDBusConnection(m_accessibilityBus).call(callTo(element, "Accessible", "GetRole"));
    return role.value() == kLabel;
}

std::optional<DesktopSession::Element> DesktopSession::search(const Element &root,
                                                              const QString &name) const {
    for (const Element &child : children(root)) {
        if (!canBeSeen(child)) {
            continue;
        }
        if (nameOf(child) == name && !isLabel(child)) {
            return child;
        }
        if (auto found = search(child, name)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<DesktopSession::Element> DesktopSession::lookUp(const QString &name) const {
    return search(
        {u"org.a11y.atspi.Registry"_s, QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s)},
        name);
}

bool DesktopSession::shows(const QString &name) {
    return lookUp(name).has_value();
}

std::optional<DesktopSession::Element> DesktopSession::find(const QString &name) {
    std::optional<Element> found;
    const bool came = QTest::qWaitFor(
        [&] {
            found = lookUp(name);
            return found.has_value() || m_application.state() == QProcess::NotRunning;
        },
        kPatience);
    if (!came || !found) {
        qWarning("nothing on the screen is called \"%s\"", qUtf8Printable(name));
    }
    return found;
}

/// The answer of the element called `name`, which is waited for, to `method`.
QDBusMessage DesktopSession::call(const QString &name, const char *interface, const char *method,
                                  const QVariantList &arguments) {
    const auto element = find(name);
    return element ? QDBusConnection(m_accessibilityBus)
                         .call(callTo(*element, interface, method, arguments))
                   : QDBusMessage();
}

bool DesktopSession::does(const QString &name, const char *interface, const char *method,
                          const QVariantList &arguments) {
    return QDBusReply<bool>(call(name, interface, method, arguments)).value();
}

bool DesktopSession::press(const Element &element) const {
    const QDBusReply<bool> reply =
        QDBusConnection(m_accessibilityBus).call(callTo(element, "Action", "DoAction", {0}));
    return reply.value();
}

bool DesktopSession::press(const QString &name) {
    return does(name, "Action", "DoAction", {0});
}

bool DesktopSession::enter(const QString &name, const QString &text) {
    return does(name, "EditableText", "SetTextContents", {text});
}

bool DesktopSession::click(const QString &name) {
    constexpr unsigned kOnScreen = 0;
    const QDBusMessage reply = call(name, "Component", "GetExtents", {kOnScreen});
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return false;
    }
    const auto argument = reply.arguments().constFirst().value<QDBusArgument>();
    QRect place;
    argument >> place;
    const QPoint middle = place.center();
    return runOnScreen({u"mousemove"_s, QString::number(middle.x()), QString::number(middle.y()),
                        u"click"_s, u"1"_s})
        .has_value();
}

/// A window that the accessibility bus knows may not be on the screen yet.
bool DesktopSession::key(const QString &window, const QString &keys) {
    const QStringList focus = searchFor(window) + QStringList{u"windowfocus"_s};
    return QTest::qWaitFor([&] { return runOnScreen(focus).has_value(); }, kPatience) &&
           runOnScreen({u"key"_s, keys}).has_value();
}

xcb_window_t DesktopSession::numberOf(const QString &window) const {
    return runOnScreen(searchFor(window)).value_or(QByteArray()).trimmed().toUInt();
}

QByteArray DesktopSession::display() const {
    return m_environment.value(u"DISPLAY"_s).toLatin1();
}

std::optional<WindowPlace> DesktopSession::place(const QString &window) const {
    return placeOf(display(), numberOf(window));
}

std::optional<WindowPlace> DesktopSession::placeAtRest(const QString &window) const {
    constexpr int kStill = 250; // Milliseconds.
    std::optional<WindowPlace> last;
    const bool rests = QTest::qWaitFor(
        [&] {
            const auto before = std::exchange(last, place(window));
            QTest::qWait(kStill);
            return before && last && before->frame == last->frame;
        },
        kPatience);
    return rests ? last : std::nullopt;
}

bool DesktopSession::moveTo(const QString &window, QPoint corner) const {
    return runOnScreen({u"windowmove"_s, u"--sync"_s, QString::number(numberOf(window)),
                        QString::number(corner.x()), QString::number(corner.y())})
        .has_value();
}

bool DesktopSession::close(const QString &window) {
    return askToClose(display(), numberOf(window));
}

/// What xdotool prints; nothing where it fails.
std::optional<QByteArray> DesktopSession::runOnScreen(const QStringList &arguments) const {
    QProcess tool;
    tool.setProcessEnvironment(m_environment);
    tool.start(u"xdotool"_s, arguments);
    const bool worked = tool.waitForFinished(kPatience) && tool.exitCode() == 0;
    return worked ? std::optional(tool.readAllStandardOutput()) : std::nullopt;
}

} // namespace folioforge::test
