#include "SimDaemon.h"
#include "SimRoutes.h"
#include "SimServer.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Answer
{
    int status = 0;
    QByteArray head;
    QByteArray body;
    QJsonObject json() const { return QJsonDocument::fromJson(body).object(); }
    QString text(const QString &member) const { return json().value(member).toString(); }
};

/// A daemon in this process and a client that writes its requests by hand.
struct Fixture
{
    explicit Fixture(const QString &scenario = u"normal"_s, double pace = 0.001, quint32 seed = 1)
        : path(folder.filePath(u"control.sock"_s))
        , daemon({scenario, -1, seed, 0, pace, path, folder.filePath(u"state"_s), {}})
        , server(daemon)
        , problem(server.listen(path))
    {}

    /// Sends "METHOD PATH [BODY]", written with single quotes, without waiting.
    std::unique_ptr<QLocalSocket> send(QByteArray line, const QByteArray &version = "1") const
    {
        const qsizetype end = line.indexOf(' ', line.indexOf('/'));
        const QByteArray body = end < 0 ? QByteArray() : line.mid(end + 1).replace('\'', '"');
        line.truncate(end < 0 ? line.size() : end);
        line += " HTTP/1.1\r\nHost: vantu\r\nX-Vantu-Control-Version: " + version;
        line += "\r\nConnection: close\r\n";
        if (!body.isEmpty()) {
            line += "Content-Type: application/json\r\nContent-Length: " +
                    QByteArray::number(body.size()) + "\r\n";
        }
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(path);
        socket->write(line + "\r\n" + body);
        socket->waitForBytesWritten();
        return socket;
    }

    static Answer receive(QLocalSocket &socket)
    {
        while (socket.state() == QLocalSocket::ConnectedState && socket.waitForReadyRead(10000)) {
        }
        const QByteArray all = socket.readAll();
        const qsizetype end = all.indexOf("\r\n\r\n");
        return {all.mid(9, 3).toInt(), all.left(end), all.mid(end + 4)};
    }

    Answer ask(const QByteArray &line, const QByteArray &version = "1") const
    {
        return receive(*send(line, version));
    }
    QString tunnelState() const { return ask("GET /v1/status").text(u"tunnel_state"_s); }

    QTemporaryDir folder;
    QString path;
    SimDaemon daemon;
    SimServer server;
    QString problem;
};

int countGroups(const QJsonArray &groups)
{
    int count = 0;
    for (const auto &group : groups) {
        count += 1 + countGroups(group.toObject().value(u"subgroups"_s).toArray());
    }
    return count;
}

void addRow(const char *name, const QByteArrayList &steps, int status, const char *expected)
{
    QTest::newRow(name) << steps << status << QByteArray(expected).replace('\'', '"');
}

} // namespace

class tst_sim : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEndpoint();
    void connectionPhases();
    void connectWaitsAndCanBeCanceled();
    void rules_data();
    void rules();
    void scenarios_data();
    void scenarios() { rules(); }
    void catalogue();
    void updateDownload();
    void commands();
    void socketFile();
};

