#include "ControlClient.h"
#include "ScriptedDaemon.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;
using Call = std::function<void(const ControlClient &, QString &)>;

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Reply)

namespace {

constexpr int kTimeoutMs = 5000;

/// Satisfies every decoder.
const char *const kGoodBody =
    R"({"state":"idle","api_version":"1",)"
    R"("url":"https://www.vantuvpn.com/purchase?lang=l&webAccessToken=w&account=a"})";

ModeInfo fullMode()
{
    ModeInfo mode;
    mode.transport = u"vantuvpn"_s;
    mode.policy = u"split"_s;
    mode.region = u"us"_s;
    mode.splitProfile = {true, u"tunnel"_s, {u"cn"_s}, {u"us"_s, u"de"_s}, true, u"lan"_s, true};
    mode.proxySplitProfile = {true, u"direct"_s, {}, {}, false, {}, false};
    return mode;
}

/// Records what must not travel beside what must.
ModeInfo policyOnly()
{
    ModeInfo mode;
    mode.known = true;
    mode.policy = u"global"_s;
    mode.systemProxy = u"on"_s;
    mode.localNetwork = u"direct"_s;
    mode.splitProfile.present = true;
    mode.proxySplitProfile.defaultRoute = u"not present"_s;
    mode.lastProxyPolicy = u"split"_s;
    return mode;
}

/// One row of the table below: the request's method and path, its body, the call.
void row(const char *line, const char *body, const Call &call)
{
    const QByteArray name = QByteArray(line) + ' ' + body;
    QTest::newRow(name.constData()) << call << QByteArray(line) << QByteArray(body);
}

// The parameters of one operation, without the time-out and the error text.
#define CALL(operation, ...)                                                                       \
    [](const ControlClient &c, QString &e) {                                                       \
        c.operation(__VA_ARGS__ __VA_OPT__(, ) kTimeoutMs, e);                                     \
    }

void addServiceRows()
{
    row("GET /v1/version", "", CALL(fetchVersion));
    row("GET /v1/config/api-url", "", CALL(fetchAPIURLConfig));
    row("POST /v1/config/api-url", R"({"api_url":"https://a"})", CALL(setAPIURL, u"https://a"_s));
    row("DELETE /v1/config/api-url", "", CALL(resetAPIURL));
    row("POST /v1/config/auto-connect", R"({"auto_connect":"on"})",
        CALL(setAutoConnectPreference, u"on"_s));
    row("GET /v1/config/language", "", CALL(fetchLanguageConfig));
    row("POST /v1/config/language", R"({"language":"de","source":"user"})",
        CALL(setLanguage, u"user"_s, u"de"_s));
    row("POST /v1/config/language", R"({"if_source":"system","language":"de","source":"user"})",
        CALL(setLanguageIfSource, u"user"_s, u"de"_s, u"system"_s));
    row("POST /v1/config/language", R"({"language":"fr","source":"user"})",
        CALL(setLanguageIfSource, u"user"_s, u"fr"_s, {}));
    row("POST /v1/gui/update/check", R"({"version":" 10 "})", CALL(checkGUIUpdate, u" 10 "_s));
    row("POST /v1/gui/update/download",
        R"({"expected_version_num":9007199254740993,"version":"11"})",
        CALL(startGUIUpdateDownload, u"11"_s, 9007199254740993));
    row("GET /v1/gui/update/download", "", CALL(fetchGUIUpdateDownload));
    row("DELETE /v1/gui/update/download", "", CALL(cancelGUIUpdateDownload));
}

void addConnectionAndAccountRows()
{
    row("GET /v1/status", "", CALL(fetchStatus));
    row("POST /v1/connect", "{}", CALL(connectRuntime));
    row("POST /v1/connect", R"({"node":"n1"})", CALL(connectNode, u"n1"_s));
    row("POST /v1/connect", R"({"group":"g","smart":true})", CALL(connectSmart, u"g"_s));
    row("POST /v1/connect", R"({"smart":true})", CALL(connectSmart, {}));
    row("POST /v1/disconnect", "{}", CALL(disconnectRuntime));
    row("GET /v1/nodes", "", CALL(fetchNodes));
    row("POST /v1/nodes/refresh", "{}", CALL(refreshNodes));
    row("POST /v1/nodes/favorite", R"({"favorite":false,"node":"n"})",
        CALL(setNodeFavorite, u"n"_s, false));
    row("GET /v1/nodes/groups", "", CALL(fetchNodeGroups));
    row("GET /v1/user", "", CALL(fetchUser));
    row("GET /v1/account/purchase-url", "", CALL(fetchPurchaseURL, u" "_s));
    row("GET /v1/account/purchase-url?lang=zh-Hans", "", CALL(fetchPurchaseURL, u" zh-Hans "_s));
    row("GET /v1/account/purchase-url?lang=%C3%A4%20%26b", "", CALL(fetchPurchaseURL, u"ä &b"_s));
    row("POST /v1/session/login",
        "{\"password\":\"p\\\"\xc3\xa4\",\"remember_me\":true,\"username\":\"u\"}",
        CALL(login, u"u"_s, u"p\"ä"_s, true));
    row("POST /v1/session/logout", "{}", CALL(logout));
}

void addModeAndRoutingRows()
{
    row("POST /v1/mode",
        R"({"policy":"split","proxy_split_profile":{"default_route":"direct"},"region":"us",)"
        R"("split_profile":{"custom_rules":true,"default_route":"tunnel","direct_regions":["cn"],)"
        R"("gfwlist":true,"lan_routing":"lan","proxy_regions":["us","de"]},)"
        R"("transport":"vantuvpn"})",
        CALL(setMode, fullMode()));
    row("POST /v1/mode", R"({"policy":"global"})", CALL(setMode, policyOnly()));
    row("POST /v1/proxy/system-proxy", R"({"value":"lock"})",
        CALL(setSystemProxyPreference, u"lock"_s));
    row("POST /v1/local-network", R"({"value":"protected"})",
        CALL(setLocalNetworkPreference, u"protected"_s));
    row("POST /v1/proxy/proxy-lan", R"({"value":"on"})", CALL(setProxyLANPreference, true));
    row("POST /v1/proxy/proxy-lan", R"({"value":"off"})", CALL(setProxyLANPreference, false));
    row("POST /v1/proxy/listen",
        R"({"proxy_listeners":[{"address":"a:1","name":"local-socks","scheme":"socks5"},)"
        R"({"address":"b:2","name":"local-http","scheme":"http"}]})",
        CALL(setProxyListeners, u" a:1 "_s, u"b:2"_s));
    row("POST /v1/proxy/listen", R"({"proxy_listeners":[]})", CALL(setProxyListeners, u" "_s, {}));
    row("GET /v1/split/dns", "", CALL(fetchSplitDNS));
    row("POST /v1/split/dns/local", R"({"local_direct_dns":["2","1"]})",
        CALL(setSplitDNSLocal, QStringList({u"2"_s, u"1"_s})));
    row("POST /v1/split/dns/local", R"({"local_direct_dns":[]})", CALL(setSplitDNSLocal, {}));
    row("POST /v1/split/dns/policy", R"({"policy":"p"})", CALL(setSplitDNSPolicy, u"p"_s));
    row("DELETE /v1/split/dns/local", "", CALL(clearSplitDNSLocal));
    row("POST /v1/split/dns/reset", "{}", CALL(resetSplitDNS));
    row("GET /v1/split/rules", "", CALL(fetchSplitRules, u" "_s));
    row("GET /v1/split/rules?kind=direct", "", CALL(fetchSplitRules, u" direct "_s));
    row("POST /v1/split/rules/import", R"({"content":"a\nb","kind":"block"})",
        CALL(importSplitRules, u"block"_s, u"a\nb"_s));
    row("GET /v1/config/path", "", CALL(fetchConfigPaths));
    row("GET /v1/kill-switch", "", CALL(fetchKillSwitch));
    row("POST /v1/kill-switch", R"({"enabled":true})", CALL(setKillSwitchEnabled, true));
    row("POST /v1/kill-switch/mode", R"({"mode":"lockdown"})",
        CALL(setKillSwitchMode, u"lockdown"_s));
    row("POST /v1/kill-switch/allow-lan", R"({"enabled":false})",
        CALL(setKillSwitchAllowLAN, false));
}

#undef CALL

} // namespace

/// Every operation's exact bytes, and what each kind of answer becomes.
class ControlClientTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sends_data();
    void sends();
    void repairsInThreeSteps();
    void checksCompatibility_data();
    void checksCompatibility();
    void explainsFailures();
};

