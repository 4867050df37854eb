#include "SettingsPageFixture.h"

#include "TextTable.h"
#include "VendorHost.h"

#include <QClipboard>
#include <QScrollArea>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using texttable::columns;
using texttable::row;

class SettingsPageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<SettingsPageFixture>(); }
    void cleanup() { m_ui.reset(); }
    void togglesShowWhatIs();
    void killSwitchTexts_data();
    void killSwitchTexts();
    void killSwitchChoices_data();
    void killSwitchChoices();
    void killSwitchAsksAgain();
    void enabling_data();
    void enabling();
    void busyKeepsPlaceAndFocus();
    void showsKillSwitch();
    void listenAddress();
    void typedTextStays();
    void splitDNSTexts_data();
    void splitDNSTexts();
    void apiURL();
    void factsAndLinks();

private:
    std::unique_ptr<SettingsPageFixture> m_ui;
};

void SettingsPageTest::togglesShowWhatIs()
{
    QSignalSpy showWindow(m_ui->page, &SettingsPage::showWindowOnLaunchRequested);
    const auto *toggle = m_ui->find<QAbstractButton>("VantuSettingsAutoConnectToggle");
    m_ui->click("VantuSettingsAutoConnectToggle");
    QVERIFY(!toggle->isChecked()); // The daemon hasn't agreed yet.
    for (const auto &[word, on] :
         {std::pair{u"on"_s, true}, {u"off"_s, false}, {u" True"_s, true}, {u"else"_s, false}}) {
        RuntimeInfo runtime;
        runtime.autoConnect = word;
        m_ui->state.setRuntime(runtime);
        QCOMPARE(toggle->isChecked(), on);
    }

    // A preference that is taken at once shows at once, and one that isn't never.
    GuiPreferences &preferences = m_ui->preferences;
    const bool launches = preferences.launchAtLogin();
    const bool shows = preferences.showOnLaunch();
    connect(m_ui->page, &SettingsPage::launchAtLoginRequested, this,
            [&](bool on) { preferences.setLaunchAtLogin(on); });
    m_ui->click("VantuSettingsLaunchAtLoginToggle");
    m_ui->click("VantuSettingsShowWindowOnLaunchToggle");
    QCOMPARE(preferences.launchAtLogin(), !launches);
    QCOMPARE(m_ui->find<QAbstractButton>("VantuSettingsLaunchAtLoginToggle")->isChecked(),
             !launches);
    QCOMPARE(showWindow.value(0), QVariantList{!shows});
    QCOMPARE(m_ui->find<QAbstractButton>("VantuSettingsShowWindowOnLaunchToggle")->isChecked(),
             shows);
}

void SettingsPageTest::killSwitchTexts_data()
{
    columns({"given", "summary", "exceptions"}); // Kill switch and guard, mode.
    constexpr auto kOn = "On. Vantu Proxy is unavailable while Kill Switch is on.";
    row(" | auto//direct", "unavailable", "");
    row("off | proxy/split/direct", "Off. Not available in Vantu Proxy.", "");
    row("on | auto//protected", kOn, "");
    row("on | vantuvpn/split/protected", kOn, "Split Link");
    row("on | vantuvpn/split/direct", kOn, "LAN Split Link");
    row("lockdown/active | vantuvpn/global/direct",
        "Lockdown. Vantu Proxy is unavailable while Kill Switch is on.", "Lockdown");
    row("lockdown/failed | auto//",
        "Lockdown unavailable. Vantu Proxy is unavailable while Kill Switch is on.", "Lockdown");
}

void SettingsPageTest::killSwitchTexts()
{
    QFETCH(const QString, given);
    QFETCH(const QString, summary);
    m_ui->setMode(given.section(u" | "_s, 1));
    m_ui->setKillSwitch(given.section(u" | "_s, 0, 0));
    QCOMPARE(m_ui->text("VantuSettingsKillSwitchSummary"), u"Kill Switch: "_s + summary);
    QStringList shown;
    for (const auto &[word, name] : {std::pair{u"Lockdown"_s, "VantuSettingsKillSwitchExceptions"},
                                     {u"LAN"_s, "VantuSettingsKillSwitchLANExceptionText"},
                                     {u"Split"_s, "VantuSettingsKillSwitchSplitExceptionText"},
                                     {u"Link"_s, "VantuSettingsRoutingExceptionLink"}}) {
        shown += m_ui->find(name)->isVisible() ? word : QString();
    }
    shown.removeAll(QString());
    QTEST(shown.join(u' '), "exceptions");
}

