// The shell's named slots: each hands its wish or answer on in a line.

#include "AccountController.h"
#include "AppState.h"
#include "CatalogController.h"
#include "FavoriteController.h"
#include "LanguageController.h"
#include "NodePingPoll.h"
#include "ProtectionController.h"
#include "ServiceCompatibility.h"
#include "SettingsController.h"
#include "SplitRulesController.h"
#include "UpdateController.h"
#include "VantuAppShell.h"
#include "WindowController.h"

void VantuAppShell::activateFromSecondary()
{
    m_windows->showOrRaise();
    m_updates->checkIfDue();
}

void VantuAppShell::activateFromApplication()
{
    m_windows->activateFromApplication();
}

void VantuAppShell::handleGUIRestartFailed()
{
    m_language->handleRestartFailed();
}

void VantuAppShell::refreshLocationsAfterGUIRestart()
{
    m_catalog->startWatch();
}

void VantuAppShell::connectRuntime()
{
    m_connection->connectRuntime(OperationOrigin::Window);
}

void VantuAppShell::connectRuntimeFromTray()
{
    m_connection->connectRuntime(OperationOrigin::Tray);
}

void VantuAppShell::cancelConnect()
{
    m_connection->cancel(OperationOrigin::Window);
}

void VantuAppShell::cancelConnectFromTray()
{
    m_connection->cancel(OperationOrigin::Tray);
}

void VantuAppShell::disconnectRuntime()
{
    m_connection->disconnectRuntime(OperationOrigin::Window);
}

void VantuAppShell::disconnectRuntimeFromTray()
{
    m_connection->disconnectRuntime(OperationOrigin::Tray);
}

void VantuAppShell::setModePreference(const ModeInfo &mode)
{
    m_protection->setMode(mode);
}

void VantuAppShell::setLocalNetworkPreference(const QString &value)
{
    m_protection->setLocalNetwork(value);
}

void VantuAppShell::refreshLocations()
{
    m_catalog->refresh();
}

void VantuAppShell::connectNode(const QString &nodeID, const QString &label)
{
    m_connection->connectNode(nodeID, label, OperationOrigin::Window);
}

void VantuAppShell::connectNodeFromTray(const QString &nodeID, const QString &label)
{
    m_connection->connectNode(nodeID, label, OperationOrigin::Tray);
}

void VantuAppShell::connectSmart(const QString &selector)
{
    m_connection->connectSmart(selector);
}

void VantuAppShell::setLocationFavorite(const QString &nodeID, bool favorite)
{
    m_favorites->setFavorite(nodeID, favorite);
}

void VantuAppShell::refreshModeSplitRules()
{
    m_splitRules->fetch();
}

void VantuAppShell::importModeSplitRules(const QString &kind, const QString &content)
{
    m_splitRules->import(kind, content);
}

void VantuAppShell::openLogs()
{
    m_settings->openLogs();
}

void VantuAppShell::refreshConfigPaths()
{
    m_settings->fetchConfigPaths(true);
}

void VantuAppShell::setSettingsAPIURL(const QString &apiURL)
{
    m_settings->setAPIURL(apiURL);
}

void VantuAppShell::resetSettingsAPIURL()
{
    m_settings->resetAPIURL();
}

void VantuAppShell::setSettingsAutoConnect(const QString &value)
{
    m_settings->setAutoConnect(value);
}

void VantuAppShell::setSettingsLanguage(const QString &source, const QString &language)
{
    m_language->change(source, language);
}

void VantuAppShell::checkSettingsUpdate()
{
    m_updates->checkNow();
}

void VantuAppShell::startGUIUpdateDownload()
{
    m_updates->startDownload();
}

void VantuAppShell::cancelGUIUpdateDownload()
{
    m_updates->cancelDownload();
}

void VantuAppShell::pollGUIUpdateDownload()
{
    m_updates->pollDownload();
}

void VantuAppShell::setSettingsKillSwitchEnabled(bool enabled)
{
    m_protection->setKillSwitchEnabled(enabled);
}

void VantuAppShell::setSettingsKillSwitchMode(const QString &mode)
{
    m_protection->setKillSwitchMode(mode);
}

void VantuAppShell::switchToAutoAndEnableKillSwitch()
{
    m_protection->switchToAutoAndEnableKillSwitch();
}

void VantuAppShell::chooseModeForKillSwitch()
{
    m_protection->chooseModeForKillSwitch();
}

void VantuAppShell::cancelPendingKillSwitchEnable()
{
    m_protection->cancelPendingKillSwitchEnable();
}

void VantuAppShell::setSettingsProxyListeners(const QString &socksAddress,
                                              const QString &httpAddress)
{
    m_settings->setProxyListeners(socksAddress, httpAddress);
}

void VantuAppShell::setSettingsSplitDNSLocal(const QStringList &servers)
{
    m_settings->setSplitDNSLocal(servers);
}

void VantuAppShell::setSettingsSplitDNSPolicy(const QString &policy)
{
    m_settings->setSplitDNSPolicy(policy);
}

void VantuAppShell::clearSettingsSplitDNSLocal()
{
    m_settings->clearSplitDNSLocal();
}

