#include "AppState.h"
#include "ConfirmDialog.h"
#include "ControlProtocol.h"
#include "DesktopColorScheme.h"
#include "ModePage.h"
#include "RegionChoices.h"
#include "RegionNames.h"
#include "SplitRulesEditorDialog.h"
#include "Theme.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <tuple>

using namespace Qt::StringLiterals;

class ModePageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summary_data();
    void summary();
    void blocking_data();
    void blocking();
    void requests_data();
    void requests();
    void showsOnlyWhatIs();
    void killSwitchBlocksTheProxy();
    void regionChoicesByName();
    void appliesRegions();
    void fetchesRulesWhenNeeded();
    void feedsTheEditor();
    void keyboard();
};

namespace {

const QString kPrefix = u"VantuMode"_s;
const QString kSwitching = u"Switching mode..."_s;
const QString kLockdown = u"Turn off Lockdown to change this mode."_s;

ModeInfo modeOf(const QString &transport, const QString &policy = {})
{
    ModeInfo mode;
    std::tie(mode.known, mode.transport, mode.policy) = std::tuple(true, transport, policy);
    return mode;
}

/// The split mode whose default is `route`; `through` are the regions of the tunnel or proxy.
ModeInfo splitOf(const QString &transport, const QString &route, const QStringList &direct = {},
                 const QStringList &through = {}, bool gfwList = false, bool customRules = false)
{
    ModeInfo mode = modeOf(transport, u"split"_s);
    (transport == "proxy"_L1 ? mode.proxySplitProfile : mode.splitProfile) =
        SplitProfile{true, route, direct, through, gfwList, u"lan"_s, customRules};
    return mode;
}

NodeGroupsInfo catalogue()
{
    const NodeGroup japan{u"Nippon"_s, u"jp"_s, 0, 0, {}, {}};
    return {false, {{{}, {}, {{u"Asia"_s, u"asia"_s, 0, 0, {}, {japan}}}}}};
}

/// What a request asks for, in a line.
QString described(const ModeInfo &mode)
{
    QString text = mode.transport + u'/' + mode.policy;
    for (const SplitProfile &profile : {mode.splitProfile, mode.proxySplitProfile}) {
        if (profile.present) {
            text += u" %1 direct=%2 through=%3 %4%5%6"_s.arg(
                profile.defaultRoute, profile.directRegions.join(u','),
                profile.proxyRegions.join(u','), profile.gfwList ? u"gfw "_s : QString(),
                profile.customRules ? u"custom "_s : QString(), profile.lanRouting);
        }
    }
    return text;
}

struct Fixture
{
    Fixture()
    {
        (new QVBoxLayout(&window))->addWidget(page);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void show(const ModeInfo &mode)
    {
        RuntimeInfo runtime;
        runtime.mode = mode;
        state.setRuntime(runtime);
    }
    void killSwitch(const QString &mode)
    {
        state.setKillSwitch({true, false, mode, {}, {}, {}, false, {}, {}, {}});
    }
    void holdRules(const QStringList &direct)
    {
        state.setSplitRules({u"/rules"_s, {}, {{u"direct"_s, direct}}, true});
    }
    template<typename Widget = QAbstractButton>
    Widget &find(const QString &part)
    {
        return *window.findChild<Widget *>(kPrefix + part);
    }
    void click(const QString &part) { find(part).click(); }
    bool isOn(const QString &part) { return find(part).isChecked(); }
    bool focusedAfter(int key, const QString &part)
    {
        QTest::keyClick(window.focusWidget(), static_cast<Qt::Key>(key));
        return find(part).hasFocus();
    }
    void reopen() { page->setVisible(false), page->setVisible(true); }
    QString text(const QString &label) { return find<QLabel>(label).text(); }
    /// The last request, in a line; taken from the spy.
    QString requested()
    {
        return modes.isEmpty() ? QString() : described(modes.takeLast().at(0).value<ModeInfo>());
    }

    AppState state;
    DesktopColorScheme desktop;
    Theme theme{desktop, u"light"_s};
    QWidget window;
    ModePage *page = new ModePage(state, theme, &window);
    QSignalSpy modes{page, &ModePage::setModeRequested};
    QSignalSpy fetches{page, &ModePage::splitRulesRequested};
};

/// The dialog on top, if it is of this kind.
template<typename Dialog>
Dialog *openDialog()
{
    return qobject_cast<Dialog *>(QApplication::activeModalWidget());
}

void press(const QString &buttonName)
{
    QApplication::activeModalWidget()->findChild<QAbstractButton *>(buttonName)->click();
}

} // namespace

void ModePageTest::summary_data()
{
    QTest::addColumn<ModeInfo>("mode");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const ModeInfo &mode, const QString &expected) {
        QTest::newRow(name) << mode << expected;
    };
    ModeInfo global = modeOf(u"vantuvpn"_s, u"global"_s);
    global.localNetwork = wire::kLocalNetworkProtected;
    row("none", {}, u"Unavailable|Daemon mode is not available."_s);
    row("foreign", modeOf(u"new\nkind"_s), u"new kind|"_s);
    row("tunnel, global", global,
        u"VantuVPN|All non-LAN traffic uses the VPN tunnel. Local Network: Protected."_s);
    row("tunnel, split",
        splitOf(u"vantuvpn"_s, u"tunnel"_s, {u"jp"_s, u"CN"_s, u" "_s, u"x%1"_s}, {u"DE"_s}, false,
                true),
        u"VantuVPN|Default: Tunnel · Regions use Direct: Nippon, China, x%1 · GFWList: Off · "
        "Custom rules: On"_s);
    row("tunnel, direct by default", splitOf(u"vantuvpn"_s, u"Direct"_s, {u"CN"_s}, {}, true),
        u"VantuVPN|Default: Direct · Regions use Tunnel: None · GFWList: Tunnel · "
        "Custom rules: Off"_s);
    row("proxy, split", modeOf(u"proxy"_s, u"bypass-region"_s),
        u"Vantu Proxy|Default route uses the local proxy. Default: Proxy · Regions use Direct: "
        "None · GFWList: Off."_s);
    row("proxy, direct by default", splitOf(u"proxy"_s, u"direct"_s, {}, {u"DE"_s}),
        u"Vantu Proxy|Default: Direct · Regions use Proxy: Germany · GFWList: Off"_s);
}