void SettingsPageTest::killSwitchChoices_data()
{
    columns({"given", "answer", "sent"}); // Current state, mode, choice; the button, if asked.
    row("Off | auto//protected | On", "", "enabled true");
    row("On | auto//protected | On", "", "");
    row("Off | auto//protected | Lockdown", "", "mode lockdown");
    row("On | vantuvpn/split/protected | Lockdown", "Accept", "mode lockdown");
    row("On | vantuvpn/gfwlist/protected | Lockdown", "Reject", "");
    row("Off | auto//direct | Lockdown", "Accept", "mode lockdown");
    row("Off | proxy/split/direct | Lockdown", "", ""); // Refused.
    row("Lockdown | auto//protected | Lockdown", "", "");
    row("Lockdown | auto//protected | On", "", "mode on");
    row("Lockdown | auto//protected | Off", "Accept", "enabled false");
    row("Off | proxy/global/direct | On", "Accept", "auto");
    row("Off | proxy/global/direct | On ", "Alternate", "choose");
    row("Off | proxy/global/direct | On  ", "Reject", "");
    row("On | auto//protected | Off ", "Reject", "");
}

void SettingsPageTest::killSwitchChoices()
{
    QFETCH(const QString, given);
    QFETCH(const QString, answer);
    const QString current = given.section(u" | "_s, 0, 0);
    const QString mode = given.section(u" | "_s, 1, 1);
    const QString choice = given.section(u" | "_s, 2).trimmed();
    m_ui->setMode(mode);
    m_ui->setKillSwitch(current.toLower());
    QStringList sent;
    connect(m_ui->page, &SettingsPage::setKillSwitchEnabledRequested, this,
            [&](bool on) { sent += on ? u"enabled true"_s : u"enabled false"_s; });
    connect(m_ui->page, &SettingsPage::setKillSwitchModeRequested, this,
            [&](const QString &word) { sent += u"mode "_s + word; });
    connect(m_ui->page, &SettingsPage::switchToAutoAndEnableKillSwitchRequested, this,
            [&] { sent += u"auto"_s; });
    connect(m_ui->page, &SettingsPage::chooseModeForKillSwitchRequested, this,
            [&] { sent += u"choose"_s; });

    m_ui->click(qPrintable(u"VantuSettingsKillSwitch"_s + choice));
    QCOMPARE(QApplication::activeModalWidget() == nullptr, answer.isEmpty());
    if (!answer.isEmpty()) {
        QVERIFY(sent.isEmpty());
        QVERIFY(SettingsPageFixture::answer(qPrintable(u"VantuConfirmDialog"_s + answer)));
    }
    QTEST(sent.join(u' '), "sent");
    const bool refused = mode.startsWith(u"proxy"_s) && choice == "Lockdown"_L1;
    QCOMPARE(m_ui->text("VantuSettingsMessage"),
             refused ? u"Choose a VPN mode before enabling Lockdown."_s : QString());
    QVERIFY(
        m_ui->find<QPushButton>(qPrintable(u"VantuSettingsKillSwitch"_s + current))->isChecked());
}

/// What happens while a question is open counts, not what was when it came up.
void SettingsPageTest::killSwitchAsksAgain()
{
    QSignalSpy enabled(m_ui->page, &SettingsPage::setKillSwitchEnabledRequested);
    QSignalSpy mode(m_ui->page, &SettingsPage::setKillSwitchModeRequested);
    m_ui->setMode(u"vantuvpn/split/protected"_s);
    m_ui->setKillSwitch(u"on"_s);
    m_ui->click("VantuSettingsKillSwitchOff");
    m_ui->setKillSwitch(u"off"_s);
    QVERIFY(SettingsPageFixture::answer("VantuConfirmDialogAccept"));
    QCOMPARE(enabled.size(), 0);
    m_ui->click("VantuSettingsKillSwitchLockdown");
    m_ui->setMode(u"vantuvpn/global/protected"_s);
    QVERIFY(SettingsPageFixture::answer("VantuConfirmDialogAccept"));
    QCOMPARE(mode.size(), 1);
}

