#include "RecordDecoders.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A record decoded from a body that must be fine.
template<class Record>
Record decoded(Record (*decode)(const QByteArray &, QString &), const QByteArray &body)
{
    QString error;
    const Record record = decode(body, error);
    return error.isEmpty() ? record : throw std::runtime_error(error.toStdString());
}

/// Whether a decoder fails as it should: with its text and a default record.
template<class Record>
bool fails(Record (*decode)(const QByteArray &, QString &), const QByteArray &body,
           const QString &expected)
{
    QString error;
    return decode(body, error) == Record{} && error == expected;
}

/// Whether members of the wrong type count as absent.
template<class Record>
bool isLenient(Record (*decode)(const QByteArray &, QString &), const QByteArray &wrong)
{
    return decoded(decode, wrong) == decoded(decode, "{}");
}

} // namespace

/// The decoders: every field under its key, defaults, and what makes a decode fail.
class ControlRecordsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesMembers();
    void decodesModeAndKillSwitch();
    void decodesRuntime();
    void decodesCatalogue();
    void forgivesWrongTypes();
    void readsNumbers();
    void fillsInWhatOldDaemonsLack();
    void knowsDownloadStates();
    void refusesOtherThanObjects();
    void checksPurchaseURLs_data();
    void checksPurchaseURLs();
};

void ControlRecordsTest::decodesMembers()
{
    const QStringList a{u"a"_s};
    const QStringList ab{u"a"_s, u"b"_s};
    QCOMPARE(decoded(decode::versionInfo, R"({"version":"9","api_version":"1"})"),
             (VersionInfo{true, true, u"9"_s, u"1"_s}));
    QCOMPARE(decoded(decode::apiURLConfigInfo, R"({"api_url":"a","validated":true})"),
             (APIURLConfigInfo{u"a"_s, true}));
    QCOMPARE(decoded(decode::autoConnectConfigInfo,
                     R"({"auto_connect":"on","reconnect_source":"s","reconnect_target":"t"})"),
             (AutoConnectConfigInfo{u"on"_s, u"s"_s, u"t"_s}));
    QCOMPARE(decoded(decode::languageConfigInfo,
                     R"({"source":"s","language":"l","effective_language":"e",
                         "supported_languages":[{"code":"b","name":"B"},7,{"code":"a"}]})"),
             (LanguageConfigInfo{u"s"_s, u"l"_s, u"e"_s, {{u"b"_s, u"B"_s}, {u"a"_s, {}}}}));
    QCOMPARE(decoded(decode::updateInfo, R"({"platform":"p","current_version":"c",
        "current_version_num":1.5,"update_available":true,"checked_at":"t","latest":{
        "version_code":"v","version_num":2.5,"is_force_upgrade":true,
        "should_gray_release_upgrade":true,"change_log":["a",1,"b"],"download":{
        "recommended":"r","universal_download_link":"u","arm64_download_link":"m",
        "amd64_download_link":"d","recommended_artifact":{"url":"x","sha256":"y",
        "size_bytes":9007199254740993}}}})"),
             (UpdateInfo{u"p"_s, u"c"_s, 1.5, true, u"t"_s, u"v"_s, 2.5, true, true, ab, u"r"_s,
                         u"u"_s, u"m"_s, u"d"_s, u"x"_s, u"y"_s, 9007199254740993, true}));
    QCOMPARE(
        decoded(decode::guiUpdateDownloadInfo, R"({"state":"verifying","current_version":"c",
        "version_code":"v","version_num":1,"bytes_downloaded":5000000000,"bytes_total":3,
        "egress":"e","local_path":"l","error_code":"ec","error_message":"em","started_at":"s",
        "updated_at":"u"})"),
        (GUIUpdateDownloadInfo{GUIUpdateDownloadInfo::State::Verifying, u"c"_s, u"v"_s, 1,
                               5000000000, 3, u"e"_s, u"l"_s, u"ec"_s, u"em"_s, u"s"_s, u"u"_s}));
    QCOMPARE(decoded(decode::userInfo, R"({"email":"e","user_number":"u","role":"r",
        "email_checked":true,"left_days":-2,"max_device_count":5})"),
             (UserInfo{u"e"_s, u"u"_s, u"r"_s, true, -2, 5}));
    QCOMPARE(decoded(decode::configPaths, R"({"ConfigDir":"1","RuntimeDir":"2","LogDir":"3",
        "StateFile":"4","CredentialsKeyFile":"5","HistoryFile":"6","ProfilesDir":"7",
        "SocketPath":"8","PIDFile":"9","ControlAddr":"10"})"),
             (ConfigPaths{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s,
                          u"10"_s}));
    QCOMPARE(decoded(decode::proxyListenResultInfo, R"({"applies_on_reconnect":true,
        "proxy_listeners":[{"name":"n","scheme":"s","address":"a"}]})"),
             (ProxyListenResultInfo{true, {{u"n"_s, u"s"_s, u"a"_s}}}));
    QCOMPARE(decoded(decode::splitDNSInfo, R"({"path":"p","changed":true,"runtime_reloaded":true,
        "runtime_warning":"w","config":{"policy":"cp","local_direct_dns":["a"],
        "fake_ip_enabled":true},"effective":{"policy":"ep","local_direct_dns":["a","b"],
        "local_dns_source":"ls","auto_cn_default":true}})"),
             (SplitDNSInfo{u"p"_s, true, true, u"w"_s, u"cp"_s, a, true, u"ep"_s, ab, u"ls"_s, true,
                           true}));
    QCOMPARE(decoded(decode::splitRulesInfo, R"({"dir":"d","files":{"direct":"f"},
        "rules":{"direct":{"items":["a","b"]},"block":{}}})"),
             (SplitRulesInfo{u"d"_s,
                             {{u"direct"_s, u"f"_s}},
                             {{u"direct"_s, {u"a"_s, u"b"_s}}, {u"block"_s, {}}},
                             true}));
    QCOMPARE(decoded(decode::splitRuleMutationInfo, R"({"kind":"k","changed":true,"count":3,
        "file":"f","runtime_reloaded":true})"),
             (SplitRuleMutationInfo{u"k"_s, true, 3, u"f"_s, true}));
    QCOMPARE(decoded(decode::repairStep, R"({"result":"r","state":"s","reason":"w"})"),
             (RepairStep{u"r"_s, u"s"_s, u"w"_s}));
}

