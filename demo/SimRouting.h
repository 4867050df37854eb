#pragma once

#include "SimReply.h"
#include "SimScenario.h"

#include <QJsonObject>
#include <QString>

/// Mode, kill switch, local network and system proxy, and the rules between them:
/// Lockdown allows only global VPN routing and a protected local network, and the
/// kill switch and the local proxy exclude each other. A request that breaks a
/// rule changes nothing. Not thread-safe.
class SimRouting final
{
public:
    explicit SimRouting(const SimScenario &scenario);

    /// Takes the body of a mode request. A profile that is sent replaces the
    /// stored one; members that are absent leave the rest as it is.
    SimRefusal setMode(const QJsonObject &request);

    SimRefusal setKillSwitch(const QString &mode);
    SimRefusal setLocalNetwork(const QString &value);
    SimRefusal setSystemProxy(const QString &value);
    SimRefusal setProxyLan(const QString &value);

    bool isProxy() const { return m_transport == QLatin1String("proxy"); }
    bool isVpnSplit() const;
    bool isProxySplit() const;
    QString transport() const { return m_transport; }
    QString killSwitch() const { return m_killSwitch; }

    /// Whether the split profile in force sends China direct.
    bool sendsChinaDirect() const;

    /// The mode without what the local proxy adds to it.
    QJsonObject modeJson() const;
    QJsonObject killSwitchJson() const;

private:
    bool isLockdown() const { return m_killSwitch == QLatin1String("lockdown"); }
    SimRefusal checkMode(const QString &transport, const QString &policy,
                         const QJsonObject &request) const;

    QString m_transport;
    QString m_region;
    QString m_vpnPolicy;
    QString m_proxyPolicy;
    QJsonObject m_vpnProfile;
    QJsonObject m_proxyProfile;
    QString m_systemProxy;
    QString m_localNetwork;
    QString m_killSwitch;
    bool m_proxyLan = false;
};
