#pragma once

#include "ControlRecords.h"
#include "RecentActivityStore.h"
#include "RequestLink.h"
#include "TrayChanges.h"
#include "TrayFace.h"
#include "TrayMenuState.h"
#include "TrayOperations.h"
#include "TrayPoll.h"

#include <QObject>
#include <QString>
#include <QSystemTrayIcon>
#include <QTimer>

#include <optional>

class AppState;
class GuiPreferences;
class SharedTheme;

/// The tray icon with its menu, and the program's steady poll of the daemon's status,
/// which runs whether or not the desktop shows an icon.
///
/// Owned by the shell, lives on the GUI thread. The store, the workers, the
/// preferences and the theme must outlive it.
///
/// Who does what. The tray itself sends the reads of its poll and the changes of mode,
/// routing, kill switch (on and off), local network and system proxy, through a
/// request link with ids of its own, and writes the answers into the store. Connect,
/// disconnect, sign-out and everything else it only asks for by signal. When the shell
/// begins such an operation, whoever asked for it, it calls the matching …Started
/// function, which locks the menu, and on the answer the matching handle…Finished slot
/// with the same request id, which unlocks it. The shell stores these answers and, for
/// OperationOrigin::Window, shows the failure; for OperationOrigin::Tray the failure is
/// shown here. Anything else that must not be interrupted is bracketed by
/// setExternalBusy(). The end of any operation brings a poll after 250 ms.
class VantuTrayApp final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VantuTrayApp)

public:
    VantuTrayApp(AppState &state, const ControlWorkers &workers, GuiPreferences &preferences,
                 SharedTheme &theme, QObject *parent = nullptr);
    ~VantuTrayApp() override;

    /// Shows the icon as soon as the desktop has a tray, and begins to poll if the daemon
    /// is available. Called once, by the shell's start.
    void start();

    /// The shell's word on whether the daemon can be used: on becoming available the
    /// status is asked for at once (once started); on loss polling stops, the answers of
    /// reads under way are dropped and `reason` stands in both status lines. A mere
    /// failed poll is not a loss. `checking`: it is not known yet.
    void setDaemonAvailable(bool available, const QString &reason, bool checking = false);

    /// Whether an operation may begin: the daemon is available and nothing is busy. The
    /// shell asks before it begins one for the window, too.
    bool guardPasses() const { return m_changes.guardPasses(); }

    /// A status was stored at all, whoever asked for it.
    bool isStatusKnown() const { return m_poll.isStatusKnown(); }
    /// Whether any operation runs, the shell's included.
    bool isBusy() const { return m_operations.any(); }
    /// What the tray itself has asked for and is not answered yet.
    const TrayChanges &changes() const { return m_changes; }
    /// Gives up the tray's own mode change.
    void cancelModeChange() { m_changes.cancelModeChange(); }

    /// Brackets an operation of the shell's own during which the tray must not begin
    /// one. Status answers are ignored while it lasts.
    void setExternalBusy(bool busy);

    /// A connect with the shell's `requestId` was sent. `label` names the node, empty
    /// where none was chosen. Ends with handleConnectFinished() or, when it is
    /// cancelled, goes over into cancelStarted().
    void connectStarted(quint64 requestId, OperationOrigin origin, bool cancellable,
                        const QString &label = {});
    /// A connect, or one that the daemon runs by itself, is being cancelled by the
    /// disconnect with this id, which takes the connect's place: the connect's own
    /// answer is stale from now on. Ends with handleDisconnectFinished().
    void cancelStarted(quint64 requestId, OperationOrigin origin);
    /// Ends with handleDisconnectFinished().
    void disconnectStarted(quint64 requestId, OperationOrigin origin);
    /// Ends with handleLogoutFinished(). The account read under way is dropped, since
    /// its answer would bring the account back.
    void logoutStarted(quint64 requestId, OperationOrigin origin);

    /// Drops the answers of status and kill-switch reads under way, which may be older
    /// than a change just stored, and asks again after 250 ms. For changes that the
    /// shell made without one of the brackets above.
    void pollSoon() { m_poll.pollSoon(); }

    /// Shows a message of the tray, where the desktop can, and puts `text` into the
    /// menu's second line until the next status answer.
    void notify(const QString &title, const QString &text);

    /// The list of recent nodes was changed or cleared.
    void recentNodesChanged();

Q_SIGNALS:
    /// An operation has begun or ended.
    void operationChanged();
    /// The desktop's tray has the icon from now on.
    void iconShown();
    void openVantuRequested();
    void openLocationsRequested();
    void accountRequested();
    void logoutRequested();
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    void connectNodeRequested(const QString &nodeID, const QString &label);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void openKillSwitchSettingsRequested();
    /// The shell's one way out is to be taken.
    void quitRequested();
    /// A status poll was answered. A failed one doesn't make the daemon unavailable, but
    /// is a reason to check its version again.
    void statusPolled(bool succeeded);

