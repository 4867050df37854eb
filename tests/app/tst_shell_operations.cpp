#include "AppState.h"
#include "ModeRequests.h"
#include "ShellFixture.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;
using Shell = VantuAppShell;
using Act = void (*)(Shell &);
using Intent = void (Shell::*)();
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Intent)

namespace {

constexpr auto kConnect = "POST /v1/connect";
constexpr auto kDisconnect = "POST /v1/disconnect";
constexpr auto kStatus = "GET /v1/status";
constexpr auto kTokyo = R"(,"connected_node":{"id":"a","name":"Tokyo","region":"JP"})";

/// Whatever is awaited of the kind ends: it fails without a text, or has nothing to tell.
template<auto Slot, bool Fails = true>
void end(Shell &shell)
{
    [&]<class Record>(void (Shell::*slot)(quint64, const Record &, const QString &)) {
        for (quint64 id = 100; id > 0; --id) { // What is asked for then is not awaited yet.
            (shell.*slot)(id, Record(), Fails ? u" "_s : QString());
        }
    }(Slot);
}

} // namespace

/// What the user asks of the daemon through the shell.
class TestShellOperations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cancelOwnConnect_data();
    void cancelOwnConnect();
    void cancelCrossedByAnswer();
    void cancelOfDaemonsConnect();
    void cancelBehindModeChange();
    void failureIsToldWhereAsked_data();
    void failureIsToldWhereAsked();
    void ownWords_data();
    void ownWords();
    void requiredUpdate_data();
    void requiredUpdate();
    void killSwitchChain_data();
    void killSwitchChain();
    void statusOlderThanChange();
    void recentPlace();
};

void TestShellOperations::cancelOwnConnect_data()
{
    QTest::addColumn<Act>("begin");
    QTest::newRow("runtime") << Act([](Shell &shell) { shell.connectRuntime(); });
    QTest::newRow("node") << Act([](Shell &shell) { shell.connectNode(u"a"_s, u"Tokyo"_s); });
    QTest::newRow("smart") << Act([](Shell &shell) { shell.connectSmart({}); });
}

void TestShellOperations::cancelOwnConnect()
{
    QFETCH(Act, begin);
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.answerHeld(kConnect);
    fixture.answerHeld(kDisconnect, status("disconnected"));
    begin(fixture.shell());
    QTRY_COMPARE(fixture.count(kConnect), 1);
    QCOMPARE(fixture.text(u"VantuStatusTitle"_s), u"Connecting..."_s);
    QCOMPARE(fixture.button()->text(), u"Cancel"_s);
    QTRY_VERIFY(fixture.canChoose(u"Cancel"_s));
    begin(fixture.shell());

    fixture.button()->click();
    fixture.shell().cancelConnectFromTray();
    QTRY_COMPARE(fixture.count(kDisconnect), 1);
    QCOMPARE(fixture.button()->text(), u"Canceling..."_s);
    QVERIFY(!fixture.button()->isEnabled());
    QTRY_COMPARE(fixture.trayTitle(), u"Canceling..."_s);
    QVERIFY(!fixture.canChoose(u"Connect"_s) && !fixture.canChoose(u"Cancel"_s));
    fixture.shell().cancelConnect();

    fixture.daemon.release();
    QTRY_VERIFY(fixture.isReady());
    QVERIFY(fixture.poll());
    QVERIFY(fixture.notice().isEmpty());
    QCOMPARE(fixture.count(kConnect), 1);
    QCOMPARE(fixture.count(kDisconnect), 1);
    QCOMPARE(fixture.button()->text(), u"Connect"_s);
}

void TestShellOperations::cancelCrossedByAnswer()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.answerHeld(kConnect, status("connected", "vantuvpn", kTokyo));
    fixture.shell().connectRuntime();
    QTRY_COMPARE(fixture.count(kConnect), 1);
    const QSignalSpy changed(&fixture.shell().state(), &AppState::runtimeChanged);
    fixture.daemon.release();
    QThread::msleep(600); // The answer is in the queue when the user gives up.
    fixture.shell().cancelConnect();
    QTRY_VERIFY(fixture.isReady());
    QCOMPARE(fixture.count(kDisconnect), 1);
    QCOMPARE(changed.count(), 0);
    QVERIFY(GuiPreferences().recentNodes().isEmpty());
}