void ControlRecordsTest::decodesModeAndKillSwitch()
{
    const QByteArray profile = R"({"default_route":"tunnel","direct_regions":["cn"],
        "proxy_regions":["us"],"gfwlist":true,"lan_routing":"lan","custom_rules":true})";
    const QByteArray mode = R"({"transport":"t","policy":"p","region":"r","system_proxy":"sp",
        "pac_port":8,"pac_version":"pv","proxy_lan":true,"local_network":" direct ",
        "last_vantuvpn_policy":"lv","last_proxy_policy":"lp","split_profile":)" +
                            profile + R"(,"last_vantuvpn_split_profile":)" + profile +
                            R"(,"proxy_split_profile":{"default_route":"x"},
        "last_proxy_split_profile":{"lan_routing":"y"}})";
    const SplitProfile full{true, u"tunnel"_s, {u"cn"_s}, {u"us"_s}, true, u"lan"_s, true};
    const SplitProfile route{true, u"x"_s, {}, {}, false, {}, false};
    const SplitProfile lan{true, {}, {}, {}, false, u"y"_s, false};
    const ModeInfo expectedMode{true,    u"t"_s,  u"p"_s, u"r"_s,      u"sp"_s,
                                8,       u"pv"_s, true,   u"direct"_s, full,
                                u"lv"_s, full,    route,  u"lp"_s,     lan};
    QCOMPARE(decoded(decode::modeInfo, mode), expectedMode);

    const QByteArray killSwitch = R"({"enabled":true,"mode":"lockdown","guard":"active",
        "platform":"p","block_mode":"b","allow_lan":true,"lan_policy":"lp",
        "lan_discovery":["x"],"last_error":"le"})";
    const KillSwitchInfo expectedKillSwitch{true,   true, u"lockdown"_s, u"active"_s, u"p"_s,
                                            u"b"_s, true, u"lp"_s,       {u"x"_s},    u"le"_s};
    QCOMPARE(decoded(decode::killSwitchInfo, killSwitch), expectedKillSwitch);
}

