#pragma once

#include "SimReply.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

/// The local proxy's listeners: what is configured, what is in use since the last
/// connect, and the addresses and PAC file that follow from it. Not thread-safe.
class SimProxy final
{
public:
    SimProxy();

    /// Takes a list of listeners; an empty list brings the defaults back.
    SimRefusal setListeners(const QJsonArray &listeners);

    /// A connection starts: the configured listeners come into use.
    void activate() { m_active = m_configured; }

    /// Rules or listeners changed, so clients have to fetch the PAC file anew.
    void renewPac() { ++m_pacVersion; }

    QJsonArray listenersJson() const;

    /// Adds the PAC members to a mode.
    void addToMode(QJsonObject &mode) const;

    /// Adds listeners, addresses and PAC state to a status.
    void addToStatus(QJsonObject &status, bool running, bool pacServed,
                     const QString &pacPath) const;

private:
    struct Listener
    {
        QString name;
        QString scheme;
        QString host;
        int port = 0;
    };

    static const Listener *byScheme(const QList<Listener> &listeners, const QString &scheme);

    QList<Listener> m_configured;
    QList<Listener> m_active;
    int m_pacVersion = 1;
};
