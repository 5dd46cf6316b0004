// SPDX-License-Identifier: Apache-2.0

#include "support/TestUnit.h"

#include "mainwnd/Desktop.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// The desktop's side of the bus, which writes down what it is told.
class FakeDesktop : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

  public:
    struct Note {
        QString application;
        QString icon;
        QString summary;
        QString entry;
        int timeout = 0;
    };
    struct Progress {
        QString application;
        QVariantMap values;
    };

    QList<Note> notes;
    QList<Progress> progress;

  public Q_SLOTS:
    // The bus asks for this name. NOLINTNEXTLINE(readability-identifier-naming)
    uint Notify(const QString &application, uint /*replaces*/, const QString &icon,
                const QString &summary, const QString & /*body*/, const QStringList & /*actions*/,
                const QVariantMap &hints, int timeout) {
        notes.push_back(
            {application, icon, summary, hints.value(u"desktop-entry"_s).toString(), timeout});
        return 1;
    }
    void update(const QString &application, const QVariantMap &values) {
        progress.push_back({application, values});
    }
};

} // namespace

/// The real desktop over a bus of its own, which stands for that of the session.
class DesktopBusTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(m_bus.waitForReadyRead());
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection bus = QDBusConnection::connectToBus(QString::fromUtf8(address), u"fake"_s);
        QVERIFY(bus.registerService(u"org.freedesktop.Notifications"_s));
        QVERIFY(bus.registerObject(u"/org/freedesktop/Notifications"_s, &m_fake,
                                   QDBusConnection::ExportAllSlots));
        QVERIFY(bus.connect(QString(), QString(), u"com.canonical.Unity.LauncherEntry"_s,
                            u"Update"_s, &m_fake, SLOT(update(QString, QVariantMap))));
        QGuiApplication::setDesktopFileName(u"com.vesprin.folioforge"_s);
    }

    void cleanupTestCase() {
        QDBusConnection::disconnectFromBus(u"fake"_s);
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void aNotificationSaysTheTextAndLeadsToTheApplication() {
        SystemDesktop().notify(u"2 PDFs made <b>"_s);
        QTRY_COMPARE(m_fake.notes.size(), 1);
        const FakeDesktop::Note &note = m_fake.notes.first();
        QCOMPARE(note.summary, u"2 PDFs made <b>"_s);
        QCOMPARE(note.application, QCoreApplication::applicationName());
        QCOMPARE(note.icon, u"folioforge"_s);
        QCOMPARE(note.entry, u"com.vesprin.folioforge"_s);
        QCOMPARE(note.timeout, -1);
    }

    void theTaskBarShowsProgressUntilItGoes() {
        SystemDesktop().showProgress(0.25);
        SystemDesktop().showProgress(std::nullopt);
        QTRY_COMPARE(m_fake.progress.size(), 2);
        const FakeDesktop::Progress &first = m_fake.progress.first();
        QCOMPARE(first.application, u"application://com.vesprin.folioforge.desktop"_s);
        QCOMPARE(first.values.value(u"progress"_s).toDouble(), 0.25);
        QCOMPARE(first.values.value(u"progress-visible"_s).toBool(), true);
        QCOMPARE(m_fake.progress.last().values.value(u"progress-visible"_s).toBool(), false);
    }

  private:
    QProcess m_bus;
    FakeDesktop m_fake;
};

FOLIOFORGE_TEST(DesktopBusTest)
#include "DesktopBusTest.moc"
