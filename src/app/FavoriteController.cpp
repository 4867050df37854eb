#include "FavoriteController.h"

#include "AppState.h"
#include "CatalogController.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <algorithm>
#include <iterator>

FavoriteController::FavoriteController(RequestLink &link, AppState &state, NoticeSink &notices,
                                       ServiceCompatibility &compatibility,
                                       CatalogController &catalog, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_compatibility(compatibility)
    , m_catalog(catalog)
{
    connect(&catalog, &CatalogController::groupsAnswered, this, &FavoriteController::handleGroups);
}

void FavoriteController::setFavorite(const QString &nodeID, bool favorite)
{
    const QString id = nodeID.trimmed();
    if (id.isEmpty()) {
        return;
    }
    if (!m_compatibility.changeGuardPasses()) {
        publish(); // What the list shows already must go back.
        return;
    }
    if (m_catalog.isUpdating()) {
        m_notices.show(ShellText::tr("A locations update is already in progress"),
                       MainWindow::NoticeKind::Info);
        publish();
        return;
    }
    const auto latest = std::find_if(m_wishes.crbegin(), m_wishes.crend(),
                                     [&id](const Wish &wish) { return wish.nodeID == id; });
    if (latest != m_wishes.crend() && !latest->overdue) {
        return; // The list lets nobody change their mind before the answer.
    }
    m_wishes.append({id, favorite, false});
    sendNext();
    publish();
}

void FavoriteController::sendNext()
{
    if (m_link.isPending(ControlRequest::SetNodeFavorite)) {
        return;
    }
    for (const Wish &wish : m_wishes) {
        if (!wish.accepted) {
            m_link.send(ControlRequest::SetNodeFavorite, wish.nodeID, wish.favorite);
            return;
        }
    }
}

void FavoriteController::handleFavorite(const NodesInfo &nodes, const QString &error)
{
    // Answers come in the order of the requests: this one belongs to the first wish
    // that was not accepted.
    const auto wish = std::find_if(m_wishes.begin(), m_wishes.end(),
                                   [](const Wish &candidate) { return !candidate.accepted; });
    if (wish != m_wishes.end()) {
        if (error.isEmpty()) {
            wish->accepted = true;
        } else {
            m_wishes.removeAt(std::distance(m_wishes.begin(), wish));
        }
    }
    if (error.isEmpty()) {
        m_state.setNodes(nodes);
        m_catalog.fetchGroups();
    } else {
        m_notices.error(error, ShellText::tr("Could not update favorite"));
        publish();
    }
    sendNext();
}

void FavoriteController::handleGroups(bool received)
{
    if (m_wishes.isEmpty()) {
        return;
    }
    if (received) {
        m_wishes.removeIf([](const Wish &wish) { return wish.accepted; });
    }
    for (Wish &wish : m_wishes) {
        wish.overdue = wish.accepted;
    }
    publish();
}

void FavoriteController::publish()
{
    QHash<QString, bool> favorites;
    QSet<QString> awaited;
    for (const Wish &wish : std::as_const(m_wishes)) {
        favorites.insert(wish.nodeID, wish.favorite);
        if (!wish.overdue) {
            awaited.insert(wish.nodeID);
        }
    }
    Q_EMIT unconfirmedChanged(favorites, awaited);
}
