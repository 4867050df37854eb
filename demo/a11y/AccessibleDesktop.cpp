#include "AccessibleDesktop.h"

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kLauncher = "/usr/libexec/at-spi-bus-launcher";
constexpr auto kRegistry = "org.a11y.atspi.Registry";
/// Kinds of key strokes that the registry can send for others.
constexpr uint kKeySymbol = 3;
constexpr uint kKeyString = 4;
constexpr int kStartMs = 10000;
constexpr int kEndMs = 3000;
constexpr unsigned long kLookMs = 50;

} // namespace

AccessibleDesktop::AccessibleDesktop() = default;

AccessibleDesktop::~AccessibleDesktop()
{
    if (m_launcher.state() != QProcess::NotRunning) {
        m_launcher.terminate();
        m_launcher.waitForFinished(kEndMs);
    }
}

QString AccessibleDesktop::busAddress() const
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s);
    return QDBusConnection::sessionBus().call(question).arguments().value(0).toString();
}

bool AccessibleDesktop::start()
{
    QString address = busAddress();
    if (!address.startsWith("unix:"_L1)) {
        // The bus tells of all that joins it.
        m_launcher.setStandardErrorFile(QProcess::nullDevice());
        m_launcher.start(QString::fromLatin1(kLauncher), {u"--launch-immediately"_s});
        QElapsedTimer elapsed;
        elapsed.start();
        while (!address.startsWith("unix:"_L1) && elapsed.elapsed() < kStartMs) {
            QThread::msleep(kLookMs);
            address = busAddress();
        }
    }
    m_bus = QDBusConnection::connectToBus(address, u"accessibility"_s);
    return m_bus->isConnected();
}

QList<AccessibleObject> AccessibleDesktop::windows(const QString &program) const
{
    const AccessibleObject root(
        *m_bus, {QString::fromLatin1(kRegistry), u"/org/a11y/atspi/accessible/root"_s});
    QList<AccessibleObject> windows;
    // One that is just leaving may still stand beside the one that follows it.
    for (const AccessibleObject &candidate : root.children()) {
        if (candidate.name() != program) {
            continue;
        }
        for (const AccessibleObject &window : candidate.children()) {
            if (window.states().contains("showing"_L1)) {
                windows.prepend(window);
            }
        }
    }
    return windows;
}

void AccessibleDesktop::type(const QString &text) const
{
    sendKeys(0, text, kKeyString);
}

void AccessibleDesktop::pressKey(int keySymbol) const
{
    sendKeys(keySymbol, {}, kKeySymbol);
}

void AccessibleDesktop::sendKeys(int keySymbol, const QString &text, uint kind) const
{
    QDBusMessage request = QDBusMessage::createMethodCall(
        QString::fromLatin1(kRegistry), u"/org/a11y/atspi/registry/deviceeventcontroller"_s,
        u"org.a11y.atspi.DeviceEventController"_s, u"GenerateKeyboardEvent"_s);
    request.setArguments({keySymbol, text, kind});
    m_bus->call(request);
}
