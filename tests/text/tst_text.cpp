#include "NodeMenuModel.h"
#include "PlainText.h"
#include "StateLabels.h"
#include "TrayMenuText.h"

#include <QTest>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

using Texts = QList<std::pair<QString, QString>>;

NodeEntry node(const QString &region, const QString &name, const QStringList &tags = {})
{
    NodeEntry entry;
    entry.id = u"n1"_s;
    entry.region = region;
    entry.name = name;
    entry.tags = tags;
    return entry;
}

RuntimeInfo connectedRuntime(const QString &since)
{
    RuntimeInfo runtime;
    runtime.tunnelState = u" Connected "_s;
    runtime.connectedSince = since;
    runtime.connectedNode = {.id = u"n1"_s, .name = u"Tokyo 3"_s, .region = u"Japan"_s, .type = {}};
    return runtime;
}

ModeInfo mode(const QString &transport, const QString &policy = {})
{
    ModeInfo info;
    info.known = true;
    info.transport = transport;
    info.policy = policy;
    return info;
}

SplitProfile profile(const QString &route, const QStringList &direct, const QStringList &through)
{
    SplitProfile result;
    result.present = true;
    result.defaultRoute = route;
    result.directRegions = direct;
    result.proxyRegions = through;
    return result;
}

} // namespace

class TestText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainLines_data();
    void plainLines();
    void longTextsAreBounded();
    void readingDirections();
    void connectionStates_data();
    void connectionStates();
    void simpleValues();
    void accountLabels();
    void modeLabels_data();
    void modeLabels();
    void durations();
    void locationLines();
    void nodeNames();
    void nodeDetails();
    void currentLines();
    void percentSignsInArguments();
};

void TestText::plainLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("menu");

    QTest::newRow("plain") << u"Tokyo 3"_s << u"Tokyo 3"_s << u"Tokyo 3"_s;
    QTest::newRow("ampersand") << u"AT&T && Co"_s << u"AT&T && Co"_s << u"AT&&T &&&& Co"_s;
    QTest::newRow("lines") << u"  a\r\n\tb\u2028c\u0000d "_s << u"a b c d"_s << u"a b c d"_s;
    QTest::newRow("direction") << u"\u202eevil\u202c \u2066x\u2069\u200f"_s << u"evil x"_s
                               << u"evil x"_s;
    QTest::newRow("joiners stay") << u"\u0646\u200c\u0647"_s << u"\u0646\u200c\u0647"_s
                                  << u"\u0646\u200c\u0647"_s;
    QTest::newRow("nothing left") << u"\n\u200b \u0007"_s << u""_s << u""_s;
}

void TestText::plainLines()
{
    QFETCH(QString, text);
    QTEST(plaintext::singleLine(text), "line");
    QTEST(plaintext::menuText(text), "menu");
}

void TestText::longTextsAreBounded()
{
    const QString exact(plaintext::kMaxLineLength, u'x');
    QCOMPARE(plaintext::singleLine(exact), exact);
    QCOMPARE(plaintext::singleLine(exact + u'x'), exact.chopped(1) + u'\u2026');
    // A cut never leaves half of a character behind.
    const QString line = plaintext::singleLine(u"abc\U0001F1EF\U0001F1F5"_s, 5);
    QCOMPARE(line, u"abc\u2026"_s);
    QCOMPARE(plaintext::messageText(u"<b>x</b>\n&"_s), u"\u2039b\u203ax\u2039/b\u203a &"_s);
    QCOMPARE(plaintext::toolTip(u"<i>&\nb"_s), u"<qt>&lt;i&gt;&amp;<br>b</qt>"_s);
    QCOMPARE(plaintext::toolTip(u"A&amp;B\nb"_s), u"A&amp;B\nb"_s);
    QVERIFY(plaintext::toolTip(QString(81, u'x')).startsWith("<qt>xx"_L1));
}

void TestText::readingDirections()
{
    constexpr auto ltr = Qt::LeftToRight;
    constexpr auto rtl = Qt::RightToLeft;
    const QString hebrew = u"\u05D0\u05D1 1"_s;
    const std::tuple<QString, Qt::LayoutDirection, Qt::LayoutDirection> rows[] = {
        {u"10 Gbit/s"_s, ltr, ltr},       {hebrew, rtl, rtl},      {u"VPN - "_s + hebrew, ltr, rtl},
        {hebrew + u" - VPN"_s, ltr, rtl}, {u"12 (3)"_s, ltr, rtl}, {{}, ltr, rtl},
    };
    for (const auto &[text, inLeftToRight, inRightToLeft] : rows) {
        QCOMPARE(plaintext::readingDirection(text, ltr), inLeftToRight);
        QCOMPARE(plaintext::readingDirection(text, rtl), inRightToLeft);
    }
    QCOMPARE(plaintext::isolated(u"10 Gbit/s"_s), u"\u206810 Gbit/s\u2069"_s);
}

