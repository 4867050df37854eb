#include "ProtectionController.h"

#include "AppState.h"
#include "ModeRequests.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "RuntimeFacts.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <utility>

ProtectionController::ProtectionController(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
    connect(&m_parts.state, &AppState::runtimeChanged, this,
            &ProtectionController::resumePendingKillSwitchEnable);
}

bool ProtectionController::changeAllowed()
{
    if (!m_parts.compatibility.changeGuardPasses()) {
        return false;
    }
    if (isBusy() || !m_parts.operationAllowed()) {
        m_parts.notices.pleaseWait();
        return false;
    }
    return true;
}

void ProtectionController::setChange(std::optional<ControlRequest> change)
{
    if (m_change != change) {
        m_change = change;
        Q_EMIT changeChanged();
    }
}

void ProtectionController::sendMode(const ModeInfo &mode)
{
    m_requestedMode = mode;
    setChange(ControlRequest::SetMode);
    m_parts.link.send(ControlRequest::SetMode, mode);
}

void ProtectionController::sendKillSwitchEnabled(bool enabled)
{
    m_requestedKillSwitch = {};
    m_requestedKillSwitch.enabled = enabled;
    setChange(ControlRequest::SetKillSwitchEnabled);
    m_parts.link.send(ControlRequest::SetKillSwitchEnabled, enabled);
}

void ProtectionController::setMode(const ModeInfo &mode)
{
    if (changeAllowed()) {
        m_enableAfterMode = m_enablePending && !facts::isProxyMode(mode);
        sendMode(mode);
    }
}

void ProtectionController::setLocalNetwork(const QString &value)
{
    if (changeAllowed()) {
        m_requestedMode = moderequest::localNetwork(value);
        setChange(ControlRequest::SetLocalNetworkPreference);
        m_parts.link.send(ControlRequest::SetLocalNetworkPreference, value);
    }
}

void ProtectionController::setSystemProxy(const QString &value)
{
    if (changeAllowed()) {
        m_requestedMode = moderequest::systemProxy(value);
        setChange(ControlRequest::SetSystemProxyPreference);
        m_parts.link.send(ControlRequest::SetSystemProxyPreference, value);
    }
}

void ProtectionController::setKillSwitchEnabled(bool enabled)
{
    if (changeAllowed()) {
        sendKillSwitchEnabled(enabled);
    }
}

void ProtectionController::setKillSwitchMode(const QString &mode)
{
    if (changeAllowed()) {
        m_requestedKillSwitch = {};
        m_requestedKillSwitch.mode = mode;
        setChange(ControlRequest::SetKillSwitchMode);
        m_parts.link.send(ControlRequest::SetKillSwitchMode, mode);
    }
}

void ProtectionController::cancelModeChange()
{
    if (m_change == ControlRequest::SetMode) {
        m_enableAfterMode = false;
        m_parts.link.cancel(ControlRequest::SetMode);
        setChange(std::nullopt);
    }
}

void ProtectionController::switchToAutoAndEnableKillSwitch()
{
    if (changeAllowed()) {
        m_enablePending = false;
        m_enableAfterMode = true;
        sendMode(moderequest::autoMode());
    }
}

void ProtectionController::chooseModeForKillSwitch()
{
    m_enablePending = true;
    Q_EMIT modePageRequested();
    m_parts.notices.show(ShellText::tr("Pick a VPN mode to turn on Kill Switch"),
                         MainWindow::NoticeKind::Info);
}

void ProtectionController::cancelPendingKillSwitchEnable()
{
    m_enablePending = false;
}

void ProtectionController::resumePendingKillSwitchEnable()
{
    // The mode may also have been changed in the tray, whose requests are its own.
    const ModeInfo &mode = m_parts.state.runtime().mode;
    if (m_enablePending && mode.known && !facts::isProxyMode(mode) && !isBusy() &&
        m_parts.operationAllowed()) {
        m_enablePending = false;
        sendKillSwitchEnabled(true);
    }
}

void ProtectionController::handleMode(ControlRequest request, const ModeInfo &mode,
                                      const QString &error)
{
    const bool enableNext = std::exchange(m_enableAfterMode, false);
    QString failure;
    Page page = Page::Mode;
    switch (request) {
    case ControlRequest::SetLocalNetworkPreference:
        failure = ShellText::tr("Could not update local network");
        break;
    case ControlRequest::SetSystemProxyPreference:
        failure = ShellText::tr("Could not update system proxy");
        page = Page::Settings;
        break;
    default:
        failure = ShellText::tr("Could not switch mode");
        break;
    }
    if (!error.isEmpty()) {
        m_parts.notices.error(error, failure, page);
        setChange(std::nullopt);
        return;
    }
    if (mode.known) {
        RuntimeInfo runtime = m_parts.state.runtime();
        runtime.mode = mode;
        m_parts.state.setRuntime(runtime);
    }
    if (!moderequest::isShownBy(m_requestedMode, mode)) {
        m_parts.notices.error({}, failure, page);
    } else if (enableNext) {
        m_enablePending = false;
        sendKillSwitchEnabled(true);
        return;
    }
    setChange(std::nullopt);
}

void ProtectionController::handleKillSwitch(ControlRequest request, const KillSwitchInfo &info,
                                            const QString &error)
{
    const bool failed = !error.isEmpty();
    if (!failed) {
        m_parts.state.setKillSwitch(info);
    }
    if (request == ControlRequest::FetchKillSwitch) {
        return; // A read that failed is the poll's business, which soon reads again.
    }
    if (failed || !moderequest::isShownBy(m_requestedKillSwitch, info)) {
        m_parts.notices.error(failed ? error : info.lastError,
                              ShellText::tr("Could not update kill switch"), Page::Settings);
    }
    setChange(std::nullopt);
}
