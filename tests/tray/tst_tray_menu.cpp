#include "AppState.h"
#include "MenuSamples.h"
#include "TrayFace.h"
#include "TrayMenu.h"
#include "TrayMenuState.h"
#include "TrayMenuWatch.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using enum TrayEntry;

/// How an entry looks, in short: "+" or "-" for enabled, "*" for checked, its text.
using Looks = QList<std::pair<TrayEntry, QString>>;
using Change = std::function<void(AppState &, RuntimeInfo &, TrayCondition &)>;

/// Entries and their looks by turns.
Looks looks()
{
    return {};
}
template<class... Rest>
Looks looks(TrayEntry entry, const QString &look, const Rest &...rest)
{
    return Looks{{entry, look}} + looks(rest...);
}

QString look(const TrayEntryState &entry)
{
    if (!entry.visible) {
        return u"hidden"_s;
    }
    return (entry.enabled ? u"+"_s : u"-"_s) + (entry.checked ? u"*"_s : u""_s) + entry.text;
}

/// A daemon that answers, signed in and idle in the mode Auto.
RuntimeInfo idleRuntime()
{
    RuntimeInfo runtime;
    runtime.tunnelState = u"disconnected"_s;
    runtime.authState = u"logged_in"_s;
    runtime.mode.known = true;
    runtime.mode.transport = u"auto"_s;
    runtime.mode.systemProxy = u"off"_s;
    runtime.mode.localNetwork = u"direct"_s;
    runtime.killSwitch.known = true;
    runtime.killSwitch.mode = u"off"_s;
    return runtime;
}

TrayCondition idleCondition()
{
    TrayCondition condition;
    condition.daemonAvailable = true;
    condition.judged = true;
    condition.statusKnown = true;
    condition.nodesHeld = true;
    condition.now = QDateTime::fromString(u"2026-01-01T12:00:00Z"_s, Qt::ISODate);
    return condition;
}

void connectTo(RuntimeInfo &runtime)
{
    runtime.tunnelState = u"connected"_s;
    runtime.connectedNode.id = u"a"_s;
    runtime.connectedNode.name = u"Tokyo & Co"_s;
    runtime.connectedSince = u"2026-01-01T11:00:00Z"_s;
}

void row(const char *name, const Change &change, const Looks &looks, const QString &toolTip,
         bool iconOn = false)
{
    QTest::newRow(name) << change << looks << toolTip << iconOn;
}

