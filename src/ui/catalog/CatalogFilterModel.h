#pragma once

#include "CatalogSearch.h"
#include "CatalogTreeItem.h"
#include "QtCompat.h"

#include <QString>

#include <vector>

class CatalogTreeModel;

/// The catalogue's tree with only what the search finds: the rows that match, all that
/// lies below them, and what leads to them. Without a search it is the whole tree, in
/// the catalogue's order.
///
/// Which rows are kept, and how many places below each, is worked out in one walk per
/// query and catalogue. It also answers what only a view asks for: the country of a flag,
/// the number of places and the text that is read aloud. Lives on the GUI thread.
class CatalogFilterModel final : public qtcompat::RowFilterProxyModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CatalogFilterModel)

public:
    /// In addition to the roles of CatalogTreeModel and to Qt::AccessibleTextRole.
    enum ViewRole {
        FlagCodeRole = Qt::UserRole + 100, ///< Of nodes, for flagPixmap(); may be empty.
        PlaceCountRole,                    ///< Of tabs and groups: the nodes shown below, as int.
    };

    /// `source` must outlive the filter.
    explicit CatalogFilterModel(CatalogTreeModel &source, QObject *parent = nullptr);

    const QString &searchText() const { return m_searchText; }
    /// Shows what this query finds; a query without words shows everything.
    void setSearchText(const QString &text);

    /// Whether anything is shown below a row of the source. Ask this, not mapFromSource(),
    /// for a search within one tab: a tab that is filtered out maps to an invalid index,
    /// which a view would take for all tabs.
    bool hasRowsBelow(const QModelIndex &sourceRow) const;

    /// The first node shown below a row of the source, as an index of this model.
    QModelIndex firstNodeBelow(const QModelIndex &sourceRow) const;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    bool isKept(const CatalogTreeItem &item) const;
    int placeCount(const CatalogTreeItem &item) const;
    void findMatches() const;
    int visit(const CatalogTreeItem &item, const CatalogSearch::Missing &missing) const;
    QString spokenText(const CatalogTreeItem &item) const;

    const CatalogTreeModel &m_source;
    QString m_searchText;
    CatalogSearch m_search;
    // The places found at each row or below, by the rows' ordinals, for the tree of
    // m_matchedRevision; worked out when asked for.
    mutable std::vector<int> m_found;
    mutable quint64 m_matchedRevision = 0;
    mutable bool m_isMatched = false;
};