void tst_sim::everyEndpoint()
{
    // clang-format off
    const QByteArrayList good{
        "GET /v1/version", "GET /v1/status", "GET /v1/user", "GET /v1/nodes", "GET /v1/nodes/groups",
        "GET /v1/account/purchase-url?lang=de", "GET /v1/config/path", "GET /v1/config/api-url",
        "GET /v1/config/language", "GET /v1/kill-switch", "GET /v1/split/dns", "GET /v1/split/rules?kind=block",
        "GET /v1/gui/update/download", "POST /v1/connect {}", "POST /v1/disconnect {}",
        "POST /v1/config/api-url {'api_url':'https://api.example.org/v2'}", "DELETE /v1/config/api-url",
        "POST /v1/config/auto-connect {'auto_connect':'on'}", "POST /v1/nodes/refresh {}",
        "POST /v1/config/language {'source':'explicit','language':'fr'}",
        "POST /v1/nodes/favorite {'node':'1001','favorite':true}",
        "POST /v1/mode {'transport':'vantuvpn','policy':'split'}", "POST /v1/proxy/system-proxy {'value':'lock'}",
        "POST /v1/local-network {'value':'protected'}", "POST /v1/proxy/proxy-lan {'value':'on'}",
        "POST /v1/proxy/listen {'proxy_listeners':[{'name':'local-http','scheme':'http','address':'0.0.0.0:8118'}]}",
        "POST /v1/split/dns/local {'local_direct_dns':['192.0.2.1','2001:db8::1']}",
        "POST /v1/split/dns/policy {'policy':'dual-auto'}", "DELETE /v1/split/dns/local",
        "POST /v1/split/dns/reset {}", "POST /v1/split/rules/import {'kind':'block','content':'ads.example.com'}",
        "POST /v1/kill-switch/repair {}", "POST /v1/proxy/repair {'force':false}", "POST /v1/vpn/repair {}",
        "POST /v1/kill-switch {'enabled':true}", "POST /v1/kill-switch/mode {'mode':'lockdown'}",
        "POST /v1/kill-switch/allow-lan {'enabled':false}",
        "POST /v1/gui/update/check {'version':'10.4.0+26101701'}",
        "POST /v1/gui/update/download {'version':'1','expected_version_num':26112001}",
        "DELETE /v1/gui/update/download",
        "POST /v1/session/login {'username':'a@example.org','password':'p','remember_me':true}",
        "POST /v1/session/logout {}"};
    // clang-format on
    QCOMPARE(good.size(), simRoutes().size());
    const Fixture sim(u"update"_s);
    for (const QByteArray &line : good) {
        const Answer answer = sim.ask(line);
        QVERIFY2(answer.status == 200 && !answer.json().isEmpty(), line.constData());
        const QByteArray request = line.split(' ').mid(0, 2).join(' ');
        QCOMPARE(sim.ask("PUT " + line.mid(line.indexOf('/'))).status, 405);
        QCOMPARE(sim.ask(request + " {'surprise':1}").status, 400);
        if (line.startsWith("POST")) {
            QCOMPARE(sim.ask(request + " {'a':").status, 400);
            QCOMPARE(sim.ask(request + " []").status, 400);
            QVERIFY(line.endsWith(" {}") || sim.ask(request + " {}").status == 400);
        }
    }
    QVERIFY(!sim.ask("GET /v1/surprise").text(u"error"_s).isEmpty());
    QCOMPARE(sim.ask("GET /v1/surprise").status, 404);
    const Answer foreign = sim.ask("GET /v1/status", "7");
    QCOMPARE(foreign.status, 409);
    QVERIFY(foreign.head.contains("\r\nX-Vantu-Control-Version: 1\r\nX-Vantu-Daemon-Version: 10"));
}

void tst_sim::connectionPhases()
{
    const auto walk = [](const QString &scenario) {
        SimTimeline timeline;
        SimTunnel tunnel(timeline, *SimScenario::find(scenario));
        tunnel.start(u"1001"_s, {}, {});
        QStringList words{tunnel.word()};
        while (timeline.next() && words.size() < 6) {
            timeline.advance(*timeline.next());
            words.append(tunnel.word());
        }
        return words.join(u' ');
    };
    QCOMPARE(walk(u"normal"_s), u"queued connecting connected"_s);
    QCOMPARE(walk(u"connect-fails"_s), u"queued connecting retrying connecting failed"_s);
    QCOMPARE(walk(u"flapping"_s), u"queued connecting connected retrying connecting connected"_s);
}

void tst_sim::connectWaitsAndCanBeCanceled()
{
    Fixture sim(u"normal"_s, 1000.0); // so slow that nothing gets on by itself
    for (const bool leaves : {true, false}) {
        const auto waiting = sim.send("POST /v1/connect {'node':'1003'}");
        QTRY_COMPARE(sim.tunnelState(), u"queued"_s);
        QCOMPARE(sim.ask("POST /v1/connect {}").status, 409);
        if (leaves) {
            waiting->abort();
            QCOMPARE(sim.tunnelState(), u"queued"_s);
        }
        sim.daemon.command(u"set pace 0.001"_s);
        QCOMPARE(sim.ask("POST /v1/disconnect {}").text(u"tunnel_state"_s), u"disconnected"_s);
        sim.daemon.command(u"set pace 1000"_s);
        const Answer canceled = leaves ? Answer() : Fixture::receive(*waiting);
        QCOMPARE(canceled.status, leaves ? 0 : 409);
        QVERIFY(leaves || canceled.body.contains("canceled"));
    }
    sim.daemon.command(u"set pace 0.001"_s);
    const Answer up = sim.ask("POST /v1/connect {'smart':true,'group':'JP'}");
    QCOMPARE(up.json().value(u"connected_node"_s).toObject().value(u"region"_s), u"JP"_s);
    QVERIFY(up.text(u"connected_since"_s).startsWith(u"20"_s));
}

