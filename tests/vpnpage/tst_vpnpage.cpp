#include "VpnPageFixture.h"

#include "FlagLabel.h"
#include "QuickEntrySignalBars.h"
#include "VpnSummary.h"

#include <QDateTime>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class VpnPageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void primaryAction_data();
    void primaryAction();
    void detail_data();
    void detail();
    void cards_data();
    void cards();
    void cardsLeadToPages();
    void namesThePlaceOnTheWay();
    void flagOnTheWay_data();
    void flagOnTheWay();
    void keepsTheKeyboard();
    void progressComesLate();
    void hostileNamesStayOneLine();
    void signalBars_data();
    void signalBars();
};

namespace {

RuntimeInfo runtimeWith(const QString &tunnel, const QString &auth = u"logged_in"_s)
{
    RuntimeInfo runtime;
    runtime.tunnelState = tunnel;
    runtime.authState = auth;
    return runtime;
}

const ConnectProgress kConnecting{true, false, false, {}};
const ConnectProgress kDisconnecting{true, true, false, {}};
const ConnectProgress kCancelling{true, false, true, {}};

} // namespace

void VpnPageTest::primaryAction_data()
{
    QTest::addColumn<bool>("available");
    QTest::addColumn<QString>("tunnel");
    QTest::addColumn<QString>("auth");
    QTest::addColumn<ConnectProgress>("progress");
    QTest::addColumn<QString>("expected"); // title|button|enabled|dot|role|state

    const auto row = [](const char *name, bool available, const char *tunnel, const char *auth,
                        const ConnectProgress &progress, const char *expected) {
        QTest::newRow(name) << available << QString::fromLatin1(tunnel) << QString::fromLatin1(auth)
                            << progress << QString::fromLatin1(expected);
    };
    row("gone", false, "connected", "logged_in", {},
        "Daemon unavailable|Connect|0|unavailable|connect|idle");
    row("gone while connecting", false, "connecting", "cached", kConnecting,
        "Daemon unavailable|Connect|0|unavailable|connect|idle");
    row("down", true, "disconnected", "cached", {},
        "Not connected|Connect|1|disconnected|connect|idle");
    row("signed out", true, "ready", "logged_out", {},
        "Not connected|Sign In|1|disconnected|connect|idle");
    row("daemon connects by itself", true, " Queued ", "logged_in", {},
        "Connecting...|Cancel|1|disconnected|connect|pending");
    row("to another place", true, "connected", "logged_in", kConnecting,
        "Connecting...|Cancel|1|connected|connect|pending");
    row("disconnecting", true, "connected", "logged_in", kDisconnecting,
        "Disconnecting...|Disconnecting...|0|connected|disconnect|pending");
    row("cancelling", true, "connecting", "logged_in", kCancelling,
        "Canceling...|Canceling...|0|disconnected|connect|pending");
}

void VpnPageTest::primaryAction()
{
    QFETCH(bool, available);
    QFETCH(QString, tunnel);
    QFETCH(QString, auth);
    QFETCH(ConnectProgress, progress);
    VpnPageFixture test;
    test.state.setRuntime(runtimeWith(tunnel, auth));
    test.page->setDaemonAvailable(available, u"why"_s);
    test.page->setConnectProgress(progress);

    const auto *button = test.find<QPushButton>("VantuVPNPrimaryAction");
    const QStringList shown{
        test.find<QLabel>("VantuStatusTitle")->text(),
        button->text(),
        QString::number(button->isEnabled()),
        test.find<QLabel>("VantuVPNStatusDot")->property("vantuStatusState").toString(),
        button->property("vantuPrimaryRole").toString(),
        button->property("vantuPrimaryState").toString()};
    QTEST(shown.join(u'|'), "expected");
    QCOMPARE(button->toolTip().contains(u"why"), !available);
}

