#include "CatalogTreeModel.h"

#include "CatalogTexts.h"
#include "CatalogTreeBuilder.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using Kind = CatalogTreeItem::Kind;

namespace {

QString kindName(Kind kind)
{
    switch (kind) {
    case Kind::Tab:
        return u"tab"_s;
    case Kind::Group:
        return u"group"_s;
    case Kind::Node:
        return u"node"_s;
    case Kind::Root:
        break;
    }
    return u"root"_s;
}

QVariant knownOrInvalid(int value)
{
    return value >= 0 ? QVariant(value) : QVariant();
}

/// The same node but for what is measured again and again.
bool isSamePlace(const NodeEntry &left, const NodeEntry &right)
{
    return left.id == right.id && left.name == right.name && left.tags == right.tags &&
           left.region == right.region;
}

QString pathKey(const CatalogTreeItem &item)
{
    return kindName(item.kind) + u':' + (item.kind == Kind::Node ? item.nodeId : item.key);
}

} // namespace

CatalogTreeModel::CatalogTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<CatalogTreeItem>())
{}

CatalogTreeModel::~CatalogTreeModel() = default;

void CatalogTreeModel::setCatalog(const NodesInfo &nodes, const NodeGroupsInfo &groups)
{
    if (groups.tabs == m_tabs && std::equal(nodes.nodes.begin(), nodes.nodes.end(), m_nodes.begin(),
                                            m_nodes.end(), isSamePlace)) {
        updateMeasurements(nodes.nodes);
        return;
    }
    m_nodes = nodes.nodes;
    m_tabs = groups.tabs;
    rebuild();
}

void CatalogTreeModel::rebuild()
{
    beginResetModel();
    m_rowsOfNode.clear();
    m_root = CatalogTreeBuilder(m_nodes, m_tabs).build();
    ++m_revision;
    registerNodes(*m_root);
    QList<const CatalogTreeItem *> changed;
    mark(*m_root, changed);
    endResetModel();
}

void CatalogTreeModel::registerNodes(CatalogTreeItem &item)
{
    if (item.kind == Kind::Node) {
        m_rowsOfNode[item.nodeId].append(&item);
    }
    for (const auto &child : item.children) {
        registerNodes(*child);
    }
}

void CatalogTreeModel::updateMeasurements(const QList<NodeEntry> &nodes)
{
    // One signal a parent: a round of pings may touch every node at once.
    QHash<CatalogTreeItem *, std::pair<int, int>> changedRows;
    for (qsizetype i = 0; i < nodes.size(); ++i) {
        const NodeEntry &node = nodes.at(i);
        if (node == m_nodes.at(i)) {
            continue;
        }
        for (CatalogTreeItem *item : m_rowsOfNode.value(node.id.trimmed())) {
            if (item->firstMetric == node.signalLevel && item->latency == node.pingMs) {
                continue;
            }
            item->firstMetric = node.signalLevel;
            item->latency = node.pingMs;
            const auto rows = changedRows.constFind(item->parent);
            const bool known = rows != changedRows.constEnd();
            changedRows[item->parent] = {known ? std::min(rows->first, item->row) : item->row,
                                         known ? std::max(rows->second, item->row) : item->row};
        }
    }
    m_nodes = nodes;
    for (auto rows = changedRows.cbegin(); rows != changedRows.cend(); ++rows) {
        const QModelIndex above = indexOf(*rows.key());
        Q_EMIT dataChanged(index(rows->first, 0, above), index(rows->second, 0, above),
                           {FirstMetricRole, LatencyRole});
    }
}

void CatalogTreeModel::setCurrentNodes(const QString &selectedId, const QString &connectedId)
{
    m_selectedId = selectedId.trimmed();
    m_connectedId = connectedId.trimmed();
    QList<const CatalogTreeItem *> changed;
    mark(*m_root, changed);
    for (const CatalogTreeItem *item : std::as_const(changed)) {
        const QModelIndex at = indexOf(*item);
        Q_EMIT dataChanged(at, at,
                           {SelectedRole, ConnectedRole, ContainsConnectedRole, Qt::ToolTipRole,
                            Qt::AccessibleDescriptionRole});
    }
}

// Sets the markers from here down; returns whether the connected node is among them.
bool CatalogTreeModel::mark(CatalogTreeItem &item, QList<const CatalogTreeItem *> &changed) const
{
    bool below = false;
    for (const auto &child : item.children) {
        below = mark(*child, changed) || below;
    }
    const bool named = item.kind == Kind::Node && !item.nodeId.isEmpty();
    const CatalogTreeItem::Markers markers{named && item.nodeId == m_selectedId,
                                           named && item.nodeId == m_connectedId, below};
    if (item.kind != Kind::Root && item.markers != markers) {
        item.markers = markers;
        changed.append(&item);
    }
    return below || markers.connected;
}

