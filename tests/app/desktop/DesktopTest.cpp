#include "app/desktop/Desktop.h"
#include "support/DataRows.h"
#include "support/Environment.h"

#include <QtDBus>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

using thisapp::desktop::Desktop;

constexpr int PatienceMs = 20'000; ///< for a loaded machine

/// What a dock and a notification server would get.
class Observer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList seen;

signals:
    void ActionInvoked(uint id, const QString& key);

public slots:
    void update(const QString& application, const QVariantMap& properties)
    {
        const double progress = properties["progress"].toDouble();
        const bool isVisible = properties["progress-visible"].toBool();
        seen << QString("%1 %2 %3").arg(application).arg(progress).arg(isVisible);
    }
    uint Notify(const QString& application, uint, const QString& icon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int timeout)
    {
        emit ActionInvoked(1, "of another notification");
        if (!actions.isEmpty())
            emit ActionInvoked(1, actions[0]);
        const QString entry = hints["desktop-entry"].toString();
        seen << QStringList{application, icon, summary, body, entry, QString::number(timeout)}.join('|');
        return 1;
    }
};

int opened = 0;

void use(Desktop& desktop)
{
    desktop.taskbarProgress().setValue(10); // hidden: nothing to see yet
    desktop.taskbarProgress().show();
    for (const int percent : {40, 40, 101})
        desktop.taskbarProgress().setValue(percent);
    desktop.notifier().notify("Done", "<b> & \"c\"", {"Open", [] { ++opened; }});
}

TEST(DesktopTest, TellsTheSessionBus)
{
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon.waitForStarted())
        GTEST_SKIP() << "no dbus-daemon";
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine().trimmed());
    const test::Environment bus("DBUS_SESSION_BUS_ADDRESS", address.toUtf8().constData());

    auto connection = QDBusConnection::connectToBus(address, "observer");
    Observer observer;
    ASSERT_TRUE(connection.connect({}, {}, "com.canonical.Unity.LauncherEntry", "Update", &observer,
                                   SLOT(update(QString, QVariantMap))));
    ASSERT_TRUE(connection.registerService("org.freedesktop.Notifications"));
    ASSERT_TRUE(
        connection.registerObject("/org/freedesktop/Notifications", &observer,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    {
        Desktop desktop;
        use(desktop);
        EXPECT_TRUE(QTest::qWaitFor([] { return opened > 0; }, PatienceMs));
        EXPECT_EQ(opened, 1);
    } // a bar still visible is taken down
    const QString app = "application://org.quillet.Quillet.desktop ";
    const QStringList expected = {app + "0.1 1", app + "0.4 1", app + "1 1",
                                  "Quillet|quillet|Done|&lt;b&gt; &amp; \"c\"|org.quillet.Quillet|-1",
                                  app + "1 0"};
    EXPECT_TRUE(QTest::qWaitFor([&] { return observer.seen.size() >= expected.size(); }, PatienceMs));
    EXPECT_EQ(observer.seen, expected) << observer.seen.join('\n').toStdString();

    QDBusConnection::disconnectFromBus("observer");
    daemon.terminate();
    daemon.waitForFinished();
}

TEST(DesktopTest, KeepsQuietWithoutABus)
{
    const test::Environment runtime("XDG_RUNTIME_DIR", "/nonexistent");
    for (const char* address : {"", "unix:path=/nonexistent/bus"}) {
        const test::Environment bus("DBUS_SESSION_BUS_ADDRESS", address);
        Desktop desktop;
        use(desktop);
    }
}

/// What others have said of the graphics stays, and nothing is left to programs that this one starts.
TEST(DisplayTest, StartsLeanlyUnlessTheUserSaysOtherwise)
{
    constexpr const char* Variable = "QT_XCB_GL_INTEGRATION";
    for (const char* said : {static_cast<const char*>(nullptr), "xcb_egl"}) {
        const test::Environment before(Variable, said);
        {
            const thisapp::desktop::LeanStart lean;
            EXPECT_EQ(qgetenv(Variable), said ? said : "none");
        }
        EXPECT_EQ(qgetenv(Variable), said ? said : "");
    }
}

TEST(DisplayTest, IsThereOnlyWhenAServerAnswersOrNoneIsNeeded)
{
    const auto orUnset = [](const std::string& value) { return value.empty() ? nullptr : value.c_str(); };
    for (const auto& row : test::dataRows("displays.txt")) {
        const test::Environment x("DISPLAY", orUnset(row[0]));
        const test::Environment wayland("WAYLAND_DISPLAY", orUnset(row[1]));
        const test::Environment platform("QT_QPA_PLATFORM", orUnset(row[2]));
        EXPECT_EQ(thisapp::desktop::isDisplayThere(), row[3] == "yes")
            << row[0] << ' ' << row[1] << ' ' << row[2];
    }
}

} // namespace

#include "DesktopTest.moc"