void TestShellOperations::cancelOfDaemonsConnect()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.shell().cancelConnect();
    QVERIFY(fixture.poll(status("connecting")));
    QCOMPARE(fixture.count(kDisconnect), 0);
    fixture.daemon.setDefault(kDisconnect,
                              Reply::nothing().hold().send("HTTP/1.1 500 No\r\n\r\nStuck"));
    QVERIFY(fixture.host.click(u"Cancel"_s));
    QTRY_COMPARE(fixture.count(kDisconnect), 1);
    QCOMPARE(fixture.button()->text(), u"Canceling..."_s);
    fixture.shell().cancelConnect();
    fixture.answerHeld(kStatus); // It would clear what the tray tells.
    fixture.daemon.release();
    QTRY_COMPARE(fixture.trayDetail(), u"Stuck"_s);
    QVERIFY(fixture.notice().isEmpty());
    QVERIFY(fixture.poll(status("connecting")));
    QCOMPARE(fixture.count(kDisconnect), 1);
    QCOMPARE(fixture.button()->text(), u"Cancel"_s); // The daemon goes on, as before.
}

/// The daemon answers a mode change when the tunnel stands again, which may be never.
void TestShellOperations::cancelBehindModeChange()
{
    const auto inWindow = [](Shell &shell) { shell.setModePreference(moderequest::autoMode()); };
    const auto inTray = [](Shell &shell) { shell.tray().setMode(moderequest::autoMode(), {}); };
    for (const std::function<void(Shell &)> &change :
         {std::function(inWindow), std::function(inTray)}) {
        ShellFixture fixture;
        QVERIFY(fixture.start());
        QVERIFY(fixture.poll(status("retrying")));
        fixture.answerHeld("POST /v1/mode");
        change(fixture.shell());
        QTRY_COMPARE(fixture.count("POST /v1/mode"), 1);
        fixture.shell().disconnectRuntime();
        QCOMPARE(fixture.notice(), u"Please wait for the current operation to finish"_s);
        QCOMPARE(fixture.button()->text(), u"Cancel"_s);
        fixture.button()->click();
        QTRY_COMPARE(fixture.count(kDisconnect), 1);
        QTRY_VERIFY(fixture.isIdle());
        QVERIFY(!fixture.notice().contains(u"cancel"_s));
    }
}

void TestShellOperations::failureIsToldWhereAsked_data()
{
    QTest::addColumn<Intent>("begin");
    QTest::addColumn<QByteArray>("route");
    QTest::addColumn<bool>("inTray");
    QTest::addColumn<Intent>("before");
    const auto row = [](const char *route, bool inTray, Intent begin, Intent before = {}) {
        QTest::addRow("%s%s %s", before ? "cancel with " : "", route,
                      inTray ? "in the tray" : "in the window")
            << begin << QByteArray(route) << inTray << before;
    };
    row(kConnect, false, &Shell::connectRuntime);
    row(kConnect, true, &Shell::connectRuntimeFromTray);
    row(kDisconnect, false, &Shell::disconnectRuntime);
    row(kDisconnect, true, &Shell::disconnectRuntimeFromTray);
    row(kDisconnect, false, &Shell::cancelConnect, &Shell::connectRuntimeFromTray);
    row(kDisconnect, true, &Shell::cancelConnectFromTray, &Shell::connectRuntime);
    row("POST /v1/session/logout", false, &Shell::logoutAccount);
    row("POST /v1/session/logout", true, &Shell::logoutAccountFromTray);
}

void TestShellOperations::failureIsToldWhereAsked()
{
    QFETCH(Intent, begin);
    QFETCH(QByteArray, route);
    QFETCH(bool, inTray);
    QFETCH(Intent, before);
    ShellFixture fixture;
    QVERIFY(fixture.start());
    if (before) {
        fixture.answerHeld(kConnect);
        (fixture.shell().*before)();
    }
    const auto told = u"50%1 & <b>no</b>"_s;
    fixture.answer(route, R"({"error":" 50%1 & <b>no</b> "})", 500);
    fixture.answerHeld(kStatus); // It would clear what the tray tells.
    (fixture.shell().*begin)();
    (fixture.shell().*begin)();
    if (inTray) {
        QTRY_COMPARE(fixture.trayDetail(), told);
        QVERIFY(fixture.notice().isEmpty());
    } else {
        QTRY_COMPARE(fixture.notice(), told);
        QVERIFY(!fixture.noticeStays() && fixture.trayDetail() != told);
    }
    QVERIFY(fixture.poll(status("disconnected")));
    QTRY_VERIFY(fixture.isReady());
    QCOMPARE(fixture.count(route), 1);
    // The card keeps the reason until there is a connection.
    const auto detail = u"VantuVPNStatusDetail"_s;
    QCOMPARE(fixture.text(detail) == told, route == kConnect && !inTray);
    QVERIFY(fixture.poll(status("connected")) && fixture.poll(status("disconnected")));
    QTRY_COMPARE(fixture.text(u"VantuStatusTitle"_s), u"Not connected"_s);
    QVERIFY(fixture.text(detail) != told);
}