void TestText::connectionStates_data()
{
    QTest::addColumn<QString>("tunnel");
    QTest::addColumn<QString>("daemon");
    QTest::addColumn<QString>("label");

    QTest::newRow("empty") << u""_s << u"  "_s << u"ready"_s;
    QTest::newRow("known, spelt freely") << u" Disconnected "_s << u"ready"_s << u"disconnected"_s;
    QTest::newRow("unknown as received") << u" Reconnecting "_s << u""_s << u"Reconnecting"_s;
    QTest::newRow("daemon alone") << u""_s << u"disconnecting"_s << u"disconnecting"_s;
    QTest::newRow("either connected") << u"disconnected"_s << u"connected"_s << u"connected"_s;
    QTest::newRow("either pending") << u"disconnected"_s << u"Queued"_s << u"Queued"_s;
    QTest::newRow("hostile") << u"a\nb\u202e"_s << u""_s << u"a b"_s;
}

void TestText::connectionStates()
{
    QFETCH(QString, tunnel);
    QFETCH(QString, daemon);
    RuntimeInfo runtime;
    runtime.tunnelState = tunnel;
    runtime.daemonState = daemon;
    QTEST(labels::connectionState(runtime), "label");
}

void TestText::simpleValues()
{
    const Texts cases{
        {labels::route(u"DIRECT"_s), u"Direct"_s},
        {labels::route(u" Moon"_s), u" Moon"_s},
        {labels::systemProxy(u"LOCK"_s), u"Off"_s}, // the comparison is exact
        {labels::systemProxy({}), u"Off"_s},
        {labels::localNetwork(u"protected"_s), u"Protected"_s},
        {labels::localNetwork(u"Protected"_s), u"Direct"_s},
        {labels::withCount(u"CN"_s, 3, {}), u"CN+3"_s},
        {labels::withCount(u"CN"_s, 0, {}), u"CN"_s},
        {labels::withCount(u"CN+3 "_s, 3, {}), u"CN+3 "_s},
        {labels::withCount({}, 2, u"None"_s), u"None+2"_s},
    };
    for (const auto &[actual, expected] : cases) {
        QCOMPARE(actual, expected);
    }
}

void TestText::accountLabels()
{
    UserInfo user;
    QCOMPARE(labels::account(user, "TrayMenuText"), u"Unavailable"_s);
    user.role = u" VIP "_s;
    QCOMPARE(labels::account(user, "TrayMenuText"), u"VIP"_s);
    user.leftDays = 12;
    QCOMPARE(labels::account(user, "TrayMenuText"), u"VIP Days left: 12"_s);
    user.email = u"a@b.c\n"_s;
    QCOMPARE(labels::account(user, "TrayMenuText"), u"a@b.c"_s);
}

void TestText::modeLabels_data()
{
    QTest::addColumn<ModeInfo>("info");
    QTest::addColumn<QString>("label");

    ModeInfo vpn = mode(u"vantuvpn"_s, u"split"_s);
    vpn.splitProfile = profile(u"direct"_s, {u"CN"_s}, {u"US"_s, u"JP"_s});
    vpn.splitProfile.customRules = true;
    ModeInfo proxy = mode(u"proxy"_s, u"gfwlist"_s);
    proxy.proxySplitProfile = profile(u"proxy"_s, {u"CN"_s}, {});
    proxy.proxySplitProfile.gfwList = true;

    QTest::newRow("none") << ModeInfo{} << u"None"_s;
    QTest::newRow("vpn global") << mode(u"vantuvpn"_s) << u"VantuVPN: Global"_s;
    QTest::newRow("vpn split")
        << vpn << u"VantuVPN: Split (split default Direct, regions Tunnel US, JP, custom rules)"_s;
    QTest::newRow("proxy split")
        << proxy << u"Vantu Proxy: Split (default Proxy, regions Direct CN, gfwlist proxy)"_s;
    QTest::newRow("unknown") << mode(u"carrier\npigeon"_s) << u"carrier pigeon"_s;
}

void TestText::modeLabels()
{
    QFETCH(ModeInfo, info);
    QTEST(labels::mode(info), "label");
}

