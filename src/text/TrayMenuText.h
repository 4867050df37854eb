#pragma once

#include <QCoreApplication>
#include <QString>

/// The words of the tray and of whatever shares them: one function a text, each
/// translated when it is asked for. Translators key on the English wording, uneven
/// as it is in places, so that it must not be mended.
///
/// Arguments are put in as they are: make foreign text a plain line first.
class TrayMenuText final
{
    Q_DECLARE_TR_FUNCTIONS(TrayMenuText)

public:
    // Single words.
    static QString on() { return tr("On"); }
    static QString off() { return tr("Off"); }
    static QString lock() { return tr("Lock"); }
    static QString direct() { return tr("Direct"); }
    static QString protectedWord() { return tr("Protected"); }
    static QString tunnel() { return tr("Tunnel"); }
    static QString proxy() { return tr("Proxy"); }
    static QString none() { return tr("None"); }
    static QString ready() { return tr("ready"); }
    static QString connected() { return tr("connected"); }
    static QString disconnected() { return tr("disconnected"); }
    static QString connecting() { return tr("connecting"); }
    static QString disconnecting() { return tr("disconnecting"); }
    static QString vantu() { return tr("Vantu"); }
    static QString killSwitch() { return tr("Kill Switch"); }
    static QString updated() { return tr("Updated"); }
    static QString modeUpdated() { return tr("Mode updated"); }
    static QString loggedOut() { return tr("Logged out"); }
    static QString killSwitchEnabled() { return tr("Kill switch enabled"); }
    static QString killSwitchDisabled() { return tr("Kill switch disabled"); }
    static QString lockdown() { return tr("Lockdown"); }
    static QString lockdownUnavailable() { return tr("Lockdown unavailable"); }
    static QString daemonUnavailable() { return tr("daemon unavailable"); }
    static QString logDirectory() { return tr("log directory"); }
    static QString customRules() { return tr("custom rules"); }
    static QString customRulesOff() { return tr("custom rules off"); }
    static QString gfwListProxy() { return tr("gfwlist proxy"); }
    static QString gfwListTunnel() { return tr("gfwlist tunnel"); }
    static QString proxyGlobal() { return tr("Vantu Proxy: Global"); }

    // Status lines of the daemon and the account.
    static QString statusUnavailable() { return tr("Vantu: daemon unavailable"); }
    static QString toolTipUnavailable() { return tr("Vantu - daemon unavailable"); }
    static QString currentLoading() { return tr("Current: loading..."); }
    static QString accountCached() { return tr("Account: cached"); }
    static QString accountLoggedIn() { return tr("Account: logged in"); }
    static QString accountUnavailable() { return tr("Account: unavailable"); }
    static QString accountLoginRequired() { return tr("Account: Login Required"); }
    static QString accountChecking() { return tr("Account: checking..."); }

    // What failed, where the daemon gave no reason.
    static QString operationFailed() { return tr("operation failed"); }
    static QString accountFailed() { return tr("account operation failed"); }
    static QString modeFailed() { return tr("mode operation failed"); }
    static QString killSwitchFailed() { return tr("kill-switch operation failed"); }
    static QString connectFailed() { return tr("Vantu: connect failed"); }
    static QString disconnectFailed() { return tr("Vantu: disconnect failed"); }

    // Node lists.
    static QString couldNotLoadNodes() { return tr("Could not load nodes"); }
    static QString couldNotRefreshNodes() { return tr("Could not refresh nodes"); }
    static QString couldNotLoadGroups() { return tr("Could not load node groups"); }
    static QString couldNotRefreshGroups() { return tr("Could not refresh node groups"); }
    static QString loadingNodes() { return tr("Loading nodes..."); }
    static QString refreshingNodes() { return tr("Refreshing nodes..."); }
    static QString nodesNotLoaded() { return tr("Nodes not loaded"); }
    static QString noCachedNodes() { return tr("No cached nodes"); }
    static QString allNodes() { return tr("All Nodes"); }
    static QString noNodes() { return tr("No nodes"); }

    // Shown while an operation runs.
    static QString switchingToAuto() { return tr("Vantu: switching to auto..."); }
    static QString switchingToWireGuard() { return tr("Vantu: switching to WireGuard..."); }
    static QString switchingToVantuVPN() { return tr("Vantu: switching to VantuVPN..."); }
    static QString switchingVantuVPNSplit() { return tr("Vantu: switching VantuVPN split..."); }
    static QString switchingToProxy() { return tr("Vantu: switching to Vantu Proxy..."); }
    static QString switchingToProxySplit()
    {
        return tr("Vantu: switching to Vantu Proxy Split...");
    }
    static QString loggingOut() { return tr("Vantu: logging out..."); }
    static QString connectingVantu() { return tr("Vantu: connecting..."); }
    static QString disconnectingVantu() { return tr("Vantu: disconnecting..."); }
    static QString enablingKillSwitch() { return tr("Vantu: enabling kill switch..."); }
    static QString disablingKillSwitch() { return tr("Vantu: disabling kill switch..."); }
    static QString updatingProxySplit() { return tr("Vantu: updating Vantu Proxy Split..."); }
    static QString updatingProxyRegions() { return tr("Vantu: updating Vantu Proxy regions..."); }
    static QString updatingProxyGFWList() { return tr("Vantu: updating Vantu Proxy GFWList..."); }
    static QString updatingLocalNetwork() { return tr("Vantu: updating local network routing..."); }
    static QString updatingSystemProxy() { return tr("Vantu: updating system proxy..."); }
    static QString updatingVantuVPNSplit() { return tr("Vantu: updating VantuVPN split..."); }
    static QString updatingVantuVPNRegions() { return tr("Vantu: updating VantuVPN regions..."); }
    static QString updatingVantuVPNGFWList() { return tr("Vantu: updating VantuVPN GFWList..."); }
    static QString updatingVantuVPNCustomRules()
    {
        return tr("Vantu: updating VantuVPN custom rules...");
    }

    // Composed texts.
    static QString status(const QString &state);
    static QString location(const QString &label);
    /// `duration` as NodeMenuModel::duration() gives it.
    static QString locationSince(const QString &label, const QString &duration);
    static QString current(const QString &label);
    static QString currentStale(const QString &label);
    static QString systemProxy(const QString &value);
    static QString systemProxySetTo(const QString &value);
    static QString localNetwork(const QString &value);
    static QString killSwitch(const QString &label);
    static QString account(const QString &label);
    static QString error(const QString &text);
    static QString missing(const QString &item);
    static QString doesNotExist(const QString &item, const QString &path);
    static QString couldNotOpen(const QString &item, const QString &path);
    static QString connectingTo(const QString &label);
    static QString proxySplit(const QString &summary);
    static QString defaultRoute(const QString &route);
    static QString splitDefaultRoute(const QString &route);
    static QString regionsUse(const QString &route, const QString &regions);
    static QString regions(const QString &route, const QString &regions);

    // Words that the sidebar shows too, from its translation context.
    static QString mode();
    static QString locations();
    /// "Mode: …", the mode in one line.
    static QString modeLine(const QString &modeLabel);
};
