#include "AppState.h"
#include "MainWindow.h"
#include "ModeRequests.h"
#include "ShellFixture.h"
#include "WindowController.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;
using Shell = VantuAppShell;
using Act = void (*)(Shell &);
Q_DECLARE_METATYPE(Act)

namespace {

constexpr auto kConnect = "POST /v1/connect";
constexpr auto kStatus = "GET /v1/status";
const auto kIncompatible =
    u"Vantu GUI and daemon are incompatible. Update Vantu before continuing."_s;
const auto kNotRunning = u"Vantu daemon is not running."_s;
constexpr int kRecheck = 10000; ///< Within this a daemon that came later is found.

} // namespace

/// The shell's life: finding, losing and following the daemon, and leaving.
class TestShell final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusedVersion();
    void absentDaemon_data();
    void absentDaemon();
    void connectedFromTheStart();
    void badDaemon_data();
    void badDaemon();
    void replacedDaemonIsAskedAnew();
    void catalogueWatch();
    void signOutForgetsAccount();
    void changeMadeLater();
    void languageRestart_data();
    void languageRestart();
    void leaving_data();
    void leaving();
    void closingHides();
};

void TestShell::refusedVersion()
{
    ShellFixture fixture;
    GuiPreferences().setShowOnLaunch(false);
    ScriptedDaemon other;
    other.setDefault({}, Reply::json({}, 409));
    fixture.leadTo(other.socketName());
    fixture.shell().start();
    QCOMPARE(fixture.window(), nullptr);
    QTRY_COMPARE(fixture.notice(), kIncompatible);
    QCOMPARE(fixture.text(u"VantuVPNStatusDetail"_s), kIncompatible);
    QTRY_COMPARE(fixture.trayTitle(), kIncompatible);
    QVERIFY(!fixture.canChoose(u"Connect"_s));

    fixture.window()->close();
    fixture.shell().connectRuntime();
    fixture.shell().setSettingsKillSwitchEnabled(true);
    QVERIFY(fixture.window()->isVisible());
    QCOMPARE(fixture.notice(), kIncompatible);
    QVERIFY(fixture.noticeStays());
    const QByteArrayList asked = other.routes();
    QCOMPARE(asked.count("GET /v1/version"), asked.size());

    fixture.leadTo(fixture.daemon.socketName());
    QTRY_VERIFY_WITH_TIMEOUT(fixture.isReady(), kRecheck);
    QTRY_VERIFY(fixture.canChoose(u"Connect"_s));
    QCOMPARE(fixture.text(u"VantuStatusTitle"_s), u"Not connected"_s);
}

void TestShell::absentDaemon_data()
{
    QTest::addColumn<bool>("leftBehind");
    QTest::newRow("no socket") << false;
    QTest::newRow("a socket without a listener") << true;
}

void TestShell::absentDaemon()
{
    QFETCH(bool, leftBehind);
    ShellFixture fixture;
    ScriptedDaemon dead;
    dead.stop();
    fixture.leadTo(leftBehind ? dead.socketName() : u"/nowhere/control.sock"_s);
    fixture.shell().start();
    QTRY_COMPARE(fixture.notice(), kNotRunning);
    QTRY_COMPARE(fixture.text(u"VantuVPNStatusDetail"_s), kNotRunning);
    QTRY_COMPARE(fixture.trayDetail(), kNotRunning);
    QVERIFY(!fixture.canChoose(u"Connect"_s) && !fixture.button()->isEnabled());

    // A loss is told once, not with every poll and version check.
    fixture.shell().windows().showNotice({}, MainWindow::NoticeKind::Info);
    QVERIFY(fixture.poll());
    QVERIFY(fixture.notice().isEmpty());

    fixture.leadTo(fixture.daemon.socketName());
    QTRY_VERIFY_WITH_TIMEOUT(fixture.isReady(), kRecheck);
    QVERIFY(fixture.notice().isEmpty());
    fixture.daemon.stop();
    QVERIFY(fixture.poll());
    QTRY_COMPARE(fixture.notice(), kNotRunning);
}

