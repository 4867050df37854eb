#include "TrayChanges.h"

#include "AppState.h"
#include "ModeRequests.h"
#include "RuntimeFacts.h"
#include "StateLabels.h"
#include "TrayMenuText.h"
#include "TrayOperations.h"
#include "TrayPoll.h"

#include <QCoreApplication>

namespace {

TrayBusy busyKind(ControlRequest request)
{
    return request == ControlRequest::SetKillSwitchEnabled ? TrayBusy::KillSwitch : TrayBusy::Mode;
}

} // namespace

TrayChanges::TrayChanges(AppState &state, RequestLink &link, TrayOperations &operations,
                         TrayPoll &poll, SharedTheme &theme, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_link(link)
    , m_operations(operations)
    , m_poll(poll)
    , m_questions(theme)
{
    connect(&m_questions, &TrayQuestions::switchToAutoChosen, this, [this] {
        // Much may have happened while the question stood.
        if (guardPasses()) {
            Q_EMIT switchToAutoAndEnableKillSwitchRequested();
        }
    });
    connect(&m_questions, &TrayQuestions::chooseModeChosen, this,
            &TrayChanges::chooseModeForKillSwitchRequested);
    connect(&m_questions, &TrayQuestions::openSettingsChosen, this,
            &TrayChanges::openKillSwitchSettingsRequested);
}

bool TrayChanges::guardPasses() const
{
    return m_poll.isAvailable() && !m_operations.any();
}

const ModeInfo &TrayChanges::mode() const
{
    return m_state.runtime().mode;
}

void TrayChanges::setMode(const ModeInfo &mode, const QString &statusText)
{
    if (!guardPasses()) {
        return;
    }
    if (facts::isProxyMode(mode) && facts::isKillSwitchOn(facts::effectiveKillSwitch(m_state))) {
        m_questions.askForKillSwitchOff();
        return;
    }
    m_modeRequest = mode;
    begin(ControlRequest::SetMode, statusText, TrayMenuText::modeUpdated());
    m_link.send(ControlRequest::SetMode, mode);
}

void TrayChanges::setKillSwitchEnabled(bool enabled)
{
    const bool leavesLockdown = !enabled && facts::isLockdown(facts::effectiveKillSwitch(m_state));
    if (!guardPasses() || leavesLockdown) {
        return;
    }
    if (enabled && facts::isProxyMode(mode())) {
        m_questions.askForVpnMode();
        return;
    }
    if (enabled) {
        begin(ControlRequest::SetKillSwitchEnabled, TrayMenuText::enablingKillSwitch(),
              TrayMenuText::killSwitchEnabled());
    } else {
        begin(ControlRequest::SetKillSwitchEnabled, TrayMenuText::disablingKillSwitch(),
              TrayMenuText::killSwitchDisabled());
    }
    m_killSwitchRequest = {};
    m_killSwitchRequest.enabled = enabled;
    m_link.send(ControlRequest::SetKillSwitchEnabled, enabled);
}

void TrayChanges::setLocalNetwork(const QString &value)
{
    if (guardPasses()) {
        begin(ControlRequest::SetLocalNetworkPreference, TrayMenuText::updatingLocalNetwork(),
              TrayMenuText::updated());
        m_modeRequest = moderequest::localNetwork(value);
        m_link.send(ControlRequest::SetLocalNetworkPreference, value);
    }
}

void TrayChanges::setSystemProxy(const QString &value)
{
    if (guardPasses()) {
        begin(ControlRequest::SetSystemProxyPreference, TrayMenuText::updatingSystemProxy(),
              TrayMenuText::systemProxySetTo(labels::systemProxy(value)));
        m_modeRequest = moderequest::systemProxy(value);
        m_link.send(ControlRequest::SetSystemProxyPreference, value);
    }
}

void TrayChanges::setProxyDefault(const QString &route)
{
    SplitProfile profile = moderequest::proxyProfile(mode());
    profile.defaultRoute = route;
    setMode(moderequest::proxySplitWith(profile), TrayMenuText::updatingProxySplit());
}

void TrayChanges::setProxyRegion(const QString &region)
{
    const SplitProfile profile =
        moderequest::withRegionToggled(moderequest::proxyProfile(mode()), region);
    setMode(moderequest::proxySplitWith(profile), TrayMenuText::updatingProxyRegions());
}

void TrayChanges::setProxyGFWList(bool enabled)
{
    SplitProfile profile = moderequest::proxyProfile(mode());
    profile.gfwList = enabled;
    setMode(moderequest::proxySplitWith(profile), TrayMenuText::updatingProxyGFWList());
}

void TrayChanges::setVantuDefault(const QString &route)
{
    SplitProfile profile = moderequest::vantuVPNProfile(mode());
    profile.defaultRoute = route;
    setMode(moderequest::vantuVPNSplitWith(profile), TrayMenuText::updatingVantuVPNSplit());
}

void TrayChanges::setVantuRegion(const QString &region)
{
    const SplitProfile profile =
        moderequest::withRegionToggled(moderequest::vantuVPNProfile(mode()), region);
    setMode(moderequest::vantuVPNSplitWith(profile), TrayMenuText::updatingVantuVPNRegions());
}

void TrayChanges::setVantuGFWList(bool enabled)
{
    SplitProfile profile = moderequest::vantuVPNProfile(mode());
    profile.gfwList = enabled;
    setMode(moderequest::vantuVPNSplitWith(profile), TrayMenuText::updatingVantuVPNGFWList());
}

void TrayChanges::setVantuCustomRules(bool enabled)
{
    SplitProfile profile = moderequest::vantuVPNProfile(mode());
    profile.customRules = enabled;
    setMode(moderequest::vantuVPNSplitWith(profile), TrayMenuText::updatingVantuVPNCustomRules());
}

void TrayChanges::begin(ControlRequest request, const QString &progressText,
                        const QString &successText)
{
    m_poll.pause();
    m_successText = successText;
    m_operations.begin(busyKind(request), progressText);
    Q_EMIT begun();
}

void TrayChanges::cancelModeChange()
{
    if (isChangingMode()) {
        m_link.cancel(ControlRequest::SetMode);
        m_operations.end(TrayBusy::Mode);
        Q_EMIT ended({});
    }
}

void TrayChanges::takeMode(quint64 requestId, const ModeInfo &mode, const QString &errorMessage)
{
    const auto request = m_link.take(requestId);
    if (!request) {
        return;
    }
    if (mode.known) {
        RuntimeInfo runtime = m_state.runtime();
        runtime.mode = mode;
        m_state.setRuntime(runtime);
    }
    const bool taken = errorMessage.isEmpty();
    QString fallback = TrayMenuText::operationFailed();
    if (request == ControlRequest::SetMode) {
        fallback = taken ? QCoreApplication::translate("VantuAppShell", "Could not switch mode")
                         : TrayMenuText::modeFailed();
    }
    // The daemon may have taken the request and done something else.
    end(*request, taken && moderequest::isShownBy(m_modeRequest, mode), errorMessage, fallback);
}

void TrayChanges::takeKillSwitch(quint64 requestId, const KillSwitchInfo &info,
                                 const QString &errorMessage)
{
    const auto request = m_link.take(requestId);
    if (!request) {
        return;
    }
    const bool isChange = request == ControlRequest::SetKillSwitchEnabled;
    const bool failed = !errorMessage.isEmpty();
    if (!failed) {
        m_state.setKillSwitch(info);
    } else if (!isChange && !m_operations.any() && !m_poll.hasStatusFailed() &&
               m_state.runtime().killSwitch.known) {
        // The status that was read with it is younger than what is held.
        m_state.setKillSwitch({});
    }
    if (isChange) {
        end(*request, !failed && moderequest::isShownBy(m_killSwitchRequest, info),
            failed ? errorMessage : info.lastError, TrayMenuText::killSwitchFailed());
    }
}

void TrayChanges::end(ControlRequest request, bool succeeded, const QString &errorMessage,
                      const QString &fallback)
{
    m_operations.end(busyKind(request));
    const bool blank = errorMessage.trimmed().isEmpty();
    const QString failure = blank ? fallback : errorMessage;
    Q_EMIT ended(succeeded ? m_successText : failure);
}
