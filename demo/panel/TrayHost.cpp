#include "TrayHost.h"

#include "TrayWatcher.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QDateTime>
#include <QEventLoop>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCallTimeoutMs = 5000;
constexpr QLatin1StringView kWatcherService{"org.kde.StatusNotifierWatcher"};
constexpr QLatin1StringView kWatcherPath{"/StatusNotifierWatcher"};
constexpr QLatin1StringView kItemInterface{"org.kde.StatusNotifierItem"};
constexpr QLatin1StringView kMenuInterface{"com.canonical.dbusmenu"};

QString hostService()
{
    return u"org.kde.StatusNotifierHost-%1"_s.arg(QCoreApplication::applicationPid());
}

QString pathOf(const QString &item)
{
    return item.mid(item.indexOf(u'/'));
}

/// "__" is an underscore, any other "_" marks the next letter.
QString withoutMnemonic(const QString &raw)
{
    QString label;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw.at(i) == u'_' && (++i == raw.size())) {
            break;
        }
        label += raw.at(i);
    }
    return label;
}

/// Reads an a(iiay): pictures as width, height and big-endian ARGB pixels.
QImage largestImage(const QDBusArgument &argument)
{
    QImage largest;
    argument.beginArray();
    while (!argument.atEnd()) {
        int width = 0;
        int height = 0;
        QByteArray pixels;
        argument.beginStructure();
        argument >> width >> height >> pixels;
        argument.endStructure();
        if (width <= largest.width() || pixels.size() != qsizetype{4} * width * height) {
            continue;
        }
        largest = QImage(width, height, QImage::Format_ARGB32);
        for (int y = 0; y < height; ++y) {
            qFromBigEndian<quint32>(pixels.constData() + qsizetype{4} * width * y, width,
                                    largest.scanLine(y));
        }
    }
    argument.endArray();
    return largest;
}

/// Reads an (ia{sv}av), a menu entry with the entries below it.
TrayMenuItem readEntry(const QDBusArgument &argument)
{
    TrayMenuItem entry;
    QVariantMap properties;
    argument.beginStructure();
    argument >> entry.id >> properties;
    entry.rawLabel = properties.value(u"label"_s).toString();
    entry.label = withoutMnemonic(entry.rawLabel);
    entry.enabled = properties.value(u"enabled"_s, true).toBool();
    entry.visible = properties.value(u"visible"_s, true).toBool();
    entry.checkable = !properties.value(u"toggle-type"_s).toString().isEmpty();
    entry.checked = properties.value(u"toggle-state"_s).toInt() == 1;
    entry.separator = properties.value(u"type"_s).toString() == "separator"_L1;
    entry.submenu = properties.value(u"children-display"_s).toString() == "submenu"_L1;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        entry.children += readEntry(child.variant().value<QDBusArgument>());
    }
    argument.endArray();
    argument.endStructure();
    return entry;
}

const TrayMenuItem *findClickable(const TrayMenuItem &entry, const QString &label)
{
    for (const TrayMenuItem &child : entry.children) {
        if (!child.visible || !child.enabled) {
            continue;
        }
        if (child.label == label) {
            return &child;
        }
        if (const TrayMenuItem *found = findClickable(child, label)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

const TrayMenuItem *TrayMenuItem::find(const QString &wanted) const
{
    if (label == wanted && !wanted.isEmpty()) {
        return this;
    }
    for (const TrayMenuItem &child : children) {
        if (const TrayMenuItem *found = child.find(wanted)) {
            return found;
        }
    }
    return nullptr;
}

QStringList TrayMenuItem::labels() const
{
    QStringList result;
    for (const TrayMenuItem &child : children) {
        if (child.visible) {
            result += child.separator ? u"-"_s : child.label;
        }
    }
    return result;
}

TrayHost::TrayHost()
    : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"tray-host"_s))
    , m_watcher(new TrayWatcher(m_bus)) // deleted by its thread
{
    // Registering gives the object a child, which has to move with it.
    m_bus.registerObject(kWatcherPath, m_watcher, QDBusConnection::ExportAllContents);
    m_watcher->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_watcher, &QObject::deleteLater);
    m_thread.start();
}

