#pragma once

#include "ConnectController.h"
#include "ControlRecords.h"
#include "GuiPreferences.h"
#include "RequestLink.h"

#include <QObject>
#include <QString>

#include <memory>

class AccountController;
class AppState;
class CatalogController;
class ControlWorkerPool;
class FavoriteController;
class LanguageController;
class NodePingPoll;
class NoticeSink;
class ProtectionController;
class RecentActivityStore;
class ServiceCompatibility;
class SettingsController;
class SharedTheme;
class SplitRulesController;
class UpdateController;
class VantuTrayApp;
class WindowController;

/// Where all roads of the program meet: it makes the parts, connects them, and hands
/// each wish of the user and each answer of the daemon to the part that knows what to
/// do with it.
///
/// Lives on the GUI thread from after the translation is installed until after the
/// event loop; destroying it stops the workers.
class VantuAppShell final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VantuAppShell)

public:
    /// An empty `socketName` means the daemon's own socket.
    explicit VantuAppShell(const QString &socketName = {},
                           std::unique_ptr<GuiPreferences> preferences = {});
    ~VantuAppShell() override;

    /// The language that the texts were loaded in, normalised.
    void setLoadedLanguage(const QString &code);
    /// False in a process that was itself started for a new language.
    void setLanguageRestartAllowed(bool allowed);
    /// The desktop started the program at login.
    void setLoginStartup(bool loginStartup) { m_loginStartup = loginStartup; }

    /// Shows the tray icon and perhaps the window, and begins to talk to the daemon.
    /// Called once, after the setters.
    void start();

    /// The one way out: lets the window close for good, then asks for the end.
    void quit();

    AppState &state() { return *m_state; }
    VantuTrayApp &tray() { return *m_tray; }
    WindowController &windows() { return *m_windows; }

Q_SIGNALS:
    /// The program must be started anew for another language.
    void restartRequested();
    /// The event loop is to be left.
    void exitRequested();