/// The window comes before the daemon's first word; Return must not end what that tells.
void TestShell::connectedFromTheStart()
{
    ShellFixture fixture;
    fixture.answer(kStatus, status("connected"));
    QVERIFY(fixture.start());
    QCOMPARE(fixture.button()->text(), u"Disconnect"_s);
    QVERIFY(QTest::qWaitForWindowActive(fixture.window()));
    QVERIFY(!fixture.button()->hasFocus());
}

void TestShell::badDaemon_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("never answers") << QByteArray();
    QTest::newRow("half an answer") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n{");
    QTest::newRow("garbage") << QByteArray("\0\xff\r\n\r\n{}", 8);
}

void TestShell::badDaemon()
{
    QFETCH(QByteArray, bytes);
    ShellFixture fixture;
    QVERIFY(fixture.start());
    ScriptedDaemon bad;
    bad.setDefault({}, bytes.isEmpty() ? Reply::nothing().hold() : Reply::raw(bytes));
    fixture.leadTo(bad.socketName());
    fixture.shell().tray().refreshStatus();
    QTRY_COMPARE(fixture.text(u"VantuStatusTitle"_s), u"Daemon unavailable"_s);
    fixture.shell().connectRuntime();
    QTRY_VERIFY(bad.routes().contains(kConnect));

    bad.stop();
    fixture.leadTo(fixture.daemon.socketName());
    QTRY_VERIFY_WITH_TIMEOUT(fixture.isReady(), kRecheck);
    QTRY_VERIFY(fixture.canChoose(u"Connect"_s));
    fixture.shell().connectRuntime();
    QTRY_COMPARE(fixture.count(kConnect), 1);
}

void TestShell::replacedDaemonIsAskedAnew()
{
    ShellFixture fixture;
    for (const auto *method : {"GET", "POST"}) {
        fixture.answer(method + QByteArray(" /v1/config/language"),
                       R"({"source":"system","language":"de"})");
    }
    fixture.answer(kStatus, status("disconnected", "auto", R"(,"daemon_version":"1")"));
    QVERIFY(fixture.start());
    // It can't know this desktop's language, and is told once.
    QTRY_COMPARE(fixture.body("POST /v1/config/language"),
                 R"({"if_source":"system","language":"en-US","source":"system"})");
    fixture.daemon.clearRequests();
    QVERIFY(fixture.poll(status("disconnected", "auto", R"(,"daemon_version":"2")")));
    QTRY_COMPARE(fixture.count("GET /v1/config/language"), 1);
    QVERIFY(fixture.poll());
    QCOMPARE(fixture.count("GET /v1/version"), 1);
    QCOMPARE(fixture.count("GET /v1/nodes"), 1);
    QCOMPARE(fixture.count("POST /v1/config/language"), 0);
}

void TestShell::catalogueWatch()
{
    const QByteArray refreshing =
        status("disconnected", "auto", R"(,"catalog_refresh":"refreshing")");
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.daemon.clearRequests();
    // The daemon's own refresh, seen by the poll.
    QVERIFY(fixture.poll(refreshing));
    QCOMPARE(fixture.count("GET /v1/nodes"), 0);
    QVERIFY(fixture.poll(status("disconnected")));
    QTRY_COMPARE(fixture.count("GET /v1/nodes/groups"), 1);
    QCOMPARE(fixture.count("GET /v1/nodes"), 1);

    // After a restart: watched, not asked for, and not announced.
    fixture.daemon.enqueue(kStatus, Reply::json(refreshing));
    fixture.shell().refreshLocationsAfterGUIRestart();
    QTRY_COMPARE(fixture.count("GET /v1/nodes/groups"), 2);
    QCOMPARE(fixture.count("GET /v1/nodes"), 2);
    QCOMPARE(fixture.count("POST /v1/nodes/refresh"), 0);
    QVERIFY(fixture.notice().isEmpty());

    // The user's own: once, until the cool-down is over.
    fixture.answer("POST /v1/nodes/refresh", R"({"nodes":[]})");
    fixture.shell().refreshLocations();
    QCOMPARE(fixture.notice(), u"Refreshing locations..."_s);
    fixture.shell().refreshLocations();
    QTRY_COMPARE(fixture.notice(), u"Locations updated"_s);
    fixture.shell().refreshLocations();
    QVERIFY(fixture.poll());
    QCOMPARE(fixture.count("POST /v1/nodes/refresh"), 1);
}

