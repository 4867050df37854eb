#include "ClientProcess.h"
#include "ScriptedDaemon.h"
#include "TrayHost.h"

#include <QApplication>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QTest>

#include <xcb/xcb.h>

#include <csignal>
#include <memory>
#include <sys/types.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;

namespace {

constexpr int kStartMs = 15000;
const auto kAutostart = u"--vantu-autostart"_s;
const auto kSignedIn = R"({"tunnel_state":"disconnected","auth_state":"logged_in"})";

QImage screen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The command of a desktop entry, as a session manager takes it apart.
QStringList execOf(const QString &entryPath)
{
    static const QRegularExpression line(u"^Exec=(.*)$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression word(uR"--("((?:[^"\\]|\\.)*)"|([^\s"]+))--"_s);
    QStringList command;
    const QString exec = line.match(contents(entryPath)).captured(1);
    for (const auto &match : word.globalMatch(exec)) {
        QString text = match.captured(1) + match.captured(2);
        text.replace(QRegularExpression(uR"(\\(.))"_s), u"\\1"_s).replace(u"%%"_s, u"%"_s);
        command << text;
    }
    return command;
}

/// What programs tell the window manager and the launcher of an X11 desktop.
class RootMessages final
{
    Q_DISABLE_COPY_MOVE(RootMessages)

public:
    RootMessages()
        : m_display(xcb_connect(nullptr, nullptr))
    {
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_display,
                                     xcb_setup_roots_iterator(xcb_get_setup(m_display)).data->root,
                                     XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_display);
    }
    ~RootMessages() { xcb_disconnect(m_display); }

    void read()
    {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_display)) {
            const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) {
            } else if (message->format == 8) {
                texts.append(reinterpret_cast<const char *>(message->data.data8), 20);
            } else {
                times << message->data.data32[1];
            }
            std::free(event);
        }
    }

    QByteArray texts;
    QList<quint32> times;

private:
    xcb_connection_t *m_display;
};

} // namespace

/// The program as a whole, as process after process of one user.
class TestStartup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_host = std::make_unique<TrayHost>(); }
    void cleanup() { m_host.reset(); }
    void oneInstanceAtATime();
    void secondLaunchLendsItsToken();
    void loginStartWithoutTray();
    void loginStartWaitsForTray();
    void loginStartWithWindow();
    void loginEntryStartsIt();
    void trayComesLateAndDies();
    void signalsQuit_data();
    void signalsQuit();
    void signalEndsTheWaitForTray();

private:
    std::unique_ptr<ClientProcess> client(const QByteArray &preferences = {})
    {
        return std::make_unique<ClientProcess>(m_temporary.path(), m_daemon.socketName(),
                                               preferences);
    }
    /// Clicks the entry of the tray menu once it is there and enabled.
    bool choose(const QString &entry) const
    {
        return QTest::qWaitFor([&] { return m_host->click(entry); });
    }
    bool isNameTaken() const
    {
        return QFile::exists(m_temporary.filePath(u"com.vantuvpn.Vantu.test.%1"_s.arg(::getuid())));
    }

    QTemporaryDir m_temporary;
    ScriptedDaemon m_daemon;
    QImage m_blank;
    std::unique_ptr<TrayHost> m_host;
};

void TestStartup::initTestCase()
{
    m_blank = screen();
    m_daemon.setDefault("GET /v1/version", Reply::json(R"({"version":"1.0","api_version":"1"})"));
    m_daemon.setDefault("GET /v1/status", Reply::json(kSignedIn));
    m_daemon.setDefault({}, Reply::json("{}"));
    m_daemon.setDefault("POST /v1/connect", Reply::nothing().hold());
}

void TestStartup::oneInstanceAtATime()
{
    QVERIFY(m_host->start());
    const auto first = client("showOnLaunch=false\n");
    first->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);

    // A login start that the user switched off does not even knock.
    const auto login = client();
    login->start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(login->ended(0), kStartMs);
    QCOMPARE(screen(), m_blank);

    const auto second = client();
    second->start({u"--Vantu-Autostart"_s, u"file.txt"_s}); // Means nothing.
    QTRY_VERIFY_WITH_TIMEOUT(second->ended(0), kStartMs);
    QTRY_VERIFY_WITH_TIMEOUT(screen() != m_blank, kStartMs);
    QVERIFY(first->isRunning());

    // A name left by a crash stops nobody.
    first->kill();
    QTRY_VERIFY(m_host->items().isEmpty());
    const auto third = client();
    third->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    QTRY_VERIFY_WITH_TIMEOUT(screen() != m_blank, kStartMs);
    QVERIFY(choose(u"Quit"_s));
    QTRY_VERIFY(third->ended(0));
}

void TestStartup::secondLaunchLendsItsToken()
{
    RootMessages messages;
    QVERIFY(m_host->start());
    const auto first = client("showOnLaunch=false\n");
    first->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    const auto second = client();
    second->set("DESKTOP_STARTUP_ID", u"a launch_TIME4711"_s);
    second->start();
    QTRY_VERIFY_WITH_TIMEOUT(second->ended(0), kStartMs);
    QVERIFY(QTest::qWaitFor([&] {
        messages.read();
        return messages.times.contains(4711) &&
               messages.texts.contains("remove: ID=a\\ launch_TIME4711");
    }));
    QVERIFY(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).entryList({u"*token*"_s}).isEmpty());
}

