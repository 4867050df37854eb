#pragma once

#include <QString>

#include <memory>
#include <vector>

/// One row of the catalogue's tree, owned by the row above it. The root is never
/// shown. Everything that a view may ask for is worked out when the tree is built.
struct CatalogTreeItem
{
    enum class Kind : quint8 { Root, Tab, Group, Node };

    /// Where the connection is and where the next one goes. `containsConnected` is for
    /// the rows above the connected one.
    struct Markers
    {
        bool selected = false;
        bool connected = false;
        bool containsConnected = false;

        bool operator==(const Markers &) const = default;
    };

    Kind kind = Kind::Root;
    bool favorite = false; ///< As the catalogue has it.
    Markers markers;
    int firstMetric = -1; ///< Signal level of a node, 0 to 100; -1 = unknown.
    int latency = -1;     ///< Of a node, in milliseconds; -1 = not measured.
    int placeCount = 0;   ///< Nodes at any depth below.

    QString text;
    QString detail;     ///< A node's tags.
    QString nodeId;     ///< Empty but for nodes.
    QString key;        ///< Identifier of a tab or group, as the daemon spells it.
    QString flagCode;   ///< A node's country, "jp"; empty when it isn't known.
    QString searchText; ///< What the row itself is found by, lower case.

    CatalogTreeItem *parent = nullptr;
    int row = 0; ///< Position among the parent's children.
    /// Position in the tree read from top to bottom, 0 for the root, and the position
    /// behind the last row below this one: [ordinal, end) is the row with all below.
    size_t ordinal = 0;
    size_t end = 1;
    std::vector<std::unique_ptr<CatalogTreeItem>> children;
};
