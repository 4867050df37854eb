#pragma once

#include "CatalogRecords.h"
#include "RuntimeRecords.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

/// How a node is named wherever it is shown. The texts are plain lines without
/// regard to menus: put them through plaintext::menuText() for an action.
class NodeMenuModel final
{
    Q_DECLARE_TR_FUNCTIONS(NodeMenuModel)

public:
    /// Two parts of a name as one: "Japan - Tokyo 3", or the one that says it all.
    static QString joinedName(const QString &first, const QString &second);

    /// Region and name of a node; empty for no node.
    static QString label(const NodeEntry &node);
    /// label(), or "<none>".
    static QString labelOrNone(const NodeEntry &node);
    /// labelOrNone() with the secondary text behind it.
    static QString entryText(const NodeEntry &node);
    /// The tags that the name doesn't show already, separated by commas.
    static QString secondaryText(const NodeEntry &node);
    /// Label and detail below each other, escaped for a tool tip.
    static QString toolTip(const NodeEntry &node);
    /// What marks the selected node in a menu.
    static QString selectedSuffix();
    /// Stands in for a node id that the catalogue doesn't know.
    static QString unavailable(const QString &id);

    /// The tags in square brackets inside a name, in order.
    static QStringList bracketedTags(const QString &name);
    /// A node's tags and those of its name, each once.
    static QStringList allTags(const NodeEntry &node);

    static bool isFavouritesTab(const NodeGroupTab &tab);
    /// `kind` is the group type of the tab that holds the group.
    static bool isFavouritesGroup(const QString &kind, const NodeGroup &group);

    /// The node in use, or else the one that the next connect uses.
    static NodeEntry currentNode(const RuntimeInfo &runtime, const NodesInfo &nodes);
    /// "Current: …"; `catalogHeld`: nodes were received at all.
    static QString currentLine(const RuntimeInfo &runtime, const NodesInfo &nodes,
                               bool catalogHeld);
    /// "Location: …", with the time since `now` while connected (as UTC).
    static QString locationLine(const RuntimeInfo &runtime, const NodesInfo &nodes,
                                const QDateTime &now);

    /// Whole seconds as "2h 5m"; a negative span counts as none.
    static QString duration(qint64 seconds);
    /// The time since which the connection is up; invalid when the daemon names none.
    static QDateTime connectedSince(const RuntimeInfo &runtime);
};
