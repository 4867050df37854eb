#include "AppState.h"

#include <algorithm>
#include <chrono>

namespace {

using namespace std::chrono_literals;
constexpr std::chrono::milliseconds kCooldownTick = 1s;

} // namespace

AppState::AppState(QObject *parent)
    : QObject(parent)
    , m_cooldownTimer(this)
{
    m_cooldownTimer.setInterval(kCooldownTick);
    connect(&m_cooldownTimer, &QTimer::timeout, this, &AppState::tickCooldown);
}

template<typename Record>
void AppState::store(Record &held, const Record &next, void (AppState::*changed)(const Record &))
{
    if (held != next) {
        held = next;
        Q_EMIT(this->*changed)(held);
    }
}

void AppState::setRuntime(const RuntimeInfo &runtime)
{
    store(m_runtime, runtime, &AppState::runtimeChanged);
}

void AppState::setUser(const UserInfo &user)
{
    store(m_user, user, &AppState::userChanged);
}

void AppState::setNodes(const NodesInfo &nodes)
{
    store(m_nodes, nodes, &AppState::nodesChanged);
}

void AppState::setNodeGroups(const NodeGroupsInfo &nodeGroups)
{
    store(m_nodeGroups, nodeGroups, &AppState::nodeGroupsChanged);
}

void AppState::setConfigPaths(const ConfigPaths &configPaths)
{
    store(m_configPaths, configPaths, &AppState::configPathsChanged);
}

void AppState::setKillSwitch(const KillSwitchInfo &killSwitch)
{
    store(m_killSwitch, killSwitch, &AppState::killSwitchChanged);
}

void AppState::setVersion(const VersionInfo &version)
{
    store(m_version, version, &AppState::versionChanged);
}

void AppState::setAPIURLConfig(const APIURLConfigInfo &apiURLConfig)
{
    store(m_apiURLConfig, apiURLConfig, &AppState::apiURLConfigChanged);
}

void AppState::setLanguageConfig(const LanguageConfigInfo &languageConfig)
{
    store(m_languageConfig, languageConfig, &AppState::languageConfigChanged);
}

void AppState::setUpdate(const UpdateInfo &update)
{
    store(m_update, update, &AppState::updateChanged);
}

void AppState::setSplitDNS(const SplitDNSInfo &splitDNS)
{
    store(m_splitDNS, splitDNS, &AppState::splitDNSChanged);
}

void AppState::setSplitRules(const SplitRulesInfo &splitRules)
{
    store(m_splitRules, splitRules, &AppState::splitRulesChanged);
}

void AppState::clearUser()
{
    setUser({});
}

void AppState::startNodesRefreshCooldown(int seconds)
{
    const int wanted = std::max(seconds, 0);
    const bool changed = wanted != m_cooldownSeconds;
    m_cooldownSeconds = wanted;
    if (wanted == 0) {
        m_cooldownTimer.stop();
    } else if (changed || !m_cooldownTimer.isActive()) {
        m_cooldownTimer.start();
    }
    if (changed) {
        Q_EMIT nodesRefreshCooldownChanged(m_cooldownSeconds);
    }
}

void AppState::tickCooldown()
{
    if (m_cooldownSeconds < 1) {
        m_cooldownTimer.stop();
        return;
    }
    --m_cooldownSeconds;
    if (m_cooldownSeconds == 0) {
        m_cooldownTimer.stop();
    }
    Q_EMIT nodesRefreshCooldownChanged(m_cooldownSeconds);
}
