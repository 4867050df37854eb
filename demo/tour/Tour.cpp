#include "Tour.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStepDeadlineMs = 30000;
constexpr int kLookIntervalMs = 50;
/// What a click changed has reached the screen by then.
constexpr int kSettleMs = 400;

void pause(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

const TrayMenuItem *entry(const TrayMenuItem &menu, const QString &label)
{
    return menu.find(label);
}

/// The words of the entry when it is there and can be chosen.
QString enabledEntry(const TrayMenuItem &menu, const QString &label)
{
    const TrayMenuItem *item = entry(menu, label);
    return item && item->enabled ? u"\"%1\" can be chosen"_s.arg(label) : QString();
}

QString checkedEntry(const TrayMenuItem &menu, const QString &label, bool checked)
{
    const TrayMenuItem *item = entry(menu, label);
    if (!item || !item->enabled || item->checked != checked) {
        return {};
    }
    return checked ? u"\"%1\" is checked"_s.arg(label) : u"\"%1\" is not checked"_s.arg(label);
}

/// The first entry below `item` that names a node and can be chosen.
const TrayMenuItem *firstNode(const TrayMenuItem &item)
{
    for (const TrayMenuItem &child : item.children) {
        if (child.submenu) {
            if (const TrayMenuItem *node = firstNode(child)) {
                return node;
            }
        } else if (child.checkable && child.enabled && child.visible && !child.checked) {
            return &child;
        }
    }
    return nullptr;
}

} // namespace

Tour::Tour(const QString &program, const QString &pictures)
    : m_program(program)
    , m_pictures(pictures)
{
    m_client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

Tour::~Tour()
{
    if (m_client.state() != QProcess::NotRunning) {
        m_client.terminate();
        m_client.waitForFinished(3000);
    }
}

bool Tour::run(const QStringList &arguments)
{
    const auto can = [](const QString &label) {
        return [label](const TrayMenuItem &menu) { return enabledEntry(menu, label); };
    };
    const auto checked = [](const QString &label, bool on) {
        return [label, on](const TrayMenuItem &menu) { return checkedEntry(menu, label, on); };
    };
    const auto shown = [](const QString &label) {
        return [label](const TrayMenuItem &menu) {
            return entry(menu, label) ? u"\"%1\" is shown"_s.arg(label) : QString();
        };
    };

    if (!start(arguments)) {
        return false;
    }
    step(u"ready"_s, {}, can(u"Connect"_s));
    step(u"connect"_s, u"Connect"_s, can(u"Cancel"_s));
    step(u"cancel"_s, u"Cancel"_s, can(u"Connect"_s));
    step(u"connect-again"_s, u"Connect"_s, can(u"Disconnect"_s));
    step(u"mode"_s, u"WireGuard"_s, checked(u"WireGuard"_s, true));
    step(u"kill-switch-on"_s, u"Kill Switch"_s, checked(u"Kill Switch"_s, true));
    step(u"kill-switch-off"_s, u"Kill Switch"_s, checked(u"Kill Switch"_s, false));
    pickNode();
    step(u"disconnect"_s, u"Disconnect"_s, can(u"Connect"_s));
    step(u"sign-out"_s, u"Logout"_s, shown(u"Account: Login Required"_s));
    step(u"window"_s, u"Open Vantu..."_s, shown(u"Account: Login Required"_s));
    quit();
    std::printf("%d steps, %d failed\n", m_steps, m_failures);
    return m_failures == 0;
}

bool Tour::start(const QStringList &arguments)
{
    QDir().mkpath(m_pictures);
    QElapsedTimer elapsed;
    elapsed.start();
    bool ok = m_host.start();
    m_client.start(m_program, arguments);
    ok = ok && m_client.waitForStarted();
    while (ok && m_host.items().isEmpty()) {
        ok = elapsed.elapsed() < kStepDeadlineMs && m_client.state() == QProcess::Running;
        pause(kLookIntervalMs / 10);
    }
    report(ok, u"start"_s, ok ? u"the icon stands in the tray"_s : u"no tray icon came"_s,
           elapsed.elapsed());
    return ok;
}

bool Tour::step(const QString &name, const QString &label, const Seen &seen)
{
    QElapsedTimer elapsed;
    elapsed.start();
    if (!label.isEmpty() && !m_host.click(label)) {
        report(false, name,
               u"\"%1\" can't be chosen; the menu holds %2"_s.arg(
                   label, m_host.menu().labels().join(u" | "_s)),
               elapsed.elapsed());
        return false;
    }
    QString words;
    while (words.isEmpty() && elapsed.elapsed() < kStepDeadlineMs) {
        pause(kLookIntervalMs);
        words = seen(m_host.menu());
    }
    const bool ok = !words.isEmpty();
    if (!ok) {
        words = u"not seen; the menu holds "_s + m_host.menu().labels().join(u" | "_s);
    }
    report(ok, name, words + u"; tool tip \""_s + m_host.toolTip() + u'"', elapsed.elapsed());
    takePicture(name);
    return ok;
}

bool Tour::pickNode()
{
    const QString name = u"node"_s;
    const QString submenu = u"Node / Location"_s;
    const TrayMenuItem closed = m_host.menu();
    if (const TrayMenuItem *item = entry(closed, submenu)) {
        m_host.aboutToShow(item->id);
    }
    const TrayMenuItem menu = m_host.menu();
    const TrayMenuItem *places = entry(menu, submenu);
    const TrayMenuItem *node = places ? firstNode(*places) : nullptr;
    if (!node) {
        report(false, name, u"the catalogue's menu holds no node"_s, 0);
        return false;
    }
    const QString label = node->label;
    const int id = node->id;
    m_host.sendEvent(id, u"clicked"_s);
    return step(name, {}, [&label](const TrayMenuItem &now) {
        const TrayMenuItem *item = entry(now, label);
        return item && item->checked && !enabledEntry(now, u"Disconnect"_s).isEmpty()
                   ? u"connected to \"%1\""_s.arg(label)
                   : QString();
    });
}

bool Tour::quit()
{
    QElapsedTimer elapsed;
    elapsed.start();
    m_host.click(u"Quit"_s);
    const bool ok = m_client.waitForFinished(5000) && m_client.exitStatus() == QProcess::NormalExit;
    report(ok && m_client.exitCode() == 0, u"quit"_s,
           ok ? u"left with status %1"_s.arg(m_client.exitCode()) : u"did not leave"_s,
           elapsed.elapsed());
    return ok;
}

void Tour::report(bool ok, const QString &name, const QString &seen, qint64 ms)
{
    ++m_steps;
    m_failures += ok ? 0 : 1;
    std::printf("%-4s %-16s %6lld ms  %s\n", ok ? "ok" : "FAIL", qUtf8Printable(name),
                static_cast<long long>(ms), qUtf8Printable(seen));
    std::fflush(stdout);
}

void Tour::takePicture(const QString &name)
{
    pause(kSettleMs);
    const QString prefix = u"%1/%2-%3"_s.arg(m_pictures).arg(m_steps, 2, 10, QChar(u'0')).arg(name);
    QGuiApplication::primaryScreen()->grabWindow(0).save(prefix + u".png"_s);
    const QImage icon = m_host.icon();
    if (!icon.isNull()) {
        icon.save(prefix + u"-icon.png"_s);
    }
}
