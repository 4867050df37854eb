// How the shell's parts are connected.

#include "AccountController.h"
#include "CatalogController.h"
#include "ControlWorker.h"
#include "ControlWorkerPool.h"
#include "FavoriteController.h"
#include "LanguageController.h"
#include "NodePingPoll.h"
#include "NoticeSink.h"
#include "ProtectionController.h"
#include "ServiceCompatibility.h"
#include "SettingsController.h"
#include "SplitRulesController.h"
#include "UpdateController.h"
#include "VantuAppShell.h"
#include "VantuTrayApp.h"
#include "WindowController.h"

#include <QGuiApplication>

void VantuAppShell::connectWorkers()
{
    using Shell = VantuAppShell;
    using Worker = ControlWorker;
    // Which worker carries a request is the link's business, so that every answer of
    // every worker is listened to.
    for (ControlWorker *worker : m_pool->workers()) {
        connect(worker, &Worker::statusFinished, this, &Shell::handleWindowStatusFinished);
        connect(worker, &Worker::versionFinished, this, &Shell::handleWindowVersionFinished);
        connect(worker, &Worker::apiURLFinished, this, &Shell::handleWindowAPIURLFinished);
        connect(worker, &Worker::languageFinished, this, &Shell::handleWindowLanguageFinished);
        connect(worker, &Worker::updateFinished, this, &Shell::handleWindowUpdateFinished);
        connect(worker, &Worker::userFinished, this, &Shell::handleWindowUserFinished);
        connect(worker, &Worker::nodesFinished, this, &Shell::handleWindowNodesFinished);
        connect(worker, &Worker::nodeGroupsFinished, this, &Shell::handleWindowNodeGroupsFinished);
        connect(worker, &Worker::configPathsFinished, this,
                &Shell::handleWindowConfigPathsFinished);
        connect(worker, &Worker::killSwitchFinished, this, &Shell::handleWindowKillSwitchFinished);
        connect(worker, &Worker::connectFinished, this, &Shell::handleWindowConnectFinished);
        connect(worker, &Worker::disconnectFinished, this, &Shell::handleWindowDisconnectFinished);
        connect(worker, &Worker::loginFinished, this, &Shell::handleWindowLoginFinished);
        connect(worker, &Worker::logoutFinished, this, &Shell::handleWindowLogoutFinished);
        connect(worker, &Worker::modeFinished, this, &Shell::handleWindowModeFinished);
        connect(worker, &Worker::autoConnectFinished, this,
                &Shell::handleWindowAutoConnectFinished);
        connect(worker, &Worker::updateDownloadFinished, this,
                &Shell::handleGUIUpdateDownloadFinished);
        connect(worker, &Worker::proxyListenFinished, this,
                &Shell::handleWindowProxyListenFinished);
        connect(worker, &Worker::splitDNSFinished, this, &Shell::handleWindowSplitDNSFinished);
        connect(worker, &Worker::splitRulesFinished, this, &Shell::handleWindowSplitRulesFinished);
        connect(worker, &Worker::splitRuleImportFinished, this,
                &Shell::handleWindowSplitRuleImportFinished);
        connect(worker, &Worker::repairFinished, this, &Shell::handleWindowRepairFinished);
        connect(worker, &Worker::purchaseURLFinished, this,
                &Shell::handleWindowPurchaseURLFinished);
    }
    // Last, so that the store holds the answer already.
    connect(&m_link.worker(WorkerLane::Reads), &Worker::statusFinished, this, &Shell::noteStatus);
    connect(&m_link.worker(WorkerLane::Reads), &Worker::nodesFinished, this, &Shell::noteNodes);
}