void ControlClientTest::sends_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QByteArray>("line"); // Method and path.
    QTest::addColumn<QByteArray>("body");
    addServiceRows();
    addConnectionAndAccountRows();
    addModeAndRoutingRows();
}

void ControlClientTest::sends()
{
    QFETCH(const Call, call);
    QFETCH(const QByteArray, line);
    QFETCH(const QByteArray, body);
    ScriptedDaemon daemon;
    daemon.setDefault({}, Reply::json(kGoodBody));
    QString error;
    call(ControlClient(daemon.socketName()), error);

    QByteArray expected = line + " HTTP/1.1\r\nHost: vantu\r\nX-Vantu-Control-Version: 1\r\n"
                                 "Connection: close\r\n";
    if (!body.isEmpty()) {
        expected +=
            "Content-Type: application/json\r\nContent-Length: " + QByteArray::number(body.size()) +
            "\r\n";
    }
    QCOMPARE(daemon.requests(), QByteArrayList{expected + "\r\n" + body});
    QCOMPARE(error, QString());
}

void ControlClientTest::repairsInThreeSteps()
{
    ScriptedDaemon daemon;
    daemon.setDefault("POST /v1/kill-switch/repair", Reply::json(R"({"result":"fixed"})"));
    daemon.setDefault("POST /v1/proxy/repair", Reply::json(R"({"state":"ok"})"));
    daemon.enqueue("POST /v1/vpn/repair", Reply::json(R"({"reason":"none"})"));
    const ControlClient client(daemon.socketName());
    QString error;
    const RepairResultInfo expected{{u"fixed"_s, {}, {}}, {{}, u"ok"_s, {}}, {{}, {}, u"none"_s}};
    QCOMPARE(client.repairDiagnostics(kTimeoutMs, error), expected);
    const QByteArrayList requests = daemon.requests();
    QCOMPARE(daemon.routes(), (QByteArrayList{"POST /v1/kill-switch/repair",
                                              "POST /v1/proxy/repair", "POST /v1/vpn/repair"}));
    QVERIFY(requests.at(0).endsWith("\r\n\r\n{}") && requests.at(2).endsWith("\r\n\r\n{}"));
    QVERIFY(requests.at(1).endsWith("\r\n\r\n{\"force\":false}"));

    // The first step that fails ends it, and nothing of the others is claimed.
    daemon.clearRequests();
    daemon.enqueue("POST /v1/proxy/repair", Reply::json(R"({"error":"busy"})", 409));
    QCOMPARE(client.repairDiagnostics(kTimeoutMs, error), RepairResultInfo());
    QCOMPARE(error, u"busy"_s);
    QCOMPARE(daemon.requests().size(), 2);
}

