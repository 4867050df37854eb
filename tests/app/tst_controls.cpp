#include "AppState.h"
#include "Person.h"
#include "WindowController.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>

namespace {

using Act = bool (*)(const Person &);

constexpr auto kRefusal = "The daemon says no";
/// A mode in which everything of the settings page can be chosen without a question.
const QByteArray kProtected =
    R"({"transport":"wireguard","system_proxy":"off","local_network":"protected"})";

/// Types into a field and presses the button that sends it.
bool fill(const Person &p, const QString &field, const char *text, const QString &button)
{
    auto *edit = p.see<QLineEdit>(field);
    if (!edit || !edit->isEnabled()) {
        return false;
    }
    const bool there = Person::focus(edit);
    edit->selectAll();
    Person::type(text);
    return there && p.press(button);
}

bool answer(const Person &p, const QString &button)
{
    return QTest::qWaitFor([&] { return p.see(button) != nullptr; }) && p.press(button);
}

bool editRules(const Person &p)
{
    if (!answer(p, u"VantuModeVantuCustomRulesEdit"_s) || !answer(p, u"VantuSplitRulesBlock"_s)) {
        return false;
    }
    auto *editor = p.see<QPlainTextEdit>(u"VantuSplitRulesEditorText"_s);
    if (!editor || !QTest::qWaitFor([&] { return !editor->isReadOnly(); })) {
        return false;
    }
    const bool there = Person::focus(editor);
    Person::type("keyword:ads");
    return there && p.press(u"VantuSplitRulesApply"_s);
}

} // namespace

Q_DECLARE_METATYPE(Act)

/// Every change that a person can ask for in the window: from the control to the bytes
/// that the daemon gets, and back to what stands on the page.
class TestControls final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void change_data();
    void change();
    void sessionEndsAmidEdits();
    void repair();
    void openLogs();
    void renewal();
    void daemonThatComesBack();
    void editorKeepsText();
    void updateDialog();
    void requiredUpdate();

private:
    static void settingsRows();
    static void modeRows();
    static void accountRows();
};

void TestControls::change_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QByteArray>("route");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("message");
    settingsRows();
    modeRows();
    accountRows();
}

