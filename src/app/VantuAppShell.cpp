#include "VantuAppShell.h"

#include "AccountController.h"
#include "AppState.h"
#include "CatalogController.h"
#include "ControlWorker.h"
#include "ControlWorkerPool.h"
#include "FavoriteController.h"
#include "GuiPreferences.h"
#include "LanguageController.h"
#include "NodePingPoll.h"
#include "NoticeSink.h"
#include "ProtectionController.h"
#include "RecentActivityStore.h"
#include "RuntimeFacts.h"
#include "ServiceCompatibility.h"
#include "SharedTheme.h"
#include "UpdateController.h"
#include "VantuTrayApp.h"
#include "WindowController.h"

#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <QTimer>

VantuAppShell::VantuAppShell(const QString &socketName, std::unique_ptr<GuiPreferences> preferences)
    : m_pool(std::make_unique<ControlWorkerPool>(socketName))
    , m_state(std::make_unique<AppState>())
    , m_preferences(preferences ? std::move(preferences) : std::make_unique<GuiPreferences>())
    , m_recent(std::make_unique<RecentActivityStore>(*m_preferences))
    , m_theme(std::make_unique<SharedTheme>([this] { return m_preferences->appearance(); }))
    , m_tray(std::make_unique<VantuTrayApp>(*m_state, m_pool->workers(), *m_preferences, *m_theme))
    , m_windows(std::make_unique<WindowController>(*m_state, *m_preferences, *m_theme))
    , m_notices(std::make_unique<NoticeSink>())
    , m_link(m_pool->workers(), RequestLink::kShellFirstId)
{
    makeConcerns();
    connectWorkers();
    connectTray();
    connectWindows();
    connectConcerns();
}

VantuAppShell::~VantuAppShell()
{
    // First the workers: a request that runs is cancelled, and nothing answers any more
    // while the parts go.
    m_pool->shutDown();
}

void VantuAppShell::makeConcerns()
{
    const auto operationAllowed = [this] { return m_tray->guardPasses(); };
    m_compatibility = std::make_unique<ServiceCompatibility>(m_link, *m_state, *m_notices);
    m_updates = std::make_unique<UpdateController>(m_link, *m_state, *m_notices, *m_preferences,
                                                   &QDateTime::currentSecsSinceEpoch);
    m_connection = std::make_unique<ConnectController>(ConnectController::Parts{
        m_link, *m_state, *m_notices, *m_compatibility, *m_updates, operationAllowed});
    m_catalog = std::make_unique<CatalogController>(m_link, *m_state, *m_notices, *m_compatibility);
    m_favorites = std::make_unique<FavoriteController>(m_link, *m_state, *m_notices,
                                                       *m_compatibility, *m_catalog);
    m_pings = std::make_unique<NodePingPoll>(*m_state, *m_catalog);
    m_protection = std::make_unique<ProtectionController>(ProtectionController::Parts{
        m_link, *m_state, *m_notices, *m_compatibility, operationAllowed});
    m_account = std::make_unique<AccountController>(
        AccountController::Parts{m_link, *m_state, *m_notices, *m_compatibility, operationAllowed});
    m_language = std::make_unique<LanguageController>(m_link, *m_state, *m_notices, *m_preferences,
                                                      [this] { return isIdle(); });
}

void VantuAppShell::connectWorkers()
{
    using Shell = VantuAppShell;
    using Worker = ControlWorker;
    connect(&m_link.worker(WorkerLane::Reads), &Worker::statusFinished, this, &Shell::noteStatus);
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
    }
    // Last, so that the store holds the answer already.
    connect(&m_link.worker(WorkerLane::Reads), &Worker::nodesFinished, this, &Shell::noteNodes);
}

