#include "ConfirmDialog.h"
#include "TrayDesk.h"
#include "TrayHost.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Reply)

namespace {

QPushButton *dialogButton(const QString &name)
{
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && qobject_cast<const ConfirmDialog *>(widget) != nullptr) {
            return widget->findChild<QPushButton *>(name);
        }
    }
    return nullptr;
}

} // namespace

class TestTrayApp final : public QObject
{
    Q_OBJECT

public:
    /// Stands in for the desktop's file manager.
    Q_INVOKABLE void takeOpened(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_host.start()); }
    void init()
    {
        GuiPreferences preferences;
        preferences.setRecentNodes({});
    }
    void cleanup() { QTRY_VERIFY(m_host.items().isEmpty()); }

    void panelShowsFirstPoll();
    void cancelThatComesTooLate();
    void busyRefuses();
    void modeRequests_data();
    void modeRequests();
    void killSwitch();
    void questions();
    void answersOlderThanChange();
    void openMenuWaits();
    void recentNodesAndCoolDown();
    void daemonLostAndBack();
    void failedPoll();
    void iconNeverClaimsMore_data();
    void iconNeverClaimsMore();
    void iconDuringLongChange();
    void panelThatNeverTellsTheMenuClosed();
    void logDirectory();

private:
    /// Starts, and waits until the panel has the icon.
    bool start(Desk &desk)
    {
        return desk.start() && QTest::qWaitFor([this] { return m_host.items().size() == 1; });
    }
    /// The panel's labels at the top of the menu, once they are as expected.
    QString title() { return m_host.menu().labels().value(0); }
    QString detail() { return m_host.menu().labels().value(1); }
    TrayMenuItem entry(const QString &label)
    {
        const TrayMenuItem menu = m_host.menu();
        const TrayMenuItem *found = menu.find(label);
        return found == nullptr ? TrayMenuItem{} : *found;
    }

    TrayHost m_host;
    QUrl m_opened;
};

void TestTrayApp::panelShowsFirstPoll()
{
    Desk desk;
    desk.tray.start();
    QTRY_COMPARE(m_host.items().size(), 1);
    QCOMPARE(title(), u"Vantu: starting..."_s);
    const QImage off = m_host.icon();
    QVERIFY(start(desk));

    QTRY_COMPARE(title(), u"Vantu: disconnected"_s);
    // An underscore would be taken for the mark of an access key.
    QTRY_VERIFY(entry(u"Account: me\u02CDtoo@example.org"_s).enabled);
    QVERIFY(detail().startsWith(u"VantuVPN: Split (split default Tunnel, regions Direct CN"_s));
    // Foreign names come as one plain line each, with their ampersands.
    const QStringList nodes = entry(u"All Nodes"_s).labels();
    QCOMPARE(nodes,
             (QStringList{u"JP - Tokyo & <b>Co</b> [selected]"_s, u"US - Reno Nevada - p2p"_s}));
    QVERIFY(entry(u"JP - Tokyo & <b>Co</b> [selected]"_s).checked);

    QVERIFY(desk.poll(status("connected")));
    QTRY_COMPARE(m_host.toolTip(), u"Vantu: connected"_s);
    QTRY_VERIFY(m_host.icon() != off);
    QVERIFY(entry(u"Disconnect"_s).enabled);

    QSignalSpy open(&desk.tray, &VantuTrayApp::openVantuRequested);
    QVERIFY(m_host.activate());
    QTRY_COMPARE(open.size(), 1);
    m_host.secondaryActivate();
    QVERIFY(m_host.click(u"Open Vantu..."_s));
    QTRY_COMPARE(open.size(), 2);
}

/// A "Cancel" still on the screen when its connect has ended must not connect.
void TestTrayApp::cancelThatComesTooLate()
{
    Desk desk;
    QVERIFY(start(desk));
    const QSignalSpy connecting(&desk.tray, &VantuTrayApp::connectRuntimeRequested);
    const QSignalSpy cancelling(&desk.tray, &VantuTrayApp::cancelConnectRequested);
    desk.tray.connectStarted(9, OperationOrigin::Tray, true, u"Reno\n&"_s);
    QTRY_COMPARE(title(), u"Vantu: connecting Reno &..."_s);
    const int id = entry(u"Cancel"_s).id;
    m_host.aboutToShow(0);
    desk.tray.handleConnectFinished(9, {}, {});
    m_host.sendEvent(id, u"clicked"_s);
    QTRY_COMPARE(entry(u"Connect"_s).id, id);
    QCOMPARE(connecting.size() + cancelling.size(), 0);
}