void VpnPageTest::detail_data()
{
    QTest::addColumn<bool>("available");
    QTest::addColumn<RuntimeInfo>("runtime");
    QTest::addColumn<ConnectProgress>("progress");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("isError");

    RuntimeInfo up = runtimeWith(u"connected"_s);
    up.connectedNode = {u"7"_s, u"Tokyo 3"_s, u"JP"_s, {}};
    up.connectedSince = u"2026-01-01T10:00:00Z"_s;
    RuntimeInfo failed = runtimeWith(u"failed"_s);
    failed.lastError = u"handshake\ntimed out"_s;
    RuntimeInfo auto_ = runtimeWith(u"connecting"_s);
    auto_.selectedNode = {u"8"_s, u"Oslo 1"_s, u"NO"_s, {}};
    ConnectProgress toParis = kConnecting;
    toParis.label = u"FR - Paris"_s;

    QTest::newRow("gone") << false << up << ConnectProgress{} << u"no socket"_s << false;
    QTest::newRow("nothing yet") << true << RuntimeInfo{} << ConnectProgress{}
                                 << u"Waiting for daemon status"_s << false;
    QTest::newRow("up") << true << up << ConnectProgress{}
                        << u"Location: JP - Tokyo 3 \u00b7 2h 5m"_s << false;
    QTest::newRow("moving") << true << up << toParis << u"FR - Paris"_s << false;
    QTest::newRow("by the daemon")
        << true << auto_ << ConnectProgress{} << u"NO - Oslo 1"_s << false;
    QTest::newRow("failed") << true << failed << ConnectProgress{} << u"handshake timed out"_s
                            << true;
    QTest::newRow("trying again") << true << failed << kConnecting << smartSelectText() << false;
    RuntimeInfo down = runtimeWith(u"disconnected"_s);
    down.tunnelReason = u"idle"_s;
    QTest::newRow("refused") << true << down << ConnectProgress{} << u"no route"_s << true;
}

void VpnPageTest::detail()
{
    QFETCH(RuntimeInfo, runtime);
    QFETCH(bool, available);
    QFETCH(ConnectProgress, progress);
    AppState state;
    state.setRuntime(runtime);
    const VpnSummary summary =
        vpnSummary(state, {available, u"no socket"_s, progress, {}, u"no route"_s},
                   QDateTime::fromString(u"2026-01-01T12:05:30Z"_s, Qt::ISODate));
    QTEST(summary.detail, "expected");
    QTEST(summary.detailIsError, "isError");
}

void VpnPageTest::cards_data()
{
    QTest::addColumn<ModeInfo>("mode");
    QTest::addColumn<KillSwitchInfo>("killSwitch");
    QTest::addColumn<bool>("available");
    QTest::addColumn<QString>("expected"); // mode|kill switch|local network

    ModeInfo automatic;
    automatic.known = true;
    automatic.transport = u"auto"_s;
    automatic.localNetwork = u"protected"_s;
    ModeInfo proxy = automatic;
    proxy.transport = u"proxy"_s;
    proxy.localNetwork = u"direct"_s;
    KillSwitchInfo on;
    on.known = on.enabled = true;
    KillSwitchInfo lockdown = on;
    lockdown.mode = u"lockdown"_s;

    QTest::newRow("unknown") << ModeInfo{} << KillSwitchInfo{} << true
                             << u"None|Unavailable|Unavailable"_s;
    QTest::newRow("on") << automatic << on << true << u"Auto|On|Protected"_s;
    QTest::newRow("lockdown not in force")
        << automatic << lockdown << true << u"Auto|Lockdown unavailable|Protected"_s;
    QTest::newRow("proxy")
        << proxy << on << true
        << u"Vantu Proxy: Global|On \u00b7 Not available in Vantu Proxy|Direct"_s;
    QTest::newRow("gone") << automatic << on << false << u"Auto|Unavailable|Unavailable"_s;
    QTest::newRow("never told") << ModeInfo{} << on << false
                                << u"Unavailable|Unavailable|Unavailable"_s;
}

