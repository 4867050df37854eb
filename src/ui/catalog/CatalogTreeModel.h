#pragma once

#include "CatalogRecords.h"
#include "CatalogTreeItem.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <memory>

/// The daemon's catalogue as a tree of tabs, groups and nodes, with marks for the
/// connected and the selected node and with the user's favourites.
///
/// A catalogue that differs in more than measurements replaces the tree in one reset,
/// after which every index is invalid: pathOf() and indexOfPath() carry expansion and
/// selection over it. One that differs in nothing changes nothing. Lives on the GUI
/// thread.
class CatalogTreeModel final : public QAbstractItemModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CatalogTreeModel)

public:
    enum Role {
        KindRole = Qt::UserRole + 1, ///< "root", "tab", "group" or "node".
        NodeIdRole,                  ///< Empty but for nodes.
        SelectedRole,                ///< The next connect goes here.
        ConnectedRole,
        ContainsConnectedRole, ///< The connected node is somewhere below.
        SearchTextRole,
        DetailTextRole,
        FirstMetricRole, ///< Signal level, 0 to 100; invalid when unknown.
        LatencyRole,     ///< Milliseconds; invalid when not measured.
        FavoriteRole,    ///< As the user last set it, else as the catalogue has it.
        FavoritePendingRole,
        GroupKeyRole, ///< Of tabs and groups: the selector for a connect.
    };

    explicit CatalogTreeModel(QObject *parent = nullptr);
    ~CatalogTreeModel() override;

    /// Shows this catalogue. New measurements alone are put into the rows that have
    /// them; anything else that changed builds the tree anew.
    void setCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups);

    /// Marks the nodes with these ids; empty marks none.
    void setCurrentNodes(const QString &selectedId, const QString &connectedId);

    /// Shows a favourite as the user has just set it, until it is cleared. Overrides and
    /// pending marks outlive a new catalogue.
    void setFavoriteOverride(const QString &nodeId, bool favorite);
    void clearFavoriteOverrides();

    /// Marks a node whose change of favourite is on its way to the daemon.
    void setFavoritePending(const QString &nodeId);
    void clearFavoritePending();

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// The row of an index of this model; the root for an invalid one. Valid until the
    /// next reset.
    const CatalogTreeItem &item(const QModelIndex &index) const;
    QModelIndex indexOf(const CatalogTreeItem &item) const;
    /// Counts the trees built, so that others know when theirs is out of date.
    quint64 revision() const { return m_revision; }

    /// The keys from the tab down to the row, which stay the same from one catalogue to
    /// the next; empty for an invalid index.
    QStringList pathOf(const QModelIndex &index) const;
    /// The row with this path; invalid when the catalogue has none.
    QModelIndex indexOfPath(const QStringList &path) const;

private:
    void rebuild();
    void registerNodes(CatalogTreeItem &item);
    void updateMeasurements(const QList<NodeEntry> &nodes);
    bool mark(CatalogTreeItem &item, QList<const CatalogTreeItem *> &changed) const;
    void emitFavoriteChanged(const QString &nodeId);
    QVariant nodeData(const CatalogTreeItem &item, int role) const;

    std::unique_ptr<CatalogTreeItem> m_root;
    QHash<QString, QList<CatalogTreeItem *>> m_rowsOfNode;
    QList<NodeEntry> m_nodes;
    QList<NodeGroupTab> m_tabs;
    QString m_selectedId;
    QString m_connectedId;
    QHash<QString, bool> m_favoriteOverrides;
    QSet<QString> m_favoritePending;
    quint64 m_revision = 0;
};