void TestTrayApp::busyRefuses()
{
    Desk desk;
    QVERIFY(!desk.tray.guardPasses());
    QVERIFY(start(desk));
    QVERIFY(desk.tray.guardPasses());
    QSignalSpy asked(&desk.tray, &VantuTrayApp::connectRuntimeRequested);
    QSignalSpy node(&desk.tray, &VantuTrayApp::connectNodeRequested);
    const int id = entry(u"US - Reno Nevada - p2p"_s).id;
    desk.tray.setExternalBusy(true);
    desk.daemon.clearRequests();
    // A status that comes meanwhile is not believed.
    desk.daemon.setDefault("GET /v1/status", Reply::json(status("connected")));
    desk.tray.refreshStatus();
    QTRY_VERIFY(desk.daemon.routes().contains("GET /v1/kill-switch"));
    QTest::qWait(0);
    QCOMPARE(desk.state.runtime().tunnelState, u"disconnected"_s);
    desk.daemon.clearRequests();
    desk.tray.connectRuntime();
    desk.tray.disconnectRuntime();
    desk.tray.logoutAccount();
    desk.tray.setSystemProxyPreference(u"on"_s);
    desk.tray.setKillSwitchEnabled(true);
    m_host.sendEvent(id, u"clicked"_s);
    desk.tray.setExternalBusy(false);
    // The end of the operation brings a poll of its own.
    QTRY_VERIFY(desk.daemon.routes().contains("GET /v1/status"));
    QCOMPARE(asked.size() + node.size(), 0);
    QVERIFY(!desk.daemon.routes().contains("POST /v1/proxy/system-proxy"));
    m_host.sendEvent(id, u"clicked"_s);
    QTRY_COMPARE(node.size(), 1);
    QCOMPARE(node.constFirst(), (QVariantList{u"b"_s, u"US - Reno Nevada"_s}));
}

void TestTrayApp::modeRequests_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QByteArray>("route");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("detail");

    const QByteArray mode = "POST /v1/mode";
    QTest::newRow("auto") << QStringList{u"Mode"_s, u"Auto"_s} << mode
                          << QByteArray(R"({"transport":"auto"})")
                          << QByteArray(R"({"transport":"auto"})") << u"Mode updated"_s;
    QTest::newRow("refused in silence")
        << QStringList{u"Mode"_s, u"WireGuard"_s} << mode
        << QByteArray(R"({"transport":"wireguard"})") << QByteArray(R"({"transport":"auto"})")
        << u"Could not switch mode"_s;
    QTest::newRow("split sends its whole profile")
        << QStringList{u"Mode"_s, u"[ Mode: VantuVPN ]"_s, u"Split"_s} << mode
        << QByteArray(R"({"policy":"split","split_profile":{"default_route":"tunnel",)"
                      R"("direct_regions":["CN"],"gfwlist":true},"transport":"vantuvpn"})")
        << QByteArray(R"({"transport":"vantuvpn","policy":"split","split_profile":)"
                      R"({"default_route":"tunnel","direct_regions":["CN"],"gfwlist":true}})")
        << u"Mode updated"_s;
    QTest::newRow("preference refused in silence")
        << QStringList{u"System Proxy"_s, u"On"_s} << QByteArray("POST /v1/proxy/system-proxy")
        << QByteArray(R"({"value":"on"})") << QByteArray(R"({"system_proxy":"off"})")
        << u"operation failed"_s;
    QTest::newRow("system proxy") << QStringList{u"System Proxy"_s, u"Lock"_s}
                                  << QByteArray("POST /v1/proxy/system-proxy")
                                  << QByteArray(R"({"value":"lock"})")
                                  << QByteArray(R"({"system_proxy":"lock-on"})")
                                  << u"System proxy set to Lock"_s;
}

void TestTrayApp::modeRequests()
{
    QFETCH(QStringList, path);
    QFETCH(QByteArray, route);
    Desk desk;
    QVERIFY(start(desk));
    QFETCH(QByteArray, answer);
    desk.daemon.setDefault(route, heldJson(answer));
    desk.holdPolls();
    // The entry below the header of its section: labels come more than once.
    const TrayMenuItem holder = entry(path.takeFirst());
    int id = 0;
    for (const TrayMenuItem &item : holder.children) {
        if (!path.isEmpty() && item.label == path.constFirst()) {
            path.removeFirst();
            id = item.id;
        }
    }
    QVERIFY(path.isEmpty());
    m_host.sendEvent(id, u"clicked"_s);
    QTRY_VERIFY(desk.daemon.routes().contains(route));
    QTEST(desk.body(route), "body");
    QVERIFY(!entry(u"WireGuard"_s).enabled);
    QVERIFY(title().endsWith(u"..."_s));
    desk.daemon.release();
    QFETCH(QString, detail);
    QTRY_COMPARE(this->detail(), detail);
    QVERIFY(desk.tray.guardPasses());
    QVERIFY(entry(u"WireGuard"_s).enabled);
}

