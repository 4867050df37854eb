#include "ProxyFacts.h"
#include "RuntimeRecords.h"
#include "SettingsInput.h"
#include "TextTable.h"

#include <QTest>

using namespace Qt::StringLiterals;
using proxyfacts::InterfaceAddress;
using texttable::columns;
using texttable::row;

class SettingsRulesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void apiUrl_data();
    void apiUrl();
    void dnsServers_data();
    void dnsServers();
    void listenAddress_data();
    void listenAddress();
    void pac_data();
    void pac();
    void lanAccess_data();
    void lanAccess();
};

namespace {

/// The row's "problem" is part of the hint; without one there is none.
void checkHint(const QString &hint)
{
    QFETCH(const QString, problem);
    QCOMPARE(hint.isEmpty(), problem.isEmpty());
    QVERIFY2(hint.contains(problem), qPrintable(hint));
}

} // namespace

void SettingsRulesTest::apiUrl_data()
{
    columns({"typed", "result", "problem"}); // Some words of the hint, none for no hint.
    row("", "", "");
    row("api.example.com", "https://api.example.com", "");
    row("  api.example.com/v1 ", "https://api.example.com/v1", "");
    row("//api.example.com", "https://api.example.com", "");
    row("HTTP://api.example.com", "HTTP://api.example.com", "");
    row("Https://api.example.com:8443/x", "Https://api.example.com:8443/x", "");
    row("127.0.0.1:8080", "https://127.0.0.1:8080", "");
    row("ftp://example.com", "ftp://example.com", "begin with");
    row("https://", "https://", "web address");
    row("two words", "https://two words", "web address");
    row("example.com:port", "https://example.com:port", "web address");
}

void SettingsRulesTest::apiUrl()
{
    QFETCH(const QString, typed);
    QTEST(settingsinput::normalisedApiUrl(typed), "result");
    checkHint(settingsinput::apiUrlProblem(typed));
}

void SettingsRulesTest::dnsServers_data()
{
    columns({"typed", "servers", "problem"}); // The server that the hint quotes.
    row("1.1.1.1, 8.8.8.8", "1.1.1.1|8.8.8.8", "");
    row(" 1.1.1.1 \t8.8.8.8\n", "1.1.1.1|8.8.8.8", "");
    row(" , ,, ", "", "");
    for (const char *right : {"1.1.1.1:53", "2001:db8::1", "[2001:db8::1]", "[2001:db8::1]:5353"}) {
        row(right, right, "");
    }
    for (const char *wrong : {"1.1.1", "1.1.1.256", "1.1.1.1:0", "1.1.1.1:", "[1.1.1.1]:53",
                              "[2001:db8::1", "dns.example.com"}) {
        row(wrong, wrong, wrong);
    }
}

void SettingsRulesTest::dnsServers()
{
    QFETCH(const QString, typed);
    QTEST(settingsinput::dnsServers(typed).join(u'|'), "servers");
    checkHint(settingsinput::dnsProblem(typed));
}

void SettingsRulesTest::listenAddress_data()
{
    columns({"typed", "problem"});
    for (const char *right : {"", "127.0.0.1:1080", " 0.0.0.0:1 ", "[::]:65535", "[::1]:1080",
                              "localhost:1080", "my-host.lan:8080", "1and1.example:80"}) {
        row(right, "");
    }
    for (const char *portless : {"127.0.0.1", "127.0.0.1:", "[::1]", "localhost"}) {
        row(portless, "Add a port");
    }
    for (const char *port : {"127.0.0.1:0", "127.0.0.1:65536", "localhost:x", "localhost:-1",
                             "[::1]:+80", "127.0.0.1:99999999999"}) {
        row(port, "from 1 to 65535");
    }
    for (const char *bare : {"::1", "2001:db8::1", "[::1:1080", "1:2:3"}) {
        row(bare, "brackets");
    }
    for (const char *host : {":1080", "300.1.1.1:80", "10.1:80", "my host:80", "-a:80", "[a]:80",
                             "[127.0.0.1]:80", "*:80"}) {
        row(host, "Begin with");
    }
}

void SettingsRulesTest::listenAddress()
{
    QFETCH(const QString, typed);
    checkHint(settingsinput::listenAddressProblem(typed));
}

void SettingsRulesTest::pac_data()
{
    columns({"given", "address"}); // Listener, port, state, version.
    row("10.0.0.1:1080,8090,,", "http://10.0.0.1:8090/pac");
    row("10.0.0.1:1080,0,ready,7", "http://10.0.0.1:1080/pac?v=7");
    row("0.0.0.0:1080,1080,ready,a&b", "http://127.0.0.1:1080/pac?v=a%26b");
    row("[fd00::1]:1080,0,ready,", "http://[fd00::1]:1080/pac");
    row("10.0.0.1:1080,0, ,7", ""); // No file.
    row("10.0.0.1,0,ready,7", "");  // No port.
}

void SettingsRulesTest::pac()
{
    QFETCH(const QString, given);
    RuntimeInfo runtime;
    runtime.proxyListeners = {{{}, u"socks5"_s, u"192.168.9.9:9"_s},
                              {{}, u"http"_s, given.section(u',', 0, 0)}};
    runtime.mode.pacPort = given.section(u',', 1, 1).toInt();
    runtime.pacStatus.state = given.section(u',', 2, 2);
    runtime.mode.pacVersion = given.section(u',', 3);
    QTEST(proxyfacts::pacAddress(runtime), "address");
}

void SettingsRulesTest::lanAccess_data()
{
    columns({"listeners", "urls", "expected"});
    row("0.0.0.0:1080 0.0.0.0:1080", "", "192.168.1.5:1080");
    row("[::]:1080", "", "192.168.1.5:1080 [2001:db8::5]:1080");
    row(":81", "", "192.168.1.5:81");
    row("0.0.0.0:1 0.0.0.0:2", "", "192.168.1.5:1 192.168.1.5:2");
    row("127.0.0.1:1080 [::1]:1080 LocalHost:1 127.8.0.1:2", "", "");
    row("192.168.1.5:1080 [fd00::2]:3", "", "192.168.1.5:1080 [fd00::2]:3");
    row("0.0.0.0", "", "");
    row("0.0.0.0:5", "http://a:1  http://a:1", "http://a:1"); // The daemon knows better.
}

void SettingsRulesTest::lanAccess()
{
    QFETCH(const QString, listeners);
    QFETCH(const QString, urls);
    RuntimeInfo runtime;
    for (const QString &address : listeners.split(u' ')) {
        runtime.proxyListeners.append({{}, {}, address});
    }
    for (const QString &url : urls.split(u' ')) {
        runtime.proxyAccessURLs.append({{}, {}, url});
    }
    const auto address = [](const char *text) { return QHostAddress(QString::fromLatin1(text)); };
    const QList<InterfaceAddress> own{
        {address("127.0.0.1")},         {address("::1")},
        {address("192.168.1.5")},       {address("2001:db8::5")},
        {address("fe80::5")},           {address("169.254.1.1")},
        {address("172.17.0.1"), false}, {address("10.8.0.2"), true, true}};
    QTEST(proxyfacts::lanAddresses(runtime, own).join(u' '), "expected");
}

QTEST_GUILESS_MAIN(SettingsRulesTest)
#include "tst_settings_rules.moc"