void addConnectionRows()
{
    const QString idle = u"Vantu: disconnected"_s;
    // clang-format off
    row("at start", [](auto &, auto &, auto &c) { c = TrayCondition{}; },
        looks(StatusTitle, u"-Vantu: starting..."_s, StatusDetail, u"-Daemon: checking..."_s,
              Connect, u"-Connect"_s, NodeMenu, u"-"_s, CurrentNode, u"-Current: loading..."_s,
              RefreshStatus, u"-"_s, OpenLogs, u"+"_s, OpenVantu, u"+"_s, Quit, u"+"_s,
              Account, u"-Account: checking..."_s), u"Vantu"_s);
    row("idle", [](auto &, auto &, auto &) {},
        looks(StatusTitle, u"-Vantu: disconnected"_s, StatusDetail, u"-Auto"_s,
              Connect, u"+Connect"_s, Disconnect, u"-"_s, NodeMenu, u"+"_s,
              CurrentNode, u"-Current: Auto"_s, RefreshNodes, u"+Refresh Nodes"_s,
              NodesPlaceholder, u"hidden"_s, SlotsSeparator, u"hidden"_s, ModeAuto, u"+*"_s,
              VpnSplit, u"+"_s, VpnSplitOptions, u"hidden"_s, SystemProxyOff, u"+*"_s,
              LocalNetworkDirect, u"+*"_s, KillSwitch, u"+"_s, Account, u"+Account: logged in"_s,
              Logout, u"+"_s), idle);
    row("connected", [](auto &, auto &r, auto &) { connectTo(r); },
        looks(StatusTitle, u"-Vantu: connected"_s,
              StatusDetail, u"-Location: Tokyo && Co \u00b7 1h"_s,
              CurrentNode, u"-Current: Tokyo && Co"_s, Connect, u"-Connect"_s, Disconnect, u"+"_s),
              u"Vantu: connected"_s, true);
    row("connecting by itself", [](auto &, auto &r, auto &) { r.tunnelState = u"retrying"_s; },
        looks(StatusTitle, u"-Vantu: retrying"_s, Connect, u"+Cancel"_s, Disconnect, u"-"_s),
              u"Vantu: retrying"_s);
    row("cancellable connect", [](auto &, auto &r, auto &c) { connectTo(r);
            c.busy = c.connectBusy = c.connectCancellable = true;
            c.progressText = u"Vantu: connecting..."_s; },
        looks(StatusTitle, u"-Vantu: connecting..."_s, Connect, u"+Cancel"_s, NodeMenu, u"-"_s,
              ModeAuto, u"-*"_s, SystemProxyOff, u"-*"_s, LocalNetworkProtected, u"-"_s,
              KillSwitch, u"-"_s, RefreshNodes, u"-Refresh Nodes"_s, RefreshStatus, u"-"_s,
              Account, u"-Account: logged in"_s, Logout, u"-"_s), u"Vantu: connecting..."_s);
    row("other busy while pending", [](auto &, auto &r, auto &c) { r.tunnelState = u"connecting"_s;
            c.busy = true; },
        looks(Connect, u"-Connect"_s), u"Vantu: connecting"_s);
    row("daemon lost in a connect", [](auto &, auto &r, auto &c) { connectTo(r);
            c.daemonAvailable = false; c.unavailableReason = u"gone"_s;
            c.busy = c.connectBusy = c.connectCancellable = true; },
        looks(StatusTitle, u"-gone"_s, StatusDetail, u"-gone"_s, Connect, u"-Connect"_s,
              RefreshStatus, u"-"_s, Logout, u"-"_s, Account, u"-Account: unavailable"_s),
              u"Vantu - daemon unavailable"_s);
    row("status failed", [](auto &, auto &r, auto &c) { connectTo(r); c.statusFailed = true; },
        looks(StatusTitle, u"-Vantu: daemon unavailable"_s, StatusDetail, u"-daemon unavailable"_s,
              Disconnect, u"-"_s, NodeMenu, u"-"_s, KillSwitch, u"-"_s, RefreshStatus, u"+"_s,
              Account, u"-Account: unavailable"_s), u"Vantu - daemon unavailable"_s);
    // clang-format on
}