void SettingsPageTest::enabling_data()
{
    QTest::addColumn<QString>("disabled");
    const auto busy = u"KillSwitchOn ProxyListen ProxyListenApply SplitDNSPolicyDualAuto "
                      "SplitDNSLocal SplitDNSClear SplitDNSReset APIURLApply Repair Language"_s;
    QTest::newRow("free") << u""_s;
    QTest::newRow("busy") << busy;
    QTest::newRow("away") << busy + u" SystemProxyOn CheckUpdate"_s;
    QTest::newRow("unknown") << u"KillSwitchOn SystemProxyOn SplitDNSPolicyDualAuto SplitDNSLocal "
                                "SplitDNSClear SplitDNSReset"_s;
    QTest::newRow("checking") << u"CheckUpdate"_s;
}

void SettingsPageTest::enabling()
{
    const QLatin1StringView situation(QTest::currentDataTag());
    if (situation != "unknown"_L1) {
        m_ui->tellAll();
    }
    m_ui->page->setRequestInFlight(situation == "busy"_L1);
    m_ui->page->setUpdateCheckInFlight(situation == "checking"_L1);
    m_ui->page->setDaemonAvailable(situation != "away"_L1, u"The service is away"_s);
    QFETCH(const QString, disabled);
    const QStringList off = disabled.split(u' ', Qt::SkipEmptyParts);
    const QStringList always{u"OpenLogs"_s, u"FAQ"_s, u"AutoConnectToggle"_s,
                             u"LaunchAtLoginToggle"_s};
    const QStringList all = u"KillSwitchOn ProxyListen ProxyListenApply SplitDNSPolicyDualAuto "
                            "SplitDNSLocal SplitDNSClear SplitDNSReset APIURLApply Repair Language "
                            "SystemProxyOn CheckUpdate"_s.split(u' ');
    for (const QString &name : all + always) {
        const auto *widget = m_ui->find(qPrintable(u"VantuSettings"_s + name));
        QVERIFY2(widget && widget->isEnabled() != off.contains(name), qPrintable(name));
        // A segment's tool tip is that of the row of them.
        const QString why = widget->toolTip() + widget->parentWidget()->toolTip();
        QVERIFY2(widget->isEnabled() || !why.isEmpty(), qPrintable(name));
    }
    QCOMPARE(m_ui->find<QPushButton>("VantuSettingsCheckUpdate")->text(),
             situation == "checking"_L1 ? u"Working..."_s : u"Check for Updates"_s);
    QCOMPARE(m_ui->text("VantuSettingsMessage"),
             situation == "away"_L1 ? u"The service is away"_s : QString());
}

/// Neither a change on its way nor its failure moves what the user is at.
void SettingsPageTest::busyKeepsPlaceAndFocus()
{
    m_ui->setListeners(u"127.0.0.1:1"_s);
    QWidget *apply = m_ui->find("VantuSettingsProxyListenApply");
    auto *scroll = m_ui->find<QScrollArea>("VantuSettingsScrollArea");
    apply->setFocus();
    scroll->ensureWidgetVisible(apply);
    const QPoint place = apply->mapTo(&m_ui->window, QPoint());
    m_ui->page->setRequestInFlight(true);
    QVERIFY(!apply->isEnabled());
    m_ui->page->showOperationError(u"refused"_s);
    m_ui->page->setRequestInFlight(false);
    QCOMPARE(m_ui->window.focusWidget(), apply);
    m_ui->page->setDaemonAvailable(false, u"away"_s);
    QCOMPARE(m_ui->window.focusWidget(), scroll); // And on no other button.
    m_ui->page->setDaemonAvailable(true, {});
    QCOMPARE(m_ui->window.focusWidget(), apply);
    QCOMPARE(apply->mapTo(&m_ui->window, QPoint()), place);
    m_ui->page->setRequestInFlight(true);
    QCOMPARE(apply->mapTo(&m_ui->window, QPoint()), place);
    m_ui->find("VantuAppearanceDark")->setFocus(); // The user goes elsewhere.
    m_ui->page->setRequestInFlight(false);
    QCOMPARE(m_ui->window.focusWidget(), m_ui->find("VantuAppearanceDark"));
}