void tst_sim::rules_data()
{
    QTest::addColumn<QByteArrayList>("steps");
    QTest::addColumn<int>("status");          // of the last step; those before it succeed
    QTest::addColumn<QByteArray>("expected"); // inside the last answer
    const QByteArray proxy = "POST /v1/mode {'transport':'proxy'}";
    const QByteArray split = "POST /v1/mode {'transport':'vantuvpn','policy':'split'}";
    const QByteArray on = "POST /v1/kill-switch {'enabled':true}";
    const QByteArray off = "POST /v1/kill-switch {'enabled':false}";
    const QByteArray lockdown = "POST /v1/kill-switch/mode {'mode':'lockdown'}";
    const QByteArray profile = "POST /v1/mode {'split_profile':{'default_route':'%'}}";
    const QByteArray direct = "POST /v1/local-network {'value':'direct'}";
    // clang-format off
    addRow("kill switch refuses the proxy", {on, proxy}, 409, "needs Kill Switch off");
    addRow("proxy refuses the kill switch", {proxy, on}, 409, "needs a VPN mode");
    addRow("proxy refuses Lockdown", {proxy, lockdown}, 409, "needs a VPN mode");
    addRow("off frees the proxy", {on, off, proxy}, 200, "'transport':'proxy'");
    addRow("Lockdown ends split", {split, lockdown, "GET /v1/status"}, 200, "'policy':'global'");
    addRow("Lockdown protects the LAN", {lockdown}, 200, "'allow_lan':false");
    addRow("Lockdown refuses the proxy", {lockdown, proxy}, 409, "Lockdown");
    addRow("Lockdown refuses split", {lockdown, split}, 409, "Lockdown");
    addRow("Lockdown refuses direct", {lockdown, direct}, 409, "Lockdown");
    addRow("Lockdown stays when enabled", {lockdown, on}, 200, "'mode':'lockdown'");
    addRow("unknown mode", {"POST /v1/mode {'transport':'teleport'}"}, 400, "teleport");
    addRow("auto has no policy", {"POST /v1/mode {'transport':'auto','policy':'split'}"}, 400, "policy");
    addRow("foreign route", {split, QByteArray(profile).replace('%', "proxy")}, 400, "default_route");
    addRow("a profile replaces", {split, QByteArray(profile).replace('%', "direct")}, 200,
           "'split_profile':{'custom_rules':false,'default_route':'direct','direct_regions':[],'gfwlist':false");
    addRow("unknown node", {"POST /v1/connect {'node':'7'}"}, 404, "unknown node");
    addRow("wrong password", {"POST /v1/session/login {'username':'a','password':'wrong','remember_me':true}"}, 401, "Wrong");
    addRow("signed out", {"POST /v1/session/logout {}", "POST /v1/connect {}"}, 401, "Sign in");
    addRow("bad rule", {"POST /v1/split/rules/import {'kind':'block','content':'a.example\\n\\n:bad'}"}, 400, "line 3");
    addRow("good rules", {"POST /v1/split/rules/import {'kind':'block','content':'domain:a.b\\n//c\\nregexp:^a+$\\n10.0.0.0/8\\n::1'}"}, 200, "'count':4");
    addRow("no API URL", {"POST /v1/config/api-url {'api_url':'ftp://x'}"}, 400, "https");
    addRow("bad listener", {"POST /v1/proxy/listen {'proxy_listeners':[{'name':'local-http','scheme':'http','address':'1.2.3:80'}]}"}, 400, "1.2.3:80");
    addRow("language condition", {"POST /v1/config/language {'source':'system','language':'de','if_source':'explicit'}"}, 200, "'language':'en-US'");
    // clang-format on
}

void tst_sim::rules()
{
    QFETCH(const QByteArrayList, steps);
    QFETCH(const int, status);
    QFETCH(const QByteArray, expected);
    const QString scenario = QString::fromLatin1(QTest::currentDataTag());
    const Fixture sim(SimScenario::find(scenario) ? scenario : u"normal"_s);
    for (qsizetype i = 0; i < steps.size(); ++i) {
        const Answer answer = sim.ask(steps.at(i));
        const bool last = i == steps.size() - 1;
        QCOMPARE(answer.status, last ? status : 200);
        QVERIFY2(!last || answer.body.contains(expected), answer.body.constData());
    }
}

void tst_sim::scenarios_data()
{
    QTest::addColumn<QByteArrayList>("steps");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray check = "POST /v1/gui/update/check {'version':'10.4.0+26101701'}";
    addRow("normal", {check}, 200, "'update_available':false");
    addRow("signed-out", {"POST /v1/connect {}"}, 401, "Sign in to connect");
    addRow("connect-fails", {"POST /v1/connect {}"}, 502, "handshake timed out");
    addRow("incompatible", {"GET /v1/version"}, 409, "error");
    addRow("old-daemon", {"POST /v1/kill-switch/mode {'mode':'on'}"}, 404, "404 page not found\n");
    addRow("stale-catalogue", {"GET /v1/nodes"}, 200, "'stale':true");
    addRow("empty-catalogue", {"GET /v1/nodes/groups"}, 200, "'tabs':[]");
    addRow("lockdown", {"GET /v1/status"}, 200, "'mode':'lockdown'");
    addRow("proxy-mode", {"POST /v1/connect {}"}, 200, "'tunnel_state':'disconnected'");
    addRow("update", {check}, 200, "'is_force_upgrade':false,'should");
    addRow("forced-update", {check}, 200, "'is_force_upgrade':true");
    addRow("other-language", {"GET /v1/status"}, 200, "'effective_language':'de'");
    addRow("hostile-names", {"GET /v1/nodes"}, 200, "<script>");
}