void TestShellOperations::ownWords_data()
{
    QTest::addColumn<Act>("begin");
    QTest::addColumn<Act>("finish");
    QTest::addColumn<bool>("excludes");
    bool excludes = true;
    const auto row = [&excludes](const char *notice, Act finish, Act begin) {
        QTest::newRow(notice) << begin << finish << excludes;
    };
    const Act connected = &end<&Shell::handleWindowConnectFinished>;
    const Act mode = &end<&Shell::handleWindowModeFinished>;
    row("Could not connect", connected, [](Shell &s) { s.connectRuntime(); });
    row("Could not connect to this location", connected, [](Shell &s) { s.connectSmart({}); });
    row("Could not disconnect", &end<&Shell::handleWindowDisconnectFinished>,
        [](Shell &s) { s.disconnectRuntime(); });
    row("Could not switch mode", mode, [](Shell &s) { s.setModePreference({}); });
    // A success that shows nothing of what was asked for is none.
    const Act undone = &end<&Shell::handleWindowModeFinished, false>;
    row("Could not update local network", mode, [](Shell &s) { s.setLocalNetworkPreference({}); });
    row("Could not update system proxy", undone,
        [](Shell &s) { s.setSettingsSystemProxyPreference({}); });
    row("Could not update kill switch", &end<&Shell::handleWindowKillSwitchFinished, false>,
        [](Shell &s) { s.setSettingsKillSwitchMode({}); });
    row("Could not sign in", &end<&Shell::handleWindowLoginFinished>,
        [](Shell &s) { s.loginAccount({}, {}, false); });
    row("Could not sign out", &end<&Shell::handleWindowLogoutFinished>,
        [](Shell &s) { s.logoutAccount(); });

    excludes = false; // Beside these everything else goes on.
    const Act importRules = [](Shell &s) { s.importModeSplitRules(u"block"_s, {}); };
    const Act listen = [](Shell &s) { s.setSettingsProxyListeners({}, {}); };
    row("Could not update auto connect", &end<&Shell::handleWindowAutoConnectFinished>,
        [](Shell &s) { s.setSettingsAutoConnect({}); });
    row("Could not update proxy listen address", &end<&Shell::handleWindowProxyListenFinished>,
        listen);
    row("Proxy listen address updated", &end<&Shell::handleWindowProxyListenFinished, false>,
        listen);
    row("Could not update language", &end<&Shell::handleWindowLanguageFinished>,
        [](Shell &s) { s.setSettingsLanguage({}, {}); });
    row("Repair failed", &end<&Shell::handleWindowRepairFinished>,
        [](Shell &s) { s.repairSettingsDiagnostics(); });
    row("Could not load config paths", &end<&Shell::handleWindowConfigPathsFinished>,
        [](Shell &s) { s.refreshConfigPaths(); });
    row("Could not refresh locations", &end<&Shell::handleWindowNodesFinished>,
        [](Shell &s) { s.refreshLocations(); });
    row("Could not refresh location groups", &end<&Shell::handleWindowNodeGroupsFinished>,
        [](Shell &s) {
            RuntimeInfo other = s.state().runtime();
            other.authState = u"none"_s;
            s.state().setRuntime(other);
        });
    row("Could not load split rules", &end<&Shell::handleWindowSplitRulesFinished>,
        [](Shell &s) { s.refreshModeSplitRules(); });
    row("Could not import split rules", &end<&Shell::handleWindowSplitRuleImportFinished>,
        importRules);
    row("Custom split rules unchanged", &end<&Shell::handleWindowSplitRuleImportFinished, false>,
        importRules);
    row(
        "Custom split rules updated, but rules could not be refreshed",
        [](Shell &s) {
            end<&Shell::handleWindowSplitRuleImportFinished, false>(s);
            end<&Shell::handleWindowSplitRulesFinished>(s);
        },
        importRules);
    row("Could not open renewal page", &end<&Shell::handleWindowPurchaseURLFinished>,
        [](Shell &s) { s.requestPurchaseURL({}); });
    row("Could not load account", &end<&Shell::handleWindowUserFinished>, [](Shell &s) {
        s.loginAccount({}, {}, false);
        end<&Shell::handleWindowLoginFinished, false>(s);
    });
    row("Could not load version", &end<&Shell::handleWindowVersionFinished>, [](Shell &s) {
        s.resetSettingsAPIURL();
        end<&Shell::handleWindowAPIURLFinished, false>(s);
    });
}