void VantuAppShell::resetSettingsSplitDNS()
{
    m_settings->resetSplitDNS();
}

void VantuAppShell::repairSettingsDiagnostics()
{
    m_settings->repair();
}

void VantuAppShell::setSettingsSystemProxyPreference(const QString &value)
{
    m_protection->setSystemProxy(value);
}

void VantuAppShell::loginAccount(const QString &username, const QString &password, bool rememberMe)
{
    m_account->login(username, password, rememberMe);
}

void VantuAppShell::logoutAccount()
{
    m_account->logout(OperationOrigin::Window);
}

void VantuAppShell::logoutAccountFromTray()
{
    m_account->logout(OperationOrigin::Tray);
}

void VantuAppShell::requestPurchaseURL(const QString &lang)
{
    m_account->openRenewal(lang);
}

void VantuAppShell::pollWindowNodePing()
{
    m_pings->poll();
}

void VantuAppShell::pollWindowCatalogRefresh()
{
    m_catalog->pollWatch();
}

void VantuAppShell::handleWindowStatusFinished(quint64 requestId, const RuntimeInfo &info,
                                               const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_catalog->handleStatus(info, errorMessage);
    }
}

void VantuAppShell::handleWindowNodesFinished(quint64 requestId, const NodesInfo &info,
                                              const QString &errorMessage)
{
    const auto request = m_link.take(requestId);
    if (request == ControlRequest::SetNodeFavorite) {
        m_favorites->handleFavorite(info, errorMessage);
    } else if (request) {
        m_catalog->handleNodes(requestId, info, errorMessage);
    }
}

void VantuAppShell::handleWindowNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &info,
                                                   const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_catalog->handleNodeGroups(info, errorMessage);
    }
}

void VantuAppShell::handleWindowConnectFinished(quint64 requestId, const RuntimeInfo &info,
                                                const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_connection->handleConnect(requestId, *request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                                   const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_connection->handleDisconnect(requestId, info, errorMessage);
    }
}

void VantuAppShell::handleWindowModeFinished(quint64 requestId, const ModeInfo &info,
                                             const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_protection->handleMode(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowVersionFinished(quint64 requestId, const VersionInfo &info,
                                                const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_compatibility->handleVersion(info, errorMessage);
    }
}

void VantuAppShell::handleWindowAPIURLFinished(quint64 requestId, const APIURLConfigInfo &info,
                                               const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_settings->handleAPIURL(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowAutoConnectFinished(quint64 requestId,
                                                    const AutoConnectConfigInfo &info,
                                                    const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_settings->handleAutoConnect(info, errorMessage);
    }
}

void VantuAppShell::handleWindowLanguageFinished(quint64 requestId, const LanguageConfigInfo &info,
                                                 const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_language->handleLanguage(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowUpdateFinished(quint64 requestId, const UpdateInfo &info,
                                               const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_updates->handleUpdate(info, errorMessage);
    }
}

void VantuAppShell::handleGUIUpdateDownloadFinished(quint64 requestId,
                                                    const GUIUpdateDownloadInfo &info,
                                                    const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_updates->handleDownload(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowProxyListenFinished(quint64 requestId,
                                                    const ProxyListenResultInfo &info,
                                                    const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_settings->handleProxyListen(info, errorMessage);
    }
}

void VantuAppShell::handleWindowSplitDNSFinished(quint64 requestId, const SplitDNSInfo &info,
                                                 const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_settings->handleSplitDNS(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowSplitRulesFinished(quint64 requestId, const SplitRulesInfo &info,
                                                   const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_splitRules->handleRules(info, errorMessage);
    }
}

void VantuAppShell::handleWindowSplitRuleImportFinished(quint64 requestId,
                                                        const SplitRuleMutationInfo &info,
                                                        const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_splitRules->handleImport(info, errorMessage);
    }
}

void VantuAppShell::handleWindowRepairFinished(quint64 requestId, const RepairResultInfo &info,
                                               const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_settings->handleRepair(info, errorMessage);
    }
}

void VantuAppShell::handleWindowConfigPathsFinished(quint64 requestId, const ConfigPaths &info,
                                                    const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_settings->handleConfigPaths(info, errorMessage);
    }
}

void VantuAppShell::handleWindowKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                                   const QString &errorMessage)
{
    if (const auto request = m_link.take(requestId)) {
        m_protection->handleKillSwitch(*request, info, errorMessage);
    }
}

void VantuAppShell::handleWindowLoginFinished(quint64 requestId, const RuntimeInfo &info,
                                              const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_account->handleLogin(info, errorMessage);
    }
}

void VantuAppShell::handleWindowLogoutFinished(quint64 requestId, const RuntimeInfo &info,
                                               const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_account->handleLogout(requestId, info, errorMessage);
    }
}

void VantuAppShell::handleWindowUserFinished(quint64 requestId, const UserInfo &info,
                                             const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_account->handleUser(info, errorMessage);
    }
}

void VantuAppShell::handleWindowPurchaseURLFinished(quint64 requestId, const PurchaseURLInfo &info,
                                                    const QString &errorMessage)
{
    if (m_link.take(requestId)) {
        m_account->handlePurchaseURL(info, errorMessage);
    }
}
