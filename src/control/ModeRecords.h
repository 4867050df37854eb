#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// How a split mode divides traffic. The same members are read from the daemon
/// and written by a mode request.
struct SplitProfile
{
    bool present = false; ///< The daemon (or a request) gave a profile at all.
    QString defaultRoute; ///< "tunnel" or "direct"; "proxy" or "direct" for the proxy.
    QStringList directRegions;
    QStringList proxyRegions;
    bool gfwList = false;
    QString lanRouting;
    bool customRules = false;

    bool operator==(const SplitProfile &) const = default;
};

/// The connection mode. Also the request of a mode change: a request is built
/// from an empty record and carries only the members that it sets.
struct ModeInfo
{
    bool known = false; ///< The daemon gave a mode; false on a default record.
    QString transport;
    QString policy;
    QString region;
    QString systemProxy;
    int pacPort = 0;
    QString pacVersion;
    bool proxyLAN = false;
    QString localNetwork; ///< "direct" or "protected", trimmed.
    SplitProfile splitProfile;
    QString lastVantuVPNPolicy;
    SplitProfile lastVantuVPNSplitProfile;
    SplitProfile proxySplitProfile;
    QString lastProxyPolicy;
    SplitProfile lastProxySplitProfile;

    bool operator==(const ModeInfo &) const = default;
};

/// The kill switch.
struct KillSwitchInfo
{
    bool known = false; ///< The daemon gave a kill-switch record.
    bool enabled = false;
    QString mode; ///< "off", "on" or "lockdown".
    QString guard;
    QString platform;
    QString blockMode;
    bool allowLAN = false;
    QString lanPolicy;
    QStringList lanDiscovery;
    QString lastError;

    bool operator==(const KillSwitchInfo &) const = default;
};

/// An address on which the local proxy listens.
struct ProxyListener
{
    QString name;
    QString scheme;
    QString address;

    bool operator==(const ProxyListener &) const = default;
};

/// Answer to a change of the listen addresses.
struct ProxyListenResultInfo
{
    bool appliesOnReconnect = false;
    QList<ProxyListener> proxyListeners;

    bool operator==(const ProxyListenResultInfo &) const = default;
};

Q_DECLARE_METATYPE(ModeInfo)
Q_DECLARE_METATYPE(KillSwitchInfo)
Q_DECLARE_METATYPE(ProxyListenResultInfo)
