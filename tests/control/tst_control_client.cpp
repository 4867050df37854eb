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

} // namespace

/// The exact bytes where they are not as plain as what the window's own tests send, and what
/// each kind of answer becomes.
class ControlClientTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sends_data();
    void sends();
    void checksCompatibility_data();
    void checksCompatibility();
    void explainsFailures();
};

// The parameters of one operation, without the time-out and the error text.
#define CALL(operation, ...)                                                                       \
    [](const ControlClient &c, QString &e) {                                                       \
        c.operation(__VA_ARGS__ __VA_OPT__(, ) kTimeoutMs, e);                                     \
    }

void ControlClientTest::sends_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QByteArray>("line"); // Method and path.
    QTest::addColumn<QByteArray>("body");
    row("POST /v1/config/language", R"({"if_source":"system","language":"de","source":"user"})",
        CALL(setLanguageIfSource, u"user"_s, u"de"_s, u"system"_s));
    row("POST /v1/config/language", R"({"language":"fr","source":"user"})",
        CALL(setLanguageIfSource, u"user"_s, u"fr"_s, {}));
    row("POST /v1/gui/update/download",
        R"({"expected_version_num":9007199254740993,"version":"11"})",
        CALL(startGUIUpdateDownload, u"11"_s, 9007199254740993));
    row("POST /v1/connect", R"({"smart":true})", CALL(connectSmart, {}));
    row("GET /v1/account/purchase-url", "", CALL(fetchPurchaseURL, u" "_s));
    row("GET /v1/account/purchase-url?lang=zh-Hans", "", CALL(fetchPurchaseURL, u" zh-Hans "_s));
    row("GET /v1/account/purchase-url?lang=%C3%A4%20%26b", "", CALL(fetchPurchaseURL, u"ä &b"_s));
    row("POST /v1/session/login",
        "{\"password\":\"p\\\"\xc3\xa4\",\"remember_me\":true,\"username\":\"u\"}",
        CALL(login, u"u"_s, u"p\"ä"_s, true));
    row("POST /v1/mode",
        R"({"policy":"split","proxy_split_profile":{"default_route":"direct"},"region":"us",)"
        R"("split_profile":{"custom_rules":true,"default_route":"tunnel","direct_regions":["cn"],)"
        R"("gfwlist":true,"lan_routing":"lan","proxy_regions":["us","de"]},)"
        R"("transport":"vantuvpn"})",
        CALL(setMode, fullMode()));
    row("POST /v1/mode", R"({"policy":"global"})", CALL(setMode, policyOnly()));
    row("POST /v1/proxy/proxy-lan", R"({"value":"on"})", CALL(setProxyLANPreference, true));
    row("POST /v1/proxy/proxy-lan", R"({"value":"off"})", CALL(setProxyLANPreference, false));
    row("POST /v1/proxy/listen",
        R"({"proxy_listeners":[{"address":"a:1","name":"local-socks","scheme":"socks5"},)"
        R"({"address":"b:2","name":"local-http","scheme":"http"}]})",
        CALL(setProxyListeners, u" a:1 "_s, u"b:2"_s));
    row("POST /v1/proxy/listen", R"({"proxy_listeners":[]})", CALL(setProxyListeners, u" "_s, {}));
    row("POST /v1/split/dns/local", R"({"local_direct_dns":[]})", CALL(setSplitDNSLocal, {}));
    row("GET /v1/split/rules", "", CALL(fetchSplitRules, u" "_s));
    row("GET /v1/split/rules?kind=direct", "", CALL(fetchSplitRules, u" direct "_s));
    row("POST /v1/kill-switch/allow-lan", R"({"enabled":false})",
        CALL(setKillSwitchAllowLAN, false));
}

#undef CALL

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
