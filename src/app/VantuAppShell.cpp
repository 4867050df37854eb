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
#include "SettingsController.h"
#include "SharedTheme.h"
#include "SplitRulesController.h"
#include "TrayHostWatch.h"
#include "UpdateController.h"
#include "VantuTrayApp.h"
#include "WindowController.h"

#include <QDateTime>
#include <QEvent>
#include <QGuiApplication>
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
    const auto isOtherwiseBusy = [this] { return m_tray->isBusy(); };
    const auto cancelModeChange = [this] {
        m_protection->cancelModeChange();
        m_tray->cancelModeChange();
    };
    m_compatibility = std::make_unique<ServiceCompatibility>(m_link, *m_state, *m_notices);
    m_updates = std::make_unique<UpdateController>(UpdateController::Parts{
        m_link, *m_state, *m_notices, *m_preferences, &QDateTime::currentSecsSinceEpoch,
        [this](const QString &path) { return m_windows->launchFile(path); }});
    m_connection = std::make_unique<ConnectController>(
        ConnectController::Parts{m_link, *m_state, *m_notices, *m_compatibility, *m_updates,
                                 operationAllowed, isOtherwiseBusy, cancelModeChange});
    m_catalog = std::make_unique<CatalogController>(m_link, *m_state, *m_notices, *m_compatibility);
    m_favorites = std::make_unique<FavoriteController>(m_link, *m_state, *m_notices,
                                                       *m_compatibility, *m_catalog);
    m_pings = std::make_unique<NodePingPoll>(*m_state, *m_catalog);
    m_protection = std::make_unique<ProtectionController>(ProtectionController::Parts{
        m_link, *m_state, *m_notices, *m_compatibility, operationAllowed});
    m_account = std::make_unique<AccountController>(
        AccountController::Parts{m_link, *m_state, *m_notices, *m_compatibility, isOtherwiseBusy});
    m_language = std::make_unique<LanguageController>(
        LanguageController::Parts{m_link, *m_state, *m_notices, *m_preferences, *m_compatibility,
                                  [this] { return isIdle(); }});
    m_settings =
        std::make_unique<SettingsController>(m_link, *m_state, *m_notices, *m_compatibility);
    m_splitRules =
        std::make_unique<SplitRulesController>(m_link, *m_state, *m_notices, *m_compatibility);
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
    const bool tray = TrayHostWatch::isTrayAvailable();
    if (!tray && m_loginStartup && !m_preferences->showOnLaunch()) {
        // Neither an icon nor a window: nobody could ever reach this process.
        QTimer::singleShot(0, this, &VantuAppShell::exitRequested);
        return;
    }
    m_compatibility->start();
    m_windows->setHideToTray(tray);
    m_windows->setTrayProbe(&TrayHostWatch::isHostPresent);
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
    // The end of the session too quits by closing the windows first, dialogs above all,
    // and stops at one that refuses or asks about edits. The user has been asked before
    // whether it shall end.
    if (watched == qApp && event->type() == QEvent::Quit) {
        m_windows->closeForExit();
    }
    return QObject::eventFilter(watched, event);
}

bool VantuAppShell::isIdle() const
{
    // The tray also knows of the changes that it makes by itself.
    return !m_connection->isBusy() && !m_protection->isBusy() && !m_account->isBusy() &&
           !m_settings->isBusy() && m_tray->guardPasses();
}

void VantuAppShell::noteStatus(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage)
{
    Q_UNUSED(requestId) // Whoever asked: it tells whether the daemon is there.
    // An answer that came too late for the store must not vouch for what is there.
    m_statusReceived = m_statusReceived || !errorMessage.isEmpty() || m_tray->isStatusKnown();
    // While an operation runs there is no next poll that would take an error back.
    if (errorMessage.isEmpty() || !m_tray->isBusy()) {
        m_statusError = errorMessage;
        publishAvailability();
    }
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
    m_tray->setExternalBusy(m_protection->isBusy() || m_account->isBusy());
}

void VantuAppShell::handleOperationChanged()
{
    if (!m_tray->isBusy()) {
        // What was asked before the end may tell of the time before.
        m_catalog->dropStatusUnderWay();
        m_link.forget(ControlRequest::FetchKillSwitch);
    }
    publishActivity();
}

void VantuAppShell::refetchAll()
{
    m_tray->refreshStatus();
    // The tray asks for the first catalogue by itself, with its first status.
    if (m_catalog->isHeld()) {
        m_catalog->fetch();
    }
    m_settings->fetch(false);
    m_language->fetch();
}

void VantuAppShell::refetchSettings()
{
    // A daemon that is away tells it all when it is back.
    if (!m_compatibility->isAvailable() || !m_statusError.isEmpty()) {
        return;
    }
    m_settings->fetch(true);
    m_language->fetch();
    if (!m_protection->isBusy()) {
        m_link.send(ControlRequest::FetchKillSwitch);
    }
}

void VantuAppShell::publishActivity()
{
    OperationActivity activity;
    const auto change = m_protection->change();
    activity.changingMode = change == ControlRequest::SetMode || m_tray->changes().isChangingMode();
    activity.changingLocalNetwork = change == ControlRequest::SetLocalNetworkPreference ||
                                    m_tray->changes().isChangingLocalNetwork();
    activity.changingSettings =
        m_protection->isBusy() || m_settings->isBusy() || m_language->isBusy();
    activity.checkingUpdate = m_checkingUpdate;
    activity.signingInOrOut = m_account->isBusy();
    activity.openingRenewal = m_account->isOpeningRenewal();
    activity.loadingSplitRules = m_splitRules->isLoading();
    activity.refreshingLocations = m_refreshingLocations;
    activity.excludesConnect = m_tray->isBusy();
    m_windows->setActivity(activity);
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
    m_windows->setConnectProgress(m_connection->progress());
    if (ConnectController::isConnect(kind)) {
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