/// What stands there where the daemon has no words of its own.
void TestShellOperations::ownWords()
{
    QFETCH(Act, begin);
    QFETCH(Act, finish);
    QFETCH(bool, excludes);
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.answerHeld({});
    fixture.answerHeld(kDisconnect);
    begin(fixture.shell());
    QCOMPARE(fixture.isIdle(), !excludes);
    if (excludes) {
        // Whatever is begun meanwhile is refused, and says so where the user asked.
        fixture.shell().setModePreference(moderequest::wireGuard());
        QCOMPARE(fixture.notice(), u"Please wait for the current operation to finish"_s);
    }
    // Nothing else of the kind is awaited.
    finish(fixture.shell());
    QCOMPARE(fixture.notice(), QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(fixture.isIdle());
}

void TestShellOperations::requiredUpdate_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("frees");
    QTest::newRow("none") << QByteArray("{}") << true;
    QTest::newRow("offered") << QByteArray(R"({"update_available":true})") << true;
    QTest::newRow("required")
        << QByteArray(R"({"update_available":true,"latest":{"version_code":"11","version_num":11,
            "is_force_upgrade":true}})")
        << false;
}

void TestShellOperations::requiredUpdate()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, frees);
    ShellFixture fixture;
    const QString version = QCoreApplication::applicationVersion();
    GuiPreferences().setUpdateBookkeeping(version, {.forceUpgrade = true});
    fixture.answerHeld("POST /v1/gui/update/check", answer);
    QVERIFY(fixture.start());
    QTRY_COMPARE(fixture.count("POST /v1/gui/update/check"), 1); // Without the usual delay.
    fixture.shell().connectRuntime();
    QCOMPARE(fixture.notice(), u"A required Vantu update is being checked before connecting."_s);
    fixture.daemon.release();
    QTRY_COMPARE(GuiPreferences().updateBookkeeping(version).forceUpgrade, !frees);
    fixture.shell().connectNodeFromTray(u"a"_s, {});
    if (frees) {
        QTRY_COMPARE(fixture.count(kConnect), 1);
    } else {
        QTRY_VERIFY(QApplication::activeModalWidget());
        QCOMPARE(QApplication::activeModalWidget()->objectName(), u"VantuUpdateDialog"_s);
        fixture.shell().connectSmart({});
        QVERIFY(fixture.poll());
        QCOMPARE(fixture.count(kConnect), 0);
    }
    QCOMPARE(fixture.count("POST /v1/gui/update/check"), 1);
}

void TestShellOperations::killSwitchChain_data()
{
    // s: switch to auto; c: choose a mode; l: leave the page; w, p, t: WireGuard or proxy
    // in the window, WireGuard in the tray; W: like w, but the page is left meanwhile.
    // F and X: the next mode fails, or comes out as another one.
    QTest::addColumn<QByteArray>("sent");
    const auto row = [](const char *steps, const char *sent) {
        QTest::newRow(steps) << QByteArray(sent);
    };
    row("s", "mode kill-switch");
    row("Fs", "mode");
    row("Xs", "mode");
    row("w", "mode");
    row("c", "");
    row("cw", "mode kill-switch");
    row("cFww", "mode mode kill-switch");
    row("cpw", "mode mode kill-switch");
    row("cwlw", "mode kill-switch mode");
    row("clw", "mode");
    row("cW", "mode kill-switch");
    row("ct", "mode kill-switch");
    row("clt", "mode");
}