void TestTrayApp::killSwitch()
{
    Desk desk;
    QVERIFY(start(desk));
    desk.holdPolls();
    // Nothing is enabled that the answer doesn't show.
    desk.daemon.setDefault("POST /v1/kill-switch", Reply::json(R"({"last_error":"No nft."})"));
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QTRY_COMPARE(detail(), u"No nft."_s);
    desk.daemon.setDefault("POST /v1/kill-switch", Reply::json(R"({"enabled":true,"mode":"on"})"));
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QTRY_COMPARE(detail(), u"Kill switch enabled"_s);
    QCOMPARE(desk.body("POST /v1/kill-switch"), QByteArray(R"({"enabled":true})"));
    QVERIFY(entry(u"Kill Switch"_s).checked);

    desk.daemon.setDefault("POST /v1/kill-switch", Reply::json(R"({"error":"no"})", 500));
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QTRY_COMPARE(detail(), u"no"_s);
    QVERIFY(entry(u"Kill Switch"_s).checked);

    // Lockdown can't be left from here, but must not outlive its reads.
    KillSwitchInfo lockdown = desk.state.killSwitch();
    lockdown.mode = u"lockdown"_s;
    desk.state.setKillSwitch(lockdown);
    desk.daemon.clearRequests();
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QTRY_VERIFY(entry(u"Kill Switch"_s).checked);
    QVERIFY(desk.tray.guardPasses());
    QVERIFY(!desk.daemon.routes().contains("POST /v1/kill-switch"));
    desk.daemon.setDefault("GET /v1/kill-switch", Reply::json("{}", 500));
    QVERIFY(desk.poll(R"({"tunnel_state":"off","kill_switch":{"enabled":false}})"));
    QTRY_VERIFY(!entry(u"Kill Switch"_s).checked);
}

void TestTrayApp::questions()
{
    Desk desk;
    QVERIFY(start(desk));
    QVERIFY(desk.poll(status("disconnected", "proxy")));
    QSignalSpy toAuto(&desk.tray, &VantuTrayApp::switchToAutoAndEnableKillSwitchRequested);
    QSignalSpy chooseMode(&desk.tray, &VantuTrayApp::chooseModeForKillSwitchRequested);
    QSignalSpy settings(&desk.tray, &VantuTrayApp::openKillSwitchSettingsRequested);

    // Two clicks, one question; its answer counts only if the guard still passes.
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QVERIFY(m_host.click(u"Kill Switch"_s));
    QTRY_VERIFY(dialogButton(u"VantuConfirmDialogAccept"_s));
    QVERIFY(!entry(u"Kill Switch"_s).checked);
    desk.tray.setExternalBusy(true);
    dialogButton(u"VantuConfirmDialogAccept"_s)->click();
    QTRY_VERIFY(!dialogButton(u"VantuConfirmDialogAccept"_s));
    QCOMPARE(toAuto.size(), 0);
    desk.tray.setExternalBusy(false);
    for (const QString &name : {u"VantuConfirmDialogAccept"_s, u"VantuConfirmDialogAlternate"_s,
                                u"VantuConfirmDialogReject"_s}) {
        desk.tray.setKillSwitchEnabled(true);
        QTRY_VERIFY(dialogButton(name));
        dialogButton(name)->click();
        QTRY_VERIFY(!dialogButton(name));
    }
    QCOMPARE(toAuto.size(), 1);
    QCOMPARE(chooseMode.size(), 1);

    KillSwitchInfo on;
    on.known = on.enabled = true;
    desk.state.setKillSwitch(on);
    desk.tray.setProxyRoutingGFWList(true);
    QTRY_VERIFY(dialogButton(u"VantuConfirmDialogAccept"_s));
    dialogButton(u"VantuConfirmDialogAccept"_s)->click();
    QTRY_COMPARE(settings.size(), 1);
    QVERIFY(!desk.daemon.routes().contains("POST /v1/mode"));
}