void ControlRecordsTest::decodesRuntime()
{
    using R = RuntimeInfo;
    // Each string lands under its own key only: its value is its key.
    const QList<std::pair<QByteArray, QString R::*>> texts{
        {"daemon_state", &R::daemonState},
        {"daemon_version", &R::daemonVersion},
        {"api_url", &R::apiURL},
        {"auto_connect", &R::autoConnect},
        {"auto_connect_state", &R::autoConnectState},
        {"language", &R::language},
        {"language_source", &R::languageSource},
        {"effective_language", &R::effectiveLanguage},
        {"catalog_refresh", &R::catalogRefresh},
        {"auth_state", &R::authState},
        {"tunnel_state", &R::tunnelState},
        {"tunnel_kind", &R::tunnelKind},
        {"tunnel_reason", &R::tunnelReason},
        {"last_error", &R::lastError},
        {"connected_source", &R::connectedSource},
        {"connected_target", &R::connectedTarget},
        {"connected_since", &R::connectedSince},
        {"proxy_address", &R::proxyAddress},
        {"active_listener_address", &R::activeListenerAddress},
        {"message", &R::message}};
    RuntimeInfo expected;
    QByteArray members;
    for (const auto &[key, field] : texts) {
        expected.*field = QString::fromLatin1(key);
        members += ",\"" + key + "\":\"" + key + "\"";
    }
    const QByteArray mode = R"({"transport":"t","proxy_lan":true})";
    const QByteArray killSwitch = R"({"guard":"g"})";
    expected.mode = decoded(decode::modeInfo, mode);
    expected.killSwitch = decoded(decode::killSwitchInfo, killSwitch);
    expected.selectedNode = {u"12"_s, u"n"_s, u"r"_s, u"3"_s};
    expected.connectedNode = {u"c"_s, {}, {}, u"word"_s};
    expected.proxyListeners = {{u"n"_s, u"s"_s, u"a"_s}};
    expected.proxyAccessURLs = {{u"k"_s, u"s"_s, u"u"_s}};
    expected.pacStatus = {u"ps"_s, u"pp"_s};
    expected.proxyPort = 1;
    expected.activeListenerPort = 2;
    QCOMPARE(decoded(decode::runtimeInfo,
                     "{\"mode\":" + mode + ",\"kill_switch\":" + killSwitch +
                         R"(,"selected_node":{"id":12,"name":"n","region":"r","type":3},
        "connected_node":{"id":"c","type":"word"},
        "proxy_listeners":[{"name":"n","scheme":"s","address":"a"}],
        "proxy_access_urls":[{"kind":"k","scheme":"s","url":"u"}],
        "pac_status":{"state":"ps","path":"pp"},"proxy_port":1,"active_listener_port":2)" +
                         members + "}"),
             expected);
}

