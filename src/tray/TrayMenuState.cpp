#include "TrayMenuState.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "ModeRequests.h"
#include "NodeMenuModel.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "StateLabels.h"
#include "TrayMenuText.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using facts::isWord;

/// Derives one state; a class so that the facts that every rule asks for are found
/// out once.
class Derivation final
{
public:
    Derivation(const AppState &state, const TrayCondition &condition)
        : m_state(state)
        , m_condition(condition)
        , m_runtime(state.runtime())
        , m_mode(state.runtime().mode)
        , m_live(condition.daemonAvailable && condition.statusKnown && !condition.statusFailed)
        , m_idle(m_live && !condition.busy)
        , m_connected(facts::isConnected(state.runtime()))
        , m_unconfirmed(condition.connectBusy || condition.unheard)
        , m_lockdown(facts::isLockdown(facts::effectiveKillSwitch(state)))
    {}

    TrayMenuState run()
    {
        deriveStatus();
        deriveConnection();
        deriveNodes();
        deriveSlots();
        deriveModes();
        deriveSplitOptions();
        deriveNetwork();
        deriveAccount();
        return m_menu;
    }

private:
    void deriveStatus();
    void deriveConnection();
    QString nodesPlaceholder() const;
    void deriveNodes();
    void deriveSlots();
    void deriveModes();
    void deriveSplitOptions();
    void deriveNetwork();
    void deriveAccount();

    QString title() const;
    QString detail() const;
    QString accountText() const;
    void slot(TrayEntryState &entry, const RecentNode &node, const NodeEntry &current) const;
    void check(TrayEntry entry, bool checked, bool enabled)
    {
        m_menu[entry].checkable = true;
        m_menu[entry].checked = checked;
        m_menu[entry].enabled = enabled;
    }

    const AppState &m_state;
    const TrayCondition &m_condition;
    const RuntimeInfo &m_runtime;
    const ModeInfo &m_mode;
    const bool m_live; ///< The status held is the daemon's present word.
    const bool m_idle; ///< Operations may be begun.
    const bool m_connected;
    /// Whether it is still so nobody knows: a protection that nobody confirms is not shown.
    /// Connections are made and ended, and modes changed, for as long as it takes, and the
    /// daemon isn't asked meanwhile.
    const bool m_unconfirmed;
    const bool m_lockdown;
    TrayMenuState m_menu;
};

QString Derivation::title() const
{
    if (!m_condition.daemonAvailable && !m_condition.unavailableReason.isEmpty()) {
        return m_condition.unavailableReason;
    }
    if (m_condition.busy && !m_condition.progressText.isEmpty()) {
        return m_condition.progressText;
    }
    if (m_condition.statusFailed) {
        return TrayMenuText::statusUnavailable();
    }
    return m_condition.statusKnown
               ? TrayMenuText::status(labels::connectionState(m_runtime))
               : QCoreApplication::translate("VantuTrayApp", "Vantu: starting...");
}

QString Derivation::detail() const
{
    if (!m_condition.daemonAvailable && !m_condition.unavailableReason.isEmpty()) {
        return m_condition.unavailableReason;
    }
    if (!m_condition.notice.isEmpty()) {
        return m_condition.notice;
    }
    if (m_condition.refreshing) {
        return TrayMenuText::refreshingNodes();
    }
    if (m_condition.statusFailed) {
        return m_condition.statusError.isEmpty() ? TrayMenuText::daemonUnavailable()
                                                 : m_condition.statusError;
    }
    if (!m_condition.statusKnown) {
        return QCoreApplication::translate("VantuTrayApp", "Daemon: checking...");
    }
    if (m_connected && !m_unconfirmed) {
        return NodeMenuModel::locationLine(m_runtime, m_state.nodes(), m_condition.now);
    }
    const QString error = plaintext::singleLine(m_runtime.lastError);
    return error.isEmpty() ? labels::mode(m_mode) : TrayMenuText::error(error);
}

void Derivation::deriveStatus()
{
    m_menu[TrayEntry::StatusTitle].text = plaintext::menuText(title());
    m_menu[TrayEntry::StatusTitle].enabled = false;
    m_menu[TrayEntry::StatusDetail].text = plaintext::menuText(detail());
    m_menu[TrayEntry::StatusDetail].enabled = false;
    m_menu[TrayEntry::RefreshStatus].enabled = m_condition.daemonAvailable && !m_condition.busy;
    m_menu[TrayEntry::OpenLogs].enabled = !m_condition.logsInFlight;

    m_menu.iconOn = m_live && m_connected && !m_unconfirmed;
    if (m_live && m_unconfirmed) {
        m_menu.toolTip = plaintext::messageText(title());
    } else if (m_live) {
        m_menu.toolTip =
            plaintext::messageText(TrayMenuText::status(labels::connectionState(m_runtime)));
    } else if (m_condition.statusFailed || (m_condition.judged && !m_condition.daemonAvailable)) {
        m_menu.toolTip = TrayMenuText::toolTipUnavailable();
    } else {
        m_menu.toolTip = TrayMenuText::vantu();
    }
}