void TestControls::settingsRows()
{
    const auto row = [](const char *tag, Act act, QByteArray route, QByteArray body,
                        QByteArray reply, const QString &shown) {
        QTest::newRow(tag) << 4 << kProtected << act << route << body << reply << shown
                           << u"VantuSettingsMessage"_s;
    };
    row(
        "API URL",
        [](const Person &p) {
            return fill(p, u"VantuSettingsAPIURL"_s, "api2.example.org",
                        u"VantuSettingsAPIURLApply"_s);
        },
        "POST /v1/config/api-url", R"({"api_url":"https://api2.example.org"})",
        R"({"api_url":"https://api2.example.org"})", u"API URL: https://api2.example.org"_s);
    row(
        "reset API URL", [](const Person &p) { return p.press(u"VantuSettingsAPIURLReset"_s); },
        "DELETE /v1/config/api-url", "", R"({"api_url":""})", u"API URL: default"_s);
    row(
        "language",
        [](const Person &p) {
            if (!p.press(u"VantuSettingsLanguage"_s) ||
                !QTest::qWaitFor([&] { return p.see(u"VantuLanguagePickerSearch"_s); })) {
                return false;
            }
            if (!Person::focus(p.see(u"VantuLanguagePickerSearch"_s))) {
                return false;
            }
            Person::type("Deu");
            Person::key(Qt::Key_Return);
            return true;
        },
        "POST /v1/config/language", R"({"language":"de","source":"explicit"})",
        R"({"source":"explicit","language":"de","effective_language":"de"})",
        u"Could not restart Vantu. Please restart the app manually."_s);
    row(
        "kill switch on", [](const Person &p) { return p.press(u"VantuSettingsKillSwitchOn"_s); },
        "POST /v1/kill-switch", R"({"enabled":true})", R"({"enabled":true,"mode":"on"})",
        u"Kill Switch: On. Vantu Proxy is unavailable while Kill Switch is on."_s);
    row(
        "lockdown", [](const Person &p) { return p.press(u"VantuSettingsKillSwitchLockdown"_s); },
        "POST /v1/kill-switch/mode", R"({"mode":"lockdown"})",
        R"({"enabled":true,"mode":"lockdown","guard":"active"})",
        u"Kill Switch: Lockdown. Vantu Proxy is unavailable while Kill Switch is on."_s);
    row(
        "system proxy", [](const Person &p) { return p.press(u"VantuSettingsSystemProxyLock"_s); },
        "POST /v1/proxy/system-proxy", R"({"value":"lock"})",
        R"({"transport":"wireguard","system_proxy":"lock"})", u"System Proxy: Lock"_s);
    row(
        "listen address",
        [](const Person &p) {
            return fill(p, u"VantuSettingsProxyListen"_s, "0.0.0.0:1081",
                        u"VantuSettingsProxyListenApply"_s);
        },
        "POST /v1/proxy/listen",
        R"({"proxy_listeners":[{"address":"0.0.0.0:1081","name":"local-socks","scheme":"socks5"},)"
        R"({"address":"0.0.0.0:1081","name":"local-http","scheme":"http"}]})",
        R"({"applies_on_reconnect":true,"proxy_listeners":[]})",
        u"Proxy listen address saved for reconnect"_s);
    const QByteArray dns = R"({"config":{"policy":"dual-auto","local_direct_dns":["1.1.1.1"]}})";
    row(
        "local DNS",
        [](const Person &p) {
            return fill(p, u"VantuSettingsSplitDNSLocal"_s, " 1.1.1.1,, 8.8.8.8 ",
                        u"VantuSettingsSplitDNSApply"_s);
        },
        "POST /v1/split/dns/local", R"({"local_direct_dns":["1.1.1.1","8.8.8.8"]})", dns,
        u"Configured local DNS: 1.1.1.1"_s);
    row(
        "DNS policy",
        [](const Person &p) { return p.press(u"VantuSettingsSplitDNSPolicyDualAuto"_s); },
        "POST /v1/split/dns/policy", R"({"policy":"dual-auto"})", dns,
        u"Configured policy: Dual Auto"_s);
    row(
        "clear local DNS", [](const Person &p) { return p.press(u"VantuSettingsSplitDNSClear"_s); },
        "DELETE /v1/split/dns/local", "", R"({"config":{}})", u"Configured local DNS: default"_s);
    row(
        "reset DNS", [](const Person &p) { return p.press(u"VantuSettingsSplitDNSReset"_s); },
        "POST /v1/split/dns/reset", "{}", R"({"config":{}})", u"Configured policy: default"_s);
    row("auto-connect",
        [](const Person &p) { return p.press(u"VantuSettingsAutoConnectToggle"_s); },
        "POST /v1/config/auto-connect", R"({"auto_connect":"on"})", R"({"auto_connect":"on"})", {});
}

void TestControls::modeRows()
{
    const auto row = [](const char *tag, QByteArray mode, Act act, QByteArray route,
                        QByteArray body, QByteArray reply, const QString &shown) {
        QTest::newRow(tag) << 3 << mode << act << route << body << reply << shown
                           << u"VantuModeStatus"_s;
    };
    row(
        "mode", R"({"transport":"auto"})",
        [](const Person &p) { return p.press(u"VantuModeWireGuard"_s); }, "POST /v1/mode",
        R"({"transport":"wireguard"})", R"({"transport":"wireguard"})",
        u"Standalone VPN transport."_s);
    const QByteArray split = R"({"transport":"vantuvpn","policy":"split",
        "split_profile":{"default_route":"tunnel","direct_regions":["cn"]}})";
    row(
        "GFWList", split, [](const Person &p) { return p.press(u"VantuModeVantuGFWList"_s); },
        "POST /v1/mode",
        R"({"policy":"split","split_profile":{"default_route":"tunnel","direct_regions":["cn"],)"
        R"("gfwlist":true},"transport":"vantuvpn"})",
        R"({"transport":"vantuvpn","policy":"split",
        "split_profile":{"default_route":"tunnel","direct_regions":["cn"],"gfwlist":true}})",
        u"Tunnel 0 \u00b7 Direct 0 \u00b7 Block 0"_s);
    row("local network", R"({"transport":"auto","local_network":"direct"})",
        [](const Person &p) { return p.press(u"VantuModeLocalNetworkProtected"_s); },
        "POST /v1/local-network", R"({"value":"protected"})",
        R"({"transport":"auto","local_network":"protected"})", {});
    row("rules", split, &editRules, "POST /v1/split/rules/import",
        R"({"content":"keyword:ads","kind":"block"})",
        R"({"kind":"block","changed":true,"count":1})", u"Custom split rules updated (1 rule)"_s);
    row(
        "read rules", split,
        [](const Person &p) { return p.press(u"VantuModeVantuCustomRulesEdit"_s); },
        "GET /v1/split/rules", "", R"({"rules":{"direct":{"items":["a.example"]}}})",
        u"Tunnel 0 \u00b7 Direct 1 \u00b7 Block 0"_s);
}

