#pragma once

#include "ControlRecords.h"
#include "RequestLink.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

class AppState;
class TrayOperations;

/// The steady poll of the daemon: asks for the status, the kill switch, the account and
/// the catalogue, and puts the answers into the store. Answers that come while an
/// operation runs are dropped; the operation's end brings a new poll.
///
/// Owned by the tray application, which feeds it the workers' answers. What it is given
/// must outlive it.
class TrayPoll final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayPoll)

public:
    /// After the start and after each operation.
    static constexpr std::chrono::milliseconds kSoon{250};
    static constexpr std::chrono::milliseconds kActive{3000}; ///< Connected or pending.
    static constexpr std::chrono::milliseconds kIdle{8000};
    static constexpr std::chrono::milliseconds kFailed{10000};

    TrayPoll(AppState &state, RequestLink &link, const TrayOperations &operations,
             QObject *parent = nullptr);

    void start();
    /// Becoming available asks at once, if started; loss stops the poll and drops the
    /// answers under way.
    void setAvailable(bool available);
    bool isAvailable() const { return m_available; }

    /// Asks now, unless that is under way.
    void refresh();
    /// Drops answers under way, which may be older than a change just made, and asks
    /// again soon.
    void pollSoon();
    /// No poll until pollSoon().
    void pause() { m_timer.stop(); }
    /// With `refresh` the daemon fetches the catalogue anew, for the user.
    void requestNodes(bool refresh);

    bool isStatusKnown() const { return m_statusKnown; }
    bool hasStatusFailed() const { return m_statusFailed; }
    /// Of the failed status request; maybe empty.
    const QString &statusError() const { return m_statusError; }
    /// Nodes were received at all, if only an empty list.
    bool areNodesHeld() const { return m_nodesHeld; }
    /// The latest answer was an error, and there is none from before.
    bool haveNodesFailed() const { return m_nodesFailed && !m_nodesHeld; }
    bool haveGroupsFailed() const { return m_groupsFailed && !m_groupsHeld; }
    bool isCatalogueInFlight() const;
    /// The catalogue is under way because the user refreshes it.
    bool isRefreshing() const { return m_refreshing && isCatalogueInFlight(); }

    // Answers of the workers. Those that nobody awaits are dropped.
    void takeStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void takeUser(quint64 requestId, const UserInfo &user, const QString &errorMessage);
    void takeNodes(quint64 requestId, const NodesInfo &nodes, const QString &errorMessage);
    void takeNodeGroups(quint64 requestId, const NodeGroupsInfo &groups,
                        const QString &errorMessage);

    // Changes of the store, whoever made them.
    void runtimeChanged(const RuntimeInfo &runtime);
    void nodesChanged() { m_nodesHeld = true; }
    void nodeGroupsChanged() { m_groupsHeld = true; }

Q_SIGNALS:
    void statusAnswered(bool succeeded);
    /// The user's refresh of the nodes failed. `fallback` serves for an empty message.
    void refreshFailed(const QString &errorMessage, const QString &fallback);

private:
    void applyStatus(const RuntimeInfo &info);
    void fetchNodeGroups();

    AppState &m_state;
    RequestLink &m_link;
    const TrayOperations &m_operations;
    QTimer m_timer;
    bool m_started = false;
    bool m_available = false;
    bool m_statusKnown = false;
    bool m_statusFailed = false;
    QString m_statusError;
    bool m_nodesHeld = false;
    bool m_groupsHeld = false;
    bool m_nodesFailed = false;
    bool m_groupsFailed = false;
    bool m_refreshing = false; ///< The catalogue requests under way are the user's refresh.
};
