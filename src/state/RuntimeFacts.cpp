#include "RuntimeFacts.h"

#include "AppState.h"
#include "ControlProtocol.h"

#include <algorithm>
#include <initializer_list>

namespace {

/// Compares as the daemon's words are meant: blanks around them and their case
/// don't count.
bool isOneOf(const QString &word, std::initializer_list<QLatin1StringView> words)
{
    const QString trimmed = word.trimmed();
    return std::any_of(words.begin(), words.end(), [&trimmed](QLatin1StringView candidate) {
        return trimmed.compare(candidate, Qt::CaseInsensitive) == 0;
    });
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

bool isConnected(const RuntimeInfo &runtime)
{
    if (isOneOf(runtime.tunnelState, {wire::kStateConnected}) ||
        isOneOf(runtime.daemonState, {wire::kStateConnected})) {
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
    const auto pendingStates = {wire::kStateQueued, wire::kStateConnecting, wire::kStateRetrying};
    return !isConnected(runtime) && (isOneOf(runtime.tunnelState, pendingStates) ||
                                     isOneOf(runtime.daemonState, pendingStates));
}

bool isSignedIn(const RuntimeInfo &runtime)
{
    return isOneOf(runtime.authState, {wire::kAuthLoggedIn, wire::kAuthCached});
}

bool isProxyMode(const ModeInfo &mode)
{
    return isOneOf(mode.transport, {wire::kTransportProxy});
}

bool isVantuVPNMode(const ModeInfo &mode)
{
    return isOneOf(mode.transport, {wire::kTransportVantuVPN});
}

bool isSplit(const ModeInfo &mode)
{
    // Older daemons name their split policies in several ways; all of them but
    // "global" divide traffic.
    return (isVantuVPNMode(mode) || isProxyMode(mode)) && !mode.policy.trimmed().isEmpty() &&
           !isOneOf(mode.policy, {wire::kPolicyGlobal});
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
           isOneOf(killSwitch.mode, {wire::kKillSwitchOn});
}

bool isLockdown(const KillSwitchInfo &killSwitch)
{
    return isOneOf(killSwitch.mode, {wire::kKillSwitchLockdown});
}

} // namespace facts
