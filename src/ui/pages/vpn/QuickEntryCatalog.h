#pragma once

#include "CatalogRecords.h"
#include "CatalogSearch.h"
#include "CatalogTreeItem.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

/// A place that the quick entry offers.
struct QuickEntryItem
{
    enum class Kind {
        Node,
        Group, ///< The best server of a group; `id` is the group's key.
    };

    Kind kind = Kind::Node;
    QString id;
    QString label;    ///< The place's name, a plain line.
    QString flagCode; ///< "jp"; empty when the country isn't known.
    int pingMs = -1;
    int signalLevel = -1;
    bool favorite = false;
    bool available = true;  ///< The catalogue still has it.
    bool connected = false; ///< The node in use; the catalogue leaves it to others.

    bool operator==(const QuickEntryItem &) const = default;
};

/// The daemon's catalogue, laid out for finding places while somebody types: what a
/// place can be found by is worked out here once, and a search only reads it. The rules
/// are those of the list of locations, so that both find the same.
class QuickEntryCatalog final
{
public:
    static constexpr qsizetype kMaxMatches = 20;
    /// Groups among the matches, which come after the nodes.
    static constexpr qsizetype kMaxGroupMatches = 3;

    /// An empty catalogue.
    QuickEntryCatalog() = default;
    QuickEntryCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups);

    bool isEmpty() const { return m_nodes.isEmpty(); }

    /// The first places that match, in the catalogue's order, each once. None for a
    /// query without words.
    QList<QuickEntryItem> search(const QString &query) const;

    /// A node by its id; one that isn't listed comes back as not available.
    QuickEntryItem node(const QString &id) const;

    /// All tags, the frequent ones first, and by name among equals.
    QStringList popularTags() const { return m_popularTags; }

private:
    struct GroupEntry
    {
        QuickEntryItem item;
        QString text; ///< What the group and those around it are found by.
    };

    using Missing = CatalogSearch::Missing;

    void readRow(const CatalogTreeItem &row, const QString &place, const QString &text);
    void rankTags();
    /// Adds the matches below `row`, given what the rows down to it leave to be found.
    void findBelow(const CatalogTreeItem &row, const CatalogSearch &search, const Missing &missing,
                   qsizetype room, QList<QuickEntryItem> &matches, QSet<QString> &taken) const;

    QHash<QString, NodeEntry> m_nodes; ///< By trimmed id.
    QSet<QString> m_favorites;
    QList<GroupEntry> m_groups;
    QSet<QString> m_groupKeys; ///< Of `m_groups`, lower case.
    QStringList m_popularTags;
    /// The catalogue as the list of locations arranges it.
    std::unique_ptr<const CatalogTreeItem> m_tree;
};
