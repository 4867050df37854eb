#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

/// Which daemon answers, and whether it speaks this program's protocol.
struct VersionInfo
{
    bool reachable = false;
    bool compatible = true; ///< Never false because of a mere failure.
    QString version;
    QString apiVersion;

    bool operator==(const VersionInfo &) const = default;
};

/// The address of the service that the daemon talks to.
struct APIURLConfigInfo
{
    QString apiURL;
    bool validated = false;

    bool operator==(const APIURLConfigInfo &) const = default;
};

/// The daemon's auto-connect setting.
struct AutoConnectConfigInfo
{
    QString autoConnect;
    QString reconnectSource;
    QString reconnectTarget;

    bool operator==(const AutoConnectConfigInfo &) const = default;
};

/// A language that the daemon can show.
struct SupportedLanguage
{
    QString code;
    QString name;

    bool operator==(const SupportedLanguage &) const = default;
};

/// The daemon's language setting.
struct LanguageConfigInfo
{
    QString source;
    QString language;
    QString effectiveLanguage;
    QList<SupportedLanguage> supportedLanguages; ///< In the daemon's order.

    bool operator==(const LanguageConfigInfo &) const = default;
};

/// Where the daemon keeps its files.
struct ConfigPaths
{
    QString configDir;
    QString runtimeDir;
    QString logDir;
    QString stateFile;
    QString credentialsKeyFile;
    QString historyFile;
    QString profilesDir;
    QString socketPath;
    QString pidFile;
    QString controlAddr;

    bool operator==(const ConfigPaths &) const = default;
};

/// Outcome of one repair step.
struct RepairStep
{
    QString result;
    QString state;
    QString reason;

    bool operator==(const RepairStep &) const = default;
};

/// Outcome of the three repair steps; a step that was not reached is empty.
struct RepairResultInfo
{
    RepairStep killSwitch;
    RepairStep proxy;
    RepairStep vpn;

    bool operator==(const RepairResultInfo &) const = default;
};

Q_DECLARE_METATYPE(VersionInfo)
Q_DECLARE_METATYPE(APIURLConfigInfo)
Q_DECLARE_METATYPE(AutoConnectConfigInfo)
Q_DECLARE_METATYPE(LanguageConfigInfo)
Q_DECLARE_METATYPE(ConfigPaths)
Q_DECLARE_METATYPE(RepairResultInfo)