void ControlRecordsTest::decodesCatalogue()
{
    const NodesInfo nodes = decoded(decode::nodesInfo, R"({"stale":true,"pingRunning":true,"nodes":[
        {"id":"a","name":"A","tags":["x",1],"region":"US","type":"t","signalLevel":80,"pingMs":12.7},
        {"id":41.9,"signalLevel":"80","pingMs":null},"junk"],"selected":{"id":9007199254740993},
        "connected":{}})");
    const NodesInfo expected{
        true,
        true,
        {{u"a"_s, u"A"_s, {u"x"_s}, u"US"_s, u"t"_s, 80, 12}, {u"41"_s, {}, {}, {}, {}, -1, -1}},
        {u"9007199254740993"_s, {}, {}, {}, {}, -1, -1},
        NodeEntry{}};
    QCOMPARE(nodes, expected);

    const NodeGroupsInfo groups = decoded(decode::nodeGroupsInfo, R"({"stale":true,"tabs":[
        {"group_type":"g","node_ids":["t"],"groups":[{"name":"1","code":"c","level":1,"rank":2,
        "node_ids":["b","a"],"subgroups":[{"name":"2","subgroups":[{"name":"3",
        "node_ids":["z","y"]}]},{"name":"2b"}]}]}]})");
    const NodeGroup third{u"3"_s, {}, 0, 0, {u"z"_s, u"y"_s}, {}};
    const NodeGroup second{u"2"_s, {}, 0, 0, {}, {third}};
    const NodeGroup last{u"2b"_s, {}, 0, 0, {}, {}};
    const NodeGroup first{u"1"_s, u"c"_s, 1, 2, {u"b"_s, u"a"_s}, {second, last}};
    QCOMPARE(groups, (NodeGroupsInfo{true, {{u"g"_s, {u"t"_s}, {first}}}}));
}

void ControlRecordsTest::forgivesWrongTypes()
{
    QVERIFY(isLenient(decode::runtimeInfo, R"({"daemon_state":1,"proxy_port":"7","mode":[],
        "message":{},"kill_switch":true,"selected_node":"x","proxy_listeners":{},
        "pac_status":null})"));
    QVERIFY(isLenient(decode::updateInfo, R"({"latest":[{"version_num":1}],
        "update_available":"true","current_version_num":"5"})"));
    QVERIFY(isLenient(decode::splitRulesInfo, R"({"files":["a"],"rules":"x","dir":false})"));
    QCOMPARE(decoded(decode::userInfo, R"({"email":" e "})").email, u" e "_s); // Not trimmed.
}

void ControlRecordsTest::readsNumbers()
{
    QCOMPARE(decoded(decode::userInfo, R"({"left_days":-12.7})").leftDays, -12);
    QCOMPARE(decoded(decode::userInfo, R"({"left_days":4294967296})").leftDays, 0);
    QCOMPARE(decoded(decode::userInfo, R"({"left_days":-1e300})").leftDays, 0);
    QCOMPARE(decoded(decode::nodesInfo, R"({"selected":{"pingMs":3e9}})").selected.pingMs, -1);
    QCOMPARE(decoded(decode::nodesInfo, R"({"selected":{"id":1e300}})").selected.id, QString());
}

void ControlRecordsTest::fillsInWhatOldDaemonsLack()
{
    const VersionInfo version = decoded(decode::versionInfo, R"({"version":"9"})");
    QVERIFY(version.reachable && !version.compatible);
    QVERIFY(!decoded(decode::versionInfo, R"({"api_version":"1 "})").compatible);
    QVERIFY(!decoded(decode::versionInfo, R"({"api_version":1})").compatible);
    QCOMPARE(decoded(decode::killSwitchInfo, R"({"enabled":true})").mode, u"on"_s);
    QCOMPARE(decoded(decode::killSwitchInfo, R"({"enabled":false,"mode":""})").mode, u"off"_s);
    QCOMPARE(decoded(decode::killSwitchInfo, "{}"), KillSwitchInfo());
    QCOMPARE(decoded(decode::modeInfo, R"({"proxy_lan":true})").localNetwork, u"protected"_s);
    QCOMPARE(decoded(decode::modeInfo, R"({"local_network":" "})").localNetwork, u"direct"_s);
    QVERIFY(!decoded(decode::modeInfo, R"({"split_profile":{}})").splitProfile.present);
}