public Q_SLOTS:
    /// Asks for the status and the kill switch, unless that is under way.
    void refreshStatus() { m_poll.refresh(); }
    void handleTrayActivated(QSystemTrayIcon::ActivationReason reason);
    void openLogs();
    void logoutAccount();
    void connectRuntime();
    void refreshNodes();
    void disconnectRuntime();
    /// `mode` as moderequest builds it; `statusText` stands in the title meanwhile.
    void setMode(const ModeInfo &mode, const QString &statusText)
    {
        m_changes.setMode(mode, statusText);
    }
    void setKillSwitchEnabled(bool enabled) { m_changes.setKillSwitchEnabled(enabled); }
    void setProxyRoutingDefault(const QString &route) { m_changes.setProxyDefault(route); }
    /// Puts the region into the list in force, or takes it out.
    void setProxyRoutingRegion(const QString &region) { m_changes.setProxyRegion(region); }
    void setProxyRoutingGFWList(bool enabled) { m_changes.setProxyGFWList(enabled); }
    void setLocalNetworkPreference(const QString &mode) { m_changes.setLocalNetwork(mode); }
    void setSystemProxyPreference(const QString &mode) { m_changes.setSystemProxy(mode); }
    void setVantuSplitDefaultRoute(const QString &route) { m_changes.setVantuDefault(route); }
    void setVantuSplitRegion(const QString &region) { m_changes.setVantuRegion(region); }
    void setVantuSplitGFWList(bool enabled) { m_changes.setVantuGFWList(enabled); }
    void setVantuSplitCustomRules(bool enabled) { m_changes.setVantuCustomRules(enabled); }

    void handleStatusFinished(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage)
    {
        m_poll.takeStatus(requestId, info, errorMessage);
    }
    void handleUserFinished(quint64 requestId, const UserInfo &user, const QString &errorMessage);
    void handleNodesFinished(quint64 requestId, const NodesInfo &nodes,
                             const QString &errorMessage);
    void handleNodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                                  const QString &errorMessage);
    void handleConfigPathsFinished(quint64 requestId, const ConfigPaths &paths,
                                   const QString &errorMessage);
    /// Answers of the read as well as of the change.
    void handleKillSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                                  const QString &errorMessage)
    {
        m_changes.takeKillSwitch(requestId, info, errorMessage);
    }
    /// The next three are called by the shell, with the ids of its own requests.
    void handleConnectFinished(quint64 requestId, const RuntimeInfo &info,
                               const QString &errorMessage);
    void handleDisconnectFinished(quint64 requestId, const RuntimeInfo &info,
                                  const QString &errorMessage);
    void handleLogoutFinished(quint64 requestId, const RuntimeInfo &info,
                              const QString &errorMessage);
    void handleModeFinished(quint64 requestId, const ModeInfo &mode, const QString &errorMessage)
    {
        m_changes.takeMode(requestId, mode, errorMessage);
    }

    void handleRuntimeStateChanged(const RuntimeInfo &runtime);
    void handleUserStateChanged(const UserInfo &user);
    void handleNodesStateChanged(const NodesInfo &nodes);
    void handleNodeGroupsStateChanged(const NodeGroupsInfo &groups);
    void handleKillSwitchStateChanged(const KillSwitchInfo &killSwitch);
    void handleNodesRefreshCooldownChanged(int secondsRemaining);

private:
    void connectWorkers(const ControlWorkers &workers);
    void connectStore();
    void connectFace();

    void choose(TrayEntry entry, bool checked, bool asCancel);
    void chooseConnect(bool asCancel);
    void chooseNode(const QString &nodeID);
    /// As the menu shows it; empty for a node that is neither listed nor remembered.
    QString nodeLabel(const QString &nodeID) const;
    void handleNodeMenuOpening();
    void handleStatusAnswered(bool succeeded);

    TrayCondition condition() const;
    void update();

    void beginShellOperation(TrayBusy kind, const ShellOperation &operation,
                             const QString &progressText, bool cancellable = false);
    std::optional<ShellOperation> endShellOperation(quint64 requestId);
    void handleOperationBegun();
    void handleOperationEnded();
    /// A failure in the daemon's own words, or `fallback` where it gave none.
    void notifyFailure(const QString &errorMessage, const QString &fallback);

    AppState &m_state;
    RequestLink m_link;
    TrayOperations m_operations;
    TrayPoll m_poll;
    TrayChanges m_changes;
    RecentActivityStore m_recents;
    TrayFace m_face;

    QTimer m_unheard; ///< Runs while an operation is so young that its silence means nothing.
    bool m_judged = false;
    QString m_unavailableReason;
    QString m_notice; ///< The latest notification, until the next status answer.
    QList<RecentNode> m_recentNodes;
};