void ModePageTest::summary()
{
    QFETCH(const ModeInfo, mode);
    Fixture f;
    f.state.setNodeGroups(catalogue());
    f.show(mode);
    QTEST(f.text(u"SummaryTitle"_s) + u'|' + f.text(u"SummaryDetail"_s), "expected");
}

/// The tag of a row names the situation.
void ModePageTest::blocking_data()
{
    QTest::addColumn<QString>("disabled"); // Names, whose tool tips say the reason.
    QTest::addColumn<QString>("reason");
    QTest::newRow("vantuvpn on") << QString() << QString();
    QTest::newRow("vantuvpn lockdown")
        << u"VantuSplit VantuDefaultTunnel VantuDefaultDirect VantuRegions VantuGFWList "
           "VantuCustomRules VantuProxy LocalNetworkDirect"_s
        << kLockdown;
    QTest::newRow("proxy lockdown")
        << u"VantuProxy ProxyGlobal ProxySplit ProxyDefaultProxy ProxyDefaultDirect ProxyRegions "
           "ProxyGFWList LocalNetworkDirect"_s
        << kLockdown;
    QTest::newRow("vantuvpn off busy")
        << u"Auto WireGuard VantuVPN VantuGlobal VantuSplit VantuDefaultTunnel VantuDefaultDirect "
           "VantuRegions VantuGFWList VantuCustomRulesEdit VantuCustomRules VantuProxy "
           "LocalNetworkDirect LocalNetworkProtected"_s
        << kSwitching;
    QTest::newRow("auto off away")
        << u"Auto WireGuard VantuVPN VantuProxy LocalNetworkDirect LocalNetworkProtected"_s
        << u"Gone"_s;
    QTest::newRow("unknown off") << u"LocalNetworkDirect"_s << u"Daemon mode is not available."_s;
}

void ModePageTest::blocking()
{
    QFETCH(const QString, reason);
    const QStringList situation = QString::fromLatin1(QTest::currentDataTag()).split(u' ');
    Fixture f;
    f.show(situation.at(0) == "unknown"_L1 ? ModeInfo{} : modeOf(situation.at(0), u"split"_s));
    f.killSwitch(situation.at(1));
    f.page->setChangeInFlight(situation.contains(u"busy"_s), false);
    f.page->setDaemonAvailable(!situation.contains(u"away"_s), u"Gone"_s);
    QStringList disabled;
    for (auto *button : f.page->findChildren<QAbstractButton *>()) {
        const QString name = button->objectName().mid(kPrefix.size());
        // A control as a whole answers for its segments.
        const QWidget *teller = button->toolTip().isEmpty() ? button->parentWidget() : button;
        QString expected = button->isEnabled() ? QString() : reason;
        if (situation.at(1) == "lockdown"_L1 && name == "LocalNetworkDirect"_L1) {
            expected = u"Turn off Lockdown to allow direct local network access."_s;
        } else if (situation.at(1) == "on"_L1 && name == "VantuProxy"_L1) {
            expected = u"Kill Switch blocks Vantu Proxy. Open Settings to turn it off."_s;
        }
        if (button->isVisible()) {
            disabled += button->isEnabled() ? QStringList{} : QStringList{name};
            QVERIFY2(teller->toolTip() == expected, qPrintable(name + teller->toolTip()));
        }
    }
    QTEST(disabled.join(u' '), "disabled");
}