void VantuAppShell::connectTray()
{
    using Shell = VantuAppShell;
    using Tray = VantuTrayApp;
    VantuTrayApp *tray = m_tray.get();
    WindowController *windows = m_windows.get();
    // A tray that comes late: from now on the window can be hidden.
    connect(tray, &Tray::iconShown, windows, [windows] { windows->setHideToTray(true); });
    connect(tray, &Tray::openVantuRequested, windows, &WindowController::showOrRaise);
    connect(tray, &Tray::openLocationsRequested, windows, &WindowController::showLocations);
    connect(tray, &Tray::accountRequested, windows, &WindowController::showAccount);
    connect(tray, &Tray::openKillSwitchSettingsRequested, windows,
            &WindowController::showKillSwitchSettings);
    connect(tray, &Tray::logoutRequested, this, &Shell::logoutAccountFromTray);
    connect(tray, &Tray::connectRuntimeRequested, this, &Shell::connectRuntimeFromTray);
    connect(tray, &Tray::cancelConnectRequested, this, &Shell::cancelConnectFromTray);
    connect(tray, &Tray::disconnectRuntimeRequested, this, &Shell::disconnectRuntimeFromTray);
    connect(tray, &Tray::connectNodeRequested, this, &Shell::connectNodeFromTray);
    connect(tray, &Tray::switchToAutoAndEnableKillSwitchRequested, this,
            &Shell::switchToAutoAndEnableKillSwitch);
    connect(tray, &Tray::chooseModeForKillSwitchRequested, this, &Shell::chooseModeForKillSwitch);
    connect(tray, &Tray::quitRequested, this, &Shell::quit);
    // Follows every change that the tray made itself.
    connect(tray, &Tray::statusPolled, this, [this](bool succeeded) {
        m_protection->resumePendingKillSwitchEnable();
        if (succeeded) {
            m_catalog->fetchMissed();
            m_settings->fetchOutdated();
        }
    });
}

void VantuAppShell::connectWindows()
{
    using Shell = VantuAppShell;
    using Windows = WindowController;
    WindowController *windows = m_windows.get();
    connect(windows, &Windows::connectRuntimeRequested, this, &Shell::connectRuntime);
    connect(windows, &Windows::cancelConnectRequested, this, &Shell::cancelConnect);
    connect(windows, &Windows::disconnectRuntimeRequested, this, &Shell::disconnectRuntime);
    connect(windows, &Windows::connectNodeRequested, this, &Shell::connectNode);
    connect(windows, &Windows::connectSmartRequested, this, &Shell::connectSmart);
    connect(windows, &Windows::setModeRequested, this, &Shell::setModePreference);
    connect(windows, &Windows::setLocalNetworkRequested, this, &Shell::setLocalNetworkPreference);
    connect(windows, &Windows::setSystemProxyRequested, this,
            &Shell::setSettingsSystemProxyPreference);
    connect(windows, &Windows::setKillSwitchEnabledRequested, this,
            &Shell::setSettingsKillSwitchEnabled);
    connect(windows, &Windows::setKillSwitchModeRequested, this, &Shell::setSettingsKillSwitchMode);
    connect(windows, &Windows::switchToAutoAndEnableKillSwitchRequested, this,
            &Shell::switchToAutoAndEnableKillSwitch);
    connect(windows, &Windows::chooseModeForKillSwitchRequested, this,
            &Shell::chooseModeForKillSwitch);
    connect(windows, &Windows::modePageLeft, this, &Shell::cancelPendingKillSwitchEnable);
    connect(windows, &Windows::setNodeFavoriteRequested, this, &Shell::setLocationFavorite);
    connect(windows, &Windows::showingPlacesChanged, m_pings.get(), &NodePingPoll::setWatched);
    connect(windows, &Windows::refreshLocationsRequested, this, &Shell::refreshLocations);
    connect(windows, &Windows::loginRequested, this, &Shell::loginAccount);
    connect(windows, &Windows::logoutRequested, this, &Shell::logoutAccount);
    connect(windows, &Windows::purchaseURLRequested, this, &Shell::requestPurchaseURL);
    connect(windows, &Windows::splitRulesRequested, this, &Shell::refreshModeSplitRules);
    connect(windows, &Windows::importSplitRulesRequested, this, &Shell::importModeSplitRules);
    connectSettings();
    connect(windows, &Windows::recentConnectionsCleared, m_tray.get(),
            &VantuTrayApp::recentNodesChanged);
    connect(windows, &Windows::connectRefused, m_notices.get(), &NoticeSink::pleaseWait);
    // Queued, because a window can't be closed for good while it refuses to close.
    connect(windows, &Windows::quitRequested, this, &Shell::quit, Qt::QueuedConnection);
    connect(windows, &Windows::forceUpdateExitRequested, this, &Shell::quit);
    // Sees every end of the event loop come, whoever asked for it.
    qApp->installEventFilter(this);
}

