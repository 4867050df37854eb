#include "RuntimeFacts.h"

#include "AppState.h"
#include "ControlProtocol.h"

#include <algorithm>
#include <initializer_list>

namespace {

bool isOneOf(const QString &text, std::initializer_list<QLatin1StringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&text](QLatin1StringView word) { return facts::isWord(text, word); });
}

bool namesNode(const NodeReference &reference)
{
    return !reference.id.trimmed().isEmpty() || !reference.name.trimmed().isEmpty();
}

bool matches(const NodeEntry &node, const NodeReference &reference)
{
    if (!reference.id.trimmed().isEmpty()) {
        return node.id.trimmed() == reference.id.trimmed();
    }
    return node.name.trimmed() == reference.name.trimmed() &&
           node.region.trimmed() == reference.region.trimmed();
}

/// The catalogue's entry of a reference, with tags and measurements; or what the
/// reference itself tells.
NodeEntry entryFor(const NodeReference &reference, const QList<NodeEntry> &catalogue)
{
    for (const NodeEntry &node : catalogue) {
        if (matches(node, reference)) {
            return node;
        }
    }
    NodeEntry entry;
    entry.id = reference.id;
    entry.name = reference.name;
    entry.region = reference.region;
    entry.type = reference.type;
    return entry;
}

} // namespace

namespace facts {

bool isWord(const QString &text, QLatin1StringView word)
{
    return QStringView(text).trimmed().compare(word, Qt::CaseInsensitive) == 0;
}

bool tellsState(const RuntimeInfo &runtime)
{
    return !runtime.daemonState.isEmpty() || !runtime.tunnelState.isEmpty();
}

bool reportsConnected(const RuntimeInfo &runtime)
{
    return isWord(runtime.tunnelState, wire::kStateConnected) ||
           isWord(runtime.daemonState, wire::kStateConnected);
}

bool isPendingState(const QString &state)
{
    return isOneOf(state, {wire::kStateQueued, wire::kStateConnecting, wire::kStateRetrying});
}

bool isConnected(const RuntimeInfo &runtime)
{
    if (reportsConnected(runtime)) {
        return true;
    }
    if (!namesNode(runtime.connectedNode)) {
        return false;
    }
    // A proxy has no tunnel, so its node alone decides. Elsewhere never claim a
    // protection that the daemon denies.
    return isProxyMode(runtime.mode) ||
           !isOneOf(runtime.tunnelState, {wire::kStateDisconnected, wire::kStateDisconnecting,
                                          wire::kStateFailed, wire::kStateError});
}

bool isPending(const RuntimeInfo &runtime)
{
    return !isConnected(runtime) &&
           (isPendingState(runtime.tunnelState) || isPendingState(runtime.daemonState));
}

bool isSignedIn(const RuntimeInfo &runtime)
{
    return isOneOf(runtime.authState, {wire::kAuthLoggedIn, wire::kAuthCached});
}

bool isProxyMode(const ModeInfo &mode)
{
    return isWord(mode.transport, wire::kTransportProxy);
}

QLatin1StringView systemProxyChoice(const QString &value)
{
    if (value == wire::kSystemProxyLock || value == wire::kSystemProxyLockOn) {
        return wire::kSystemProxyLock;
    }
    return value == wire::kOn ? wire::kOn : wire::kOff;
}

bool isVantuVPNMode(const ModeInfo &mode)
{
    return isWord(mode.transport, wire::kTransportVantuVPN);
}

bool isSplit(const ModeInfo &mode)
{
    // Older daemons name their split policies in several ways; all of them but
    // "global" divide traffic.
    return (isVantuVPNMode(mode) || isProxyMode(mode)) && !mode.policy.trimmed().isEmpty() &&
           !isWord(mode.policy, wire::kPolicyGlobal);
}

NodeEntry effectiveSelected(const RuntimeInfo &runtime, const NodesInfo &nodes)
{
    return namesNode(runtime.selectedNode) ? entryFor(runtime.selectedNode, nodes.nodes)
                                           : nodes.selected;
}

NodeEntry effectiveConnected(const RuntimeInfo &runtime, const NodesInfo &nodes)
{
    if (!isConnected(runtime)) {
        return {};
    }
    return namesNode(runtime.connectedNode) ? entryFor(runtime.connectedNode, nodes.nodes)
                                            : nodes.connected;
}

const KillSwitchInfo &effectiveKillSwitch(const AppState &state)
{
    return state.killSwitch().known ? state.killSwitch() : state.runtime().killSwitch;
}

bool isKillSwitchOn(const KillSwitchInfo &killSwitch)
{
    return killSwitch.enabled || isLockdown(killSwitch) ||
           isWord(killSwitch.mode, wire::kKillSwitchOn);
}

bool isLockdown(const KillSwitchInfo &killSwitch)
{
    return isWord(killSwitch.mode, wire::kKillSwitchLockdown);
}

} // namespace facts
