// SPDX-License-Identifier: Apache-2.0

#include "DesktopSession.h"

#include "support/Places.h"
#include "support/TestUnit.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr auto kWindow = "Folioforge";
constexpr int kOptions = 342; ///< Points that the options panel takes.

/// The application on a desktop, with its two buttons of the options panel.
class Session {
  public:
    explicit Session(const DesktopKind &desktop)
        : m_scale(desktop.scale.isEmpty() ? 1 : desktop.scale.toDouble())
        , m_screen(QPoint(), desktop.size) {
        m_runs = m_desktop.begin(desktop) &&
                 m_desktop.start(windowProgram(), m_desktop.path(u"out"_s)) &&
                 m_desktop.placeAtRest(QLatin1StringView(kWindow)).has_value();
    }

    [[nodiscard]] bool runs() const { return m_runs; }
    [[nodiscard]] WindowPlace place() const {
        return m_desktop.placeAtRest(QLatin1StringView(kWindow)).value_or(WindowPlace());
    }
    /// Where the frame comes to rest. A slide begins late on a busy machine and stands still where
    /// the screen ends, so that a frame that is not yet `right` is waited for.
    template<typename Condition> [[nodiscard]] QRect frameThatIs(Condition right) const {
        QRect frame;
        static_cast<void>(QTest::qWaitFor(
            [&] {
                frame = place().frame;
                return right(frame) && place().frame == frame;
            },
            kPatience));
        return frame;
    }
    [[nodiscard]] QRect frameThatIs(const QRect &expected) const {
        return frameThatIs([&expected](const QRect &frame) { return frame == expected; });
    }
    bool showOptions() { return press(m_show, u"Show options"_s); }
    bool hideOptions() { return press(m_hide, u"Hide options"_s); }
    bool moveTo(QPoint corner) { return m_desktop.moveTo(QLatin1StringView(kWindow), corner); }
    /// The pixels of so many points.
    [[nodiscard]] int pixels(int points) const { return qRound(points * m_scale); }
    [[nodiscard]] QRect screen() const { return m_screen; }

  private:
    /// Each button hides when it is pressed, and is looked for only once.
    bool press(std::optional<DesktopSession::Element> &button, const QString &name) {
        button = button ? button : m_desktop.find(name);
        return button && m_desktop.press(*button);
    }

    DesktopSession m_desktop;
    bool m_runs = false;
    double m_scale;
    QRect m_screen;
    std::optional<DesktopSession::Element> m_show;
    std::optional<DesktopSession::Element> m_hide;
};

