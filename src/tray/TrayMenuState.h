#pragma once

#include "GuiPreferences.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <array>

class AppState;

/// Every entry of the tray menu that is built once. Entries that merely hold a submenu
/// are included.
enum class TrayEntry {
    StatusTitle,
    StatusDetail,
    OpenVantu,
    Connect,
    Disconnect,
    NodeMenu,
    CurrentNode,
    RefreshNodes,
    NodesPlaceholder,
    Slot1,
    Slot2,
    Slot3,
    Slot4,
    Slot5,
    SlotsSeparator,
    Locations,
    ModeMenu,
    ModeAuto,
    ModeWireGuard,
    VpnGlobal,
    VpnSplit,
    VpnSplitOptions,
    VpnDefaultTunnel,
    VpnDefaultDirect,
    VpnRegions,
    VpnGFWList,
    VpnCustomRules,
    ProxyGlobal,
    ProxySplit,
    ProxySplitOptions,
    ProxyDefaultProxy,
    ProxyDefaultDirect,
    ProxyRegions,
    ProxyGFWList,
    SystemProxyMenu,
    SystemProxyOff,
    SystemProxyOn,
    SystemProxyLock,
    LocalNetworkMenu,
    LocalNetworkDirect,
    LocalNetworkProtected,
    KillSwitch,
    RefreshStatus,
    OpenLogs,
    Account,
    Logout,
    Quit,
    None, ///< No entry; the number of entries.
};

inline constexpr auto kTrayEntryCount = static_cast<std::size_t>(TrayEntry::None);
inline constexpr int kTraySlotCount = 5;

/// How one entry looks. An empty text leaves the one it was built with.
struct TrayEntryState
{
    QString text; ///< Ready for a menu: "&" already doubled where it is foreign.
    bool enabled = true;
    bool checkable = false;
    bool checked = false;
    bool visible = true;
    QString data; ///< A slot's node id.

    bool operator==(const TrayEntryState &) const = default;
};

/// How the whole tray looks at one moment.
struct TrayMenuState
{
    std::array<TrayEntryState, kTrayEntryCount> entries;
    bool connectCancels = false; ///< The connect entry reads "Cancel".
    bool nodesHeld = false;      ///< A node list without nodes is an empty one, rather than none.
    bool iconOn = false;
    QString toolTip;

    TrayEntryState &operator[](TrayEntry entry) { return entries[static_cast<std::size_t>(entry)]; }
    const TrayEntryState &operator[](TrayEntry entry) const
    {
        return entries[static_cast<std::size_t>(entry)];
    }

    bool operator==(const TrayMenuState &) const = default;
};

/// What the tray knows beside the store.
struct TrayCondition
{
    bool daemonAvailable = false;
    bool judged = false; ///< It was found fit or unfit at all, since the program's start.
    QString unavailableReason;
    bool statusKnown = false;  ///< A status was received at all.
    bool statusFailed = false; ///< The latest status request failed.
    QString statusError;       ///< Its error, maybe empty.
    QString progressText;      ///< Of the operation under way; empty keeps the status line.
    bool busy = false;         ///< An operation is under way, and locks the menu.
    bool unheard = false;      ///< It has kept the daemon from being asked for long.
    bool connectBusy = false;  ///< That operation is a connect.
    bool connectCancellable = false;
    bool nodesHeld = false;     ///< Nodes were received at all, if only an empty list.
    bool nodesInFlight = false; ///< A request of nodes or node groups.
    bool nodesFailed = false;   ///< They could not be had.
    bool groupsFailed = false;  ///< Nor the node groups.
    bool refreshing = false;    ///< That request is the user's refresh.
    bool userInFlight = false;
    bool logsInFlight = false;
    QString notice;                ///< Text of the latest notification, until the next status.
    QList<RecentNode> recentNodes; ///< Newest first.
    bool flatLayout = false;
    QDateTime now;
};

/// The one place that decides how the tray looks. Pure; the caller hands in the time.
TrayMenuState deriveTrayMenu(const AppState &state, const TrayCondition &condition);
