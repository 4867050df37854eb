#pragma once

#include "CatalogRecords.h"

#include <QList>
#include <QString>

/// One node in the tray's node menu.
struct TrayNodeItem
{
    QString id;
    QString text; ///< Ready for a menu.
    QString toolTip;

    bool operator==(const TrayNodeItem &) const = default;
};

/// One submenu of the tray's node menu: nodes, and below them further submenus.
struct TrayNodeGroup
{
    QString title; ///< Ready for a menu.
    QList<TrayNodeItem> items;
    QList<TrayNodeGroup> groups;

    // Written out: a defaulted one would need the list's before the type is complete.
    bool operator==(const TrayNodeGroup &other) const
    {
        return title == other.title && items == other.items && groups == other.groups;
    }
};

/// What the node menu shows of the catalogue. Kept so that a catalogue that came again
/// without a visible change (new pings, say) leaves the menu alone.
struct TrayNodePlan
{
    /// A submenu longer than this is divided by subgroups.
    static constexpr qsizetype kMaxFlatNodes = 60;

    /// In place of node groups all nodes are in one submenu, whose entry is checked
    /// when the selected node is among them.
    bool allNodes = false;
    QList<TrayNodeGroup> groups; ///< Empty: there are no nodes to show.

    bool operator==(const TrayNodePlan &) const = default;
};

TrayNodePlan planTrayNodes(const NodesInfo &nodes, const NodeGroupsInfo &groups);
