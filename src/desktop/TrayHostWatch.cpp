#include "TrayHostWatch.h"

#include "X11Session.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QSystemTrayIcon>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto kService = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto kPath = "/StatusNotifierWatcher"_L1;
/// A wedged watcher must not hold up a start.
constexpr int kCallTimeoutMs = 500;
constexpr auto kRetryInterval = 500ms;
constexpr int kRetries = 60;

QDBusMessage hostQuestion()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        kService, kPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << QString(kService) << u"IsStatusNotifierHostRegistered"_s;
    return call;
}

bool isYes(const QDBusMessage &answer)
{
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool isHostOnBus()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(kService) &&
           isYes(bus.call(hostQuestion(), QDBus::Block, kCallTimeoutMs));
}

} // namespace

TrayHostWatch::TrayHostWatch(QObject *parent)
    : QObject(parent)
{
    m_retry.setInterval(kRetryInterval);
    connect(&m_retry, &QTimer::timeout, this, &TrayHostWatch::ask);
}

TrayHostWatch::~TrayHostWatch() = default;

bool TrayHostWatch::isHostPresent()
{
    return isHostOnBus() || x11session::hasSystemTray();
}

bool TrayHostWatch::isTrayAvailable()
{
    // Qt opens a connection to the session bus for each question, and its "yes" stays.
    static bool qtKnowsTray = false;
    if (!isHostPresent()) {
        return false;
    }
    qtKnowsTray = qtKnowsTray || QSystemTrayIcon::isSystemTrayAvailable();
    return qtKnowsTray;
}

bool TrayHostWatch::start()
{
    if (!m_isStarted) {
        m_isStarted = true;
        QCoreApplication::instance()->installNativeEventFilter(this);
        watchBus();
    }
    return QDBusConnection::sessionBus().isConnected() || x11session::isRunning();
}

void TrayHostWatch::watchBus()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    auto *watcher =
        new QDBusServiceWatcher(kService, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
            &TrayHostWatch::handleWatcherAppeared);
    bus.connect(kService, kPath, kService, u"StatusNotifierHostRegistered"_s, this, SLOT(ask()));
    if (bus.interface()->isServiceRegistered(kService)) {
        handleWatcherAppeared();
    }
}

void TrayHostWatch::handleWatcherAppeared()
{
    m_retriesLeft = kRetries;
    m_retry.start();
    ask();
}

void TrayHostWatch::ask()
{
    if (--m_retriesLeft < 0) {
        m_retry.stop();
    }
    auto *answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(hostQuestion(), kCallTimeoutMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (isYes(answer->reply())) {
            m_retry.stop();
            Q_EMIT hostAppeared();
        }
    });
}

bool TrayHostWatch::nativeEventFilter(const QByteArray &eventType, void *message,
                                      qintptr * /*result*/)
{
    if (eventType == "xcb_generic_event_t" && x11session::announcesSystemTray(message)) {
        // After the event, which Qt hands to its own icons.
        QMetaObject::invokeMethod(this, &TrayHostWatch::hostAppeared, Qt::QueuedConnection);
    }
    return false;
}
