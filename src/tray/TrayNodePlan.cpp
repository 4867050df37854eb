#include "TrayNodePlan.h"

#include "ControlProtocol.h"
#include "NodeMenuModel.h"
#include "PlainText.h"
#include "TrayMenuText.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A guard against a catalogue that nests without end.
constexpr int kMaxDepth = 6;

class Planner final
{
public:
    explicit Planner(const NodesInfo &nodes)
    {
        m_nodes.reserve(nodes.nodes.size());
        for (const NodeEntry &node : nodes.nodes) {
            m_nodes.insert(node.id, &node);
        }
    }

    QList<TrayNodeItem> items(const QStringList &ids)
    {
        QList<TrayNodeItem> list;
        list.reserve(ids.size());
        for (const QString &id : ids) {
            if (const NodeEntry *node = m_nodes.value(id)) {
                list << item(*node);
            }
        }
        return list;
    }

    TrayNodeGroup group(const NodeGroup &source, int depth = 0)
    {
        TrayNodeGroup plan;
        plan.title = title(source.name.trimmed().isEmpty() ? source.code : source.name);
        const QStringList ids = allIds(source, depth);
        if (ids.size() <= TrayNodePlan::kMaxFlatNodes || source.subgroups.isEmpty() ||
            depth == kMaxDepth) {
            plan.items = items(ids);
            return plan;
        }
        plan.items = items(source.nodeIds);
        for (const NodeGroup &subgroup : source.subgroups) {
            plan.groups << group(subgroup, depth + 1);
        }
        return plan;
    }

    TrayNodeGroup tab(const NodeGroupTab &source)
    {
        TrayNodeGroup plan;
        plan.title = title(tabLabel(source));
        QSet<QString> grouped;
        for (const NodeGroup &part : source.groups) {
            const QStringList ids = allIds(part, 0);
            grouped.unite({ids.begin(), ids.end()});
            plan.groups << group(part);
        }
        QStringList loose;
        for (const QString &id : source.nodeIds) {
            if (!grouped.contains(id)) {
                loose << id;
            }
        }
        plan.items = items(loose);
        return plan;
    }

private:
    static QString title(const QString &text)
    {
        const QString line = plaintext::menuText(text);
        return line.isEmpty() ? u"<none>"_s : line;
    }

    static QString tabLabel(const NodeGroupTab &tab)
    {
        struct TabName
        {
            QLatin1StringView type;
            const char *text = nullptr;
        };
        static constexpr std::array kNames{
            TabName{wire::kGroupTypeFavorite, QT_TRANSLATE_NOOP("VantuTrayApp", "Favorites")},
            TabName{"free"_L1, QT_TRANSLATE_NOOP("VantuTrayApp", "Free")},
            TabName{"vip"_L1, QT_TRANSLATE_NOOP("VantuTrayApp", "VIP")},
            TabName{"svip"_L1, QT_TRANSLATE_NOOP("VantuTrayApp", "SVIP")},
            TabName{"nodes"_L1, QT_TRANSLATE_NOOP("VantuTrayApp", "Nodes")},
        };
        QString type = tab.groupType.trimmed();
        for (const TabName &name : kNames) {
            if (type.compare(name.type, Qt::CaseInsensitive) == 0) {
                return QCoreApplication::translate("VantuTrayApp", name.text);
            }
        }
        return type;
    }

    /// The ids of a group and of all below it, each once, in order.
    static QStringList allIds(const NodeGroup &group, int depth)
    {
        QStringList ids = group.nodeIds;
        if (depth <= kMaxDepth) {
            for (const NodeGroup &subgroup : group.subgroups) {
                ids += allIds(subgroup, depth + 1);
            }
        }
        ids.removeDuplicates();
        return ids;
    }

    /// The node's texts, made once however many groups list it.
    const TrayNodeItem &item(const NodeEntry &node)
    {
        auto known = m_items.find(node.id);
        if (known == m_items.end()) {
            known = m_items.insert(node.id,
                                   {.id = node.id,
                                    .text = plaintext::menuText(NodeMenuModel::entryText(node)),
                                    .toolTip = NodeMenuModel::toolTip(node)});
        }
        return *known;
    }

    QHash<QString, const NodeEntry *> m_nodes;
    QHash<QString, TrayNodeItem> m_items;
};

} // namespace

TrayNodePlan planTrayNodes(const NodesInfo &nodes, const NodeGroupsInfo &groups)
{
    Planner planner(nodes);
    TrayNodePlan plan;
    if (groups.tabs.isEmpty()) {
        plan.allNodes = !nodes.nodes.isEmpty();
        if (plan.allNodes) {
            QStringList ids;
            for (const NodeEntry &node : nodes.nodes) {
                ids << node.id;
            }
            plan.groups << TrayNodeGroup{
                .title = TrayMenuText::allNodes(), .items = planner.items(ids), .groups = {}};
        }
        return plan;
    }
    for (const NodeGroupTab &tab : groups.tabs) {
        plan.groups << planner.tab(tab);
    }
    // A lone tab needs no submenu around its groups.
    if (plan.groups.size() == 1 && plan.groups.constFirst().items.isEmpty() &&
        !plan.groups.constFirst().groups.isEmpty()) {
        const QList<TrayNodeGroup> inner = plan.groups.constFirst().groups;
        plan.groups = inner;
    }
    return plan;
}