void Derivation::deriveConnection()
{
    const bool runtimePends = m_idle && facts::isPending(m_runtime);
    const bool cancels = m_condition.daemonAvailable && m_condition.connectBusy
                             ? m_condition.connectCancellable
                             : runtimePends;
    TrayEntryState &connect = m_menu[TrayEntry::Connect];
    // The word is the settings page's, so that it reads the same everywhere.
    connect.text = cancels ? QCoreApplication::translate("SettingsPage", "Cancel")
                           : QCoreApplication::translate("VantuTrayApp", "Connect");
    connect.enabled = cancels || (m_idle && !m_connected);
    m_menu.connectCancels = cancels;
    m_menu[TrayEntry::Disconnect].enabled = m_idle && m_connected;
}

/// What stands for the nodes, or for their groups, that are not held; may be empty.
QString Derivation::nodesPlaceholder() const
{
    if (m_condition.nodesHeld) {
        return m_condition.groupsFailed ? TrayMenuText::couldNotLoadGroups() : QString();
    }
    if (m_condition.nodesInFlight) {
        return TrayMenuText::loadingNodes();
    }
    return m_condition.nodesFailed ? TrayMenuText::couldNotLoadNodes()
                                   : TrayMenuText::nodesNotLoaded();
}

void Derivation::deriveNodes()
{
    m_menu[TrayEntry::NodeMenu].enabled = m_idle;
    TrayEntryState &current = m_menu[TrayEntry::CurrentNode];
    current.enabled = false;
    current.text = m_condition.statusKnown ? plaintext::menuText(NodeMenuModel::currentLine(
                                                 m_runtime, m_state.nodes(), m_condition.nodesHeld))
                                           : TrayMenuText::currentLoading();

    const int seconds = m_state.nodesRefreshCooldown();
    TrayEntryState &refresh = m_menu[TrayEntry::RefreshNodes];
    refresh.text =
        seconds > 0
            ? QCoreApplication::translate("VantuTrayApp", "Refresh Nodes (%1s)").arg(seconds)
            : QCoreApplication::translate("VantuTrayApp", "Refresh Nodes");
    refresh.enabled = m_condition.daemonAvailable && m_condition.nodesHeld && !m_condition.busy &&
                      !m_condition.nodesInFlight && seconds == 0;

    m_menu.nodesHeld = m_condition.nodesHeld;
    TrayEntryState &placeholder = m_menu[TrayEntry::NodesPlaceholder];
    placeholder.enabled = false;
    placeholder.text = nodesPlaceholder();
    placeholder.visible = !placeholder.text.isEmpty();
}

void Derivation::slot(TrayEntryState &entry, const RecentNode &node, const NodeEntry &current) const
{
    const auto &nodes = m_state.nodes().nodes;
    const auto known = std::find_if(nodes.begin(), nodes.end(), [&node](const NodeEntry &other) {
        return other.id == node.id;
    });
    const bool listed = known != nodes.end();
    // Before the first catalogue there is nothing to doubt the remembered place by.
    const bool trusted = listed || !m_condition.nodesHeld;
    QString text = NodeMenuModel::unavailable(node.id);
    if (trusted) {
        const QString &remembered = node.label.isEmpty() ? node.id : node.label;
        text = listed ? NodeMenuModel::entryText(*known) : remembered;
    }
    entry.text = plaintext::menuText(text);
    entry.data = node.id;
    entry.enabled = trusted && m_idle;
    entry.checkable = true;
    entry.checked = !current.id.isEmpty() && current.id == node.id;
    entry.visible = true;
}

void Derivation::deriveSlots()
{
    const NodeEntry current = NodeMenuModel::currentNode(m_runtime, m_state.nodes());
    for (int index = 0; index < kTraySlotCount; ++index) {
        const auto entry = static_cast<TrayEntry>(static_cast<int>(TrayEntry::Slot1) + index);
        if (index < m_condition.recentNodes.size()) {
            slot(m_menu[entry], m_condition.recentNodes.at(index), current);
        } else {
            m_menu[entry] = {.text = {}, .enabled = false, .visible = false, .data = {}};
        }
    }
    m_menu[TrayEntry::SlotsSeparator].visible = !m_condition.recentNodes.isEmpty();
}