void VantuAppShell::connectTray()
{
    using Shell = VantuAppShell;
    using Tray = VantuTrayApp;
    VantuTrayApp *tray = m_tray.get();
    WindowController *windows = m_windows.get();
    connect(tray, &Tray::openVantuRequested, windows, &WindowController::showOrRaise);
    connect(tray, &Tray::openLocationsRequested, windows, &WindowController::showLocations);
    connect(tray, &Tray::accountRequested, windows, &WindowController::showAccount);
    connect(tray, &Tray::openKillSwitchSettingsRequested, windows, &WindowController::showSettings);
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
    connect(tray, &Tray::statusPolled, this,
            [this] { m_protection->resumePendingKillSwitchEnable(); });
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
    connect(windows, &Windows::recentConnectionsCleared, m_tray.get(),
            &VantuTrayApp::recentNodesChanged);
    // Queued, because a window can't be closed for good while it refuses to close.
    connect(windows, &Windows::quitRequested, this, &Shell::quit, Qt::QueuedConnection);
    connect(windows, &Windows::forceUpdateExitRequested, this, &Shell::quit);
    // Sees every end of the event loop come, whoever asked for it.
    qApp->installEventFilter(this);
}

void VantuAppShell::connectConcerns()
{
    using Shell = VantuAppShell;
    connect(m_notices.get(), &NoticeSink::noticeRequested, m_windows.get(),
            &WindowController::showNotice);
    connect(m_notices.get(), &NoticeSink::attentionRequested, m_windows.get(),
            &WindowController::showOrRaise);

    connect(m_compatibility.get(), &ServiceCompatibility::stateChanged, this, [this] {
        m_tray->setDaemonAvailable(m_compatibility->isAvailable(), m_compatibility->reason());
        publishAvailability();
    });
    connect(m_compatibility.get(), &ServiceCompatibility::serviceFound, this, &Shell::refetchAll);

    connect(m_connection.get(), &ConnectController::started, this, &Shell::handleConnectStarted);
    connect(m_connection.get(), &ConnectController::ended, this, &Shell::handleConnectEnded);

    connect(m_catalog.get(), &CatalogController::failed, m_windows.get(),
            &WindowController::showLocationsError);
    connect(m_catalog.get(), &CatalogController::refreshingChanged, m_windows.get(),
            &WindowController::setRefreshing);
    connect(m_favorites.get(), &FavoriteController::unconfirmedChanged, m_windows.get(),
            &WindowController::setUnconfirmedFavorites);

    connect(m_protection.get(), &ProtectionController::busyChanged, this,
            &Shell::publishExternalBusy);
    connect(m_protection.get(), &ProtectionController::modePageRequested, m_windows.get(),
            &WindowController::showModePage);

    connect(m_account.get(), &AccountController::busyChanged, this, &Shell::publishExternalBusy);
    connect(m_account.get(), &AccountController::logoutStarted, this,
            [this](quint64 requestId, OperationOrigin origin) {
                m_tray->logoutStarted(requestId, origin);
            });
    connect(m_account.get(), &AccountController::logoutEnded, m_tray.get(),
            &VantuTrayApp::handleLogoutFinished);
    connect(m_account.get(), &AccountController::accountChanged, m_catalog.get(),
            &CatalogController::fetch);

    connect(m_language.get(), &LanguageController::restartRequested, this,
            &Shell::restartRequested);
    connect(m_updates.get(), &UpdateController::requiredUpdateKnown, this, [this] {
        m_notices->show(
            QCoreApplication::translate("UpdateDialog", "A required update is available"),
            MainWindow::NoticeKind::Warning, NoticeSink::kUntilDismissed);
    });
}

void VantuAppShell::setLoadedLanguage(const QString &code)
{
    m_language->setLoadedLanguage(code);
}

void VantuAppShell::setLanguageRestartAllowed(bool allowed)
{
    m_language->setRestartAllowed(allowed);
}

void VantuAppShell::start()
{
    const bool tray = QSystemTrayIcon::isSystemTrayAvailable();
    if (!tray && m_loginStartup && !m_preferences->showOnLaunch()) {
        // Neither an icon nor a window: nobody could ever reach this process.
        QTimer::singleShot(0, this, &VantuAppShell::exitRequested);
        return;
    }
    m_compatibility->start();
    m_windows->setHideToTray(tray);
    m_tray->start();
    if (!tray || m_preferences->showOnLaunch()) {
        m_windows->showOrRaise();
    }
    m_updates->start();
}

void VantuAppShell::quit()
{
    m_windows->closeForExit();
    Q_EMIT exitRequested();
}

bool VantuAppShell::eventFilter(QObject *watched, QEvent *event)
{
    // The end of the session too quits by closing the windows first, and stops at one
    // that refuses. Nothing is left behind if the user calls that end off before.
    if (watched == qApp && event->type() == QEvent::Quit) {
        m_windows->setExitAllowed(true);
    }
    return QObject::eventFilter(watched, event);
}