void ModePageTest::requests_data()
{
    QTest::addColumn<ModeInfo>("mode");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("expected");
    const auto row = [](const ModeInfo &mode, const char *button, const char *expected) {
        QTest::addRow("%s: %s", qPrintable(described(mode)), button)
            << mode << QString::fromLatin1(button) << QString::fromLatin1(expected);
    };
    const ModeInfo global = modeOf(u"vantuvpn"_s, u"global"_s);
    const ModeInfo vpn = splitOf(u"vantuvpn"_s, u"tunnel"_s, {u"cn"_s}, {u"DE"_s});
    const ModeInfo proxy = splitOf(u"proxy"_s, u"direct"_s, {u"CN"_s}, {u"de"_s});
    ModeInfo used = modeOf(u"auto"_s, u"used"_s);
    used.lastVantuVPNPolicy = u"gfwlist"_s;
    used.lastVantuVPNSplitProfile = splitOf({}, u"direct"_s, {}, {u"US"_s}).splitProfile;
    row(vpn, "Auto", "auto/");
    row(vpn, "VantuVPN", "");
    row(modeOf(u"auto"_s), "VantuVPN", "vantuvpn/global");
    row(used, "VantuVPN", "vantuvpn/split direct direct= through=US lan");
    row(used, "VantuProxy", "proxy/global");
    row(global, "VantuSplit", "vantuvpn/split tunnel direct= through= ");
    row(global, "VantuGlobal", "");
    row(vpn, "VantuDefaultDirect", "vantuvpn/split direct direct=cn through=DE lan");
    row(vpn, "VantuCustomRules", "vantuvpn/split tunnel direct=cn through=DE custom lan");
    row(proxy, "ProxyGFWList", "proxy/split direct direct=CN through=de gfw lan");
}

void ModePageTest::requests()
{
    QFETCH(const ModeInfo, mode);
    QFETCH(const QString, button);
    Fixture f;
    f.show(mode);
    f.click(button);
    QTEST(f.requested(), "expected");
    QVERIFY(f.modes.isEmpty());
}

/// Neither a click nor a refusal leaves a mark; only the store does.
void ModePageTest::showsOnlyWhatIs()
{
    Fixture f;
    f.show(splitOf(u"vantuvpn"_s, u"tunnel"_s));
    for (const QString &name : {u"VantuCustomRules"_s, u"VantuGFWList"_s, u"VantuDefaultDirect"_s,
                                u"VantuGlobal"_s, u"Auto"_s}) {
        f.click(name);
        QVERIFY2(!f.isOn(name) && f.isOn(u"VantuVPN"_s), qPrintable(name));
    }
    QCOMPARE(f.modes.size(), 5);
    f.show(modeOf(u"proxy"_s, u"global"_s));
    QVERIFY(!f.isOn(u"VantuVPN"_s) && !f.find(u"VantuGlobal"_s).isVisible());
    QVERIFY(f.isOn(u"VantuProxy"_s) && f.find(u"ProxyGlobal"_s).isVisible());
    QVERIFY(!f.find<QWidget>(u"ProxySplitOptions"_s).isVisible());
    f.show({});
    QVERIFY(!f.isOn(u"VantuProxy"_s) && !f.find(u"ProxyGlobal"_s).isVisible());
}

void ModePageTest::killSwitchBlocksTheProxy()
{
    Fixture f;
    f.show(splitOf(u"proxy"_s, u"proxy"_s)); // As when both were set from elsewhere.
    f.killSwitch(u"on"_s);
    QSignalSpy settings(f.page, &ModePage::openKillSwitchSettingsRequested);
    f.click(u"ProxyGFWList"_s);
    press(u"VantuConfirmDialogReject"_s);
    f.show(modeOf(u"auto"_s));
    f.click(u"VantuProxy"_s);
    f.page->closeDialogs();
    QVERIFY(!openDialog<ConfirmDialog>() && settings.isEmpty());
    f.click(u"VantuProxy"_s);
    press(u"VantuConfirmDialogAccept"_s);
    QCOMPARE(settings.size(), 1);
    QCOMPARE(f.modes.size(), 0);
}

void ModePageTest::regionChoicesByName()
{
    QStringList all;
    const SplitProfile profile =
        splitOf({}, u"tunnel"_s, {u"cn"_s, u"Cn"_s, u""_s, u"zz"_s}).splitProfile;
    for (const RegionChoice &choice : regionChoices(profile, RegionNames(catalogue()))) {
        all << choice.name + u' ' + choice.code;
    }
    QVERIFY(all.size() > 240);
    const QStringList some = all.filter(
        QRegularExpression(u" (eu|cn|de|jp|ni|zz)$"_s, QRegularExpression::CaseInsensitiveOption));
    QCOMPARE(some.join(u", "), u"China cn, Germany DE, Nicaragua NI, Nippon JP, zz zz"_s);
}