void VantuAppShell::connectSettings()
{
    using Shell = VantuAppShell;
    using Windows = WindowController;
    WindowController *windows = m_windows.get();
    connect(windows, &Windows::settingsVisibleRequested, this, &Shell::refetchSettings);
    connect(windows, &Windows::openLogsRequested, this, &Shell::openLogs);
    connect(windows, &Windows::setAPIURLRequested, this, &Shell::setSettingsAPIURL);
    connect(windows, &Windows::resetAPIURLRequested, this, &Shell::resetSettingsAPIURL);
    connect(windows, &Windows::setAutoConnectRequested, this, &Shell::setSettingsAutoConnect);
    connect(windows, &Windows::setLanguageRequested, this, &Shell::setSettingsLanguage);
    connect(windows, &Windows::setProxyListenersRequested, this, &Shell::setSettingsProxyListeners);
    connect(windows, &Windows::setSplitDNSLocalRequested, this, &Shell::setSettingsSplitDNSLocal);
    connect(windows, &Windows::setSplitDNSPolicyRequested, this, &Shell::setSettingsSplitDNSPolicy);
    connect(windows, &Windows::clearSplitDNSLocalRequested, this,
            &Shell::clearSettingsSplitDNSLocal);
    connect(windows, &Windows::resetSplitDNSRequested, this, &Shell::resetSettingsSplitDNS);
    connect(windows, &Windows::repairDiagnosticsRequested, this, &Shell::repairSettingsDiagnostics);
    connect(windows, &Windows::checkUpdateRequested, this, &Shell::checkSettingsUpdate);
    connect(windows, &Windows::updateDownloadRequested, this, &Shell::startGUIUpdateDownload);
    connect(windows, &Windows::updateDownloadCancelRequested, this,
            &Shell::cancelGUIUpdateDownload);
}