void TestShellOperations::killSwitchChain()
{
    QFETCH(QByteArray, sent);
    ShellFixture fixture;
    fixture.answer(kStatus, status("disconnected", "proxy"));
    QVERIFY(fixture.start());
    Shell &shell = fixture.shell();
    char fault = 0;
    const QByteArray steps(QTest::currentDataTag());
    for (const char step : steps) {
        const QByteArray wanted = step == 'p' ? "proxy" : step == 's' ? "auto" : "wireguard";
        const QByteArray now = fault == 0 ? wanted : QByteArray("proxy");
        if (QByteArray("swWpt").contains(step)) {
            fixture.answer("POST /v1/mode", R"({"error":"No","transport":")" + now + "\"}",
                           std::exchange(fault, 0) == 'F' ? 500 : 200);
            fixture.answer(kStatus, status("disconnected", now));
        }
        switch (step) {
        case 'c':
            shell.chooseModeForKillSwitch();
            QCOMPARE(fixture.notice(), u"Pick a VPN mode to turn on Kill Switch"_s);
            break;
        case 'l':
            shell.cancelPendingKillSwitchEnable();
            break;
        case 's':
            shell.switchToAutoAndEnableKillSwitch();
            break;
        case 'w':
        case 'W':
            shell.setModePreference(moderequest::wireGuard());
            if (step == 'W') {
                shell.cancelPendingKillSwitchEnable();
            }
            break;
        case 'p':
            shell.setModePreference(moderequest::proxyGlobal());
            break;
        case 't':
            shell.tray().setMode(moderequest::wireGuard(), {});
            break;
        default:
            fault = step;
            break;
        }
        QTRY_VERIFY(fixture.isIdle());
    }
    QVERIFY(fixture.poll());
    QTRY_VERIFY(fixture.isIdle());
    QByteArrayList posts = fixture.daemon.routes();
    posts.removeIf([](const QByteArray &route) { return !route.startsWith("POST"); });
    QCOMPARE(posts.join(' ').replace("POST /v1/", ""), sent);
    // What failed is told until the next attempt.
    QCOMPARE(fixture.notice() == u"No"_s, steps.chopped(1).endsWith('F'));
    QCOMPARE(fixture.notice() == u"Could not switch mode"_s, steps.chopped(1).endsWith('X'));
}

void TestShellOperations::statusOlderThanChange()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.answerHeld(kStatus, status("disconnected"));
    fixture.answer("POST /v1/mode", R"({"transport":"wireguard"})");
    fixture.daemon.clearRequests();
    fixture.shell().refreshLocationsAfterGUIRestart();
    QTRY_COMPARE(fixture.count(kStatus), 1);
    fixture.answer(kStatus, status("disconnected", "wireguard"));
    fixture.shell().setModePreference(moderequest::wireGuard());
    QTRY_VERIFY(fixture.isIdle());
    const QSignalSpy changed(&fixture.shell().state(), &AppState::runtimeChanged);
    fixture.daemon.release();
    QTRY_VERIFY(fixture.count("GET /v1/nodes") > 0); // The watch goes on to its end.
    QCOMPARE(changed.count(), 0);
    QCOMPARE(fixture.shell().state().runtime().mode.transport, u"wireguard"_s);
}

void TestShellOperations::recentPlace()
{
    ShellFixture fixture;
    QVERIFY(fixture.start());
    fixture.answer(kConnect, "{}", 500);
    fixture.shell().connectNode(u"a"_s, {});
    QTRY_VERIFY(fixture.isReady());
    QVERIFY(GuiPreferences().recentNodes().isEmpty());
    const QList<RecentNode> remembered{{u"a"_s, u"Tokyo"_s, u"jp"_s}};
    const QByteArray up = status("connected", "vantuvpn", kTokyo);
    fixture.answer(kConnect, up);
    fixture.answer(kStatus, up);
    fixture.shell().connectSmart(u"JP"_s);
    QTRY_COMPARE(GuiPreferences().recentNodes(), remembered);
    QCOMPARE(fixture.body(kConnect), R"({"group":"JP","smart":true})");
    QTRY_COMPARE(fixture.button()->text(), u"Disconnect"_s);
    const TrayMenuItem menu = fixture.host.menu();
    QVERIFY(menu.find(u"Node / Location"_s)->labels().contains(u"JP - Tokyo"_s));
}

QTEST_MAIN(TestShellOperations)
#include "tst_shell_operations.moc"
