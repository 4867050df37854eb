#include "TrayHostProbe.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QEventLoop>
#include <QObject>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kWatcherService = "org.kde.StatusNotifierWatcher"_L1;
constexpr auto kWatcherPath = "/StatusNotifierWatcher"_L1;
/// The watcher is asked over the bus; a wedged one must not hold up a start.
constexpr int kCallTimeoutMs = 500;
/// The watcher's signal is the quick road; this is for watchers that send none.
constexpr std::chrono::milliseconds kPollInterval{500};

} // namespace

bool trayhost::isRegistered()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(kWatcherService)) {
        return false;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        kWatcherService, kWatcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << QString(kWatcherService) << u"IsStatusNotifierHostRegistered"_s;
    const QDBusMessage answer = bus.call(call, QDBus::Block, kCallTimeoutMs);
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool trayhost::waitUntilRegistered(std::chrono::milliseconds timeout)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return false;
    }
    if (isRegistered()) {
        return true;
    }
    QEventLoop loop;
    bool found = false;
    const auto look = [&loop, &found] {
        if (isRegistered()) {
            found = true;
            loop.quit();
        }
    };
    QDBusServiceWatcher watcher(kWatcherService, bus, QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &loop, look);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, look);
    poll.start(kPollInterval);
    QTimer::singleShot(timeout, &loop, &QEventLoop::quit);
    loop.exec();
    return found;
}