void TestText::durations()
{
    const QList<std::pair<qint64, QString>> cases{
        {-5, u"less than 1m"_s}, {59, u"less than 1m"_s},      {60, u"1m"_s},
        {3600, u"1h"_s},         {3660, u"1h 1m"_s},           {86400, u"1d"_s},
        {90000, u"1d 1h"_s},     {2 * 86400 - 1, u"1d 23h"_s},
    };
    for (const auto &[seconds, text] : cases) {
        QCOMPARE(NodeMenuModel::duration(seconds), text);
    }
}

void TestText::locationLines()
{
    const QDateTime now = QDateTime::fromString(u"2026-01-01T12:05:00Z"_s, Qt::ISODate);
    const QString bare = u"Location: Japan - Tokyo 3"_s;
    const Texts cases{
        {u"2026-01-01T12:00:00+02:00"_s, bare + u" \u00b7 2h 5m"_s},
        {u"2026-01-01T10:00:00.123456789Z"_s, bare + u" \u00b7 2h 4m"_s},
        {u"2026-01-01T10:00:00"_s, bare + u" \u00b7 2h 5m"_s}, // no zone is UTC
        {u"0001-01-01T00:00:00Z"_s, bare},                     // the daemon's "never"
        {u"soon"_s, bare},
        {u"2026-01-01T13:00:00Z"_s, bare + u" \u00b7 less than 1m"_s}, // clocks differ
    };
    for (const auto &[since, line] : cases) {
        QCOMPARE(NodeMenuModel::locationLine(connectedRuntime(since), {}, now), line);
    }
}

void TestText::nodeNames()
{
    const QList<std::pair<NodeEntry, QString>> cases{
        {node(u"Japan"_s, u"Tokyo 3"_s), u"Japan - Tokyo 3"_s},
        {node(u"Japan"_s, u" japan Tokyo 3"_s), u"japan Tokyo 3"_s},
        {node(u"Japan"_s, u"JAPAN"_s), u"JAPAN"_s},
        {node(u"Japan"_s, u" "_s), u"Japan"_s},
        {node({}, u"Tokyo"_s), u"Tokyo"_s},
        {NodeEntry{}, u"<none>"_s},
        {node(u"JP"_s, u"Tokyo [p2p]"_s, {u"stream"_s, u"P2P"_s, u"x"_s}),
         u"JP - Tokyo [p2p] - stream, x"_s},
        {node(u"\u202eJP\n"_s, u"a\nb"_s), u"JP - a b"_s},
    };
    for (const auto &[entry, text] : cases) {
        QCOMPARE(NodeMenuModel::entryText(entry), text);
    }
}

void TestText::nodeDetails()
{
    const NodeEntry entry = node(u"JP"_s, u"[a] Tokyo [b c] []"_s, {u"B C"_s, u"<d>"_s});
    QCOMPARE(NodeMenuModel::bracketedTags(entry.name), (QStringList{u"a"_s, u"b c"_s}));
    QCOMPARE(NodeMenuModel::allTags(entry), (QStringList{u"B C"_s, u"<d>"_s, u"a"_s}));
    QCOMPARE(NodeMenuModel::toolTip(entry), u"<qt>JP - [a] Tokyo [b c] []<br>&lt;d&gt;</qt>"_s);
    QCOMPARE(NodeMenuModel::unavailable(u"n9"_s), u"[n9] unavailable"_s);
}

void TestText::currentLines()
{
    NodesInfo nodes;
    nodes.stale = true;
    RuntimeInfo runtime = connectedRuntime({});
    QCOMPARE(NodeMenuModel::currentLine(runtime, nodes, true),
             u"Current: Japan - Tokyo 3 (stale)"_s);
    QCOMPARE(NodeMenuModel::currentLine(runtime, nodes, false), u"Current: Japan - Tokyo 3"_s);
    // Not connected: the selected node counts, and without one the daemon chooses.
    runtime.tunnelState = u"disconnected"_s;
    QCOMPARE(NodeMenuModel::currentLine(runtime, {}, true), u"Current: Auto"_s);
    nodes.selected = node(u"US"_s, u"Reno"_s);
    QCOMPARE(NodeMenuModel::currentLine(runtime, nodes, true), u"Current: US - Reno (stale)"_s);
}

void TestText::percentSignsInArguments()
{
    const QString trap = u"50%2 %1"_s;
    QCOMPARE(TrayMenuText::locationSince(trap, u"1m"_s), u"Location: 50%2 %1 \u00b7 1m"_s);
    QCOMPARE(TrayMenuText::couldNotOpen(trap, u"x"_s), u"could not open 50%2 %1: x"_s);
    QCOMPARE(TrayMenuText::regions(trap, u"x"_s), u"regions 50%2 %1 x"_s);
    QCOMPARE(NodeMenuModel::joinedName(trap, u"x"_s), u"50%2 %1 - x"_s);
}

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
