#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QMutex>
#include <QObject>
#include <QStringList>

/// The StatusNotifier watcher's object on the bus. Lives on the host's thread; items() and
/// clear() may be called from any.
class TrayWatcher final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(
        QStringList RegisteredStatusNotifierItems READ items NOTIFY StatusNotifierItemRegistered)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ isHostRegistered CONSTANT)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion CONSTANT)

public:
    /// The name on the bus of an item, which is that name plus an object path.
    static QString serviceOf(const QString &item) { return item.section(u'/', 0, 0); }

    explicit TrayWatcher(const QDBusConnection &bus)
        : m_services(this)
    {
        m_services.setConnection(bus);
        m_services.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
        connect(&m_services, &QDBusServiceWatcher::serviceUnregistered, this,
                &TrayWatcher::dropService);
    }

    QStringList items() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_items;
    }
    bool isHostRegistered() const { return true; }
    int protocolVersion() const { return 0; }

    void clear() { set({}); }

    // The names on the bus are these, capital letters included.
public Q_SLOTS:
    /// `service` is a name on the bus or, from some programs, only an object path.
    void RegisterStatusNotifierItem(const QString &service)
    {
        const bool isPath = service.startsWith(u'/');
        const QString owner = isPath ? message().service() : service;
        const QString item = owner + (isPath ? service : QStringLiteral("/StatusNotifierItem"));
        const QStringList known = items();
        if (!known.contains(item)) {
            set(known + QStringList(item));
            m_services.addWatchedService(owner);
            Q_EMIT StatusNotifierItemRegistered(item);
        }
    }
    void RegisterStatusNotifierHost(const QString &) { Q_EMIT StatusNotifierHostRegistered(); }

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString &item);
    void StatusNotifierItemUnregistered(const QString &item);
    void StatusNotifierHostRegistered();

private:
    void dropService(const QString &service)
    {
        m_services.removeWatchedService(service);
        QStringList left = items();
        const QStringList known = items();
        for (const QString &item : known) {
            if (serviceOf(item) == service && left.removeOne(item)) {
                set(left);
                Q_EMIT StatusNotifierItemUnregistered(item);
            }
        }
    }

    void set(const QStringList &items)
    {
        const QMutexLocker lock(&m_mutex);
        m_items = items;
    }

    QDBusServiceWatcher m_services;
    mutable QMutex m_mutex;
    QStringList m_items;
};