void addSettingRows()
{
    const QString idle = u"Vantu: disconnected"_s;
    // clang-format off
    row("lockdown", [](auto &s, auto &r, auto &) { r.mode.transport = u"vantuvpn"_s;
            r.mode.localNetwork = u"protected"_s; KillSwitchInfo info; info.known = true;
            info.mode = u"lockdown"_s; s.setKillSwitch(info); },
        looks(KillSwitch, u"+*"_s, VpnGlobal, u"+*"_s, ModeWireGuard, u"+"_s, VpnSplit, u"-"_s,
              ProxyGlobal, u"-"_s, ProxySplit, u"-"_s, LocalNetworkDirect, u"-"_s,
              LocalNetworkProtected, u"+*"_s), idle);
    row("kill switch unknown", [](auto &, auto &r, auto &) { r.killSwitch = {}; },
        looks(KillSwitch, u"-"_s), idle);
    row("proxy split, flat", [](auto &, auto &r, auto &c) { r.mode.transport = u"proxy"_s;
            r.mode.policy = u"gfwlist"_s; r.mode.systemProxy = u"lock-on"_s;
            r.mode.proxySplitProfile.present = r.mode.proxySplitProfile.gfwList = true;
            r.mode.proxySplitProfile.defaultRoute = u"direct"_s; c.flatLayout = true; },
        looks(ProxySplit, u"+*"_s, ProxyGlobal, u"+"_s, ProxySplitOptions, u"+*"_s,
              ProxyDefaultProxy, u"+"_s, ProxyDefaultDirect, u"+*"_s, ProxyGFWList, u"+*"_s,
              VpnSplitOptions, u"+"_s, VpnDefaultTunnel, u"+*"_s, SystemProxyLock, u"+*"_s,
              SystemProxyOff, u"+"_s), idle);
    row("nodes in flight", [](auto &, auto &, auto &c) { c.nodesInFlight = true;
            c.nodesHeld = false; },
        looks(RefreshNodes, u"-Refresh Nodes"_s, NodesPlaceholder, u"-Loading nodes..."_s), idle);
    row("nodes not asked for", [](auto &, auto &, auto &c) { c.nodesHeld = false; },
        looks(NodesPlaceholder, u"-Nodes not loaded"_s), idle);
    row("nodes refused", [](auto &, auto &, auto &c) { c.nodesFailed = true;
            c.nodesHeld = false; }, looks(NodesPlaceholder, u"-Could not load nodes"_s), idle);
    row("groups refused", [](auto &, auto &, auto &c) { c.groupsFailed = true; },
        looks(NodesPlaceholder, u"-Could not load node groups"_s), idle);
    row("recent nodes before the catalogue", [](auto &, auto &, auto &c) { c.nodesHeld = false;
            c.recentNodes = {{u"b"_s, u"Osaka"_s, {}}}; },
        looks(Slot1, u"+Osaka"_s, Slot2, u"hidden"_s), idle);
    row("signed out", [](auto &, auto &r, auto &) { r.authState = u"logged_out"_s; },
        looks(Account, u"+Account: Login Required"_s, Logout, u"-"_s), idle);
    row("account asked for", [](auto &, auto &, auto &c) { c.userInFlight = true; },
        looks(Account, u"+Account: checking..."_s), idle);
    row("account held", [](auto &s, auto &, auto &c) { UserInfo user; user.email = u"a&b@c.d"_s;
            s.setUser(user); c.userInFlight = true; },
        looks(Account, u"+Account: a&&b@c.d"_s), idle);
    // clang-format on
}

} // namespace

class TestTrayMenu final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void layouts();
    void unchangedStateTouchesNothing();
    void faceOfPopup();
    void watchOfPopup();
};

void TestTrayMenu::states_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<Looks>("looks");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<bool>("iconOn");

    addConnectionRows();
    addSettingRows();
}

void TestTrayMenu::states()
{
    QFETCH(Change, change);
    QFETCH(Looks, looks);
    AppState state;
    RuntimeInfo runtime = idleRuntime();
    TrayCondition condition = idleCondition();
    change(state, runtime, condition);
    state.setRuntime(runtime);
    const TrayMenuState menu = deriveTrayMenu(state, condition);
    for (const auto &[entry, expected] : looks) {
        QVERIFY2(look(menu[entry]) == expected,
                 qPrintable(u"%1 instead of %2"_s.arg(look(menu[entry]), expected)));
    }
    QTEST(menu.toolTip, "toolTip");
    QTEST(menu.iconOn, "iconOn");
    QCOMPARE(menu.connectCancels, menu[Connect].text == u"Cancel"_s);
}

void TestTrayMenu::layouts()
{
    const QString vpn = u"-|[ Mode: VantuVPN ]|Global|Split|Split Options{Default: Tunnel|"
                        "Default: Direct|Regions{}|GFWList -> Tunnel|Custom Split Rules}"_s;
    const QString proxy = u"-|[ Mode: Vantu Proxy ]|Global|Split|Split Options{Default: Proxy|"
                          "Default: Direct|Regions{}|GFWList -> Proxy}"_s;
    const QString modes = u"Auto|WireGuard|%1|%2"_s.arg(vpn, proxy);
    const QString outer =
        u"Vantu: starting...|Daemon: checking...|-|Open Vantu...|-|Connect|Disconnect|"
        "Node / Location{Current: loading...|Refresh Nodes|-|Loading nodes...||||||-|Locations}|"
        "%1|System Proxy{Off|On|Lock}|%2Local Network{Direct|Protected}|-|Kill Switch|-|"
        "Refresh Status|Open Logs|-|Account: checking...|Logout|-|Quit"_s;

    const TrayMenu nested(TrayLayout::Nested);
    QCOMPARE(outline(nested.root()), outer.arg(u"-|Mode{%1}"_s.arg(modes), u""_s));
    const TrayMenu flat(TrayLayout::Flat);
    QCOMPARE(outline(flat.root()),
             outer.arg(u"-|[ Mode ]|%1"_s.arg(modes), u"-|[ LAN Access ]|"_s));
    const QAction *header = flat.root().actions().at(9);
    QCOMPARE(header->text(), u"[ Mode ]"_s);
    QVERIFY(!header->isEnabled());
    QCOMPARE(header->font().weight(), QFont::Bold);
}

