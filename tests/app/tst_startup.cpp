#include "TrayHost.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The program as a process with a daemon of its own.
class Client final
{
public:
    /// `preferences` are lines of the section "window".
    explicit Client(const QString &temporary, const QByteArray &preferences)
        : m_directory(temporary + u"/client-XXXXXX"_s)
    {
        m_directory.setAutoRemove(false); // Its daemon may still be busy with it.
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QDir().mkpath(m_directory.filePath(u"config/VantuVPN"_s));
        QFile file(m_directory.filePath(u"config/VantuVPN/Vantu.ini"_s));
        if (file.open(QFile::WriteOnly)) {
            file.write("[window]\n" + preferences);
        }
        set(u"TMPDIR"_s, temporary); // The instance's name lives there.
        set(u"VANTU_DEMO_DIRECTORY"_s, m_directory.path());
    }
    ~Client()
    {
        m_process.kill();
        m_process.waitForFinished();
        // A killed client leaves its daemon behind.
        QLocalSocket control;
        control.connectToServer(m_directory.filePath(u"simd.sock"_s));
        if (control.waitForConnected(1000)) {
            control.write("quit\n");
            control.waitForDisconnected(1000);
        }
    }
    void set(const QString &name, const QString &value)
    {
        QProcessEnvironment environment = m_process.processEnvironment();
        if (environment.isEmpty()) {
            environment = QProcessEnvironment::systemEnvironment();
        }
        environment.insert(name, value);
        m_process.setProcessEnvironment(environment);
    }
    void start(const QStringList &arguments = {})
    {
        m_process.start(QStringLiteral(VANTU_DEMO), arguments);
    }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// It ended by itself, with this status.
    bool ended(int status) const
    {
        return !isRunning() && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == status;
    }
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QTemporaryDir m_directory;
    QProcess m_process;
};

constexpr int kStartMs = 15000;
const auto kAutostart = u"--vantu-autostart"_s;

QImage screen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

} // namespace

class TestStartup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_blank = screen(); }
    void init() { m_host = std::make_unique<TrayHost>(); }
    void oneInstanceAtATime();
    void loginStartWithoutTray();
    void loginStartWaitsForTray();

private:
    QString temporary() const { return m_temporary.path(); }

    QTemporaryDir m_temporary;
    QImage m_blank;
    std::unique_ptr<TrayHost> m_host;
};

void TestStartup::oneInstanceAtATime()
{
    QVERIFY(m_host->start());
    Client first(temporary(), "showOnLaunch=false\n");
    first.start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);

    // A login start that the user switched off does not even knock.
    Client login(temporary(), "");
    login.start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(login.ended(0), kStartMs);
    QCOMPARE(screen(), m_blank);

    Client second(temporary(), "");
    second.start({u"--Vantu-Autostart"_s, u"file.txt"_s}); // Means nothing.
    QTRY_VERIFY_WITH_TIMEOUT(second.ended(0), kStartMs);
    QTRY_VERIFY(screen() != m_blank);
    QVERIFY(first.isRunning());

    // A name left by a crash stops nobody.
    first.kill();
    QTRY_VERIFY(m_host->items().isEmpty());
    Client third(temporary(), "");
    third.start();
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    QTRY_VERIFY(screen() != m_blank);
    QVERIFY(m_host->click(u"Quit"_s));
    QTRY_VERIFY(third.ended(0));
}

void TestStartup::loginStartWithoutTray()
{
    Client client(temporary(), "launchAtLogin=true\nshowOnLaunch=false\n");
    client.set(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere/bus"_s);
    client.start({kAutostart});
    QTRY_VERIFY_WITH_TIMEOUT(client.ended(0), kStartMs);
}

void TestStartup::loginStartWaitsForTray()
{
    Client client(temporary(), "launchAtLogin=true\nshowOnLaunch=false\n");
    client.start({kAutostart});
    const auto name = u"/com.vantuvpn.Vantu.demo.%1"_s.arg(getuid());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(temporary() + name), kStartMs);
    // The user launches it as well while the panel is awaited; then the panel comes.
    Client second(temporary(), "");
    second.start();
    QTRY_VERIFY_WITH_TIMEOUT(second.ended(0), kStartMs);
    QVERIFY(client.isRunning());
    QCOMPARE(screen(), m_blank);
    QVERIFY(m_host->start());
    QTRY_COMPARE_WITH_TIMEOUT(m_host->items().size(), 1, kStartMs);
    QTRY_VERIFY(screen() != m_blank);
    QTRY_VERIFY(m_host->menu().find(u"Quit"_s));
    QVERIFY(m_host->click(u"Quit"_s));
    QTRY_VERIFY(client.ended(0));
}

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