TrayHost::~TrayHost()
{
    stop();
    m_thread.quit();
    m_thread.wait();
    QDBusConnection::disconnectFromBus(u"tray-host"_s);
}

bool TrayHost::start()
{
    m_running = m_running || (m_bus.registerService(hostService()) &&
                              m_bus.registerService(QString(kWatcherService)));
    return m_running;
}

void TrayHost::stop()
{
    m_running = false;
    m_bus.unregisterService(QString(kWatcherService));
    m_bus.unregisterService(hostService());
    m_watcher->clear();
}

QStringList TrayHost::items() const
{
    return m_watcher->items();
}

QString TrayHost::orOldest(const QString &item) const
{
    return item.isEmpty() ? items().value(0) : item;
}

QDBusMessage TrayHost::call(const QString &item, const QString &path, const QString &interface,
                            const QString &method, const QVariantList &arguments)
{
    const QString service = TrayWatcher::serviceOf(orOldest(item));
    if (service.isEmpty() || path.isEmpty()) {
        return QDBusMessage::createError(QDBusError::ServiceUnknown, u"no tray icon"_s);
    }
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    // Icons of this process answer on this thread, so the wait handles events. Qt's own
    // BlockWithGui would wait for ever when the answer is there before its loop runs.
    const QDBusPendingCallWatcher answer(m_bus.asyncCall(message, kCallTimeoutMs));
    QEventLoop wait;
    QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &wait, &QEventLoop::quit);
    if (!answer.isFinished()) {
        wait.exec(QEventLoop::ExcludeUserInputEvents);
    }
    return answer.reply();
}

QDBusMessage TrayHost::callMenu(const QString &item, const QString &method,
                                const QVariantList &arguments)
{
    const QString path = property(u"Menu"_s, item).value<QDBusObjectPath>().path();
    return call(item, path, kMenuInterface, method, arguments);
}

QVariant TrayHost::property(const QString &name, const QString &item)
{
    const QDBusMessage reply =
        call(item, pathOf(orOldest(item)), u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
             {QString(kItemInterface), name});
    return reply.type() == QDBusMessage::ReplyMessage
               ? reply.arguments().value(0).value<QDBusVariant>().variant()
               : QVariant();
}

QString TrayHost::toolTip(const QString &item)
{
    const auto argument = property(u"ToolTip"_s, item).value<QDBusArgument>();
    if (argument.currentType() != QDBusArgument::StructureType) {
        return {};
    }
    QString iconName;
    QString title;
    argument.beginStructure();
    argument >> iconName;
    largestImage(argument);
    argument >> title;
    return title;
}

QImage TrayHost::icon(const QString &item)
{
    const auto argument = property(u"IconPixmap"_s, item).value<QDBusArgument>();
    return argument.currentType() == QDBusArgument::ArrayType ? largestImage(argument) : QImage();
}

bool TrayHost::press(QStringView method, const QString &item)
{
    return call(item, pathOf(orOldest(item)), kItemInterface, method.toString(), {0, 0}).type() ==
           QDBusMessage::ReplyMessage;
}

TrayMenuItem TrayHost::menu(const QString &item)
{
    const QDBusMessage reply = callMenu(item, u"GetLayout"_s, {0, -1, QStringList()});
    return reply.arguments().size() == 2
               ? readEntry(reply.arguments().constLast().value<QDBusArgument>())
               : TrayMenuItem();
}

bool TrayHost::aboutToShow(int id, const QString &item)
{
    return callMenu(item, u"AboutToShow"_s, {id}).arguments().value(0).toBool();
}

bool TrayHost::sendEvent(int id, const QString &event, const QString &item)
{
    const uint now = static_cast<uint>(QDateTime::currentSecsSinceEpoch());
    const QVariantList arguments{id, event, QVariant::fromValue(QDBusVariant(0)), now};
    return callMenu(item, u"Event"_s, arguments).type() == QDBusMessage::ReplyMessage;
}

bool TrayHost::click(const QString &label, const QString &item)
{
    const TrayMenuItem root = menu(item);
    const TrayMenuItem *entry = findClickable(root, label);
    return entry != nullptr && sendEvent(entry->id, u"clicked"_s, item);
}
