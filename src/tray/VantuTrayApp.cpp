#include "VantuTrayApp.h"

#include "AppState.h"
#include "NodeMenuModel.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "TrayChoices.h"
#include "TrayMenuText.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// Opens the daemon's log directory with the desktop; returns what went wrong.
QString openLogDirectory(const QString &directory)
{
    const QString shown = plaintext::singleLine(directory);
    if (shown.isEmpty()) {
        return TrayMenuText::missing(TrayMenuText::logDirectory());
    }
    if (!QFileInfo(directory).isDir()) {
        return TrayMenuText::doesNotExist(TrayMenuText::logDirectory(), shown);
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(directory))) {
        return TrayMenuText::couldNotOpen(TrayMenuText::logDirectory(), shown);
    }
    return {};
}

} // namespace

VantuTrayApp::VantuTrayApp(AppState &state, const ControlWorkers &workers,
                           GuiPreferences &preferences, SharedTheme &theme, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_link(workers, RequestLink::kTrayFirstId)
    , m_poll(state, m_link, m_operations)
    , m_changes(state, m_link, m_operations, m_poll, theme)
    , m_recents(preferences)
    , m_face(state, kTrayLayout)
    , m_recentNodes(m_recents.nodes())
{
    connect(&m_poll, &TrayPoll::statusAnswered, this, &VantuTrayApp::handleStatusAnswered);
    connect(&m_poll, &TrayPoll::refreshFailed, this, &VantuTrayApp::notifyFailure);
    m_unheard.setSingleShot(true);
    m_unheard.setInterval(TrayPoll::kActive);
    connect(&m_unheard, &QTimer::timeout, this, &VantuTrayApp::update);
    connect(&m_changes, &TrayChanges::begun, this, &VantuTrayApp::handleOperationBegun);
    connect(&m_changes, &TrayChanges::ended, this, [this](const QString &text) {
        handleOperationEnded();
        if (!text.isEmpty()) {
            notify(TrayMenuText::vantu(), text);
        }
    });
    connectWorkers(workers);
    connectStore();
    connectFace();
    update();
}

VantuTrayApp::~VantuTrayApp() = default;

void VantuTrayApp::connectWorkers(const ControlWorkers &workers)
{
    // Each lane answers some of the tray's requests; ids tell them from the shell's.
    for (const ControlWorker *worker : workers) {
        connect(worker, &ControlWorker::statusFinished, this, &VantuTrayApp::handleStatusFinished);
        connect(worker, &ControlWorker::userFinished, this, &VantuTrayApp::handleUserFinished);
        connect(worker, &ControlWorker::nodesFinished, this, &VantuTrayApp::handleNodesFinished);
        connect(worker, &ControlWorker::nodeGroupsFinished, this,
                &VantuTrayApp::handleNodeGroupsFinished);
        connect(worker, &ControlWorker::configPathsFinished, this,
                &VantuTrayApp::handleConfigPathsFinished);
        connect(worker, &ControlWorker::killSwitchFinished, this,
                &VantuTrayApp::handleKillSwitchFinished);
        connect(worker, &ControlWorker::modeFinished, this, &VantuTrayApp::handleModeFinished);
    }
}

void VantuTrayApp::connectStore()
{
    connect(&m_state, &AppState::runtimeChanged, this, &VantuTrayApp::handleRuntimeStateChanged);
    connect(&m_state, &AppState::userChanged, this, &VantuTrayApp::handleUserStateChanged);
    connect(&m_state, &AppState::nodesChanged, this, &VantuTrayApp::handleNodesStateChanged);
    connect(&m_state, &AppState::nodeGroupsChanged, this,
            &VantuTrayApp::handleNodeGroupsStateChanged);
    connect(&m_state, &AppState::killSwitchChanged, this,
            &VantuTrayApp::handleKillSwitchStateChanged);
    connect(&m_state, &AppState::nodesRefreshCooldownChanged, this,
            &VantuTrayApp::handleNodesRefreshCooldownChanged);
}

void VantuTrayApp::connectFace()
{
    connect(&m_face, &TrayFace::iconShown, this, &VantuTrayApp::update);
    connect(&m_face, &TrayFace::iconShown, this, &VantuTrayApp::iconShown);
    connect(&m_face, &TrayFace::activated, this, &VantuTrayApp::handleTrayActivated);
    connect(&m_face, &TrayFace::opening, this, &VantuTrayApp::update);
    connect(&m_face, &TrayFace::nodeMenuOpening, this, &VantuTrayApp::handleNodeMenuOpening);
    connect(&m_face, &TrayFace::chosen, this, &VantuTrayApp::choose);
    connect(&m_face, &TrayFace::nodeChosen, this, &VantuTrayApp::chooseNode);
    connect(&m_face, &TrayFace::proxyRegionChosen, this, &VantuTrayApp::setProxyRoutingRegion);
    connect(&m_face, &TrayFace::vpnRegionChosen, this, &VantuTrayApp::setVantuSplitRegion);
    connect(&m_changes, &TrayChanges::switchToAutoAndEnableKillSwitchRequested, this,
            &VantuTrayApp::switchToAutoAndEnableKillSwitchRequested);
    connect(&m_changes, &TrayChanges::chooseModeForKillSwitchRequested, this,
            &VantuTrayApp::chooseModeForKillSwitchRequested);
    connect(&m_changes, &TrayChanges::openKillSwitchSettingsRequested, this,
            &VantuTrayApp::openKillSwitchSettingsRequested);
}

// The shell's side.

void VantuTrayApp::start()
{
    m_face.showIcon();
    m_poll.start();
}

void VantuTrayApp::setDaemonAvailable(bool available, const QString &reason, bool checking)
{
    m_judged = m_judged || !checking;
    m_unavailableReason = available ? QString{} : plaintext::singleLine(reason);
    if (!available) {
        m_operations.forbidCancel();
        m_notice.clear(); // Nothing that was told before lasts longer than the reason.
    }
    m_poll.setAvailable(available);
    update();
}

void VantuTrayApp::setExternalBusy(bool busy)
{
    if (busy == m_operations.has(TrayBusy::External)) {
        return;
    }
    if (busy) {
        m_operations.begin(TrayBusy::External, {});
        handleOperationBegun();
    } else {
        m_operations.end(TrayBusy::External);
        handleOperationEnded();
    }
}

void VantuTrayApp::connectStarted(quint64 requestId, OperationOrigin origin, bool cancellable,
                                  const QString &label)
{
    const QString node = plaintext::singleLine(label);
    beginShellOperation(TrayBusy::Connect, {requestId, origin},
                        node.isEmpty() ? TrayMenuText::connectingVantu()
                                       : TrayMenuText::connectingTo(node),
                        cancellable);
}

void VantuTrayApp::cancelStarted(quint64 requestId, OperationOrigin origin)
{
    // The word is the update dialog's, so that it reads the same everywhere.
    beginShellOperation(TrayBusy::Connect, {requestId, origin},
                        QCoreApplication::translate("UpdateDialog", "Canceling..."));
}

void VantuTrayApp::disconnectStarted(quint64 requestId, OperationOrigin origin)
{
    beginShellOperation(TrayBusy::Connect, {requestId, origin}, TrayMenuText::disconnectingVantu());
}

void VantuTrayApp::logoutStarted(quint64 requestId, OperationOrigin origin)
{
    m_link.forget(ControlRequest::FetchUser);
    beginShellOperation(TrayBusy::Logout, {requestId, origin}, TrayMenuText::loggingOut());
}

void VantuTrayApp::notify(const QString &title, const QString &text)
{
    m_notice = plaintext::singleLine(text);
    m_face.showMessage(title, text);
    update();
}

void VantuTrayApp::recentNodesChanged()
{
    m_recentNodes = m_recents.nodes();
    update();
}

// The menu's side.

void VantuTrayApp::choose(TrayEntry entry, bool checked, bool asCancel)
{
    if (entry == TrayEntry::Connect) {
        chooseConnect(asCancel);
    } else {
        carryOutTrayChoice(*this, m_state.runtime().mode, entry, checked);
    }
}

void VantuTrayApp::chooseConnect(bool asCancel)
{
    if (!asCancel) {
        connectRuntime();
    } else if (m_operations.has(TrayBusy::Connect) || facts::isPending(m_state.runtime())) {
        // A "Cancel" that outlived what it was to cancel must never connect.
        Q_EMIT cancelConnectRequested();
    }
}

void VantuTrayApp::chooseNode(const QString &nodeID)
{
    if (guardPasses()) {
        Q_EMIT connectNodeRequested(nodeID, nodeLabel(nodeID));
    }
}

QString VantuTrayApp::nodeLabel(const QString &nodeID) const
{
    for (const NodeEntry &node : m_state.nodes().nodes) {
        if (node.id == nodeID) {
            return NodeMenuModel::labelOrNone(node);
        }
    }
    for (const RecentNode &node : m_recentNodes) {
        if (node.id == nodeID) {
            return node.label;
        }
    }
    return {};
}

void VantuTrayApp::handleNodeMenuOpening()
{
    if (m_poll.isAvailable() && m_state.nodes().nodes.isEmpty() && !m_poll.isCatalogueInFlight()) {
        m_poll.requestNodes(false);
        update();
    }
}

void VantuTrayApp::handleTrayActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
        Q_EMIT openVantuRequested();
    }
}

