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
    connect(&catalog, &CatalogController::groupsReceived, this, &FavoriteController::dropAccepted);
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
    const auto same = std::find_if(m_wishes.begin(), m_wishes.end(),
                                   [&id](const Wish &wish) { return wish.nodeID == id; });
    if (same != m_wishes.end()) {
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

void FavoriteController::dropAccepted()
{
    const qsizetype before = m_wishes.size();
    m_wishes.removeIf([](const Wish &wish) { return wish.accepted; });
    if (m_wishes.size() != before) {
        publish();
    }
}

void FavoriteController::publish()
{
    QHash<QString, bool> favorites;
    for (const Wish &wish : std::as_const(m_wishes)) {
        favorites.insert(wish.nodeID, wish.favorite);
    }
    Q_EMIT unconfirmedChanged(favorites);
}
