#include "ShellFixture.h"

#include "AppState.h"
#include "MainWindow.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Reply = ScriptedDaemon::Reply;

ShellFixture::ShellFixture()
{
    QCoreApplication::setApplicationVersion(u"10.4.0+1"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    if (!host.start()) {
        qFatal("no panel");
    }
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
    leadTo(daemon.socketName());
    answer("GET /v1/version", R"({"version":"1.0","api_version":"1"})");
    answer("GET /v1/status", status("disconnected"));
    answer("GET /v1/nodes", R"({"nodes":[{"id":"a","name":"Tokyo","region":"JP"}]})");
    answer("GET /v1/nodes/groups", R"({"tabs":[{"group_type":"all","node_ids":["a"]}]})");
    answer("GET /v1/user", R"({"email":"me@example.org"})");
    answer("GET /v1/kill-switch", R"({"enabled":false,"mode":"off"})");
    answer("GET /v1/config/path", R"({"LogDir":"/nowhere"})");
    answer("GET /v1/config/api-url", R"({"api_url":"https://api.example.org"})");
    answer("GET /v1/config/language",
           R"({"source":"user","language":"en-US","effective_language":"en-US"})");
    answer("POST /v1/disconnect", status("disconnected"));
    answer("POST /v1/kill-switch", R"({"enabled":true,"mode":"on"})");
    answer("POST /v1/gui/update/check", R"({"update_available":false})");
}

ShellFixture::~ShellFixture() = default;

QByteArray status(const QByteArray &tunnel, const QByteArray &mode, const QByteArray &more)
{
    return R"({"tunnel_state":")" + tunnel + R"(","auth_state":"logged_in","mode":{"transport":")" +
           mode + R"("})" + more + '}';
}

void ShellFixture::answer(const QByteArray &route, const QByteArray &json, int code)
{
    daemon.setDefault(route, Reply::json(json, code));
}

void ShellFixture::answerHeld(const QByteArray &route, const QByteArray &json)
{
    daemon.setDefault(route, Reply::nothing().hold().send("HTTP/1.1 200 OK\r\n\r\n" + json));
}

void ShellFixture::leadTo(const QString &socketName)
{
    const QString name = m_directory.filePath(u"link"_s);
    QFile::remove(name);
    QFile::link(socketName, name);
}

VantuAppShell &ShellFixture::shell()
{
    if (!m_shell) {
        m_shell = std::make_unique<VantuAppShell>(m_directory.filePath(u"link"_s));
        m_shell->setLoadedLanguage(u"en-US"_s);
    }
    return *m_shell;
}

bool ShellFixture::start()
{
    shell().start();
    return QTest::qWaitFor([this] { return isReady() && !host.items().isEmpty(); });
}

bool ShellFixture::isReady()
{
    const AppState &state = shell().state();
    return isIdle() && state.user().email == "me@example.org"_L1 &&
           !state.nodes().nodes.isEmpty() && !state.nodeGroups().tabs.isEmpty() &&
           state.killSwitch().known && !state.apiURLConfig().apiURL.isEmpty() &&
           !state.languageConfig().language.isEmpty() && (!button() || button()->isEnabled());
}

bool ShellFixture::poll()
{
    QSignalSpy polled(&shell().tray(), &VantuTrayApp::statusPolled);
    shell().tray().pollSoon(); // Drops an answer under way, which may still be an old one.
    shell().tray().refreshStatus();
    return polled.wait();
}

bool ShellFixture::poll(const QByteArray &status)
{
    answer("GET /v1/status", status);
    return poll();
}

MainWindow *ShellFixture::window() const
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<MainWindow *>(widget)) {
            return window;
        }
    }
    return nullptr;
}

QString ShellFixture::text(const QString &objectName) const
{
    const auto *label = window() ? window()->findChild<QLabel *>(objectName) : nullptr;
    return label && label->isVisible() ? label->text() : QString();
}

QString ShellFixture::notice() const
{
    return text(u"VantuNotificationMessage"_s);
}

bool ShellFixture::noticeStays() const
{
    const auto timers =
        window()->findChild<QWidget *>(u"VantuNotificationHost"_s)->findChildren<QTimer *>();
    return !notice().isEmpty() && std::none_of(timers.begin(), timers.end(), [](QTimer *timer) {
        return timer->isSingleShot() && timer->isActive();
    });
}

QPushButton *ShellFixture::button() const
{
    return window() ? window()->findChild<QPushButton *>(u"VantuVPNPrimaryAction"_s) : nullptr;
}

bool ShellFixture::canChoose(const QString &trayEntry)
{
    const TrayMenuItem menu = host.menu();
    const TrayMenuItem *entry = menu.find(trayEntry);
    return entry && entry->enabled;
}

QByteArray ShellFixture::body(const QByteArray &route) const
{
    const QByteArray request = daemon.requests().value(daemon.routes().lastIndexOf(route));
    return request.mid(request.indexOf("\r\n\r\n") + 4);
}