void VantuTrayApp::logoutAccount()
{
    if (guardPasses()) {
        Q_EMIT logoutRequested();
    }
}

void VantuTrayApp::connectRuntime()
{
    if (guardPasses()) {
        Q_EMIT connectRuntimeRequested();
    }
}

void VantuTrayApp::disconnectRuntime()
{
    if (guardPasses()) {
        Q_EMIT disconnectRuntimeRequested();
    }
}

void VantuTrayApp::openLogs()
{
    if (!m_link.isPending(ControlRequest::FetchConfigPaths)) {
        m_link.send(ControlRequest::FetchConfigPaths);
        update();
    }
}

void VantuTrayApp::refreshNodes()
{
    if (m_poll.isAvailable() && !m_poll.isCatalogueInFlight() &&
        m_state.nodesRefreshCooldown() == 0) {
        m_notice.clear();
        m_poll.requestNodes(true);
        update();
    }
}

void VantuTrayApp::beginShellOperation(TrayBusy kind, const ShellOperation &operation,
                                       const QString &progressText, bool cancellable)
{
    m_poll.pause();
    m_operations.beginShell(kind, operation, progressText, cancellable);
    handleOperationBegun();
}

std::optional<ShellOperation> VantuTrayApp::endShellOperation(quint64 requestId)
{
    const std::optional<ShellOperation> operation = m_operations.endShell(requestId);
    if (operation) {
        handleOperationEnded();
    }
    return operation;
}

