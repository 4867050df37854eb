#include "NodePingPoll.h"

#include "AppState.h"
#include "CatalogController.h"

NodePingPoll::NodePingPoll(AppState &state, CatalogController &catalog, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_catalog(catalog)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &NodePingPoll::poll);
    connect(&state, &AppState::nodesChanged, this, &NodePingPoll::update);
}

bool NodePingPoll::isWanted() const
{
    return m_watched && m_available && m_state.nodes().pingRunning;
}

void NodePingPoll::setWatched(bool watched)
{
    if (m_watched == watched) {
        return;
    }
    m_watched = watched;
    if (watched && m_available && !m_catalog.isFetchingNodes()) {
        m_catalog.fetchNodes();
    }
    update();
}

void NodePingPoll::setDaemonAvailable(bool available)
{
    m_available = available;
    update();
}

void NodePingPoll::poll()
{
    if (isWanted() && !m_catalog.isFetchingNodes()) {
        m_catalog.fetchNodes();
    }
    update();
}

void NodePingPoll::update()
{
    if (!isWanted()) {
        m_timer.stop();
    } else if (!m_timer.isActive()) {
        m_timer.start();
    }
}
