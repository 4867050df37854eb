#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// One place that a connection can be made to, as the catalogue lists it.
/// Default-constructed it means "no node".
struct NodeEntry
{
    QString id;
    QString name;
    QStringList tags;
    QString region;
    QString type;
    int signalLevel = -1; ///< 0 to 100; -1 when the daemon gave none.
    int pingMs = -1;      ///< Milliseconds; -1 when the daemon gave none.

    bool operator==(const NodeEntry &) const = default;
};

/// A node as the status names it: what is connected or selected, without the
/// catalogue's measurements.
struct NodeReference
{
    QString id;
    QString name;
    QString region;
    QString type; ///< The daemon sends a word or a number; kept as text.

    bool operator==(const NodeReference &) const = default;
};

/// The catalogue's flat list of nodes.
struct NodesInfo
{
    bool stale = false;
    bool pingRunning = false;
    QList<NodeEntry> nodes;
    NodeEntry selected;
    NodeEntry connected;

    bool operator==(const NodesInfo &) const = default;
};

/// A group of nodes; groups nest to any depth.
struct NodeGroup
{
    QString name;
    QString code;
    int level = 0;
    int rank = 0;
    QStringList nodeIds;
    QList<NodeGroup> subgroups;

    // Written out because a defaulted comparison of a recursive type would need
    // the list's comparison before the type is complete.
    bool operator==(const NodeGroup &other) const
    {
        return name == other.name && code == other.code && level == other.level &&
               rank == other.rank && nodeIds == other.nodeIds && subgroups == other.subgroups;
    }
};

/// One tab of the catalogue (favourites, free, all nodes, …).
struct NodeGroupTab
{
    QString groupType;
    QStringList nodeIds;
    QList<NodeGroup> groups;

    bool operator==(const NodeGroupTab &) const = default;
};

/// How the catalogue's nodes are arranged.
struct NodeGroupsInfo
{
    bool stale = false;
    QList<NodeGroupTab> tabs;

    bool operator==(const NodeGroupsInfo &) const = default;
};

Q_DECLARE_METATYPE(NodesInfo)
Q_DECLARE_METATYPE(NodeGroupsInfo)
