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
    if (m_busy || !m_parts.operationAllowed()) {
        m_parts.notices.show(ShellText::tr("Please wait for the current operation to finish"),
                             MainWindow::NoticeKind::Info);
        return false;
    }
    return true;
}

void ProtectionController::setBusy(bool busy)
{
    if (m_busy != busy) {
        m_busy = busy;
        Q_EMIT busyChanged(busy);
    }
}

void ProtectionController::sendMode(const ModeInfo &mode)
{
    m_requestedMode = mode;
    setBusy(true);
    m_parts.link.send(ControlRequest::SetMode, mode);
}

void ProtectionController::sendKillSwitchEnabled(bool enabled)
{
    setBusy(true);
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
        setBusy(true);
        m_parts.link.send(ControlRequest::SetLocalNetworkPreference, value);
    }
}

void ProtectionController::setSystemProxy(const QString &value)
{
    if (changeAllowed()) {
        setBusy(true);
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
        setBusy(true);
        m_parts.link.send(ControlRequest::SetKillSwitchMode, mode);
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
    if (m_enablePending && mode.known && !facts::isProxyMode(mode) && !m_busy &&
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
        setBusy(false);
        return;
    }
    RuntimeInfo runtime = m_parts.state.runtime();
    runtime.mode = mode;
    m_parts.state.setRuntime(runtime);
    if (request == ControlRequest::SetMode && !moderequest::isShownBy(m_requestedMode, mode)) {
        m_parts.notices.error({}, failure, page);
    } else if (enableNext) {
        m_enablePending = false;
        sendKillSwitchEnabled(true);
        return;
    }
    setBusy(false);
}

void ProtectionController::handleKillSwitch(ControlRequest request, const KillSwitchInfo &info,
                                            const QString &error)
{
    const bool isChange = request != ControlRequest::FetchKillSwitch;
    if (isChange) {
        // A read that was sent before may tell of the time before.
        m_parts.link.forget(ControlRequest::FetchKillSwitch);
    }
    if (error.isEmpty()) {
        m_parts.state.setKillSwitch(info);
    } else if (isChange) {
        m_parts.notices.error(error, ShellText::tr("Could not update kill switch"), Page::Settings);
    }
    if (isChange) {
        setBusy(false);
    }
}
