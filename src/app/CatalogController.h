#pragma once

#include "CatalogRecords.h"
#include "RuntimeRecords.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <optional>

class AppState;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;

/// Keeps the catalogue of places fresh: fetches it, again for whoever signs in or out,
/// asks the daemon to refresh it, and watches the status while a refresh runs, whoever
/// began it.
class CatalogController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CatalogController)

public:
    static constexpr std::chrono::milliseconds kWatchInterval{1000};
    /// Status polls of one watch at most.
    static constexpr int kWatchBudget = 60;

    /// All arguments must outlive the object.
    CatalogController(RequestLink &link, AppState &state, NoticeSink &notices,
                      ServiceCompatibility &compatibility, QObject *parent = nullptr);

    /// Fetches nodes and groups as the daemon holds them.
    void fetch();
    void fetchNodes();
    void fetchGroups();
    /// Fetches for another account, or for none. One that signs in or out elsewhere is
    /// seen by the status.
    void changeAccount(bool signedIn);
    /// Asks quietly for nodes and groups that could not be had; to be called whenever the
    /// daemon answered.
    void fetchMissed();
    /// Asks the daemon to refresh the catalogue, unless one did so lately.
    void refresh();
    /// Watches the status until the daemon's refresh is over.
    void startWatch();
    /// Ignores the answer to a status request under way, which may be older than a change
    /// just made; a running watch asks again.
    void dropStatusUnderWay();
    /// A refresh is under way, so that what the catalogue says is about to change.
    bool isUpdating() const { return m_watching || isRefreshPending(); }
    bool isFetchingNodes() const;
    /// A catalogue was held once, even an empty one.
    bool isHeld() const { return m_held; }

    void pollWatch();
    void handleStatus(const RuntimeInfo &info, const QString &error);
    void handleNodes(quint64 requestId, const NodesInfo &nodes, const QString &error);
    void handleNodeGroups(const NodeGroupsInfo &groups, const QString &error);

Q_SIGNALS:
    /// `received`: the groups are those of now; else they could not be had.
    void groupsAnswered(bool received);
    /// A refresh was sent, or the last one was answered.
    void refreshingChanged(bool refreshing);

private:
    void finishWatch(bool refreshed);
    void noteCooldown(int seconds);
    void noteRuntime(const RuntimeInfo &runtime);
    bool isRefreshPending() const;

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    ServiceCompatibility &m_compatibility;
    QTimer m_watchTimer;
    int m_budget = 0;
    bool m_watching = false;
    quint64 m_refreshId = 0;
    bool m_refreshSent = false;
    bool m_daemonRefreshing = false;
    bool m_announce = false;
    bool m_held = false;
    bool m_nodesMissed = false;
    bool m_groupsMissed = false;
    std::optional<bool> m_signedIn; ///< As far as anybody told.
};
