// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WindowOnScreen.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QProcess>
#include <QSize>
#include <QTemporaryDir>

#include <optional>

namespace folioforge::test {

/// Milliseconds that a busy machine may take for anything.
inline constexpr int kPatience = 30'000;

/// What the application runs on.
struct DesktopKind {
    QSize size{1600, 1000};  ///< Of the screen in pixels.
    QString windowManager{}; ///< The program; none where empty.
    QString scale{};         ///< Pixels for a point, such as "1.25"; one where empty.
};

/// A screen, a session bus and a home folder of its own in which the real application runs. It is
/// worked through the accessibility bus, as a screen reader does, and with the mouse and the keys
/// of the screen.
class DesktopSession {
  public:
    /// An object of the application on the accessibility bus.
    struct Element {
        QString service;
        QDBusObjectPath path;
    };

    DesktopSession() = default;
    ~DesktopSession();
    DesktopSession(const DesktopSession &) = delete;
    DesktopSession &operator=(const DesktopSession &) = delete;

    /// Starts the screen, its window manager and the bus; whether all came up.
    bool begin(const DesktopKind &desktop = {});
    /// Starts `program` with `files` to list and `outputFolder` as its stored output folder, and
    /// waits for its window.
    bool start(const QString &program, const QString &outputFolder, const QStringList &files = {});
    [[nodiscard]] QProcess &application() { return m_application; }

    /// A path under the folder that is the application's home.
    [[nodiscard]] QString path(const QString &name) const { return m_home.filePath(name); }
    /// The folder in which the application puts temporary files.
    [[nodiscard]] QString temporaryFolder() const { return path(QStringLiteral("tmp")); }
    /// What the program that opens files was given, one argument a line.
    [[nodiscard]] QByteArray opened() const;

    /// The bus on which the application is known to screen readers.
    [[nodiscard]] QDBusConnection accessibility() const {
        return QDBusConnection(m_accessibilityBus);
    }
    /// The element called `name` that can be seen and is no label; waits for it.
    [[nodiscard]] std::optional<Element> find(const QString &name);
    /// Whether an element called `name` can be seen now.
    [[nodiscard]] bool shows(const QString &name);
    /// Does the first action of `element`, whether it can be seen or not.
    bool press(const Element &element) const;
    /// Does the first action of the element called `name`, such as pressing it.
    bool press(const QString &name);
    /// Replaces the text of the element called `name`.
    bool enter(const QString &name, const QString &text);
    /// Clicks in the middle of the element called `name` with the mouse.
    bool click(const QString &name);
    /// Presses a key of the keyboard, such as "ctrl+q", in the window titled `window`.
    bool key(const QString &window, const QString &keys);
    /// Where the window titled `window` is; nothing where there is none.
    [[nodiscard]] std::optional<WindowPlace> place(const QString &window) const;
    /// As place(), when the window has stood still for a while.
    [[nodiscard]] std::optional<WindowPlace> placeAtRest(const QString &window) const;
    /// Puts the upper left corner of the frame of the window titled `window` there.
    bool moveTo(const QString &window, QPoint corner) const;
    /// Asks the window titled `window` to close, as the button of its frame does.
    bool close(const QString &window);

  private:
    [[nodiscard]] QList<Element> children(const Element &parent) const;
    [[nodiscard]] QString nameOf(const Element &element) const;
    [[nodiscard]] bool canBeSeen(const Element &element) const;
    [[nodiscard]] bool isLabel(const Element &element) const;
    [[nodiscard]] std::optional<Element> search(const Element &root, const QString &name) const;
    [[nodiscard]] std::optional<Element> lookUp(const QString &name) const;
    [[nodiscard]] QDBusMessage call(const QString &name, const char *interface, const char *method,
                                    const QVariantList &arguments = {});
    [[nodiscard]] bool does(const QString &name, const char *interface, const char *method,
                            const QVariantList &arguments = {});
    [[nodiscard]] xcb_window_t numberOf(const QString &window) const;
    [[nodiscard]] QByteArray display() const;
    [[nodiscard]] std::optional<QByteArray> runOnScreen(const QStringList &arguments) const;
    void makeOpener() const;

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_screen;
    QProcess m_windowManager;
    QProcess m_bus;
    QProcess m_application;
    QString m_accessibilityBus;
};

} // namespace folioforge::test