void TestShell::signOutForgetsAccount()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    const qsizetype asked = fixture.count("GET /v1/user");
    const qsizetype fetched = fixture.count("GET /v1/nodes/groups");
    const QByteArray out = R"({"tunnel_state":"disconnected","auth_state":"logged_out"})";
    fixture.answerHeld("GET /v1/user", R"({"email":"me@example.org"})");
    fixture.answer("POST /v1/session/logout", out);
    QVERIFY(fixture.poll());
    QTRY_COMPARE(fixture.count("GET /v1/user"), asked + 1);
    const QSignalSpy user(&fixture.shell().state(), &AppState::userChanged);
    fixture.answerHeld(kStatus, out); // It would clear what stands there.
    QVERIFY(fixture.host.click(u"Logout"_s));
    QTRY_COMPARE(fixture.trayDetail(), u"Logged out"_s);
    fixture.daemon.release();
    QVERIFY(fixture.poll(out));
    QCOMPARE(user.count(), 1);
    QVERIFY(fixture.shell().state().user().email.isEmpty());
    QCOMPARE(fixture.button()->text(), u"Sign In"_s);
    // Its places go too; those of another come with it, whoever signed in.
    QTRY_COMPARE(fixture.count("GET /v1/nodes/groups"), fetched + 1);
    QVERIFY(fixture.poll(status("disconnected")));
    QTRY_COMPARE(fixture.count("GET /v1/nodes/groups"), fetched + 2);
}

/// What was told as failed may be made all the same, and others make changes too.
void TestShell::changeMadeLater()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    const AppState &state = fixture.shell().state();
    fixture.answer("DELETE /v1/config/api-url", {}, 500);
    fixture.shell().resetSettingsAPIURL();
    QTRY_VERIFY(!fixture.notice().isEmpty());
    fixture.daemon.clearRequests();
    fixture.answer("GET /v1/split/dns", R"({"config":{"policy":"dual-auto"}})");
    for (const QByteArray url : {"", "https://b.example"}) {
        const QByteArray member = "\"api_url\":\"" + url + '"';
        fixture.answer("GET /v1/config/api-url", '{' + member + '}');
        QVERIFY(fixture.poll(status("off", "auto", ',' + member)));
        QTRY_COMPARE(state.apiURLConfig().apiURL, QString::fromLatin1(url));
    }
    QCOMPARE(state.splitDNS().configPolicy, u"dual-auto"_s);
    QTRY_COMPARE(fixture.count("GET /v1/version"), 2); // Another service each time.
}

void TestShell::languageRestart_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<int>("restarts");
    QTest::addColumn<Act>("prepare");
    const auto row = [](const char *name, const char *language, int restarts, Act prepare) {
        QTest::newRow(name) << QByteArray(language) << restarts << prepare;
    };
    const Act idle = [](Shell &) {};
    row("a shipped language", "DE_de", 1, idle);
    row("while connecting", "de", 1, [](Shell &shell) { shell.connectRuntime(); });
    row("while the tray switches the mode", "de", 1,
        [](Shell &shell) { shell.tray().setMode(moderequest::autoMode(), {}); });
    row("the loaded one", "en_us", 0, idle);
    row("one that is not shipped", "fr", 0, idle);
    row("not allowed", "de", 0, [](Shell &shell) { shell.setLanguageRestartAllowed(false); });
}