void VantuTrayApp::handleOperationBegun()
{
    m_notice.clear();
    m_unheard.start();
    update();
    Q_EMIT operationChanged();
}

void VantuTrayApp::handleOperationEnded()
{
    m_poll.pollSoon();
    update();
    Q_EMIT operationChanged();
}

void VantuTrayApp::notifyFailure(const QString &errorMessage, const QString &fallback)
{
    notify(TrayMenuText::vantu(), errorMessage.trimmed().isEmpty() ? fallback : errorMessage);
}

// Answers.

void VantuTrayApp::handleStatusAnswered(bool succeeded)
{
    m_notice.clear();
    update();
    Q_EMIT statusPolled(succeeded);
}

void VantuTrayApp::handleUserFinished(quint64 requestId, const UserInfo &user,
                                      const QString &errorMessage)
{
    m_poll.takeUser(requestId, user, errorMessage);
    update();
}

void VantuTrayApp::handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                                       const QString &errorMessage)
{
    m_poll.takeNodes(requestId, nodes, errorMessage);
    update();
}

void VantuTrayApp::handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                            const QString &errorMessage)
{
    m_poll.takeNodeGroups(requestId, groups, errorMessage);
    update();
}

void VantuTrayApp::handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                             const QString &errorMessage)
{
    if (!m_link.take(requestId)) {
        return;
    }
    if (!errorMessage.isEmpty()) {
        notifyFailure(errorMessage, TrayMenuText::daemonUnavailable());
        return;
    }
    m_state.setConfigPaths(paths);
    if (const QString problem = openLogDirectory(paths.logDir); !problem.isEmpty()) {
        notify(TrayMenuText::vantu(), problem);
    }
    update();
}