void TestTrayApp::answersOlderThanChange()
{
    Desk desk;
    QVERIFY(start(desk));
    desk.daemon.enqueue("GET /v1/kill-switch", heldJson(R"({"enabled":false})"));
    desk.daemon.setDefault("GET /v1/kill-switch", Reply::json(R"({"enabled":true})"));
    desk.daemon.setDefault("POST /v1/kill-switch", Reply::json(R"({"enabled":true})"));
    QVERIFY(desk.poll(status("disconnected")));
    QTRY_COMPARE(desk.daemon.routes().count("GET /v1/kill-switch"), 2);
    QSignalSpy changes(&desk.state, &AppState::killSwitchChanged);
    desk.tray.setKillSwitchEnabled(true);
    QTRY_COMPARE(changes.size(), 1);
    desk.daemon.clearRequests();
    desk.daemon.release();
    QTRY_VERIFY(desk.daemon.routes().contains("GET /v1/kill-switch"));
    QCOMPARE(changes.size(), 1);
    QVERIFY(desk.state.killSwitch().enabled);
    // Ids that nobody awaits, whosever they are.
    desk.tray.handleKillSwitchFinished(1, {}, {});
    RuntimeInfo foreign;
    foreign.tunnelState = u"connected"_s;
    desk.tray.handleStatusFinished(2, foreign, {});
    QVERIFY(desk.state.killSwitch().enabled);
    QCOMPARE(desk.state.runtime().tunnelState, u"disconnected"_s);
}

void TestTrayApp::openMenuWaits()
{
    Desk desk;
    QVERIFY(start(desk));
    QTRY_COMPARE(title(), u"Vantu: disconnected"_s);
    m_host.aboutToShow(0);
    QVERIFY(desk.poll(status("connected")));
    QCOMPARE(title(), u"Vantu: disconnected"_s);
    QCOMPARE(m_host.toolTip(), u"Vantu: connected"_s);
    m_host.sendEvent(0, u"closed"_s);
    QTRY_COMPARE(title(), u"Vantu: connected"_s);
}

void TestTrayApp::recentNodesAndCoolDown()
{
    Desk desk;
    QVERIFY(start(desk));
    QList<RecentNode> recents;
    for (const auto *id : {"b", "a", "gone", "x", "y", "z"}) {
        recents << RecentNode{QLatin1StringView(id), u"kept"_s, {}};
    }
    desk.preferences.setRecentNodes(recents);
    desk.tray.recentNodesChanged();
    QStringList labels = entry(u"Node / Location"_s).labels();
    QCOMPARE(labels.mid(3, 6), (QStringList{u"US - Reno Nevada - p2p"_s,
                                            u"JP - Tokyo & <b>Co</b>"_s, u"[gone] unavailable"_s,
                                            u"[x] unavailable"_s, u"[y] unavailable"_s, u"-"_s}));
    const QSignalSpy node(&desk.tray, &VantuTrayApp::connectNodeRequested);
    QVERIFY(m_host.click(u"JP - Tokyo & <b>Co</b>"_s));
    QTRY_COMPARE(node.size(), 1);
    QCOMPARE(node.constFirst(), (QVariantList{u"a"_s, u"JP - Tokyo & <b>Co</b>"_s}));
    QVERIFY(desk.preferences.clearRecentNodes());
    desk.tray.recentNodesChanged();
    QCOMPARE(entry(u"Node / Location"_s).labels(),
             (QStringList{u"Current: JP - Tokyo"_s, u"Refresh Nodes"_s, u"-"_s, u"All Nodes"_s,
                          u"-"_s, u"Locations"_s}));

    desk.daemon.setDefault("POST /v1/nodes/refresh", Reply::json(kNodes));
    QTRY_VERIFY(entry(u"Refresh Nodes"_s).enabled); // The first groups are here, too.
    QVERIFY(m_host.click(u"Refresh Nodes"_s));
    QTRY_VERIFY(desk.state.nodesRefreshCooldown() > 0);
    QTRY_VERIFY(detail() != u"Refreshing nodes..."_s);
    labels = entry(u"Node / Location"_s).labels();
    QVERIFY(labels.value(1).startsWith(u"Refresh Nodes ("_s));
}

void TestTrayApp::daemonLostAndBack()
{
    Desk desk;
    QVERIFY(start(desk));
    QVERIFY(desk.poll(status("connected")));
    desk.tray.setDaemonAvailable(false, u"too\nold"_s);
    QCOMPARE(title(), u"too old"_s);
    QCOMPARE(detail(), u"too old"_s);
    desk.daemon.clearRequests();
    desk.tray.refreshStatus();
    QSignalSpy polled(&desk.tray, &VantuTrayApp::statusPolled);
    desk.tray.setDaemonAvailable(true, {});
    // What is held serves until the answer is here.
    QCOMPARE(title(), u"Vantu: connected"_s);
    QTRY_VERIFY(!polled.isEmpty());
    QCOMPARE(desk.daemon.routes().count("GET /v1/status"), 1);
}