void VpnPageTest::cards()
{
    QFETCH(ModeInfo, mode);
    QFETCH(KillSwitchInfo, killSwitch);
    QFETCH(bool, available);
    QFETCH(QString, expected);
    VpnPageFixture test;
    RuntimeInfo runtime = runtimeWith(u"ready"_s);
    runtime.mode = mode;
    test.state.setRuntime(runtime);
    test.state.setKillSwitch(killSwitch);
    test.page->setDaemonAvailable(available, u"why"_s);

    const QStringList values = expected.split(u'|');
    QCOMPARE(test.find<QLabel>("VantuVPNModeValue")->text(), values.at(0));
    const auto name = [&test](const char *card) {
        return test.find<QPushButton>(card)->accessibleName();
    };
    QCOMPARE(name("VantuVPNLocationCard"), u"Location, Smart-select a server automatically"_s);
    QCOMPARE(name("VantuVPNModeCard"), u"Mode, "_s + values.at(0));
    QCOMPARE(name("VantuVPNKillSwitchCard"), u"Kill Switch, "_s + values.at(1));
    QCOMPARE(name("VantuVPNLocalNetworkCard"), u"Local Network, "_s + values.at(2));
}

void VpnPageTest::cardsLeadToPages()
{
    VpnPageFixture test;
    QSignalSpy pages(test.page, &VpnPage::pageRequested);
    for (const char *card : {"VantuVPNLocationCard", "VantuVPNModeCard", "VantuVPNKillSwitchCard",
                             "VantuVPNLocalNetworkCard"}) {
        QTest::mouseClick(test.find<QPushButton>(card), Qt::LeftButton);
    }
    QCOMPARE(pages, (QList<QVariantList>{{1}, {2}, {3}, {2}}));
}

void VpnPageTest::namesThePlaceOnTheWay()
{
    VpnPageFixture test;
    const auto *value = test.find<QLabel>("VantuVPNLocationValue");
    QCOMPARE(value->text(), u"Unavailable"_s);
    test.page->setDaemonAvailable(true, {});
    test.page->setPendingConnectTarget(
        {PendingConnectTarget::Kind::Smart, u"JP"_s, u"Japan"_s, u"jp"_s});
    QCOMPARE(value->text(), smartSelectText());
    auto *flag = test.find<FlagLabel>("VantuVPNStatusFlag");
    const QImage noFlag = flag->grab().toImage();
    test.page->setConnectProgress(kConnecting);
    QCOMPARE(value->text(), u"Japan"_s);
    QVERIFY(flag->grab().toImage() != noFlag);
    QVERIFY(!test.page->setPendingConnectTarget({})); // What runs has its own.
    QCOMPARE(value->text(), u"Japan"_s);
    test.page->setConnectProgress({});
    test.page->setConnectProgress(kConnecting);
    QCOMPARE(value->text(), smartSelectText());
}

void VpnPageTest::flagOnTheWay_data()
{
    QTest::addColumn<ConnectProgress>("progress");
    QTest::addColumn<PendingConnectTarget>("target");
    QTest::addColumn<QString>("expected");
    using Kind = PendingConnectTarget::Kind;
    ConnectProgress toOslo = kConnecting;
    toOslo.label = u"NO - Oslo 1"_s;
    ConnectProgress toParis = kConnecting;
    toParis.label = u"FR - Paris"_s;
    const PendingConnectTarget none;
    QTest::newRow("told") << kConnecting
                          << PendingConnectTarget{Kind::Node, u"1"_s, u"A"_s, u"se"_s} << u"se"_s;
    QTest::newRow("listed") << toParis << PendingConnectTarget{Kind::Node, u"1"_s, u"A"_s, {}}
                            << u"jp"_s;
    QTest::newRow("group") << kConnecting << PendingConnectTarget{Kind::Smart, u"DE"_s, u"A"_s, {}}
                           << u"de"_s;
    QTest::newRow("region") << kConnecting
                            << PendingConnectTarget{Kind::Smart, u"Asia"_s, u"A"_s, {}} << u""_s;
    QTest::newRow("of the tray") << toOslo << none << u"no"_s;
    QTest::newRow("not yet selected") << toParis << none << u""_s;
    QTest::newRow("unnamed") << kConnecting << none << u"no"_s;
}

void VpnPageTest::flagOnTheWay()
{
    QFETCH(ConnectProgress, progress);
    QFETCH(PendingConnectTarget, target);
    AppState state;
    NodesInfo nodes;
    nodes.nodes = {VpnPageFixture::node(u"1"_s, u"Tokyo"_s, u"JP"_s)};
    state.setNodes(nodes);
    RuntimeInfo runtime = runtimeWith(u"disconnected"_s);
    runtime.selectedNode = {u"8"_s, u"Oslo 1"_s, u"NO"_s, {}};
    state.setRuntime(runtime);
    QTEST(vpnSummary(state, {true, {}, progress, target, {}}, {}).flagCode, "expected");
}