void tst_sim::catalogue()
{
    const Fixture big(u"big-catalogue"_s, 1000.0);
    QCOMPARE(big.ask("GET /v1/nodes").json().value(u"nodes"_s).toArray().size(), 5000);
    const QJsonArray tabs = big.ask("GET /v1/nodes/groups").json().value(u"tabs"_s).toArray();
    QVERIFY(countGroups(tabs.last().toObject().value(u"groups"_s).toArray()) >= 200);
    const auto nodesOfSeed = [](quint32 seed) { return SimCatalog(200, seed, false).nodesJson(); };
    QCOMPARE(nodesOfSeed(7), nodesOfSeed(7));
    QVERIFY(nodesOfSeed(7) != nodesOfSeed(8));

    const Fixture sim(u"stale-catalogue"_s);
    sim.ask("POST /v1/nodes/favorite {'node':'1002','favorite':true}");
    const auto tabsOf = [&sim] {
        return sim.ask("GET /v1/nodes/groups").json().value(u"tabs"_s).toArray();
    };
    const QJsonArray before = tabsOf();
    QCOMPARE(before.first().toObject().value(u"group_type"_s), u"FAVORITE"_s);
    QVERIFY(before.first().toObject().value(u"node_ids"_s).toArray().contains(u"1002"_s));
    sim.ask("POST /v1/nodes/refresh {}");
    QTRY_VERIFY(sim.ask("GET /v1/nodes").body.contains("\"stale\":false"));
    QCOMPARE(sim.ask("GET /v1/status").text(u"catalog_refresh"_s), u"idle"_s);
    QVERIFY(tabsOf() != before);
}

void tst_sim::updateDownload()
{
    const QTemporaryDir folder;
    const SimFiles files(folder.filePath(u"state"_s));
    SimTimeline timeline;
    SimUpdate update(timeline, *SimScenario::find(u"update"_s), files);
    const auto state = [&update] { return update.downloadJson().value(u"state"_s).toString(); };
    QCOMPARE(update.start({}, 1).status, 409);
    QCOMPARE(state(), u"idle"_s);
    update.start({}, 26112001);
    update.cancel();
    QCOMPARE(state(), u"canceling"_s);
    timeline.advance(*timeline.next());
    QCOMPARE(state(), u"canceled"_s);
    update.start({}, 26112001);
    QStringList states{state()};
    while (timeline.next()) {
        timeline.advance(*timeline.next());
        if (state() != states.last()) {
            states.append(state());
        }
    }
    QCOMPARE(states.join(u' '), u"checking downloading verifying ready"_s);
    const QJsonObject ready = update.downloadJson();
    const QFileInfo file(ready.value(u"local_path"_s).toString());
    QVERIFY(file.size() > 0 && file.size() == ready.value(u"bytes_total"_s).toInteger());
}

void tst_sim::commands()
{
    Fixture sim;
    QCOMPARE(sim.daemon.command(u"set fail-next /v1/user 503 Out of order"_s), u"ok"_s);
    QCOMPARE(sim.ask("GET /v1/user").text(u"error"_s), u"Out of order"_s);
    QCOMPARE(sim.ask("GET /v1/user").status, 200);
    QCOMPARE(sim.daemon.command(u"drop"_s), u"error: not connected"_s);
    sim.ask("POST /v1/connect {}");
    sim.daemon.command(u"set pace 1000"_s);
    QCOMPARE(sim.daemon.command(u"drop"_s), u"ok"_s);
    QCOMPARE(sim.tunnelState(), u"retrying"_s);
    QVERIFY(sim.daemon.command(u"scenario nowhere"_s).startsWith("error"_L1));
}

void tst_sim::socketFile()
{
    const Fixture sim;
    const auto mode = QFileInfo(sim.path).permissions();
    QVERIFY(
        !(mode & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
    SimUnixListener second;
    QCOMPARE(second.listen(sim.path), u"is in use"_s);
    QVERIFY(!second.listen(sim.folder.path()).isEmpty());
    const QString stale = sim.folder.filePath(u"stale.sock"_s);
    QCOMPARE(second.listen(stale), QString());
    ::close(second.release()); // as a killed program leaves it
    QVERIFY(QFileInfo::exists(stale));
    SimUnixListener heir;
    QCOMPARE(heir.listen(stale), QString());
    second.close();
    QVERIFY(QFileInfo::exists(stale)); // it is the heir's now
    heir.close();
    QVERIFY(!QFileInfo::exists(stale));
}

QTEST_GUILESS_MAIN(tst_sim)
#include "tst_sim.moc"
