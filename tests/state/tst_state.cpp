#include "AppState.h"
#include "ModeRequests.h"
#include "RuntimeFacts.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>

#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

using Change = std::function<void(AppState &)>;

/// The store, and the rules that read it.
class TestState final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyChangeSignalsOnce_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char *name, const Change &change) {
            QTest::newRow(name) << change;
        };
        const ModeInfo mode{.splitProfile = {.directRegions = {u"CN"_s}}};
        const NodesInfo nodes{.nodes = {{}, {.tags = {u"P2P"_s}}}};
        const NodeGroup group{.subgroups = {NodeGroup{.nodeIds = {u"7"_s}}}};
        const NodeGroupsInfo groups{.tabs = {{.groups = {group}}}};
        const SplitRulesInfo rules{.rules = {{u"direct"_s, {u"suffix:example.org"_s}}}};
        row("runtimeChanged", [=](AppState &s) { s.setRuntime({.mode = mode}); });
        row("userChanged", [](AppState &s) { s.setUser({.maxDeviceCount = 1}); });
        row("nodesChanged", [=](AppState &s) { s.setNodes(nodes); });
        row("nodeGroupsChanged", [=](AppState &s) { s.setNodeGroups(groups); });
        row("configPathsChanged", [](AppState &s) { s.setConfigPaths({.logDir = u"l"_s}); });
        row("killSwitchChanged", [](AppState &s) { s.setKillSwitch({.known = true}); });
        row("versionChanged", [](AppState &s) { s.setVersion({.reachable = true}); });
        row("apiURLConfigChanged", [](AppState &s) { s.setAPIURLConfig({.validated = true}); });
        row("languageConfigChanged", [](AppState &s) { s.setLanguageConfig({.source = u"s"_s}); });
        row("updateChanged", [](AppState &s) { s.setUpdate({.versionNum = 0.5}); });
        row("splitDNSChanged", [](AppState &s) { s.setSplitDNS({.changed = true}); });
        row("splitRulesChanged", [=](AppState &s) { s.setSplitRules(rules); });
        row("nodesRefreshCooldownChanged", [](AppState &s) { s.startNodesRefreshCooldown(); });
    }

    void anyChangeSignalsOnce()
    {
        QFETCH(Change, change);
        AppState state;
        QByteArrayList heard;
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        const QMetaObject &meta = AppState::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodOffset() + 13; ++i) {
            spies.push_back(std::make_unique<QSignalSpy>(&state, meta.method(i)));
        }
        state.clearUser();
        change(state);
        change(state);
        for (const auto &spy : spies) {
            heard.resize(heard.size() + spy->size(), spy->signal().split('(').first());
        }
        QCOMPARE(heard, QByteArrayList{QTest::currentDataTag()});
        state.clearUser();
        QCOMPARE(state.user(), UserInfo());
    }

    void cooldown()
    {
        AppState state;
        auto *timer = state.findChild<QTimer *>();
        QVERIFY(timer != nullptr && timer->interval() == 1000);
        QList<int> seen;
        connect(&state, &AppState::nodesRefreshCooldownChanged, this,
                [&seen](int seconds) { seen.append(seconds); });
        state.startNodesRefreshCooldown(-4);
        QVERIFY(!timer->isActive());
        state.startNodesRefreshCooldown();
        state.startNodesRefreshCooldown(60);
        state.startNodesRefreshCooldown(2);
        for (int tick = 0; tick < 5 && timer->isActive(); ++tick) {
            QTimerEvent event(timer->timerId());
            QCoreApplication::sendEvent(timer, &event);
        }
        QVERIFY(!timer->isActive());
        QCOMPARE(seen, QList<int>({60, 2, 1, 0}));
        state.startNodesRefreshCooldown(9);
        state.startNodesRefreshCooldown(-1);
        QVERIFY(!timer->isActive() && seen.last() == 0);
    }

    void connection_data()
    {
        QTest::addColumn<QStringList>("words"); // tunnel, daemon, transport, node
        QTest::addColumn<bool>("connected");
        QTest::addColumn<bool>("pending");
        const auto row = [](const char *words, bool connected, bool pending) {
            QTest::newRow(words) << QString::fromUtf8(words).split(u'|') << connected << pending;
        };
        row("|||", false, false);
        row("|CONNECTED||", true, false);
        row("disconnected|connected|wireguard|T", true, false);
        row("|ready|wireguard|T", true, false);
        row("disconnected||wireguard|T", false, false);
        row(" Failed||vantuvpn|T", false, false);
        row("disconnecting|queued|auto|T", false, true);
        row("disconnected|ready|Proxy|T", true, false);
        row("disconnected|ready|proxy| ", false, false);
        row("connecting||auto|", false, true);
        row("connecting||auto|T", true, false);
        row("connected| Retrying||", true, false);
        row("reconnected|preparing||", false, false);
    }

    void connection()
    {
        QFETCH(QStringList, words);
        RuntimeInfo runtime{.daemonState = words[1],
                            .autoConnectState = u"connecting"_s,
                            .tunnelState = words[0],
                            .mode = {.transport = words[2]},
                            .connectedNode = {.name = words[3]}};
        QTEST(facts::isConnected(runtime), "connected");
        QTEST(facts::isPending(runtime), "pending");
        std::swap(runtime.connectedNode.name, runtime.connectedNode.id);
        QTEST(facts::isConnected(runtime), "connected");
    }

    void effectiveNodes()
    {
        const NodeEntry tokyo{u"1"_s, u"Tokyo"_s, {u"P2P"_s}, u"JP"_s, {}, 80, 12};
        const NodeEntry twin{u"2"_s, u"Tokyo"_s, {}, u"US"_s, {}, 10, 90};
        const NodesInfo nodes{.nodes = {twin, tokyo}, .selected = twin, .connected = twin};
        RuntimeInfo runtime;
        QCOMPARE(facts::effectiveSelected(runtime, nodes), twin);
        QCOMPARE(facts::effectiveConnected(runtime, nodes), NodeEntry());
        runtime.tunnelState = u"connected"_s;
        QCOMPARE(facts::effectiveConnected(runtime, nodes), twin);

        runtime.connectedNode = {u"1"_s, u"Renamed"_s, {}, {}};
        QCOMPARE(facts::effectiveConnected(runtime, nodes), tokyo);
        runtime.selectedNode = {{}, u"Tokyo"_s, u"JP"_s, {}};
        QCOMPARE(facts::effectiveSelected(runtime, nodes), tokyo);
        // A node that the catalogue doesn't hold is not mistaken for a namesake.
        runtime.selectedNode = {u"9"_s, u"Tokyo"_s, u"JP"_s, u"3"_s};
        const NodeEntry unlisted{u"9"_s, u"Tokyo"_s, {}, u"JP"_s, u"3"_s, -1, -1};
        QCOMPARE(facts::effectiveSelected(runtime, nodes), unlisted);
    }

    void modeRequests()
    {
        const SplitProfile held{true, u"direct"_s, {u"CN"_s}, {u"US"_s}, true, u"direct"_s, true};
        const ModeInfo vpn{.transport = u"vantuvpn"_s, .policy = u"split"_s, .splitProfile = held};
        const ModeInfo proxy{
            .transport = u"proxy"_s, .policy = u"split"_s, .proxySplitProfile = held};
        const ModeInfo current{
            .region = u"JP"_s, .splitProfile = held, .lastProxySplitProfile = held};
        QCOMPARE(moderequest::vantuVPNSplit(current), vpn);
        QCOMPARE(moderequest::proxySplit(current), proxy);
        QCOMPARE(moderequest::proxySplitWith({}).proxySplitProfile,
                 SplitProfile({.present = true, .defaultRoute = u"proxy"_s}));
    }

    void regions()
    {
        const QStringList direct{u"cn"_s, u"RU"_s};
        SplitProfile profile{.defaultRoute = u"tunnel"_s, .directRegions = direct};
        profile = moderequest::withRegionToggled(profile, u" de "_s);
        QCOMPARE(profile.directRegions, direct + QStringList{u"DE"_s});
        profile = moderequest::withRegionToggled(profile, u"CN"_s);
        profile = moderequest::withRegionToggled(profile, u" "_s);
        QCOMPARE(profile.directRegions, QStringList({u"RU"_s, u"DE"_s}));
        profile.defaultRoute = u"direct"_s;
        profile = moderequest::withRegionToggled(profile, u"us"_s);
        QCOMPARE(profile.directRegions.size(), 2);
        QCOMPARE(moderequest::regionsInForce(profile), QStringList{u"US"_s});
        profile = moderequest::withRegions(profile, {u"fr"_s, u"us"_s, u"FR"_s});
        QCOMPARE(profile.proxyRegions, QStringList({u"FR"_s, u"US"_s}));
    }

    void shownByAnswer()
    {
        const SplitProfile asked{
            .defaultRoute = u"tunnel"_s, .directRegions = {u"CN"_s, u"RU"_s}, .gfwList = true};
        const ModeInfo request = moderequest::vantuVPNSplitWith(asked);
        ModeInfo answer = request;
        answer.known = true;
        answer.policy = u"bypass-region"_s;
        answer.region = u"JP"_s;
        answer.splitProfile.directRegions = {u"ru"_s, u"CN"_s};
        answer.splitProfile.proxyRegions = {u"US"_s};
        QVERIFY(moderequest::isShownBy(request, answer));
        QVERIFY(!moderequest::isShownBy(moderequest::wireGuard(), answer));
        QVERIFY(!moderequest::isShownBy(moderequest::vantuVPNGlobal(), answer));
        QVERIFY(!moderequest::isShownBy(request, {}));
        answer.splitProfile.gfwList = false;
        QVERIFY(!moderequest::isShownBy(request, answer));
        answer.splitProfile = request.splitProfile;
        answer.splitProfile.directRegions.removeLast();
        QVERIFY(!moderequest::isShownBy(request, answer));
    }
};

QTEST_GUILESS_MAIN(TestState)
#include "tst_state.moc"