void Derivation::deriveModes()
{
    const bool vpn = facts::isVantuVPNMode(m_mode);
    const bool proxy = facts::isProxyMode(m_mode);
    const bool split = facts::isSplit(m_mode);
    // Lockdown lets nothing past the tunnel, which is what these modes are for.
    const bool open = m_idle && !m_lockdown;

    check(TrayEntry::ModeAuto, isWord(m_mode.transport, wire::kTransportAuto), m_idle);
    check(TrayEntry::ModeWireGuard, isWord(m_mode.transport, wire::kTransportWireGuard), m_idle);
    check(TrayEntry::VpnGlobal, vpn && !split, m_idle);
    check(TrayEntry::VpnSplit, vpn && split, open);
    check(TrayEntry::ProxyGlobal, proxy && !split, open);
    check(TrayEntry::ProxySplit, proxy && split, open);
    check(TrayEntry::VpnSplitOptions, vpn && split, open);
    check(TrayEntry::ProxySplitOptions, proxy && split, open);
    m_menu[TrayEntry::VpnSplitOptions].visible = m_condition.flatLayout;
    m_menu[TrayEntry::ProxySplitOptions].visible = m_condition.flatLayout;
}

void Derivation::deriveSplitOptions()
{
    const bool open = m_idle && !m_lockdown;
    const SplitProfile vpn = moderequest::vantuVPNProfile(m_mode);
    check(TrayEntry::VpnDefaultTunnel, isWord(vpn.defaultRoute, wire::kRouteTunnel), open);
    check(TrayEntry::VpnDefaultDirect, isWord(vpn.defaultRoute, wire::kRouteDirect), open);
    check(TrayEntry::VpnGFWList, vpn.gfwList, open);
    check(TrayEntry::VpnCustomRules, vpn.customRules, open);
    m_menu[TrayEntry::VpnRegions].enabled = open;

    const SplitProfile proxy = moderequest::proxyProfile(m_mode);
    check(TrayEntry::ProxyDefaultProxy, isWord(proxy.defaultRoute, wire::kRouteProxy), open);
    check(TrayEntry::ProxyDefaultDirect, isWord(proxy.defaultRoute, wire::kRouteDirect), open);
    check(TrayEntry::ProxyGFWList, proxy.gfwList, open);
    m_menu[TrayEntry::ProxyRegions].enabled = open;
}

void Derivation::deriveNetwork()
{
    const QLatin1StringView choice = facts::systemProxyChoice(m_mode.systemProxy);
    check(TrayEntry::SystemProxyOff, m_mode.known && choice == wire::kOff, m_idle);
    check(TrayEntry::SystemProxyOn, choice == wire::kOn, m_idle);
    check(TrayEntry::SystemProxyLock, choice == wire::kSystemProxyLock, m_idle);

    const bool isProtected = m_mode.localNetwork == wire::kLocalNetworkProtected;
    check(TrayEntry::LocalNetworkDirect, m_mode.known && !isProtected, m_idle && !m_lockdown);
    check(TrayEntry::LocalNetworkProtected, isProtected, m_idle);

    const KillSwitchInfo &killSwitch = facts::effectiveKillSwitch(m_state);
    check(TrayEntry::KillSwitch, facts::isKillSwitchOn(killSwitch), m_idle && killSwitch.known);
}

QString Derivation::accountText() const
{
    const bool lost =
        m_condition.statusFailed || (m_condition.judged && !m_condition.daemonAvailable);
    if (lost) {
        return TrayMenuText::accountUnavailable();
    }
    if (!m_condition.statusKnown) {
        return TrayMenuText::accountChecking();
    }
    if (!facts::isSignedIn(m_runtime)) {
        return m_runtime.authState.trimmed().isEmpty() ? TrayMenuText::accountUnavailable()
                                                       : TrayMenuText::accountLoginRequired();
    }
    const bool held = m_state.user() != UserInfo{};
    const QString label = held ? labels::account(m_state.user(), "TrayMenuText") : QString{};
    if (!label.isEmpty()) {
        return TrayMenuText::account(label);
    }
    if (!held && m_condition.userInFlight) {
        return TrayMenuText::accountChecking();
    }
    return isWord(m_runtime.authState, wire::kAuthCached) ? TrayMenuText::accountCached()
                                                          : TrayMenuText::accountLoggedIn();
}

void Derivation::deriveAccount()
{
    m_menu[TrayEntry::Account].text = plaintext::menuText(accountText());
    m_menu[TrayEntry::Account].enabled = m_idle;
    m_menu[TrayEntry::Logout].enabled = m_idle && facts::isSignedIn(m_runtime);
}

} // namespace

TrayMenuState deriveTrayMenu(const AppState &state, const TrayCondition &condition)
{
    return Derivation{state, condition}.run();
}