void VantuTrayApp::handleConnectFinished(quint64 requestId, const RuntimeInfo &info,
                                         const QString &errorMessage)
{
    Q_UNUSED(info)
    const auto operation = endShellOperation(requestId);
    if (!operation) {
        return;
    }
    if (!errorMessage.isEmpty() && operation->origin == OperationOrigin::Tray) {
        notifyFailure(errorMessage, TrayMenuText::connectFailed());
    }
    recentNodesChanged();
}

void VantuTrayApp::handleDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                            const QString &errorMessage)
{
    Q_UNUSED(info)
    const auto operation = endShellOperation(requestId);
    if (operation && !errorMessage.isEmpty() && operation->origin == OperationOrigin::Tray) {
        notifyFailure(errorMessage, TrayMenuText::disconnectFailed());
    }
}

void VantuTrayApp::handleLogoutFinished(quint64 requestId, const RuntimeInfo &info,
                                        const QString &errorMessage)
{
    Q_UNUSED(info)
    const auto operation = endShellOperation(requestId);
    if (!operation || operation->origin != OperationOrigin::Tray) {
        return;
    }
    if (errorMessage.isEmpty()) {
        notify(TrayMenuText::vantu(), TrayMenuText::loggedOut());
    } else {
        notifyFailure(errorMessage, TrayMenuText::accountFailed());
    }
}

// Changes of the store.

void VantuTrayApp::handleRuntimeStateChanged(const RuntimeInfo &runtime)
{
    m_poll.runtimeChanged(runtime);
    update();
}

void VantuTrayApp::handleUserStateChanged(const UserInfo &user)
{
    Q_UNUSED(user)
    update();
}

void VantuTrayApp::handleNodesStateChanged(const NodesInfo &nodes)
{
    Q_UNUSED(nodes)
    m_poll.nodesChanged();
    m_face.catalogueChanged();
    recentNodesChanged();
}

void VantuTrayApp::handleNodeGroupsStateChanged(const NodeGroupsInfo &groups)
{
    Q_UNUSED(groups)
    m_poll.nodeGroupsChanged();
    m_face.catalogueChanged();
    update();
}

void VantuTrayApp::handleKillSwitchStateChanged(const KillSwitchInfo &killSwitch)
{
    Q_UNUSED(killSwitch)
    update();
}

void VantuTrayApp::handleNodesRefreshCooldownChanged(int secondsRemaining)
{
    Q_UNUSED(secondsRemaining)
    update();
}

TrayCondition VantuTrayApp::condition() const
{
    return {
        .daemonAvailable = m_poll.isAvailable(),
        .judged = m_judged,
        .unavailableReason = m_unavailableReason,
        .statusKnown = m_poll.isStatusKnown(),
        .statusFailed = m_poll.hasStatusFailed(),
        .statusError = plaintext::singleLine(m_poll.statusError()),
        .progressText = m_operations.progressText(),
        .busy = m_operations.any(),
        .unheard = m_operations.any() && !m_unheard.isActive(),
        .connectBusy = m_operations.has(TrayBusy::Connect),
        .connectCancellable = m_operations.isConnectCancellable(),
        .nodesHeld = m_poll.areNodesHeld(),
        .nodesInFlight = m_poll.isCatalogueInFlight(),
        .nodesFailed = m_poll.haveNodesFailed(),
        .groupsFailed = m_poll.haveGroupsFailed(),
        .refreshing = m_poll.isRefreshing(),
        .userInFlight = m_link.isPending(ControlRequest::FetchUser),
        .logsInFlight = m_link.isPending(ControlRequest::FetchConfigPaths),
        .notice = m_notice,
        .recentNodes = m_recentNodes,
        .flatLayout = kFlatTrayMenu,
        .now = QDateTime::currentDateTimeUtc(),
    };
}

void VantuTrayApp::update()
{
    m_face.update(condition());
}