void addDesktops(std::initializer_list<std::pair<QSize, const char *>> screens) {
    QTest::addColumn<DesktopKind>("desktop");
    for (const QString &manager : {u"openbox"_s, u"xfwm4"_s}) {
        for (const auto &[size, scale] : screens) {
            QTest::addRow("%s, %d x %d, scale %s", qPrintable(manager), size.width(), size.height(),
                          scale)
                << DesktopKind{size, manager, QLatin1StringView(scale)};
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(folioforge::test::DesktopKind)

/// What the window does under window managers, which answer late and have minds of their own.
class WindowManagersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theWindowStandsInTheMiddleOfTheScreenWithItsFrame_data() {
        addDesktops(
            {{{1024, 600}, "1"}, {{1024, 600}, "2"}, {{1366, 768}, "1.25"}, {{2560, 1440}, "1.5"}});
    }
    void theWindowStandsInTheMiddleOfTheScreenWithItsFrame() {
        QFETCH(const DesktopKind, desktop);
        Session session(desktop);
        QVERIFY(session.runs());
        const WindowPlace place = session.place();
        QVERIFY(place.frame.top() < place.inside.top()); // It has a title bar.
        QVERIFY(session.screen().contains(place.frame));
        const QPoint off = place.frame.center() - session.screen().center();
        QVERIFY2(off.manhattanLength() <= 4, qPrintable(u"%1 %2"_s.arg(off.x()).arg(off.y())));
    }

    void thePanelComesAndGoesWithoutATrace_data() {
        addDesktops({{{1600, 1000}, "1"}, {{2560, 1440}, "2"}});
    }
    /// It shows to the right, and what the screen has no room for there to the left.
    void thePanelComesAndGoesWithoutATrace() {
        QFETCH(const DesktopKind, desktop);
        Session session(desktop);
        QVERIFY(session.runs());
        const QRect before = session.place().frame;
        for (int time = 0; time < 2; ++time) {
            QVERIFY(session.showOptions());
            const int width = before.width() + session.pixels(kOptions);
            // Points are no whole pixels, or several, on some screens.
            const int rounding = session.pixels(2);
            const QRect shown = session.frameThatIs(
                [&](const QRect &frame) { return std::abs(frame.width() - width) <= rounding; });
            QVERIFY(std::abs(shown.width() - width) <= rounding);
            QCOMPARE(shown.height(), before.height());
            const int room = std::max(session.screen().width() - shown.width(), 0);
            QVERIFY(std::abs(shown.left() - std::min(before.left(), room)) <= rounding);
            QCOMPARE(shown.top(), before.top());
            QVERIFY(session.hideOptions());
            QCOMPARE(session.frameThatIs(before), before);
        }
    }

    void aPanelThatTheScreenHasNoRoomForStaysOnIt_data() { addDesktops({{{1024, 600}, "2"}}); }
    void aPanelThatTheScreenHasNoRoomForStaysOnIt() {
        QFETCH(const DesktopKind, desktop);
        Session session(desktop);
        QVERIFY(session.runs());
        const QRect before = session.place().frame;
        QVERIFY(session.showOptions());
        const QRect shown = session.frameThatIs(
            [&before](const QRect &frame) { return frame.width() > before.width(); });
        QVERIFY(shown.width() > before.width());
        QVERIFY(session.screen().contains(shown));
        QVERIFY(session.hideOptions());
        QCOMPARE(session.frameThatIs(before), before);
    }

    void aPanelThatIsShownAndHiddenInASlideEndsRight_data() { addDesktops({{{1600, 1000}, "1"}}); }
    void aPanelThatIsShownAndHiddenInASlideEndsRight() {
        QFETCH(const DesktopKind, desktop);
        constexpr int kTimes = 200;
        constexpr int kMaxLength = 20; // Milliseconds between presses; a slide takes some 200.
        Session session(desktop);
        QVERIFY(session.runs());
        const QRect before = session.place().frame;
        QRandomGenerator random(quint32{20'261'122});
        for (int time = 0; time < kTimes; ++time) {
            QVERIFY(session.showOptions());
            QTest::qWait(random.bounded(kMaxLength));
            QVERIFY(session.hideOptions());
            QTest::qWait(random.bounded(kMaxLength));
        }
        QCOMPARE(session.frameThatIs(before), before);
    }

    void aWindowThatIsMovedWithItsPanelStaysThereWithoutIt_data() {
        addDesktops({{{1600, 1000}, "1"}});
    }
    void aWindowThatIsMovedWithItsPanelStaysThereWithoutIt() {
        QFETCH(const DesktopKind, desktop);
        Session session(desktop);
        QVERIFY(session.runs());
        const QSize size = session.place().frame.size();
        QVERIFY(session.showOptions());
        const QRect shown = session.frameThatIs([&](const QRect &frame) {
            return frame.width() == size.width() + session.pixels(kOptions);
        });
        QVERIFY(session.moveTo(shown.topLeft() - QPoint(60, 30)));
        const QRect moved =
            session.frameThatIs([&](const QRect &frame) { return frame.left() < shown.left(); });
        QVERIFY(moved.left() < shown.left());
        QVERIFY(session.hideOptions());
        const QRect expected(moved.topLeft(), size);
        QCOMPARE(session.frameThatIs(expected), expected);
    }
};

FOLIOFORGE_TEST(WindowManagersTest)
#include "WindowManagersTest.moc"
