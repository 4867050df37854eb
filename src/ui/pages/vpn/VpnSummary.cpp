#include "VpnSummary.h"

#include "AppState.h"
#include "FlagPixmap.h"
#include "NodeMenuModel.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "StateLabels.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// Words of labels::killSwitch() in this page's context, which the translation tools
// can't see from the call.
[[maybe_unused]] static constexpr std::array kKillSwitchWords{
    QT_TRANSLATE_NOOP("VpnPage", "Unavailable"),
    QT_TRANSLATE_NOOP("VpnPage", "Lockdown"),
    QT_TRANSLATE_NOOP("VpnPage", "Lockdown unavailable"),
    QT_TRANSLATE_NOOP("VpnPage", "On"),
    QT_TRANSLATE_NOOP("VpnPage", "Off"),
};

namespace {

/// Longest text of the status card's two lines.
constexpr qsizetype kMaxDetailLength = 300;

QString waitingText()
{
    return QCoreApplication::translate("VpnPage", "Waiting for daemon status");
}

QString unavailableText()
{
    return QCoreApplication::translate("VpnPage", "Unavailable");
}

/// Nothing was heard of the daemon yet, neither good nor bad.
bool isFirstMoment(const RuntimeInfo &runtime, const VpnSituation &situation)
{
    const QString &reason = situation.unavailableReason;
    return !situation.available && (reason.isEmpty() || reason == waitingText()) &&
           runtime == RuntimeInfo{};
}

/// The place that a running connect leads to, if one was named.
QString targetLabel(const VpnSituation &situation)
{
    const ConnectProgress &progress = situation.progress;
    if (!progress.pending || progress.disconnecting) {
        return {};
    }
    return plaintext::singleLine(progress.label.isEmpty() ? situation.target.label
                                                          : progress.label);
}

QString locationText(const AppState &state, const VpnSituation &situation)
{
    if (QString target = targetLabel(situation); !target.isEmpty()) {
        return target;
    }
    QString selected =
        NodeMenuModel::label(facts::effectiveSelected(state.runtime(), state.nodes()));
    if (!selected.isEmpty()) {
        return selected;
    }
    // What a daemon would choose that never told anything, nobody knows.
    const bool isKnown = state.runtime() != RuntimeInfo{} || !state.nodes().nodes.isEmpty();
    return situation.available || isKnown ? smartSelectText() : unavailableText();
}

QString modeText(const ModeInfo &mode, bool available)
{
    return available || mode.known ? labels::mode(mode) : unavailableText();
}

QString killSwitchText(const AppState &state, bool available)
{
    QString value = available ? labels::killSwitch(facts::effectiveKillSwitch(state), "VpnPage")
                              : unavailableText();
    if (!facts::isProxyMode(state.runtime().mode)) {
        return value;
    }
    return QCoreApplication::translate("VpnPage", "%1 \u00b7 Not available in Vantu Proxy")
        .arg(value);
}

void fillDetail(VpnSummary &summary, const AppState &state, const VpnSituation &situation,
                const QDateTime &now)
{
    const RuntimeInfo &runtime = state.runtime();
    if (!situation.available) {
        summary.detail = situation.unavailableReason;
    } else if (facts::isConnected(runtime) && targetLabel(situation).isEmpty()) {
        summary.detail = NodeMenuModel::locationLine(runtime, state.nodes(), now);
        summary.countsTime = NodeMenuModel::connectedSince(runtime).isValid();
    } else if (summary.action.pending) {
        summary.detail = summary.location;
    } else if (runtime == RuntimeInfo{}) {
        summary.detail = waitingText();
    } else {
        const bool silent = runtime.lastError.trimmed().isEmpty();
        const QString &error = silent ? situation.connectError : runtime.lastError;
        summary.detailIsError = !error.isEmpty();
        summary.detail = summary.detailIsError ? error : runtime.tunnelReason;
    }
    summary.detail = plaintext::singleLine(summary.detail, kMaxDetailLength);
}

QString targetFlag(const AppState &state, const PendingConnectTarget &target, const QString &label)
{
    if (!target.flagCode.isEmpty()) {
        return target.flagCode;
    }
    if (target.kind == PendingConnectTarget::Kind::Smart) {
        return flagCode(target.id);
    }
    const QList<NodeEntry> &nodes = state.nodes().nodes;
    const auto node = std::find_if(nodes.begin(), nodes.end(), [&target](const NodeEntry &each) {
        return !target.id.isEmpty() && each.id.trimmed() == target.id;
    });
    if (node != nodes.end()) {
        return flagCode(node->region);
    }
    // A connect of the tray's has nothing but a name, which the daemon may know.
    const NodeEntry selected = facts::effectiveSelected(state.runtime(), state.nodes());
    return NodeMenuModel::label(selected) == label ? flagCode(selected.region) : QString();
}

QString flagOf(const AppState &state, const VpnSituation &situation, const VpnSummary &summary)
{
    const RuntimeInfo &runtime = state.runtime();
    if (const QString label = targetLabel(situation); !label.isEmpty()) {
        return targetFlag(state, situation.target, label);
    }
    if (situation.available && facts::isConnected(runtime)) {
        return flagCode(NodeMenuModel::currentNode(runtime, state.nodes()).region);
    }
    return summary.action.pending ? flagCode(runtime.selectedNode.region) : QString();
}

} // namespace

QString smartSelectText()
{
    return QCoreApplication::translate("VpnPage", "Smart-select a server automatically");
}

VpnSummary vpnSummary(const AppState &state, const VpnSituation &situation, const QDateTime &now)
{
    const RuntimeInfo &runtime = state.runtime();
    VpnSummary summary;
    summary.action = primaryAction(runtime, situation.available, situation.progress);
    summary.location = locationText(state, situation);
    summary.mode = modeText(runtime.mode, situation.available);
    summary.killSwitch = killSwitchText(state, situation.available);
    summary.localNetwork = situation.available && runtime.mode.known
                               ? labels::localNetwork(runtime.mode.localNetwork)
                               : unavailableText();
    if (isFirstMoment(runtime, situation)) {
        summary.action.title = QCoreApplication::translate("VpnPage", "Checking Vantu...");
        summary.action.statusState = u"disconnected"_s;
        summary.detail = waitingText();
        return summary;
    }
    fillDetail(summary, state, situation, now);
    summary.flagCode = flagOf(state, situation, summary);
    return summary;
}
