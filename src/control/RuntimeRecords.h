#pragma once

#include "CatalogRecords.h"
#include "ModeRecords.h"

#include <QList>
#include <QMetaType>
#include <QString>

/// An address under which other programs reach the local proxy.
struct ProxyAccessURL
{
    QString kind;
    QString scheme;
    QString url;

    bool operator==(const ProxyAccessURL &) const = default;
};

/// State of the proxy auto-configuration file.
struct PACStatus
{
    QString state;
    QString path;

    bool operator==(const PACStatus &) const = default;
};

/// The daemon's status: what runs now and what is set.
struct RuntimeInfo
{
    QString daemonState;
    QString daemonVersion;
    QString apiURL;
    QString autoConnect;
    QString autoConnectState;
    QString language;
    QString languageSource;
    QString effectiveLanguage;
    QString catalogRefresh;
    QString authState;
    QString tunnelState;
    QString tunnelKind;
    QString tunnelReason;
    QString lastError;
    ModeInfo mode;
    QString connectedSource;
    QString connectedTarget;
    QString connectedSince; ///< ISO 8601, UTC.
    NodeReference selectedNode;
    NodeReference connectedNode;
    KillSwitchInfo killSwitch;
    QList<ProxyListener> proxyListeners;
    QList<ProxyAccessURL> proxyAccessURLs;
    PACStatus pacStatus;
    QString proxyAddress;
    int proxyPort = 0;
    QString activeListenerAddress;
    int activeListenerPort = 0;
    QString message;

    bool operator==(const RuntimeInfo &) const = default;
};

Q_DECLARE_METATYPE(RuntimeInfo)