void TestStartup::loginStartWithoutTray()
{
    const auto login = client("launchAtLogin=true\nshowOnLaunch=false\n");
    login->set("DBUS_SESSION_BUS_ADDRESS", u"unix:path=/nowhere/bus"_s);
    login->set("QT_QPA_PLATFORM", u"offscreen"_s);
    login->start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(login->ended(0), kStartMs);
}

void TestStartup::loginStartWaitsForTray()
{
    const auto login = client("launchAtLogin=true\nshowOnLaunch=false\n");
    login->start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(isNameTaken(), kStartMs);
    QCOMPARE(screen(), m_blank);
    // The user launches it as well and need not wait for the panel, which comes then.
    const auto second = client();
    second->start();
    QTRY_VERIFY_WITH_TIMEOUT(second->ended(0), kStartMs);
    QTRY_VERIFY_WITH_TIMEOUT(screen() != m_blank, kStartMs);
    QVERIFY(login->isRunning());
    QVERIFY(m_host->start());
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    QVERIFY(choose(u"Quit"_s));
    QTRY_VERIFY(login->ended(0));
}

void TestStartup::loginStartWithWindow()
{
    m_daemon.clearRequests();
    const auto login = client("launchAtLogin=true\n");
    login->start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon.routes().contains("GET /v1/status"), kStartMs);
    QTRY_VERIFY(screen() != m_blank); // Without the 10 s that it would wait for a panel.
}

void TestStartup::loginEntryStartsIt()
{
    QVERIFY(m_host->start());
    const auto session = client("launchAtLogin=true\nshowOnLaunch=false\n");
    const QString entry = session->configPath(u"autostart/com.vantuvpn.vantu.desktop"_s);
    session->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    session->kill();
    QTRY_VERIFY(m_host->items().isEmpty());

    const QStringList command = execOf(entry);
    QCOMPARE(command.mid(1), QStringList(kAutostart));
    session->run(command);
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    QCOMPARE(screen(), m_blank);
    session->kill();

    session->setPreferences("launchAtLogin=false\n");
    session->run(command);
    QTRY_VERIFY_WITH_TIMEOUT(session->ended(0), kStartMs);
    QVERIFY(!QFile::exists(entry));
}

void TestStartup::trayComesLateAndDies()
{
    const auto first = client("showOnLaunch=false\n");
    first->start();
    QTRY_VERIFY_WITH_TIMEOUT(screen() != m_blank, kStartMs); // There is no other way to it.
    for (int panels = 0; panels < 2; ++panels) {
        QVERIFY(m_host->start());
        QTRY_COMPARE(m_host->items().size(), 1);
        QTRY_COMPARE(m_host->toolTip(), u"Vantu: disconnected"_s);
        QTRY_VERIFY(m_host->menu().find(u"Connect"_s) != nullptr);
        m_host->stop();
    }
    QVERIFY(first->isRunning());
}

void TestStartup::signalsQuit_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("ignored");
    QTest::newRow("TERM") << SIGTERM << false;
    QTest::newRow("INT") << SIGINT << false;
    QTest::newRow("HUP") << SIGHUP << false;
    QTest::newRow("ignored HUP") << SIGHUP << true;
}

void TestStartup::signalsQuit()
{
    QFETCH(int, signal);
    QFETCH(bool, ignored);
    QVERIFY(m_host->start());
    const auto first = client("showOnLaunch=true\n");
    first->run({u"/bin/sh"_s, u"-c"_s,
                u"%1 exec \"$0\""_s.arg(ignored ? u"trap '' HUP;"_s : QString()),
                QStringLiteral(VANTU_TEST_CLIENT)});
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    m_daemon.clearRequests();
    QVERIFY(choose(u"Connect"_s));
    QTRY_VERIFY(m_daemon.routes().contains("POST /v1/connect"));
    const auto pid = static_cast<pid_t>(first->pid());
    QCOMPARE(::kill(pid, signal), 0);
    if (ignored) {
        QTRY_COMPARE(m_host->toolTip(), u"Vantu: connecting..."_s);
        QVERIFY(first->isRunning());
        ::kill(pid, SIGTERM);
    }
    QTRY_VERIFY(first->ended(0));
    const QSettings preferences(first->preferencesPath(), QSettings::IniFormat);
    QCOMPARE(preferences.value("window/showOnLaunch"), true);
    QCOMPARE(preferences.value("language/lastEffective"), u"en-US"_s);
    QVERIFY(!isNameTaken());
}

void TestStartup::signalEndsTheWaitForTray()
{
    m_daemon.clearRequests();
    const auto login = client("launchAtLogin=true\nshowOnLaunch=false\n");
    login->start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon.routes().contains("GET /v1/status"), kStartMs);
    ::kill(static_cast<pid_t>(login->pid()), SIGTERM);
    QTRY_VERIFY(login->ended(0));
    QCOMPARE(m_daemon.routes(), QByteArrayList{"GET /v1/status"}); // For the language.
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