void ControlRecordsTest::knowsDownloadStates()
{
    int number = 0;
    for (const char *word : {"idle", "checking", "downloading", "verifying", "canceling", "ready",
                             "failed", "canceled"}) {
        const QByteArray body = QByteArray("{\"state\":\"") + word + "\"}";
        const auto state = GUIUpdateDownloadInfo::State(++number);
        QVERIFY2(decoded(decode::guiUpdateDownloadInfo, body).state == state, word);
    }
    const QString error = u"GUI update download state is invalid"_s;
    QVERIFY(fails(decode::guiUpdateDownloadInfo, R"({"state":"Idle","egress":"e"})", error));
    QVERIFY(fails(decode::guiUpdateDownloadInfo, "{}", error));
}

void ControlRecordsTest::refusesOtherThanObjects()
{
    using namespace decode;
    for (const char *body : {"", "[]", "null", "{", "{}x", "{\"a\":'b'}", "\"{}\""}) {
        QVERIFY(fails(versionInfo, body, u"invalid version JSON"_s));
        QVERIFY(fails(nodesInfo, body, u"invalid nodes JSON"_s));
        QVERIFY(fails(modeInfo, body, u"invalid mode JSON"_s));
        QVERIFY(fails(runtimeInfo, body, u"invalid status JSON"_s));
    }
}

void ControlRecordsTest::checksPurchaseURLs_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("isGood");
    const QString page = u"https://www.vantuvpn.com/purchase"_s;
    const QString items = u"?lang=en-US&webAccessToken=t&account=a%40b"_s;
    QTest::newRow("good") << page + items << true;
    QTest::newRow("other items too") << page + items + u"&x=1&x=2"_s << true;
    QTest::newRow("http") << u"http://www.vantuvpn.com/purchase"_s + items << false;
    QTest::newRow("other host") << u"https://vantuvpn.com/purchase"_s + items << false;
    QTest::newRow("longer host") << u"https://www.vantuvpn.com.evil.org/purchase"_s + items
                                 << false;
    QTest::newRow("user") << u"https://u:p@www.vantuvpn.com/purchase"_s + items << false;
    QTest::newRow("host as user") << u"https://www.vantuvpn.com@evil.org/purchase"_s + items
                                  << false;
    QTest::newRow("port") << u"https://www.vantuvpn.com:443/purchase"_s + items << false;
    QTest::newRow("empty port") << u"https://www.vantuvpn.com:/purchase"_s + items << false;
    QTest::newRow("other path") << page + u"/"_s + items << false;
    QTest::newRow("path above") << u"https://www.vantuvpn.com/../purchase"_s + items << false;
    QTest::newRow("fragment") << page + items + u"#f"_s << false;
    QTest::newRow("empty fragment") << page + items + u"#"_s << false;
    QTest::newRow("second lang") << page + items + u"&lang=de"_s << false;
    QTest::newRow("second token, escaped") << page + items + u"&webAccess%54oken=u"_s << false;
    QTest::newRow("no account") << page + u"?lang=en&webAccessToken=t"_s << false;
    QTest::newRow("blank account") << page + u"?lang=en&webAccessToken=t&account=%20"_s << false;
    QTest::newRow("bad escape") << page + items + u"&x=%zz"_s << false;
    QTest::newRow("line break") << page + items + u"\n"_s << false;
    QTest::newRow("leading space") << u" "_s + page + items << false;
    QTest::newRow("empty") << QString() << false;
}

void ControlRecordsTest::checksPurchaseURLs()
{
    QFETCH(const QString, url);
    QFETCH(const bool, isGood);
    QString error;
    const QJsonObject body{{u"url"_s, url}};
    const QString accepted = decode::purchaseURLInfo(QJsonDocument(body).toJson(), error).url;
    QCOMPARE(accepted, isGood ? url : QString());
    QCOMPARE(error, isGood ? QString() : u"invalid purchase URL"_s);
}

QTEST_GUILESS_MAIN(ControlRecordsTest)
#include "tst_control_records.moc"
