#include "CatalogController.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "RuntimeFacts.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <utility>

CatalogController::CatalogController(RequestLink &link, AppState &state, NoticeSink &notices,
                                     ServiceCompatibility &compatibility, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_compatibility(compatibility)
{
    m_watchTimer.setSingleShot(true);
    m_watchTimer.setInterval(kWatchInterval);
    connect(&m_watchTimer, &QTimer::timeout, this, &CatalogController::pollWatch);
    connect(&state, &AppState::runtimeChanged, this, &CatalogController::noteRuntime);
    connect(&state, &AppState::nodesRefreshCooldownChanged, this, &CatalogController::noteCooldown);
    connect(&state, &AppState::nodesChanged, this, [this] { m_held = true; });
}

bool CatalogController::isRefreshPending() const
{
    return m_refreshSent && m_link.pendingId(ControlRequest::FetchNodes) == m_refreshId;
}

bool CatalogController::isFetchingNodes() const
{
    return m_link.isPending(ControlRequest::FetchNodes);
}

void CatalogController::fetch()
{
    fetchNodes();
    fetchGroups();
}

void CatalogController::fetchNodes()
{
    // A read sent now would take the place of the refresh that is still awaited,
    // whose answer brings the nodes anyway.
    if (!isRefreshPending()) {
        m_link.send(ControlRequest::FetchNodes, false);
    }
}

void CatalogController::fetchGroups()
{
    m_groupsMissed = false;
    m_link.send(ControlRequest::FetchNodeGroups);
}

void CatalogController::fetchMissed()
{
    if (m_nodesMissed && !isFetchingNodes()) {
        fetchNodes();
    }
    if (m_groupsMissed && !m_link.isPending(ControlRequest::FetchNodeGroups)) {
        m_link.send(ControlRequest::FetchNodeGroups);
    }
}

void CatalogController::refresh()
{
    if (isRefreshPending() || m_state.nodesRefreshCooldown() > 0 ||
        !m_compatibility.changeGuardPasses()) {
        return;
    }
    m_refreshId = m_link.send(ControlRequest::FetchNodes, true);
    m_refreshSent = true;
    Q_EMIT refreshingChanged(true);
    m_notices.show(ShellText::tr("Refreshing locations..."), MainWindow::NoticeKind::Info);
}

void CatalogController::noteCooldown(int seconds)
{
    // A full cool-down means that a refresh was accepted a moment ago, whichever
    // face asked for it.
    if (seconds == AppState::kNodesRefreshCooldownSeconds) {
        m_announce = true;
        startWatch();
    }
}

void CatalogController::startWatch()
{
    m_watching = true;
    m_budget = kWatchBudget;
    if (m_link.isPending(ControlRequest::FetchStatus)) {
        m_watchTimer.start();
        return;
    }
    m_link.send(ControlRequest::FetchStatus);
    --m_budget;
}

void CatalogController::dropStatusUnderWay()
{
    if (m_link.isPending(ControlRequest::FetchStatus)) {
        m_link.forget(ControlRequest::FetchStatus);
        m_watchTimer.start();
    }
}

void CatalogController::pollWatch()
{
    if (m_budget < 1) {
        finishWatch(false);
    } else if (m_link.isPending(ControlRequest::FetchStatus)) {
        m_watchTimer.start();
    } else {
        m_link.send(ControlRequest::FetchStatus);
        --m_budget;
    }
}

void CatalogController::handleStatus(const RuntimeInfo &info, const QString &error)
{
    if (error.isEmpty()) {
        m_state.setRuntime(info);
        const bool refreshing = info.catalogRefresh == wire::kCatalogRefreshing;
        if (refreshing && m_budget > 0) {
            m_watchTimer.start();
        } else {
            finishWatch(!refreshing);
        }
    } else if (m_budget < 1) {
        finishWatch(false);
    } else {
        m_watchTimer.start();
    }
}

void CatalogController::finishWatch(bool refreshed)
{
    m_watching = false;
    m_budget = 0;
    m_watchTimer.stop();
    fetch();
    const bool announce = std::exchange(m_announce, false);
    if (announce && refreshed) {
        m_notices.show(ShellText::tr("Locations updated"), MainWindow::NoticeKind::Success);
    }
}

void CatalogController::changeAccount(bool signedIn)
{
    m_signedIn = signedIn;
    fetch();
}

void CatalogController::noteRuntime(const RuntimeInfo &runtime)
{
    const bool refreshing = runtime.catalogRefresh == wire::kCatalogRefreshing;
    const bool ended = m_daemonRefreshing && !refreshing;
    m_daemonRefreshing = refreshing;
    bool otherAccount = false;
    if (!runtime.authState.trimmed().isEmpty()) {
        const bool signedIn = facts::isSignedIn(runtime);
        otherAccount = signedIn != std::exchange(m_signedIn, signedIn).value_or(signedIn);
    }
    // The end of a refresh that nobody watches: the daemon's own, or one that
    // another client asked for. A running watch fetches by itself.
    if (otherAccount || (ended && !m_watching)) {
        fetch();
    }
}

void CatalogController::handleNodes(quint64 requestId, const NodesInfo &nodes, const QString &error)
{
    const bool wasRefresh = m_refreshSent && requestId == m_refreshId;
    if (wasRefresh) {
        m_refreshSent = false;
        Q_EMIT refreshingChanged(false);
    }
    if (!error.isEmpty()) {
        if (wasRefresh) {
            m_notices.error(error, ShellText::tr("Could not refresh locations"), Page::Locations);
        } else {
            m_nodesMissed = true;
        }
        return;
    }
    m_held = true;
    m_nodesMissed = false;
    m_state.setNodes(nodes);
    if (wasRefresh) {
        m_state.startNodesRefreshCooldown();
    }
}

void CatalogController::handleNodeGroups(const NodeGroupsInfo &groups, const QString &error)
{
    if (error.isEmpty()) {
        m_groupsMissed = false;
        m_state.setNodeGroups(groups);
    } else if (!std::exchange(m_groupsMissed, true)) {
        m_notices.error(error, ShellText::tr("Could not refresh location groups"));
    }
    Q_EMIT groupsAnswered(error.isEmpty());
}