void TestShell::languageRestart()
{
    QFETCH(QByteArray, language);
    QFETCH(int, restarts);
    QFETCH(Act, prepare);
    ShellFixture fixture;
    fixture.shell().setLanguageRestartAllowed(true);
    QVERIFY(fixture.start());
    fixture.answerHeld(kConnect);
    fixture.answerHeld("POST /v1/mode");
    const QSignalSpy restart(&fixture.shell(), &Shell::restartRequested);
    prepare(fixture.shell());
    const bool wasIdle = fixture.isIdle();
    const QByteArray other =
        status("disconnected", "auto", R"(,"effective_language":")" + language + '"');
    fixture.answer(kStatus, other);
    fixture.shell().refreshLocationsAfterGUIRestart(); // Reads the status even while busy.
    QTRY_COMPARE(GuiPreferences().lastEffectiveLanguage().first(2),
                 QString::fromLatin1(language).first(2).toLower());
    QCOMPARE(restart.count(), wasIdle ? restarts : 0);
    QTRY_COMPARE(fixture.count(kConnect) + fixture.count("POST /v1/mode"), wasIdle ? 0 : 1);
    fixture.daemon.release();
    QTRY_COMPARE(restart.count(), restarts);
    QCOMPARE(fixture.notice() == u"Restarting Vantu to apply the interface language."_s,
             restarts > 0);
    // Once in a process, whatever is told afterwards.
    QTRY_VERIFY(fixture.isIdle());
    QVERIFY(fixture.poll(status("disconnected", "auto")));
    QVERIFY(fixture.poll(other));
    QCOMPARE(restart.count(), restarts);
}

void TestShell::leaving_data()
{
    QTest::addColumn<Act>("end");
    QTest::newRow("quit") << Act([](Shell &shell) { shell.quit(); });
    QTest::newRow("quit with the window hidden") << Act([](Shell &shell) {
        QApplication::activeWindow()->close();
        shell.quit();
    });
    QTest::newRow("quit with a question open") << Act([](Shell &shell) {
        shell.tray().setKillSwitchEnabled(true);
        QVERIFY(QApplication::activeModalWidget());
        shell.quit();
    });
    QTest::newRow("the session ends") << Act([](Shell &) { QCoreApplication::quit(); });
    QTest::newRow("the window is closed without a tray") << Act([](Shell &shell) {
        shell.windows().setHideToTray(false);
        QApplication::activeWindow()->close();
    });
}

void TestShell::leaving()
{
    QFETCH(Act, end);
    ShellFixture fixture;
    fixture.answer(kStatus, status("disconnected", "proxy"));
    QVERIFY(fixture.start());
    QVERIFY(QTest::qWaitForWindowActive(fixture.window()));
    connect(&fixture.shell(), &Shell::exitRequested, qApp, &QCoreApplication::quit);
    QTimer::singleShot(0, qApp, [&] { end(fixture.shell()); });
    QTimer::singleShot(5000, &fixture.shell(), [] { QCoreApplication::exit(99); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(fixture.window(), nullptr);
}

void TestShell::closingHides()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    const QSignalSpy exits(&fixture.shell(), &Shell::exitRequested);
    MainWindow *window = fixture.window();
    window->close();
    QVERIFY(!window->isVisible());
    QVERIFY(fixture.host.click(u"Open Vantu..."_s));
    QTRY_VERIFY(window->isVisible());
    window->close();
    fixture.shell().activateFromSecondary();
    QVERIFY(window->isVisible());
    QCOMPARE(fixture.window(), window);
    QCOMPARE(exits.count(), 0);
    fixture.host.stop(); // Nothing would bring it back any more.
    window->close();
    QTRY_COMPARE(exits.count(), 1);
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
