#pragma once

#include "ControlRecords.h"

#include <QObject>
#include <QTimer>

/// The one observable copy of what the daemon last reported.
///
/// Owned by the shell. Whoever takes an answer of the daemon writes it, which is the shell
/// with its concerns and the tray; the pages only read it and redraw on its signals. Lives
/// on the GUI thread. A setter emits only when the value differs in any field from the one
/// held, so that an unchanged poll answer redraws nothing.
class AppState final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppState)

public:
    /// Seconds for which a locations refresh is held back after one succeeded.
    static constexpr int kNodesRefreshCooldownSeconds = 60;

    explicit AppState(QObject *parent = nullptr);

    const RuntimeInfo &runtime() const { return m_runtime; }
    const UserInfo &user() const { return m_user; }
    const NodesInfo &nodes() const { return m_nodes; }
    const NodeGroupsInfo &nodeGroups() const { return m_nodeGroups; }
    const ConfigPaths &configPaths() const { return m_configPaths; }
    const KillSwitchInfo &killSwitch() const { return m_killSwitch; }
    const VersionInfo &version() const { return m_version; }
    const APIURLConfigInfo &apiURLConfig() const { return m_apiURLConfig; }
    const LanguageConfigInfo &languageConfig() const { return m_languageConfig; }
    const UpdateInfo &update() const { return m_update; }
    const SplitDNSInfo &splitDNS() const { return m_splitDNS; }
    const SplitRulesInfo &splitRules() const { return m_splitRules; }

    /// Whole seconds for which "refresh locations" is still held back; 0 when it
    /// is free.
    int nodesRefreshCooldown() const { return m_cooldownSeconds; }

Q_SIGNALS:
    void runtimeChanged(const RuntimeInfo &runtime);
    void userChanged(const UserInfo &user);
    void nodesChanged(const NodesInfo &nodes);
    void nodeGroupsChanged(const NodeGroupsInfo &nodeGroups);
    void configPathsChanged(const ConfigPaths &configPaths);
    void killSwitchChanged(const KillSwitchInfo &killSwitch);
    void versionChanged(const VersionInfo &version);
    void apiURLConfigChanged(const APIURLConfigInfo &apiURLConfig);
    void languageConfigChanged(const LanguageConfigInfo &languageConfig);
    void updateChanged(const UpdateInfo &update);
    void splitDNSChanged(const SplitDNSInfo &splitDNS);
    void splitRulesChanged(const SplitRulesInfo &splitRules);
    void nodesRefreshCooldownChanged(int secondsRemaining);

public Q_SLOTS:
    void setRuntime(const RuntimeInfo &runtime);
    void setUser(const UserInfo &user);
    void setNodes(const NodesInfo &nodes);
    void setNodeGroups(const NodeGroupsInfo &nodeGroups);
    void setConfigPaths(const ConfigPaths &configPaths);
    void setKillSwitch(const KillSwitchInfo &killSwitch);
    void setVersion(const VersionInfo &version);
    void setAPIURLConfig(const APIURLConfigInfo &apiURLConfig);
    void setLanguageConfig(const LanguageConfigInfo &languageConfig);
    void setUpdate(const UpdateInfo &update);
    void setSplitDNS(const SplitDNSInfo &splitDNS);
    void setSplitRules(const SplitRulesInfo &splitRules);

    /// Holds refreshes back for `seconds` (a negative number counts as 0, which
    /// ends the cool-down) and counts down once a second.
    void startNodesRefreshCooldown(int seconds = kNodesRefreshCooldownSeconds);

    /// Forgets the user, on sign-out.
    void clearUser();

private:
    template<typename Record>
    void store(Record &held, const Record &next, void (AppState::*changed)(const Record &));
    void tickCooldown();

    RuntimeInfo m_runtime;
    UserInfo m_user;
    NodesInfo m_nodes;
    NodeGroupsInfo m_nodeGroups;
    ConfigPaths m_configPaths;
    KillSwitchInfo m_killSwitch;
    VersionInfo m_version;
    APIURLConfigInfo m_apiURLConfig;
    LanguageConfigInfo m_languageConfig;
    UpdateInfo m_update;
    SplitDNSInfo m_splitDNS;
    SplitRulesInfo m_splitRules;
    int m_cooldownSeconds = 0;
    QTimer m_cooldownTimer;
};