void TestControls::accountRows()
{
    QTest::newRow("sign in")
        << 5 << QByteArray() << Act([](const Person &p) {
               auto *name = p.see<QLineEdit>(u"VantuAccountUsername"_s);
               if (!name || !Person::focus(name)) {
                   return false;
               }
               name->selectAll();
               Person::type(" me ");
               Person::key(Qt::Key_Tab);
               Person::type(" se cret ");
               Person::key(Qt::Key_Return);
               return true;
           })
        << QByteArray("POST /v1/session/login")
        << QByteArray(R"({"password":" se cret ","remember_me":true,"username":"me"})")
        << status("disconnected") << u"Signed in"_s << u"VantuAccountMessage"_s;
    QTest::newRow("sign out") << 5 << QByteArray(R"({"transport":"auto"})")
                              << Act([](const Person &p) {
                                     return p.press(u"VantuAccountLogout"_s);
                                 })
                              << QByteArray("POST /v1/session/logout") << QByteArray("{}")
                              << QByteArray(R"({"tunnel_state":"off","auth_state":"none"})")
                              << u"Sign in"_s << u"VantuAccountMessage"_s;
}

void TestControls::change()
{
    QFETCH(int, page);
    QFETCH(QByteArray, mode);
    QFETCH(Act, act);
    QFETCH(QByteArray, route);
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, reply);
    QFETCH(QString, shown);
    QFETCH(QString, message);
    Person p;
    p.desk.answer("GET /v1/split/dns",
                  R"({"config":{"policy":"tunnel-only","local_direct_dns":["9.9.9.9"]},
        "effective":{"policy":"tunnel-only"}})");
    p.desk.answer("GET /v1/split/rules", R"({"rules":{}})");
    // Without a mode nobody is signed in.
    const QByteArray before =
        mode.isEmpty() ? QByteArray(R"({"tunnel_state":"off","auth_state":"none"})")
                       : R"({"tunnel_state":"off","auth_state":"logged_in","mode":)" + mode + '}';
    QVERIFY(p.start() && p.desk.poll(before));
    Person::ctrl(Qt::Key_0 + page);
    QVERIFY(QTest::qWaitFor([&] { return p.desk.isIdle(); }) && p.desk.poll());

    p.desk.daemon.clearRequests();
    p.desk.answer(route, QByteArray(R"({"error":" )") + kRefusal + R"( "})", 500);
    QVERIFY(QTest::qWaitFor([&] { return act(p); }));
    QTRY_COMPARE(p.desk.count(route), 1);
    QCOMPARE(p.desk.body(route), body);
    QTRY_COMPARE(p.desk.notice().section(u'\n', -1), QLatin1StringView(kRefusal));
    QVERIFY2(p.reads(QLatin1StringView(kRefusal)), qPrintable(message));
    if (QWidget *modal = QApplication::activeModalWidget()) {
        QVERIFY(p.reads(QLatin1StringView(kRefusal)));
        modal->close();
        QVERIFY(!QApplication::activeModalWidget() || answer(p, u"VantuConfirmDialogAccept"_s));
    } else {
        QCOMPARE(p.desk.text(message), QLatin1StringView(kRefusal));
    }
    QVERIFY(p.press(u"VantuNotificationClose"_s));
    QVERIFY(QTest::qWaitFor([&] { return p.desk.isIdle(); }) && p.desk.poll());

    p.desk.daemon.clearRequests();
    p.desk.answer(route, reply);
    QVERIFY(QTest::qWaitFor([&] { return act(p); }));
    QTRY_COMPARE(p.desk.count(route), 1);
    QCOMPARE(p.desk.body(route), body);
    if (!shown.isEmpty()) {
        QTRY_VERIFY2(p.reads(shown), qPrintable(shown));
    }
    QTRY_VERIFY(p.desk.text(message).isEmpty());
}