bool VantuAppShell::isIdle() const
{
    // The tray also knows of the changes that it makes by itself.
    return !m_connection->isBusy() && !m_protection->isBusy() && !m_account->isBusy() &&
           m_tray->guardPasses();
}

void VantuAppShell::noteStatus(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage)
{
    Q_UNUSED(requestId) // Whoever asked: it tells whether the daemon is there.
    m_statusReceived = true;
    m_statusError = errorMessage;
    publishAvailability();
    m_compatibility->noteStatus(info, errorMessage);
}

void VantuAppShell::noteNodes(quint64 requestId, const NodesInfo &nodes,
                              const QString &errorMessage)
{
    Q_UNUSED(requestId) // Whoever asked: the list of places is fresh.
    Q_UNUSED(nodes)
    if (errorMessage.isEmpty()) {
        m_windows->clearLocationsError();
        m_windows->noteCatalogReceived();
    }
}

void VantuAppShell::publishAvailability()
{
    QString reason = m_compatibility->reason();
    if (reason.isEmpty() && !m_statusReceived) {
        reason = QCoreApplication::translate("VpnPage", "Waiting for daemon status");
    } else if (reason.isEmpty()) {
        reason = m_statusError;
    }
    const bool available =
        m_compatibility->isAvailable() && m_statusReceived && m_statusError.isEmpty();
    m_windows->setDaemonAvailable(available, reason);
    m_pings->setDaemonAvailable(available);
}

void VantuAppShell::publishExternalBusy()
{
    const bool busy = m_protection->isBusy() || m_account->isBusy();
    if (!busy) {
        m_catalog->dropStatusUnderWay();
    }
    m_tray->setExternalBusy(busy);
}

void VantuAppShell::refetchAll()
{
    m_tray->pollSoon();
    // The tray asks for the first catalogue by itself, with its first status.
    if (m_catalog->isHeld()) {
        m_catalog->fetch();
    }
    m_link.send(ControlRequest::FetchConfigPaths);
    m_link.send(ControlRequest::FetchAPIURLConfig);
    m_language->fetch();
}

void VantuAppShell::handleConnectStarted(ConnectController::Kind kind, quint64 requestId,
                                         OperationOrigin origin, const QString &label)
{
    using Kind = ConnectController::Kind;
    m_windows->setConnectProgress(m_connection->progress());
    switch (kind) {
    case Kind::ConnectRuntime:
    case Kind::ConnectNode:
    case Kind::ConnectSmart:
        m_tray->connectStarted(requestId, origin, true, label);
        break;
    case Kind::Cancelling:
    case Kind::DisconnectingPending:
        m_tray->cancelStarted(requestId, origin);
        break;
    case Kind::Disconnecting:
        m_tray->disconnectStarted(requestId, origin);
        break;
    case Kind::None:
        break;
    }
}

void VantuAppShell::handleConnectEnded(ConnectController::Kind kind, quint64 requestId,
                                       const RuntimeInfo &info, const QString &failure)
{
    using Kind = ConnectController::Kind;
    m_windows->setConnectProgress(m_connection->progress());
    m_catalog->dropStatusUnderWay();
    const bool wasConnect =
        kind == Kind::ConnectRuntime || kind == Kind::ConnectNode || kind == Kind::ConnectSmart;
    if (wasConnect) {
        if (failure.isEmpty()) {
            rememberConnectedNode(info);
        }
        m_tray->handleConnectFinished(requestId, info, failure);
    } else {
        m_tray->handleDisconnectFinished(requestId, info, failure);
    }
    if (failure.isEmpty()) {
        m_catalog->fetchNodes();
    }
    m_protection->resumePendingKillSwitchEnable();
}

void VantuAppShell::rememberConnectedNode(const RuntimeInfo &info)
{
    const NodeReference &node = info.connectedNode;
    if (!facts::isConnected(info) || node.id.isEmpty()) {
        return;
    }
    const QString region = node.region.trimmed().toLower();
    m_recent->addNode({node.id, node.name, region.size() == 2 ? region : QString()});
    m_tray->recentNodesChanged();
}
