#include "TourClient.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include <sys/prctl.h>
#include <sys/types.h>
#include <sys/wait.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kName = "Vantu";
constexpr int kEndMs = 3000;
constexpr int kTab = 0xff09;
constexpr int kBackTab = 0xfe20;

/// What is in sight below `object`, a line each.
QString readingBelow(const AccessibleObject &object)
{
    QString lines;
    for (const AccessibleObject &child : object.children()) {
        const QStringList states = child.states();
        if (!states.contains("showing"_L1)) {
            continue;
        }
        if (const QString name = child.name(); !name.isEmpty()) {
            lines += u"     %1 \"%2\" (%3)\n"_s.arg(child.role(), name, states.join(u", "_s));
        }
        lines += readingBelow(child);
    }
    return lines;
}

} // namespace

TourClient::TourClient(const QString &program)
    : m_program(program)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A pipe to the tour would break once the first of the clients has ended, and with it
    // the one that follows.
    m_process.setStandardOutputFile(QProcess::nullDevice());
    // A client that replaces itself leaves its successor to the tour, whose child that
    // becomes: so its exit status can be had, too.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

TourClient::~TourClient()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        m_process.waitForFinished(kEndMs);
    }
    if (m_successor > 0) {
        ::kill(static_cast<pid_t>(m_successor), SIGTERM);
        ::waitpid(static_cast<pid_t>(m_successor), nullptr, 0);
    }
}

bool TourClient::prepare()
{
    return m_tray.start() && m_desktop.start();
}

bool TourClient::start(const QProcessEnvironment &environment)
{
    QProcessEnvironment accessible = environment;
    accessible.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    m_process.setProcessEnvironment(accessible);
    m_process.start(m_program, QStringList());
    return m_process.waitForStarted();
}

bool TourClient::hasSuccessor()
{
    const QStringList items = m_tray.items();
    if (m_process.state() != QProcess::NotRunning || items.size() != 1) {
        return false;
    }
    const QString service = items.constFirst().section(u'/', 0, 0);
    m_successor = QDBusConnection::sessionBus().interface()->servicePid(service);
    return m_successor > 0;
}

bool TourClient::hasLeft()
{
    if (m_successor == 0) {
        return m_process.state() == QProcess::NotRunning &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    int status = 0;
    if (::waitpid(static_cast<pid_t>(m_successor), &status, WNOHANG) != m_successor) {
        return false;
    }
    m_successor = 0;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::optional<AccessibleObject> TourClient::find(const AccessibleObject::Test &test) const
{
    for (const AccessibleObject &window : m_desktop.windows(QString::fromLatin1(kName))) {
        if (auto found = window.find(test)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<AccessibleObject> TourClient::find(const QString &role, const Matcher &matches) const
{
    return find([&](const AccessibleObject &object) {
        return matches(object.name()) && object.role() == role;
    });
}

std::optional<AccessibleObject> TourClient::findButton(const Matcher &matches) const
{
    return find([&](const AccessibleObject &object) {
        return matches(object.name()) && object.isPressable();
    });
}

bool TourClient::press(const Matcher &matches) const
{
    const auto button = findButton(matches);
    return button && button->press();
}

bool TourClient::tabTo(const Matcher &matches) const
{
    const auto button = findButton(matches);
    if (!button || !button->focus()) {
        return false;
    }
    m_desktop.pressKey(kBackTab);
    m_desktop.pressKey(kTab);
    return true;
}

bool TourClient::typeInto(const QString &field, const QString &text) const
{
    const auto found = find(u"text"_s, [&field](const QString &name) { return name == field; });
    const QStringList states = found ? found->states() : QStringList();
    if (!states.contains("enabled"_L1) || !states.contains("editable"_L1)) {
        return false;
    }
    if (!states.contains("focused"_L1)) {
        found->focus();
        return false; // Keys go astray until it has the keyboard.
    }
    if (!found->selectText()) {
        return false;
    }
    m_desktop.type(text);
    return true;
}

QRect TourClient::place() const
{
    QRect place;
    for (const AccessibleObject &window : m_desktop.windows(QString::fromLatin1(kName))) {
        place |= window.place();
    }
    return place;
}

QString TourClient::reading() const
{
    QString lines;
    for (const AccessibleObject &window : m_desktop.windows(QString::fromLatin1(kName))) {
        lines += window.name() + u'\n' + readingBelow(window);
    }
    return lines;
}
