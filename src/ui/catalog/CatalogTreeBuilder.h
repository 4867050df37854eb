#pragma once

#include "CatalogRecords.h"
#include "CatalogTreeItem.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <memory>

/// Makes the tree of tabs, groups and nodes out of the daemon's catalogue: a flat list
/// of nodes, and tabs with groups that refer to nodes by id. A node may be listed in
/// several places; what is shown of it is worked out once.
class CatalogTreeBuilder final
{
    Q_DECLARE_TR_FUNCTIONS(CatalogTreeModel)
    Q_DISABLE_COPY_MOVE(CatalogTreeBuilder)

public:
    CatalogTreeBuilder(const QList<NodeEntry> &nodes, const QList<NodeGroupTab> &tabs);

    /// The root of a new tree, without markers.
    std::unique_ptr<CatalogTreeItem> build();

private:
    /// What is shown of a node wherever it is listed.
    struct NodeTexts
    {
        const NodeEntry *node = nullptr;
        QString text;
        QString detail;
        QString flagCode;
        QString searchText;
    };

    CatalogTreeItem &append(CatalogTreeItem &parent, CatalogTreeItem::Kind kind);
    void close(CatalogTreeItem &item) const;
    void addTab(CatalogTreeItem &root, const NodeGroupTab &tab);
    void addGroup(CatalogTreeItem &parent, const NodeGroup &group);
    void addNode(CatalogTreeItem &parent, const QString &listedId);
    void collectFavorites(const QStringList &nodeIds, const QList<NodeGroup> &groups);
    const NodeTexts &textsOf(const QString &id);

    static NodeTexts textsFor(const QString &id, const NodeEntry *node);
    static QString tabLabel(const QString &key);
    static QStringList tabAliases(const QString &key);

    const QList<NodeGroupTab> &m_tabs;
    QHash<QString, const NodeEntry *> m_nodes;
    QHash<QString, NodeTexts> m_texts;
    QSet<QString> m_favorites;
    size_t m_nextOrdinal = 1;
};