void TestTrayApp::failedPoll()
{
    Desk desk;
    QVERIFY(start(desk));
    QVERIFY(desk.poll(status("connected")));
    desk.daemon.setDefault("GET /v1/status", Reply::json(R"({"error":"on\nfire"})", 500));
    QSignalSpy polled(&desk.tray, &VantuTrayApp::statusPolled);
    QVERIFY(m_host.click(u"Refresh Status"_s));
    QTRY_VERIFY(!polled.isEmpty());
    QCOMPARE(polled.constFirst().constFirst().toBool(), false);
    QCOMPARE(title(), u"Vantu: daemon unavailable"_s);
    QCOMPARE(detail(), u"on fire"_s);
    // Back again, and signed out meanwhile.
    QVERIFY(desk.poll(R"({"tunnel_state":"disconnected","auth_state":"logged_out"})"));
    QCOMPARE(title(), u"Vantu: disconnected"_s);
    QCOMPARE(desk.state.user(), UserInfo{});
}

void TestTrayApp::iconNeverClaimsMore_data()
{
    QTest::addColumn<Reply>("reply");
    QTest::newRow("disconnected") << Reply::json(status("disconnected"));
    QTest::newRow("connecting anew") << Reply::json(status("connecting"));
    QTest::newRow("refuses") << Reply::json("{}", 500);
    QTest::newRow("garbage") << Reply::raw("connected");
    QTest::newRow("says nothing") << Reply::nothing();
}

void TestTrayApp::iconNeverClaimsMore()
{
    QFETCH(Reply, reply);
    Desk desk;
    QVERIFY(start(desk));
    const QImage off = m_host.icon();
    QVERIFY(desk.poll(status("connected")));
    QTRY_VERIFY(m_host.icon() != off);
    QVERIFY(desk.poll(reply));
    QCOMPARE(m_host.icon(), off);
    QVERIFY(!m_host.toolTip().contains(u"connected"_s) ||
            m_host.toolTip() == u"Vantu: disconnected"_s);
}

/// The daemon isn't asked while an operation runs, which may be for ever.
void TestTrayApp::iconDuringLongChange()
{
    Desk desk;
    QVERIFY(start(desk));
    const QImage off = m_host.icon();
    QVERIFY(desk.poll(status("connected")));
    QTRY_VERIFY(m_host.icon() != off);
    desk.tray.setExternalBusy(true);
    QTRY_COMPARE(m_host.icon(), off);
    QVERIFY(!detail().contains(u"Location"_s));
    desk.tray.setExternalBusy(false);
    QTRY_VERIFY(m_host.icon() != off);
}

void TestTrayApp::panelThatNeverTellsTheMenuClosed()
{
    Desk desk;
    QVERIFY(start(desk));
    for (const auto *tunnel : {"connected", "disconnected"}) {
        m_host.aboutToShow(0);
        QVERIFY(desk.poll(status(tunnel)));
        // It opens the menu again, and sees what is so now.
        m_host.aboutToShow(0);
        QTRY_COMPARE(title(), u"Vantu: "_s + QString::fromLatin1(tunnel));
    }
    QVERIFY(m_host.click(u"Refresh Status"_s)); // Which closes it as well.
    QVERIFY(desk.poll(status("connected")));
    QTRY_COMPARE(title(), u"Vantu: connected"_s);
}

void TestTrayApp::logDirectory()
{
    Desk desk;
    QVERIFY(start(desk));
    desk.holdPolls();
    const QString directory = QDir::tempPath();
    const QString missing = directory + u"/no such place"_s;
    const auto paths = [](const QString &logs) {
        return Reply::json(R"({"LogDir":")" + logs.toUtf8() + R"("})");
    };
    const QList<std::pair<Reply, QString>> cases{
        {paths({}), u"missing log directory"_s},
        {paths(missing), u"log directory does not exist: "_s + missing},
        {Reply::json(R"({"error":"no\npaths"})", 500), u"no paths"_s},
    };
    for (const auto &[reply, text] : cases) {
        desk.daemon.setDefault("GET /v1/config/path", reply);
        QVERIFY(m_host.click(u"Open Logs"_s));
        QTRY_COMPARE(detail(), text);
        QTRY_VERIFY(entry(u"Open Logs"_s).enabled);
    }
    QDesktopServices::setUrlHandler(u"file"_s, this, "takeOpened");
    desk.daemon.setDefault("GET /v1/config/path", paths(directory));
    QVERIFY(m_host.click(u"Open Logs"_s));
    QTRY_COMPARE(m_opened, QUrl::fromLocalFile(directory));
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

QTEST_MAIN(TestTrayApp)
#include "tst_tray_app.moc"