/// A window that asks about its edits would hold up the end of the session.
void TestControls::sessionEndsAmidEdits()
{
    Person p;
    p.desk.answer("GET /v1/split/rules", R"({"rules":{}})");
    p.desk.answer("POST /v1/split/rules/import", R"({"error":"Not now."})", 500);
    QVERIFY(p.start() && p.desk.poll(R"({"tunnel_state":"off","auth_state":"logged_in","mode":
        {"transport":"vantuvpn","policy":"split"}})"));
    Person::ctrl(Qt::Key_3);
    QVERIFY(QTest::qWaitFor([&] { return p.desk.isIdle(); }) && editRules(p));
    QTRY_VERIFY(!p.desk.notice().isEmpty());
    QEvent end(QEvent::Quit);
    static_cast<QObject &>(p.desk.shell()).eventFilter(qApp, &end);
    QVERIFY(!QApplication::activeModalWidget());
    QTRY_VERIFY(!p.desk.window());
}

void TestControls::repair()
{
    Person p;
    QVERIFY(p.start());
    Person::ctrl(Qt::Key_4);
    p.desk.answer("POST /v1/kill-switch/repair", R"({"result":"cleared"})");
    p.desk.answer("POST /v1/proxy/repair", R"({"state":"fine"})");
    p.desk.answer("POST /v1/vpn/repair", R"({"error":"No tunnel."})", 500);
    QVERIFY(p.press(u"VantuSettingsRepair"_s));
    QTRY_COMPARE(p.desk.text(u"VantuSettingsMessage"_s), u"No tunnel."_s);
    p.desk.answer("POST /v1/vpn/repair", R"({"reason":"nothing to do"})");
    QVERIFY(p.press(u"VantuSettingsRepair"_s));
    QTRY_COMPARE(p.desk.notice(), u"Repair completed\nKill Switch: cleared\nProxy: fine\n"
                                  u"VPN: nothing to do"_s);
    QCOMPARE(p.desk.body("POST /v1/proxy/repair"), R"({"force":false})");
}

void TestControls::openLogs()
{
    QString opened;
    Person p;
    p.desk.answer("GET /v1/config/path", R"({"error":"Not now."})", 500);
    QVERIFY(p.start());
    Person::ctrl(Qt::Key_4);
    QVERIFY(p.press(u"VantuSettingsOpenLogs"_s));
    QTRY_COMPARE(p.desk.text(u"VantuSettingsMessage"_s), u"Not now."_s);
    p.desk.shell().windows().setLinkOpener([&opened](const QUrl &url) {
        opened = url.toLocalFile();
        return false;
    });
    p.desk.answer("GET /v1/config/path", R"({"LogDir":"/"})");
    QVERIFY(p.press(u"VantuSettingsOpenLogs"_s));
    QTRY_COMPARE(opened, u"/"_s);
    QCOMPARE(p.desk.notice(), u"Could not open log directory: /"_s);
}