void VantuAppShell::connectConcerns()
{
    using Shell = VantuAppShell;
    connect(m_notices.get(), &NoticeSink::noticeRequested, m_windows.get(),
            &WindowController::showNotice);
    connect(m_notices.get(), &NoticeSink::failed, m_windows.get(), &WindowController::showError);
    connect(m_notices.get(), &NoticeSink::attentionRequested, m_windows.get(),
            &WindowController::showOrRaise);

    connect(m_compatibility.get(), &ServiceCompatibility::stateChanged, this, [this] {
        m_tray->setDaemonAvailable(m_compatibility->isAvailable(), m_compatibility->reason(),
                                   m_compatibility->state() ==
                                       ServiceCompatibility::State::Checking);
        publishAvailability();
    });
    connect(m_compatibility.get(), &ServiceCompatibility::serviceFound, this, &Shell::refetchAll);

    connect(m_connection.get(), &ConnectController::started, this, &Shell::handleConnectStarted);
    connect(m_connection.get(), &ConnectController::ended, this, &Shell::handleConnectEnded);

    connect(m_favorites.get(), &FavoriteController::unconfirmedChanged, m_windows.get(),
            &WindowController::setUnconfirmedFavorites);

    connect(m_protection.get(), &ProtectionController::modePageRequested, m_windows.get(),
            &WindowController::showModePage);

    connect(m_account.get(), &AccountController::logoutStarted, this,
            [this](quint64 requestId, OperationOrigin origin) {
                m_tray->logoutStarted(requestId, origin);
            });
    connect(m_account.get(), &AccountController::logoutEnded, m_tray.get(),
            &VantuTrayApp::handleLogoutFinished);
    connect(m_account.get(), &AccountController::accountChanged, m_catalog.get(),
            &CatalogController::changeAccount);
    connect(m_account.get(), &AccountController::renewalLinkReady, m_windows.get(),
            &WindowController::openPrivateLink);

    connect(m_settings.get(), &SettingsController::statusOutdated, this, [this] {
        m_catalog->dropStatusUnderWay();
        m_tray->pollSoon();
    });
    connect(m_settings.get(), &SettingsController::logDirectoryRequested, m_windows.get(),
            &WindowController::openLogDirectory);
    connect(m_settings.get(), &SettingsController::serviceChanged, this, [this] {
        m_compatibility->check();
        m_catalog->dropStatusUnderWay();
        m_tray->pollSoon();
        m_catalog->startWatch();
    });
    connect(m_splitRules.get(), &SplitRulesController::loadFailed, m_windows.get(),
            &WindowController::showSplitRulesError);
    connect(m_splitRules.get(), &SplitRulesController::importFinished, m_windows.get(),
            &WindowController::finishSplitRulesImport);

    connect(m_language.get(), &LanguageController::restartRequested, this,
            &Shell::restartRequested);
    connectBusyConcerns();
    connectUpdates();
}

void VantuAppShell::connectBusyConcerns()
{
    using Shell = VantuAppShell;
    // These exclude the tray's own operations.
    connect(m_protection.get(), &ProtectionController::changeChanged, this,
            &Shell::publishExternalBusy);
    connect(m_account.get(), &AccountController::busyChanged, this, &Shell::publishExternalBusy);

    connect(m_protection.get(), &ProtectionController::changeChanged, this,
            &Shell::publishActivity);
    connect(m_tray.get(), &VantuTrayApp::operationChanged, this, &Shell::handleOperationChanged);
    connect(m_account.get(), &AccountController::busyChanged, this, &Shell::publishActivity);
    connect(m_account.get(), &AccountController::openingRenewalChanged, this,
            &Shell::publishActivity);
    connect(m_settings.get(), &SettingsController::busyChanged, this, &Shell::publishActivity);
    connect(m_language.get(), &LanguageController::busyChanged, this, &Shell::publishActivity);
    connect(m_splitRules.get(), &SplitRulesController::loadingChanged, this,
            &Shell::publishActivity);
    connect(m_catalog.get(), &CatalogController::refreshingChanged, this, [this](bool refreshing) {
        m_refreshingLocations = refreshing;
        publishActivity();
    });
    connect(m_updates.get(), &UpdateController::checkingChanged, this, [this](bool checking) {
        m_checkingUpdate = checking;
        publishActivity();
    });
}

void VantuAppShell::connectUpdates()
{
    using Updates = UpdateController;
    using Windows = WindowController;
    UpdateController *updates = m_updates.get();
    WindowController *windows = m_windows.get();
    connect(updates, &Updates::offered, windows, &Windows::showUpdate);
    connect(updates, &Updates::withdrawn, windows, &Windows::withdrawUpdate);
    connect(updates, &Updates::downloadChanged, windows, &Windows::setUpdateDownload);
    connect(updates, &Updates::downloadFailed, windows, &Windows::raiseUpdateDialog);
    connect(updates, &Updates::noteChanged, windows, &Windows::setUpdateNote);
    connect(updates, &Updates::waitingChanged, windows, &Windows::setUpdateWaiting);
    connect(updates, &Updates::exitRequested, this, &VantuAppShell::quit);
    connect(windows, &Windows::updateDialogVisibleChanged, updates, &Updates::setDialogVisible);
}
