#include "TrayPoll.h"

#include "AppState.h"
#include "RuntimeFacts.h"
#include "TrayMenuText.h"
#include "TrayOperations.h"

#include <array>
#include <utility>

namespace {

/// Reads whose answers mean nothing once the daemon is gone.
constexpr std::array kReads{ControlRequest::FetchStatus, ControlRequest::FetchKillSwitch,
                            ControlRequest::FetchUser, ControlRequest::FetchNodes,
                            ControlRequest::FetchNodeGroups};

} // namespace

TrayPoll::TrayPoll(AppState &state, RequestLink &link, const TrayOperations &operations,
                   QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_link(link)
    , m_operations(operations)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TrayPoll::refresh);
}

void TrayPoll::start()
{
    m_started = true;
    if (m_available) {
        m_timer.start(kSoon);
    }
}

void TrayPoll::setAvailable(bool available)
{
    const bool gained = available && !m_available;
    m_available = available;
    if (gained) {
        m_statusFailed = false;
        if (m_started) {
            refresh();
        }
    } else if (!available) {
        m_timer.stop();
        for (const ControlRequest read : kReads) {
            m_link.forget(read);
        }
    }
}

void TrayPoll::refresh()
{
    if (!m_available) {
        return;
    }
    if (!m_link.isPending(ControlRequest::FetchStatus)) {
        m_link.send(ControlRequest::FetchStatus);
    }
    if (!m_link.isPending(ControlRequest::FetchKillSwitch) &&
        !m_operations.has(TrayBusy::KillSwitch)) {
        m_link.send(ControlRequest::FetchKillSwitch);
    }
}

void TrayPoll::pollSoon()
{
    m_link.forget(ControlRequest::FetchStatus);
    m_link.forget(ControlRequest::FetchKillSwitch);
    if (m_available && m_started) {
        m_timer.start(kSoon);
    }
}

void TrayPoll::requestNodes(bool refresh)
{
    m_refreshing = refresh;
    m_link.send(ControlRequest::FetchNodes, refresh);
}

void TrayPoll::fetchNodeGroups()
{
    m_link.send(ControlRequest::FetchNodeGroups);
}

bool TrayPoll::isCatalogueInFlight() const
{
    return m_link.isPending(ControlRequest::FetchNodes) ||
           m_link.isPending(ControlRequest::FetchNodeGroups);
}

void TrayPoll::takeStatus(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage)
{
    if (!m_link.take(requestId) || m_operations.any()) {
        return;
    }
    m_statusFailed = !errorMessage.isEmpty();
    m_statusError = errorMessage;
    if (m_statusFailed) {
        m_timer.start(kFailed);
    } else {
        applyStatus(info);
        m_timer.start(facts::isConnected(info) || facts::isPending(info) ? kActive : kIdle);
    }
    Q_EMIT statusAnswered(!m_statusFailed);
}

void TrayPoll::applyStatus(const RuntimeInfo &info)
{
    m_statusKnown = true;
    m_state.setRuntime(info);
    if (!m_nodesHeld && !m_link.isPending(ControlRequest::FetchNodes)) {
        requestNodes(false);
    }
    if (!m_groupsHeld && !m_link.isPending(ControlRequest::FetchNodeGroups)) {
        fetchNodeGroups();
    }
    if (facts::isSignedIn(info) && !m_link.isPending(ControlRequest::FetchUser) &&
        !m_operations.has(TrayBusy::Logout)) {
        m_link.send(ControlRequest::FetchUser);
    }
}

void TrayPoll::takeUser(quint64 requestId, const UserInfo &user, const QString &errorMessage)
{
    if (m_link.take(requestId) && errorMessage.isEmpty()) {
        m_state.setUser(user);
    }
}

void TrayPoll::takeNodes(quint64 requestId, const NodesInfo &nodes, const QString &errorMessage)
{
    if (!m_link.take(requestId)) {
        return;
    }
    m_nodesFailed = !errorMessage.isEmpty();
    if (!m_nodesFailed) {
        m_nodesHeld = true;
        m_state.setNodes(nodes);
        if (m_refreshing) {
            m_state.startNodesRefreshCooldown();
            fetchNodeGroups();
        }
    } else if (std::exchange(m_refreshing, false)) {
        Q_EMIT refreshFailed(errorMessage, TrayMenuText::couldNotRefreshNodes());
    }
}

void TrayPoll::takeNodeGroups(quint64 requestId, const NodeGroupsInfo &groups,
                              const QString &errorMessage)
{
    if (!m_link.take(requestId)) {
        return;
    }
    const bool refreshing = std::exchange(m_refreshing, false);
    m_groupsFailed = !errorMessage.isEmpty();
    if (!m_groupsFailed) {
        m_groupsHeld = true;
        m_state.setNodeGroups(groups);
    } else if (refreshing) {
        Q_EMIT refreshFailed(errorMessage, TrayMenuText::couldNotRefreshGroups());
    }
}

void TrayPoll::runtimeChanged(const RuntimeInfo &runtime)
{
    m_statusKnown = true;
    if (!runtime.authState.trimmed().isEmpty() && !facts::isSignedIn(runtime)) {
        m_link.forget(ControlRequest::FetchUser);
        m_state.clearUser();
    }
}