void TestTrayMenu::unchangedStateTouchesNothing()
{
    AppState state;
    state.setRuntime(idleRuntime());
    TrayCondition condition = idleCondition();
    condition.recentNodes = {{u"b"_s, u"Osaka"_s, {}}};
    TrayMenu menu(TrayLayout::Nested);
    menu.apply(deriveTrayMenu(state, condition));
    QSignalSpy killSwitchSpy(menu.action(KillSwitch), &QAction::changed);
    QSignalSpy slotSpy(menu.action(Slot1), &QAction::changed);
    menu.apply(deriveTrayMenu(state, condition));
    QCOMPARE(killSwitchSpy.size() + slotSpy.size(), 0);

    // A click turns the mark by itself; the state turns it back.
    QSignalSpy chosen(&menu, &TrayMenu::chosen);
    menu.action(KillSwitch)->trigger();
    QCOMPARE(chosen.constFirst().at(1).toBool(), true);
    menu.apply(deriveTrayMenu(state, condition));
    QVERIFY(!menu.action(KillSwitch)->isChecked());
}

void TestTrayMenu::faceOfPopup()
{
    AppState state;
    NodesInfo nodes;
    nodes.nodes = {node(u"a"_s, u"One"_s)};
    state.setNodes(nodes);
    state.setRuntime(idleRuntime());
    TrayFace face(state, TrayLayout::Flat);
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->objectName() == "VantuTrayMenu"_L1;
    });
    QVERIFY(found != windows.end());
    auto *menu = qobject_cast<QMenu *>(*found);
    const QAction *title = menu->actions().constFirst();
    QMenu *nodeMenu = menu->actions().at(7)->menu();
    TrayCondition condition = idleCondition();
    connect(&face, &TrayFace::opening, &face, [&] { face.update(condition); });

    menu->popup({10, 10});
    QCOMPARE(title->text(), u"Vantu: disconnected"_s);
    QTest::qWait(0);
    condition.progressText = u"Vantu: working..."_s;
    condition.busy = true;
    face.update(condition);
    QCOMPARE(title->text(), u"Vantu: disconnected"_s);
    menu->close();
    QTRY_COMPARE(title->text(), u"Vantu: working..."_s);
    // What a popup doesn't show takes no memory.
    QVERIFY(!outline(*nodeMenu).contains(u"One"_s));
    Q_EMIT nodeMenu->aboutToShow();
    QVERIFY(outline(*nodeMenu).contains(u"All Nodes{One}"_s));
}

void TestTrayMenu::watchOfPopup()
{
    QMenu menu;
    menu.addAction(u"Entry"_s);
    TrayMenuWatch watch(menu);
    QSignalSpy opening(&watch, &TrayMenuWatch::opening);
    QSignalSpy closed(&watch, &TrayMenuWatch::closed);
    menu.popup({10, 10});
    QVERIFY(watch.isOpen());
    watch.entryChosen();
    QVERIFY(watch.isOpen());
    menu.hide();
    // The handler of a chosen entry may still be on its way.
    QVERIFY(watch.isOpen());
    QTRY_VERIFY(!watch.isOpen());
    QCOMPARE(closed.size(), 1);
    QCOMPARE(opening.size(), 1);
}

QTEST_MAIN(TestTrayMenu)
#include "tst_tray_menu.moc"