void ControlClientTest::checksCompatibility_data()
{
    QTest::addColumn<Reply>("reply");
    QTest::addColumn<VersionInfo>("expected");
    QTest::addColumn<QString>("error");
    QTest::newRow("same") << Reply::json(R"({"version":"9","api_version":"1"})")
                          << VersionInfo{true, true, u"9"_s, u"1"_s} << QString();
    QTest::newRow("other") << Reply::json(R"({"version":"9","api_version":"2"})")
                           << VersionInfo{true, false, u"9"_s, u"2"_s} << QString();
    QTest::newRow("refused") << Reply::raw("HTTP/1.1 409 C\r\nX-Vantu-Control-Version: 2\r\n"
                                           "X-Vantu-Daemon-Version: 9\r\n\r\n{\"error\":\"old\"}")
                             << VersionInfo{true, false, u"9"_s, u"2"_s} << u"old"_s;
    QTest::newRow("no object") << Reply::json("[]") << VersionInfo() << u"invalid version JSON"_s;
    QTest::newRow("failed") << Reply::json("", 500) << VersionInfo()
                            << u"control request failed with HTTP 500"_s;
    QTest::newRow("no answer") << Reply::nothing() << VersionInfo()
                               << u"QLocalSocket: Remote closed"_s;
}

void ControlClientTest::checksCompatibility()
{
    QFETCH(const Reply, reply);
    ScriptedDaemon daemon;
    daemon.enqueue("GET /v1/version", reply);
    QString error;
    QTEST(ControlClient(daemon.socketName()).fetchVersion(kTimeoutMs, error), "expected");
    QTEST(error, "error");
}

void ControlClientTest::explainsFailures()
{
    using Set = KillSwitchInfo (*)(const ControlClient &, QString &);
    const auto errorOf = [](Set set, const Reply &reply) {
        ScriptedDaemon daemon;
        daemon.enqueue({}, reply);
        QString error;
        const KillSwitchInfo info = set(ControlClient(daemon.socketName()), error);
        return info == KillSwitchInfo{} ? error : u"a record in spite of the failure"_s;
    };
    const Set mode = [](const ControlClient &c, QString &error) {
        return c.setKillSwitchMode(u"lockdown"_s, kTimeoutMs, error);
    };
    const Set enable = [](const ControlClient &c, QString &error) {
        return c.setKillSwitchEnabled(true, kTimeoutMs, error);
    };
    const QString tooOld = u"Vantu daemon is too old for Kill Switch modes. Update Vantu."_s;
    QCOMPARE(errorOf(mode, Reply::json("404 page not found", 404)), tooOld);
    QCOMPARE(errorOf(mode, Reply::json(R"({"message":"m"})", 404)), tooOld);
    QCOMPARE(errorOf(mode, Reply::json(R"({"error":"e"})", 404)), u"e"_s);
    QCOMPARE(errorOf(enable, Reply::json("gone", 404)), u"gone"_s);
    QCOMPARE(errorOf(enable, Reply::json(R"({"enabled":1})", 300)), uR"({"enabled":1})"_s);
    QCOMPARE(errorOf(enable, Reply::json("x")), u"invalid kill-switch JSON"_s);
}

QTEST_GUILESS_MAIN(ControlClientTest)
#include "tst_control_client.moc"
