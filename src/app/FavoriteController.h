#pragma once

#include "CatalogRecords.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

class AppState;
class CatalogController;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;

/// Marks places as favourites, one request after the other, and tells which wishes are
/// not yet confirmed, so that the lists can show them at once.
class FavoriteController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FavoriteController)

public:
    /// All arguments must outlive the object.
    FavoriteController(RequestLink &link, AppState &state, NoticeSink &notices,
                       ServiceCompatibility &compatibility, CatalogController &catalog,
                       QObject *parent = nullptr);

    void setFavorite(const QString &nodeID, bool favorite);

    /// The answer to a change that the link still awaited.
    void handleFavorite(const NodesInfo &nodes, const QString &error);

Q_SIGNALS:
    /// The wishes that the daemon has not confirmed, by node id. A wish leaves the list
    /// when it was refused, or when the groups that show it have arrived. Those that are
    /// `awaited` can't be changed meanwhile.
    void unconfirmedChanged(const QHash<QString, bool> &favorites, const QSet<QString> &awaited);

private:
    struct Wish
    {
        QString nodeID;
        bool favorite = false;
        bool accepted = false; ///< Only the groups are still awaited.
        bool overdue = false;  ///< They could not be had.
    };

    void sendNext();
    void handleGroups(bool received);
    void publish();

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    ServiceCompatibility &m_compatibility;
    CatalogController &m_catalog;
    QList<Wish> m_wishes;
};
