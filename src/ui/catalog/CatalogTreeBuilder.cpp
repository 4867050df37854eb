#include "CatalogTreeBuilder.h"

#include "CatalogSearch.h"
#include "FlagPixmap.h"
#include "NodeMenuModel.h"
#include "PlainText.h"

using namespace Qt::StringLiterals;

CatalogTreeBuilder::CatalogTreeBuilder(const QList<NodeEntry> &nodes,
                                       const QList<NodeGroupTab> &tabs)
    : m_tabs(tabs)
{
    m_nodes.reserve(nodes.size());
    for (const NodeEntry &node : nodes) {
        const QString id = node.id.trimmed();
        if (!id.isEmpty() && !m_nodes.contains(id)) {
            m_nodes.insert(id, &node);
        }
    }
    for (const NodeGroupTab &tab : tabs) {
        if (NodeMenuModel::isFavouritesTab(tab)) {
            collectFavorites(tab.nodeIds, tab.groups);
        }
    }
}

std::unique_ptr<CatalogTreeItem> CatalogTreeBuilder::build()
{
    auto root = std::make_unique<CatalogTreeItem>();
    m_nextOrdinal = 1;
    for (const NodeGroupTab &tab : m_tabs) {
        addTab(*root, tab);
    }
    close(*root);
    return root;
}

CatalogTreeItem &CatalogTreeBuilder::append(CatalogTreeItem &parent, CatalogTreeItem::Kind kind)
{
    auto &item = *parent.children.emplace_back(std::make_unique<CatalogTreeItem>());
    item.kind = kind;
    item.parent = &parent;
    item.row = int(parent.children.size()) - 1;
    item.ordinal = m_nextOrdinal++;
    item.end = m_nextOrdinal;
    return item;
}

// Everything below `item` has been added.
void CatalogTreeBuilder::close(CatalogTreeItem &item) const
{
    item.end = m_nextOrdinal;
    for (const auto &child : item.children) {
        item.placeCount += child->kind == CatalogTreeItem::Kind::Node ? 1 : child->placeCount;
    }
}

void CatalogTreeBuilder::addTab(CatalogTreeItem &root, const NodeGroupTab &tab)
{
    CatalogTreeItem &item = append(root, CatalogTreeItem::Kind::Tab);
    item.key = tab.groupType.trimmed();
    item.text = plaintext::singleLine(tabLabel(item.key));
    item.searchText =
        CatalogSearch::searchText(QStringList{item.text, item.key} + tabAliases(item.key));
    for (const NodeGroup &group : tab.groups) {
        addGroup(item, group);
    }
    for (const QString &id : tab.nodeIds) {
        addNode(item, id);
    }
    close(item);
}

void CatalogTreeBuilder::addGroup(CatalogTreeItem &parent, const NodeGroup &group)
{
    CatalogTreeItem &item = append(parent, CatalogTreeItem::Kind::Group);
    const QString name = plaintext::singleLine(group.name);
    const QString code = plaintext::singleLine(group.code);
    item.key = code.isEmpty() ? group.name.trimmed() : group.code.trimmed();
    item.text = name.isEmpty() ? code : name;
    item.searchText = CatalogSearch::searchText({name, code});
    for (const NodeGroup &subgroup : group.subgroups) {
        addGroup(item, subgroup);
    }
    for (const QString &id : group.nodeIds) {
        addNode(item, id);
    }
    close(item);
}

void CatalogTreeBuilder::addNode(CatalogTreeItem &parent, const QString &listedId)
{
    const QString id = listedId.trimmed();
    const NodeTexts &texts = textsOf(id);
    CatalogTreeItem &item = append(parent, CatalogTreeItem::Kind::Node);
    item.nodeId = id;
    item.text = texts.text;
    item.detail = texts.detail;
    item.flagCode = texts.flagCode;
    item.searchText = texts.searchText;
    item.favorite = m_favorites.contains(id);
    if (texts.node) {
        item.firstMetric = texts.node->signalLevel;
        item.latency = texts.node->pingMs;
    }
}

void CatalogTreeBuilder::collectFavorites(const QStringList &nodeIds,
                                          const QList<NodeGroup> &groups)
{
    for (const QString &id : nodeIds) {
        m_favorites.insert(id.trimmed());
    }
    for (const NodeGroup &group : groups) {
        collectFavorites(group.nodeIds, group.subgroups);
    }
}

const CatalogTreeBuilder::NodeTexts &CatalogTreeBuilder::textsOf(const QString &id)
{
    auto found = m_texts.find(id);
    if (found == m_texts.end()) {
        found = m_texts.insert(id, textsFor(id, m_nodes.value(id)));
    }
    return *found;
}

CatalogTreeBuilder::NodeTexts CatalogTreeBuilder::textsFor(const QString &id, const NodeEntry *node)
{
    NodeTexts texts;
    texts.node = node;
    // The rows above name the place already, so that the node's own name is enough.
    const QString name = node ? plaintext::singleLine(node->name) : QString();
    texts.text = name.isEmpty() ? NodeMenuModel::unavailable(id) : name;
    QStringList parts{name, plaintext::singleLine(id)};
    if (node) {
        texts.flagCode = flagCode(node->region);
        QStringList tags;
        for (const QString &tag : node->tags) {
            const QString line = plaintext::singleLine(tag);
            if (!line.isEmpty() && !tags.contains(line)) {
                tags.append(line);
            }
        }
        texts.detail = plaintext::singleLine(tags.join(u" \u00b7 "_s));
        // Tags are offered as ready-made searches, which must find their nodes.
        parts += tags;
    }
    texts.searchText = CatalogSearch::searchText(parts);
    return texts;
}

QString CatalogTreeBuilder::tabLabel(const QString &key)
{
    const QString code = key.toUpper();
    if (code == "FAVORITE"_L1) {
        return tr("Favorites");
    }
    if (code == "FREE"_L1) {
        return tr("Free");
    }
    if (code == "VIP"_L1) {
        return tr("VIP");
    }
    if (code == "SVIP"_L1) {
        return tr("SVIP");
    }
    if (code == "NODES"_L1) {
        return tr("Nodes");
    }
    return key;
}

QStringList CatalogTreeBuilder::tabAliases(const QString &key)
{
    const QString code = key.toUpper();
    if (code == "FREE"_L1 || code == "VIP"_L1 || code == "SVIP"_L1) {
        return {code.toLower()};
    }
    if (code == "FAVORITE"_L1) {
        return {u"fav"_s, u"favorite"_s, u"favorites"_s};
    }
    return {};
}