void SettingsPageTest::showsKillSwitch()
{
    m_ui->setKillSwitch(u"on"_s);
    m_ui->window.hide();
    m_ui->window.resize(656, 320);
    m_ui->window.show();
    m_ui->page->showKillSwitch();
    QCOMPARE(m_ui->window.focusWidget(), m_ui->find("VantuSettingsKillSwitchOn"));
    const auto *scroll = m_ui->find<QScrollArea>("VantuSettingsScrollArea");
    const QWidget *section = m_ui->find("VantuSettingsSafetySection")->parentWidget();
    QTRY_COMPARE(section->mapTo(scroll->viewport(), QPoint()).y(), 0);
}

void SettingsPageTest::listenAddress()
{
    QSignalSpy requested(m_ui->page, &SettingsPage::setProxyListenersRequested);
    auto *edit = m_ui->find<QLineEdit>("VantuSettingsProxyListen");
    m_ui->setListeners(u"127.0.0.1:1"_s);
    QCOMPARE(edit->text(), u"127.0.0.1:1"_s);
    m_ui->click("VantuSettingsProxyListenApply"); // Nothing new.
    QCOMPARE(requested.size(), 0);
    m_ui->type("VantuSettingsProxyListen", u"  "_s);
    m_ui->click("VantuSettingsProxyListenApply");
    QCOMPARE(m_ui->text("VantuSettingsMessage"), u"Enter proxy listen address."_s);
    QVERIFY(m_ui->find("VantuSettingsMessage")->isVisible());
    QCOMPARE(requested.size(), 0);

    m_ui->type("VantuSettingsProxyListen", u" nonsense "_s);
    QVERIFY(edit->accessibleDescription().contains(u"port"_s));
    QTest::keyClick(edit, Qt::Key_Return); // The daemon has the last word.
    QCOMPARE(requested.takeFirst(), (QVariantList{u"nonsense"_s, u"nonsense"_s}));
    QVERIFY(!m_ui->find("VantuSettingsMessage")->isVisible());

    m_ui->setListeners(u"127.0.0.1:1"_s, u"127.0.0.1:2"_s);
    m_ui->type("VantuSettingsProxyListen", u"127.0.0.1:1"_s);
    m_ui->click("VantuSettingsProxyListenApply"); // One of the two differs.
    QCOMPARE(requested.size(), 1);
}

void SettingsPageTest::typedTextStays()
{
    auto *edit = m_ui->find<QLineEdit>("VantuSettingsProxyListen");
    m_ui->setListeners(u"127.0.0.1:1"_s);
    m_ui->type("VantuSettingsProxyListen", u"localhost:5"_s);
    m_ui->setListeners(u"127.0.0.1:2"_s); // A poll.
    QCOMPARE(edit->text(), u"localhost:5"_s);

    QTest::keyClick(edit, Qt::Key_Return);
    m_ui->page->setRequestInFlight(true);
    m_ui->page->showOperationError(u" refused "_s);
    m_ui->page->setRequestInFlight(false);
    QCOMPARE(m_ui->text("VantuSettingsMessage"), u"refused"_s);
    m_ui->setListeners(u"127.0.0.1:3"_s);
    QCOMPARE(edit->text(), u"localhost:5"_s);

    QTest::keyClick(edit, Qt::Key_Return);
    m_ui->setListeners(u"127.0.0.1:5"_s); // Taken, as the daemon spells it.
    QCOMPARE(edit->text(), u"127.0.0.1:5"_s);
    m_ui->setListeners(u"127.0.0.1:6"_s);
    QCOMPARE(edit->text(), u"127.0.0.1:6"_s);
}

void SettingsPageTest::splitDNSTexts_data()
{
    columns({"info", "expected"}); // Policies, whether of China; servers, their source.
    row("|||||", "Configured policy: unavailable|Split DNS: unavailable|"
                 "Configured local DNS: unavailable|Effective local DNS: none");
    row("|dual-auto|1||5.5.5.5,6.6.6.6|cn",
        "Configured policy: default|Effective policy: Dual Auto (CN default)|"
        "Configured local DNS: default|Effective local DNS: 5.5.5.5, 6.6.6.6 (cn)");
    row("dual-explicit|new||5.5.5.5||system",
        "Configured policy: Dual Explicit|Effective policy: new|"
        "Configured local DNS: 5.5.5.5|Effective local DNS: none (system)");
}