public Q_SLOTS:
    void activateFromSecondary();
    void activateFromApplication();
    void handleGUIRestartFailed();
    void refreshLocationsAfterGUIRestart();
    void connectRuntime();
    void connectRuntimeFromTray();
    void cancelConnect();
    void cancelConnectFromTray();
    void disconnectRuntime();
    void disconnectRuntimeFromTray();
    void setModePreference(const ModeInfo &mode);
    void setLocalNetworkPreference(const QString &value);
    void refreshLocations();
    void connectNode(const QString &nodeID, const QString &label);
    void connectNodeFromTray(const QString &nodeID, const QString &label);
    void connectSmart(const QString &selector);
    void setLocationFavorite(const QString &nodeID, bool favorite);
    void refreshModeSplitRules();
    void importModeSplitRules(const QString &kind, const QString &content);
    void openLogs();
    void refreshConfigPaths();
    void setSettingsAPIURL(const QString &apiURL);
    void resetSettingsAPIURL();
    void setSettingsAutoConnect(const QString &value);
    void setSettingsLanguage(const QString &source, const QString &language);
    void checkSettingsUpdate();
    void startGUIUpdateDownload();
    void cancelGUIUpdateDownload();
    void pollGUIUpdateDownload();
    void setSettingsKillSwitchEnabled(bool enabled);
    void setSettingsKillSwitchMode(const QString &mode);
    void switchToAutoAndEnableKillSwitch();
    void chooseModeForKillSwitch();
    void cancelPendingKillSwitchEnable();
    void setSettingsProxyListeners(const QString &socksAddress, const QString &httpAddress);
    void setSettingsSplitDNSLocal(const QStringList &servers);
    void setSettingsSplitDNSPolicy(const QString &policy);
    void clearSettingsSplitDNSLocal();
    void resetSettingsSplitDNS();
    void repairSettingsDiagnostics();
    void setSettingsSystemProxyPreference(const QString &value);
    void loginAccount(const QString &username, const QString &password, bool rememberMe);
    void logoutAccount();
    void logoutAccountFromTray();
    void requestPurchaseURL(const QString &lang);
    void pollWindowNodePing();
    void pollWindowCatalogRefresh();

    // One slot for each kind of answer; an answer that nobody awaits is dropped.
    void handleWindowStatusFinished(quint64 requestId, const RuntimeInfo &info,
                                    const QString &errorMessage);
    void handleWindowNodesFinished(quint64 requestId, const NodesInfo &info,
                                   const QString &errorMessage);
    void handleWindowNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &info,
                                        const QString &errorMessage);
    void handleWindowConnectFinished(quint64 requestId, const RuntimeInfo &info,
                                     const QString &errorMessage);
    void handleWindowDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                        const QString &errorMessage);
    void handleWindowModeFinished(quint64 requestId, const ModeInfo &info,
                                  const QString &errorMessage);
    void handleWindowVersionFinished(quint64 requestId, const VersionInfo &info,
                                     const QString &errorMessage);
    void handleWindowAPIURLFinished(quint64 requestId, const APIURLConfigInfo &info,
                                    const QString &errorMessage);
    void handleWindowAutoConnectFinished(quint64 requestId, const AutoConnectConfigInfo &info,
                                         const QString &errorMessage);
    void handleWindowLanguageFinished(quint64 requestId, const LanguageConfigInfo &info,
                                      const QString &errorMessage);
    void handleWindowUpdateFinished(quint64 requestId, const UpdateInfo &info,
                                    const QString &errorMessage);
    void handleGUIUpdateDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                         const QString &errorMessage);
    void handleWindowProxyListenFinished(quint64 requestId, const ProxyListenResultInfo &info,
                                         const QString &errorMessage);
    void handleWindowSplitDNSFinished(quint64 requestId, const SplitDNSInfo &info,
                                      const QString &errorMessage);
    void handleWindowSplitRulesFinished(quint64 requestId, const SplitRulesInfo &info,
                                        const QString &errorMessage);
    void handleWindowSplitRuleImportFinished(quint64 requestId, const SplitRuleMutationInfo &info,
                                             const QString &errorMessage);
    void handleWindowRepairFinished(quint64 requestId, const RepairResultInfo &info,
                                    const QString &errorMessage);
    void handleWindowConfigPathsFinished(quint64 requestId, const ConfigPaths &info,
                                         const QString &errorMessage);
    void handleWindowKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                        const QString &errorMessage);
    void handleWindowLoginFinished(quint64 requestId, const RuntimeInfo &info,
                                   const QString &errorMessage);
    void handleWindowLogoutFinished(quint64 requestId, const RuntimeInfo &info,
                                    const QString &errorMessage);
    void handleWindowUserFinished(quint64 requestId, const UserInfo &info,
                                  const QString &errorMessage);
    void handleWindowPurchaseURLFinished(quint64 requestId, const PurchaseURLInfo &info,
                                         const QString &errorMessage);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeConcerns();
    void connectWorkers();
    void connectTray();
    void connectWindows();
    void connectSettings();
    void connectConcerns();
    void connectBusyConcerns();
    void connectUpdates();

    void noteStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void noteNodes(quint64 requestId, const NodesInfo &nodes, const QString &errorMessage);
    void publishAvailability();
    void publishExternalBusy();
    void handleOperationChanged();
    void publishActivity();
    void refetchSettings();
    void refetchAll();
    void handleConnectStarted(ConnectController::Kind kind, quint64 requestId,
                              OperationOrigin origin, const QString &label);
    void handleConnectEnded(ConnectController::Kind kind, quint64 requestId,
                            const RuntimeInfo &info, const QString &failure);
    void rememberConnectedNode(const RuntimeInfo &info);
    /// The daemon is there and no operation runs, whoever began it.
    bool isIdle() const;

    // In the order of creation; destroyed the other way round.
    std::unique_ptr<ControlWorkerPool> m_pool;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<GuiPreferences> m_preferences;
    std::unique_ptr<RecentActivityStore> m_recent;
    std::unique_ptr<SharedTheme> m_theme;
    std::unique_ptr<VantuTrayApp> m_tray;
    std::unique_ptr<WindowController> m_windows;
    std::unique_ptr<NoticeSink> m_notices;
    RequestLink m_link;
    std::unique_ptr<ServiceCompatibility> m_compatibility;
    std::unique_ptr<UpdateController> m_updates;
    std::unique_ptr<ConnectController> m_connection;
    std::unique_ptr<CatalogController> m_catalog;
    std::unique_ptr<FavoriteController> m_favorites;
    std::unique_ptr<NodePingPoll> m_pings;
    std::unique_ptr<ProtectionController> m_protection;
    std::unique_ptr<AccountController> m_account;
    std::unique_ptr<LanguageController> m_language;
    std::unique_ptr<SettingsController> m_settings;
    std::unique_ptr<SplitRulesController> m_splitRules;

    bool m_loginStartup = false;
    bool m_statusReceived = false;
    bool m_refreshingLocations = false;
    bool m_checkingUpdate = false;
    QString m_statusError;
};