/// What runs takes the keyboard from nobody: it comes back to the button, not to a card.
void VpnPageTest::keepsTheKeyboard()
{
    VpnPageFixture test;
    auto *button = test.find<QPushButton>("VantuVPNPrimaryAction");
    test.state.setRuntime(runtimeWith(u"connected"_s));
    test.page->setDaemonAvailable(true, {});
    for (const bool goesElsewhere : {false, true}) {
        button->setFocus();
        test.page->setConnectProgress(kDisconnecting);
        QVERIFY(!button->isEnabled() && !qobject_cast<QPushButton *>(test.window.focusWidget()));
        auto *card = test.find<QPushButton>("VantuVPNModeCard");
        if (goesElsewhere) {
            card->setFocus();
        }
        test.page->setConnectProgress({});
        QCOMPARE(test.window.focusWidget(), goesElsewhere ? card : button);
    }
}

void VpnPageTest::progressComesLate()
{
    VpnPageFixture test;
    const auto *progress = test.find<QWidget>("VantuVPNPrimaryActionProgress");
    const auto *button = test.find<QPushButton>("VantuVPNPrimaryAction");
    test.page->setDaemonAvailable(true, {});
    const QRect before = button->geometry();
    test.page->setConnectProgress(kConnecting);
    QVERIFY(!progress->isVisible());
    QTRY_VERIFY(progress->isVisible());
    QCOMPARE(button->geometry(), before);
    QCOMPARE(progress->size(), button->size());
    test.page->setConnectProgress({});
    QVERIFY(!progress->isVisible());
}

void VpnPageTest::hostileNamesStayOneLine()
{
    VpnPageFixture test;
    const int height = test.find<QWidget>("VantuStatusCard")->height();
    RuntimeInfo runtime = runtimeWith(u"connected"_s);
    runtime.connectedNode.name = u"<b>A</b>\n\u202e%1&B "_s + QString(5000, u'x');
    runtime.selectedNode = runtime.connectedNode;
    test.page->setDaemonAvailable(true, {});
    test.state.setRuntime(runtime);
    QApplication::processEvents();
    for (const char *name : {"VantuVPNStatusDetail", "VantuVPNLocationValue"}) {
        const auto *label = test.find<QLabel>(name);
        QVERIFY(label->text().contains(u"<b>A</b> %1&B x"_s));
        QVERIFY(label->text().size() < 200);
        QCOMPARE(label->textFormat(), Qt::PlainText);
    }
    QCOMPARE(test.find<QWidget>("VantuStatusCard")->height(), height);
    QCOMPARE(test.window.width(), 656);
}

void VpnPageTest::signalBars_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("painted"); // per bar: lit, faded or nothing
    QTest::newRow("unknown") << -1 << u"-----"_s;
    QTest::newRow("none") << 0 << u"fffff"_s;
    QTest::newRow("20") << 20 << u"Lffff"_s;
    QTest::newRow("21") << 21 << u"LLfff"_s;
    QTest::newRow("too much") << 1000 << u"LLLLL"_s;
}

void VpnPageTest::signalBars()
{
    QFETCH(int, level);
    QFETCH(QString, painted);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QuickEntrySignalBars bars;
        bars.setLayoutDirection(direction);
        bars.setColors(Qt::green, Qt::black);
        bars.setLevel(level);
        QImage image(bars.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        bars.render(&image, {}, {}, {});
        QString seen;
        for (int bar = 0; bar < 5; ++bar) {
            const int x = 1 + 4 * bar;
            const QColor color = image.pixelColor(
                direction == Qt::LeftToRight ? x : image.width() - 1 - x, image.height() - 2);
            seen += color == Qt::green ? u'L' : color == Qt::white ? u'-' : u'f';
        }
        QCOMPARE(seen, painted);
        QVERIFY(image.pixelColor(direction == Qt::LeftToRight ? 1 : image.width() - 2, 8) ==
                Qt::white);
    }
}

QTEST_MAIN(VpnPageTest)
#include "tst_vpnpage.moc"