void SettingsPageTest::splitDNSTexts()
{
    QFETCH(const QString, info);
    const QStringList parts = info.split(u'|');
    SplitDNSInfo dns;
    dns.known = info != "|||||"_L1;
    dns.configPolicy = parts.at(0);
    dns.effectivePolicy = parts.at(1);
    dns.autoCNDefault = !parts.at(2).isEmpty();
    dns.configLocalDirectDNS = parts.at(3).split(u',', Qt::SkipEmptyParts);
    dns.effectiveLocalDirectDNS = parts.at(4).split(u',', Qt::SkipEmptyParts);
    dns.localDNSSource = parts.at(5);
    m_ui->state.setSplitDNS(dns);
    QStringList shown;
    for (const char *name :
         {"ConfiguredPolicy", "EffectivePolicy", "ConfiguredLocal", "EffectiveLocal"}) {
        shown += m_ui->text(qPrintable(u"VantuSettingsSplitDNS"_s + QLatin1StringView(name)));
    }
    QTEST(shown.join(u'|'), "expected");
}

void SettingsPageTest::apiURL()
{
    QSignalSpy set(m_ui->page, &SettingsPage::setAPIURLRequested);
    QSignalSpy reset(m_ui->page, &SettingsPage::resetAPIURLRequested);
    auto *edit = m_ui->find<QLineEdit>("VantuSettingsAPIURL");
    m_ui->state.setAPIURLConfig({u"https://a.example/v1"_s, true});
    m_ui->type("VantuSettingsAPIURL", u"a.example/v1"_s); // The same, put another way.
    m_ui->click("VantuSettingsAPIURLApply");
    QCOMPARE(edit->text(), u"https://a.example/v1"_s);
    QCOMPARE(set.size(), 0);
    m_ui->type("VantuSettingsAPIURL", u"ftp://a"_s);
    QVERIFY(edit->accessibleDescription().contains(u"https://"_s));
    QTest::keyClick(edit, Qt::Key_Return); // The daemon has the last word.
    QCOMPARE(set.takeFirst(), QVariantList{u"ftp://a"_s});
    edit->clear(); // No address is the default one.
    m_ui->click("VantuSettingsAPIURLApply");
    QCOMPARE(reset.size(), 1);
}

void SettingsPageTest::factsAndLinks()
{
    RuntimeInfo runtime;
    runtime.proxyListeners = {{{}, u"socks5"_s, u"127.0.0.1:1"_s}, {{}, u"http"_s, u"[::]:2"_s}};
    runtime.proxyAccessURLs = {{{}, {}, u"http://10.0.0.2:2"_s}, {{}, {}, u"http://[fd::1]:2"_s}};
    runtime.pacStatus.state = u"ready"_s;
    m_ui->state.setRuntime(runtime);
    QCOMPARE(m_ui->facts("VantuSettingsProxyListeners"),
             u"SOCKS5: 127.0.0.1:1\nHTTP: [::]:2\nPAC: http://127.0.0.1:2/pac"_s);
    QCOMPARE(m_ui->facts("VantuSettingsProxyAccess"),
             u"LAN access:\nhttp://10.0.0.2:2\nhttp://[fd::1]:2"_s);
    const auto copies = m_ui->find("VantuSettingsProxyAccess")->findChildren<QAbstractButton *>();
    QVERIFY(!copies.at(0)->isVisible());
    copies.at(2)->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"http://[fd::1]:2"_s);

    UpdateInfo update;
    update.known = true;
    m_ui->state.setUpdate(update);
    m_ui->state.setVersion({true, false, u"1.1"_s, u"2"_s});
    QVERIFY(m_ui->facts("VantuSettingsVersionSummary")
                .endsWith(u"Up to date\nVantu GUI and daemon are incompatible"_s));

    QSignalSpy link(m_ui->page, &SettingsPage::openExternalURLRequested);
    m_ui->click("VantuSettingsOpenDownloadPage");
    m_ui->click("VantuSettingsPrivacy");
    QCOMPARE(link.value(0).value(0).toUrl().toString(),
             u"https://%1/download/linux"_s.arg(control::kVendorHost));
    QCOMPARE(link.value(1).value(0).toUrl().path(), u"/privacy-policy"_s);
}

QTEST_MAIN(SettingsPageTest)
#include "tst_settingspage.moc"