void CatalogTreeModel::setFavoriteOverride(const QString &nodeId, bool favorite)
{
    const QString id = nodeId.trimmed();
    const auto held = m_favoriteOverrides.constFind(id);
    if (held == m_favoriteOverrides.constEnd() || *held != favorite) {
        m_favoriteOverrides.insert(id, favorite);
        emitFavoriteChanged(id);
    }
}

void CatalogTreeModel::clearFavoriteOverrides()
{
    const auto cleared = std::exchange(m_favoriteOverrides, {});
    for (auto held = cleared.cbegin(); held != cleared.cend(); ++held) {
        emitFavoriteChanged(held.key());
    }
}

void CatalogTreeModel::setFavoritePending(const QString &nodeId)
{
    const QString id = nodeId.trimmed();
    if (!m_favoritePending.contains(id)) {
        m_favoritePending.insert(id);
        emitFavoriteChanged(id);
    }
}

void CatalogTreeModel::clearFavoritePending()
{
    const auto cleared = std::exchange(m_favoritePending, {});
    for (const QString &id : cleared) {
        emitFavoriteChanged(id);
    }
}

// A node may be listed in several tabs and groups; each row repaints.
void CatalogTreeModel::emitFavoriteChanged(const QString &nodeId)
{
    for (const CatalogTreeItem *item : m_rowsOfNode.value(nodeId)) {
        const QModelIndex at = indexOf(*item);
        Q_EMIT dataChanged(at, at, {FavoriteRole, FavoritePendingRole});
    }
}

QModelIndex CatalogTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, item(parent).children[size_t(row)].get());
}

QModelIndex CatalogTreeModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(*item(child).parent) : QModelIndex();
}

int CatalogTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(item(parent).children.size());
}

int CatalogTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant CatalogTreeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const CatalogTreeItem &row = item(index);
    const bool isNode = row.kind == Kind::Node;
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return row.markers.connected           ? catalogtexts::connectedServer()
               : row.markers.containsConnected ? tr("Contains connected server")
               : row.markers.selected          ? QVariant(tr("Selected server"))
                                               : QVariant();
    case KindRole:
        return kindName(row.kind);
    case NodeIdRole:
        return isNode ? row.nodeId : u""_s;
    case SelectedRole:
        return row.markers.selected;
    case ConnectedRole:
        return row.markers.connected;
    case ContainsConnectedRole:
        return row.markers.containsConnected;
    case SearchTextRole:
        return row.searchText;
    case DetailTextRole:
        return row.detail;
    case GroupKeyRole:
        return isNode ? u""_s : row.key;
    default:
        return nodeData(row, role);
    }
}

// What only nodes have; the others answer "unknown" and "no".
QVariant CatalogTreeModel::nodeData(const CatalogTreeItem &item, int role) const
{
    const bool isNode = item.kind == Kind::Node;
    switch (role) {
    case FirstMetricRole:
        return isNode ? knownOrInvalid(item.firstMetric) : QVariant();
    case LatencyRole:
        return isNode ? knownOrInvalid(item.latency) : QVariant();
    case FavoriteRole:
        return isNode && m_favoriteOverrides.value(item.nodeId, item.favorite);
    case FavoritePendingRole:
        return isNode && m_favoritePending.contains(item.nodeId);
    default:
        return {};
    }
}

const CatalogTreeItem &CatalogTreeModel::item(const QModelIndex &index) const
{
    return index.isValid() ? *static_cast<const CatalogTreeItem *>(index.constInternalPointer())
                           : *m_root;
}

QModelIndex CatalogTreeModel::indexOf(const CatalogTreeItem &item) const
{
    return item.parent ? createIndex(item.row, 0, &item) : QModelIndex();
}

QStringList CatalogTreeModel::pathOf(const QModelIndex &index) const
{
    QStringList path;
    for (const CatalogTreeItem *at = &item(index); at->parent; at = at->parent) {
        path.prepend(pathKey(*at));
    }
    return path;
}

QModelIndex CatalogTreeModel::indexOfPath(const QStringList &path) const
{
    const CatalogTreeItem *at = m_root.get();
    for (const QString &key : path) {
        const auto next = std::find_if(at->children.begin(), at->children.end(),
                                       [&key](const auto &row) { return pathKey(*row) == key; });
        if (next == at->children.end()) {
            return {};
        }
        at = next->get();
    }
    return indexOf(*at);
}