void TestControls::renewal()
{
    QUrl opened;
    Person p;
    QVERIFY(p.start());
    Person::ctrl(Qt::Key_5);
    p.desk.shell().windows().setLinkOpener([&opened](const QUrl &url) {
        opened = url;
        return false;
    });
    p.desk.answer("GET /v1/account/purchase-url", R"({"url":"https://evil.example/purchase"})");
    QVERIFY(p.press(u"VantuAccountRenew"_s));
    QTRY_VERIFY(!p.desk.text(u"VantuAccountMessage"_s).isEmpty() && opened.isEmpty());
    const QString link =
        u"https://www.vantuvpn.com/purchase?lang=en-US&webAccessToken=t0ken&account=me"_s;
    p.desk.answerHeld("GET /v1/account/purchase-url",
                      QByteArray(R"({"url":")") + link.toLatin1() + R"("})");
    QVERIFY(p.press(u"VantuAccountRenew"_s) && !p.press(u"VantuAccountRenew"_s));
    QTRY_COMPARE(p.desk.count("GET /v1/account/purchase-url"), 2);
    p.desk.daemon.release();
    QTRY_COMPARE(opened.toString(), link);
    // Where the link could not be opened it is not shown either.
    QTRY_COMPARE(p.desk.notice(), u"Could not open link"_s);
}

/// The page that stood there meanwhile shows what the new daemon says, and a sign-in that
/// succeeded leaves no password behind even where nobody is signed in yet.
void TestControls::daemonThatComesBack()
{
    Person p;
    QVERIFY(p.start());
    p.desk.leadTo(u"/nowhere/control.sock"_s);
    QVERIFY(p.desk.poll());
    QTRY_VERIFY(!p.desk.notice().isEmpty());
    QVERIFY(p.press(u"VantuNotificationClose"_s));
    Person::ctrl(Qt::Key_4);
    QVERIFY(!p.see(u"VantuSettingsSplitDNSReset"_s)->isEnabled());
    QVERIFY(p.desk.poll() && p.desk.notice().isEmpty()); // Nothing was asked of nobody.
    p.desk.answer("GET /v1/split/dns", R"({"config":{"policy":"dual-auto"}})");
    p.desk.leadTo(p.desk.daemon.socketName());
    QVERIFY(p.desk.poll());
    QTRY_VERIFY(p.reads(u"Configured policy: Dual Auto"_s));

    p.desk.answer("POST /v1/session/login", "{}");
    QVERIFY(p.desk.poll(R"({"tunnel_state":"off","auth_state":"none"})"));
    Person::ctrl(Qt::Key_5);
    auto *password = p.see<QLineEdit>(u"VantuAccountPassword"_s);
    p.see<QLineEdit>(u"VantuAccountUsername"_s)->setText(u"me"_s);
    password->setText(u"se cret"_s);
    QVERIFY(p.press(u"VantuAccountSignIn"_s));
    QTRY_COMPARE(password->text(), QString());
}

void TestControls::editorKeepsText()
{
    Person p;
    p.desk.answer("GET /v1/split/rules", R"({"rules":{"direct":{"items":["a.example"]}}})");
    QVERIFY(p.start() && p.desk.poll(R"({"tunnel_state":"off","auth_state":"logged_in",
        "mode":{"transport":"vantuvpn","policy":"split","split_profile":{"custom_rules":true}}})"));
    Person::ctrl(Qt::Key_3);
    QVERIFY(answer(p, u"VantuModeVantuCustomRulesEdit"_s));
    QTRY_VERIFY(p.see<QPlainTextEdit>(u"VantuSplitRulesEditorText"_s));
    auto *editor = p.see<QPlainTextEdit>(u"VantuSplitRulesEditorText"_s);
    QTRY_COMPARE(editor->toPlainText(), u"a.example"_s);
    QTRY_VERIFY(!editor->isReadOnly());
    QVERIFY(Person::focus(editor));
    Person::type("x");
    // Every way out asks, and staying leaves all as it is.
    const auto staysAfter = [&](const auto &leave) {
        leave();
        return answer(p, u"VantuConfirmDialogReject"_s) &&
               QTest::qWaitFor([&] { return p.see(u"VantuSplitRulesEditorText"_s) == editor; }) &&
               editor->toPlainText() == "xa.example"_L1 &&
               p.desk.window()->currentPage() == Page::Mode && p.desk.window()->isVisible();
    };
    QVERIFY(staysAfter([&] { p.desk.shell().windows().showLocations(); }));
    QVERIFY(staysAfter([&] { p.desk.window()->close(); }));
    QVERIFY(staysAfter([&] { QVERIFY(p.press(u"VantuSplitRulesTunnel"_s)); }));
    QVERIFY(staysAfter([&] { QTest::keyClick(editor, Qt::Key_Escape); }));
    p.desk.shell().windows().showLocations();
    QVERIFY(answer(p, u"VantuConfirmDialogAccept"_s));
    QTRY_COMPARE(p.desk.window()->currentPage(), Page::Locations);
    QVERIFY(!p.see(u"VantuSplitRulesEditorText"_s));
}

namespace {

QByteArray update(bool forced)
{
    return QByteArray(R"({"update_available":true,"current_version":"10.4.0","latest":{)"
                      R"("version_code":"10.5.0","version_num":7,"is_force_upgrade":)") +
           (forced ? "true" : "false") + R"(,"change_log":["Faster"]}})";
}

} // namespace

void TestControls::updateDialog()
{
    constexpr auto kDownload = "POST /v1/gui/update/download";
    Person p;
    QVERIFY(p.start());
    p.desk.answer("GET /v1/gui/update/download", R"({"state":"idle"})");
    Person::ctrl(Qt::Key_4);
    QVERIFY(p.press(u"VantuSettingsCheckUpdate"_s));
    QTRY_COMPARE(p.desk.notice(), u"Vantu is up to date"_s);
    p.desk.answer("POST /v1/gui/update/check", update(false));
    QVERIFY(p.press(u"VantuSettingsCheckUpdate"_s));
    QTRY_VERIFY(p.reads(u"A new Vantu update is available"_s));
    QCOMPARE(p.desk.body("POST /v1/gui/update/check"), R"({"version":"10.4.0+1"})");

    p.desk.answer(kDownload, R"({"error":"Disk full."})", 500);
    QVERIFY(answer(p, u"VantuUpdateDownload"_s));
    QTRY_COMPARE(p.desk.body(kDownload), R"({"expected_version_num":7,"version":"10.4.0+1"})");
    QTRY_VERIFY(p.reads(u"Disk full."_s));
    const QByteArray running = R"({"state":"downloading","version_num":7,
        "bytes_downloaded":5242880,"bytes_total":20971520})";
    p.desk.answer(kDownload, running);
    p.desk.answer("GET /v1/gui/update/download", running);
    QVERIFY(answer(p, u"VantuUpdateDownload"_s));
    QTRY_VERIFY(p.reads(u"Downloading 5.0 MB of 20.0 MB"_s));
    QTRY_COMPARE(p.see<QPushButton>(u"VantuUpdateDownload"_s)->text(), u"Cancel Download"_s);
    p.desk.answer("DELETE /v1/gui/update/download", R"({"state":"canceled","version_num":7})");
    QVERIFY(answer(p, u"VantuUpdateDownload"_s));
    QTRY_VERIFY(p.reads(u"Download canceled."_s));
    QVERIFY(p.press(u"VantuUpdateSecondary"_s));
    QTRY_VERIFY(!p.see(u"VantuUpdateDialog"_s));
}

void TestControls::requiredUpdate()
{
    Person p;
    QVERIFY(p.start());
    p.desk.answer("POST /v1/gui/update/check", update(true));
    p.desk.shell().checkSettingsUpdate();
    QTRY_VERIFY(p.see(u"VantuUpdateDialog"_s));
    auto *gate = p.see(u"VantuUpdateDialog"_s);
    const auto stands = [&] { return p.see(u"VantuUpdateDialog"_s) == gate; };
    QTest::keyClick(gate, Qt::Key_Escape);
    gate->close();
    QVERIFY(stands() && QApplication::activeModalWidget() == gate);
    p.desk.shell().activateFromSecondary();
    QTRY_VERIFY(stands() && QApplication::activeWindow() == gate);
    QVERIFY(p.desk.host.click(u"Connect"_s) && p.desk.poll() && stands());
    QCOMPARE(p.desk.count("POST /v1/connect"), 0);
    QSignalSpy left(&p.desk.shell(), &VantuAppShell::exitRequested);
    QVERIFY(p.press(u"VantuUpdateSecondary"_s));
    QCOMPARE(left.count(), 1);
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
