#include "QuickEntryCatalog.h"

#include "CatalogTreeBuilder.h"
#include "FlagPixmap.h"
#include "NodeMenuModel.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The tabs, or one of all nodes while the daemon has not sent any yet.
QList<NodeGroupTab> tabsOf(const NodesInfo &nodes, const NodeGroupsInfo &groups)
{
    if (!groups.tabs.isEmpty()) {
        return groups.tabs;
    }
    NodeGroupTab all;
    for (const NodeEntry &node : nodes.nodes) {
        all.nodeIds += node.id;
    }
    return {all};
}

} // namespace

QuickEntryCatalog::QuickEntryCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups)
{
    m_nodes.reserve(nodes.nodes.size());
    for (const NodeEntry &node : nodes.nodes) {
        if (const QString id = node.id.trimmed(); !id.isEmpty() && !m_nodes.contains(id)) {
            m_nodes.insert(id, node);
        }
    }
    const QList<NodeGroupTab> tabs = tabsOf(nodes, groups);
    m_tree = CatalogTreeBuilder(nodes.nodes, tabs).build();
    readRow(*m_tree, {}, {});
    rankTags();
}

void QuickEntryCatalog::readRow(const CatalogTreeItem &row, const QString &place,
                                const QString &text)
{
    QString label = place;
    QString fullText = text;
    if (row.kind == CatalogTreeItem::Kind::Node) {
        if (row.favorite) {
            m_favorites.insert(row.nodeId);
        }
        return;
    }
    if (row.kind == CatalogTreeItem::Kind::Group) {
        label = NodeMenuModel::joinedName(place, row.text);
        fullText = CatalogSearch::searchText({text, row.searchText});
        const QString key = row.key.toLower();
        if (!key.isEmpty() && !m_groupKeys.contains(key)) {
            m_groupKeys.insert(key);
            m_groups.append({{.kind = QuickEntryItem::Kind::Group,
                              .id = row.key,
                              .label = label,
                              .flagCode = flagCode(row.key)},
                             fullText});
        }
    }
    for (const auto &child : row.children) {
        readRow(*child, label, fullText);
    }
}

void QuickEntryCatalog::rankTags()
{
    QHash<QString, int> counts;
    for (const NodeEntry &node : std::as_const(m_nodes)) {
        for (const QString &tag : NodeMenuModel::allTags(node)) {
            ++counts[tag];
        }
    }
    m_popularTags = counts.keys();
    std::sort(m_popularTags.begin(), m_popularTags.end(),
              [&counts](const QString &a, const QString &b) {
                  const int first = counts.value(a);
                  const int second = counts.value(b);
                  return first == second ? a < b : first > second;
              });
}

QuickEntryItem QuickEntryCatalog::node(const QString &id) const
{
    QString trimmed = id.trimmed();
    const auto found = m_nodes.constFind(trimmed);
    if (found == m_nodes.constEnd()) {
        QString label = NodeMenuModel::unavailable(trimmed);
        QuickEntryItem missing;
        missing.id = std::move(trimmed);
        missing.label = std::move(label);
        missing.available = false;
        return missing;
    }
    return {.id = trimmed,
            .label = NodeMenuModel::labelOrNone(*found),
            .flagCode = flagCode(found->region),
            .pingMs = found->pingMs,
            .signalLevel = found->signalLevel,
            .favorite = m_favorites.contains(trimmed)};
}

QList<QuickEntryItem> QuickEntryCatalog::search(const QString &query) const
{
    const CatalogSearch search(query);
    if (search.isEmpty() || !m_tree) {
        return {};
    }
    QList<QuickEntryItem> groups;
    for (const GroupEntry &group : m_groups) {
        if (groups.size() < kMaxGroupMatches && search.accepts(group.text)) {
            groups += group.item;
        }
    }
    QList<QuickEntryItem> matches;
    QSet<QString> taken;
    findBelow(*m_tree, search, search.allTerms(), kMaxMatches - groups.size(), matches, taken);
    return matches + groups;
}

void QuickEntryCatalog::findBelow(const CatalogTreeItem &row, const CatalogSearch &search,
                                  const Missing &missing, qsizetype room,
                                  QList<QuickEntryItem> &matches, QSet<QString> &taken) const
{
    for (const auto &child : row.children) {
        if (matches.size() >= room) {
            return;
        }
        const Missing rest = search.stillMissing(missing, child->searchText);
        if (child->kind != CatalogTreeItem::Kind::Node) {
            findBelow(*child, search, rest, room, matches, taken);
        } else if (rest.isEmpty() && !taken.contains(child->nodeId) &&
                   m_nodes.contains(child->nodeId)) {
            taken.insert(child->nodeId);
            matches += node(child->nodeId);
        }
    }
}