void ModePageTest::appliesRegions()
{
    Fixture f;
    f.show(splitOf(u"vantuvpn"_s, u"tunnel"_s, {u"cn"_s}, {u"DE"_s}));
    f.click(u"VantuRegions"_s);
    auto *picker = openDialog<RegionPickerDialog>();
    // What else was changed meanwhile stays changed.
    f.show(splitOf(u"vantuvpn"_s, u"tunnel"_s, {u"cn"_s}, {u"DE"_s}, true));
    Q_EMIT picker->applied({u"CN"_s, u"IR"_s});
    QCOMPARE(f.requested(), u"vantuvpn/split tunnel direct=cn,IR through=DE gfw lan"_s);
    // Under the other default the same regions would mean the reverse.
    f.show(splitOf(u"vantuvpn"_s, u"direct"_s, {u"cn"_s}, {u"DE"_s}));
    QTRY_VERIFY(!openDialog<RegionPickerDialog>());
    QCOMPARE(f.find(u"VantuRegions"_s).accessibleName(),
             u"Regions use Tunnel: 1 region selected"_s);
}

void ModePageTest::fetchesRulesWhenNeeded()
{
    Fixture f;
    f.show(modeOf(u"vantuvpn"_s, u"global"_s));
    f.show(splitOf(u"vantuvpn"_s, u"tunnel"_s));
    f.show(splitOf(u"vantuvpn"_s, u"direct"_s));
    QCOMPARE(f.fetches.size(), 1);
    f.page->setDaemonAvailable(false, {});
    f.page->showOperationError(u"broken"_s);
    f.page->setDaemonAvailable(true, {}); // Perhaps another one.
    QVERIFY(f.text(u"Status"_s).isEmpty());
    f.reopen();
    QCOMPARE(f.fetches.size(), 3);
    f.page->setSplitRulesLoading(true);
    f.reopen();
    f.page->setSplitRulesLoading(false);
    f.holdRules({});
    f.reopen();
    QCOMPARE(f.fetches.size(), 3);
}

void ModePageTest::feedsTheEditor()
{
    Fixture f;
    f.show(splitOf(u"vantuvpn"_s, u"tunnel"_s));
    auto &count = f.find<QLabel>(u"VantuCustomRulesSummary"_s);
    QCOMPARE(count.text(), u"Rules unavailable"_s);
    f.page->showOperationError(u"broken"_s);
    f.click(u"VantuCustomRulesEdit"_s);
    QCOMPARE(f.fetches.size(), 2);
    QVERIFY(f.text(u"Status"_s).isEmpty());
    auto *text = openDialog<SplitRulesEditorDialog>()->findChild<QPlainTextEdit *>();
    f.page->showSplitRulesError(u" broken "_s);
    QCOMPARE(count.toolTip(), u"broken"_s);
    QVERIFY2(text->isReadOnly(), "what was never received must not be replaced");
    f.page->setSplitRulesLoading(true);
    f.holdRules({u"a.example"_s});
    QCOMPARE(text->toPlainText(), u"a.example"_s);
    QCOMPARE(count.text() + count.toolTip(), u"Tunnel 0 · Direct 1 · Block 0"_s);
}

/// Walking changes nothing, the space bar does, and nobody is lost while it happens.
void ModePageTest::keyboard()
{
    Fixture f;
    ModeInfo mode = modeOf(u"auto"_s);
    mode.lastVantuVPNPolicy = u"split"_s;
    f.show(mode);
    f.killSwitch(u"lockdown"_s); // Forbids the proxy and to split.
    f.find(u"Auto"_s).setFocus();
    QVERIFY(f.focusedAfter(Qt::Key_Down, u"WireGuard"_s));
    QVERIFY(f.focusedAfter(Qt::Key_Down, u"VantuVPN"_s));
    QVERIFY(f.focusedAfter(Qt::Key_Down, u"VantuVPN"_s));
    QCOMPARE(f.modes.size(), 0);
    QVERIFY(f.focusedAfter(Qt::Key_Space, u"VantuVPN"_s));
    QCOMPARE(f.requested(), u"vantuvpn/global"_s);
    f.page->setChangeInFlight(false, true);
    QVERIFY(qobject_cast<QScrollArea *>(f.window.focusWidget()));
    f.page->setChangeInFlight(false, false);
    QVERIFY(f.focusedAfter(Qt::Key_Up, u"WireGuard"_s));
}

QTEST_MAIN(ModePageTest)
#include "tst_modepage.moc"
