#include "SettingsController.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "PlainText.h"
#include "ServiceCompatibility.h"
#include "ShellText.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What became of one repair step: its result, or else its state, or else the reason.
QString outcome(const RepairStep &step)
{
    for (const QString &text : {step.result, step.state, step.reason}) {
        if (QString line = plaintext::singleLine(text); !line.isEmpty()) {
            return line;
        }
    }
    return {};
}

QString repairReport(const RepairResultInfo &info)
{
    const std::array steps{
        std::pair{ShellText::tr("Kill Switch"), outcome(info.killSwitch)},
        std::pair{ShellText::tr("Proxy"), outcome(info.proxy)},
        std::pair{ShellText::tr("VPN"), outcome(info.vpn)},
    };
    QStringList lines{ShellText::tr("Repair completed")};
    for (const auto &[name, result] : steps) {
        if (!result.isEmpty()) {
            lines << u"%1: %2"_s.arg(name, result);
        }
    }
    return lines.join(u'\n');
}

} // namespace

SettingsController::SettingsController(RequestLink &link, AppState &state, NoticeSink &notices,
                                       ServiceCompatibility &compatibility, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_compatibility(compatibility)
{}

void SettingsController::setBusy(bool busy)
{
    if (m_busy != busy) {
        m_busy = busy;
        Q_EMIT busyChanged(busy);
    }
}

template<class... Args>
void SettingsController::change(ControlRequest request, const Args &...args)
{
    if (!m_compatibility.changeGuardPasses()) {
        return;
    }
    if (m_busy) {
        m_notices.pleaseWait();
        return;
    }
    setBusy(true);
    m_link.send(request, args...);
}

bool SettingsController::finish(const QString &error, const QString &failure)
{
    setBusy(false);
    if (!error.isEmpty()) {
        m_outdated = true;
        m_notices.error(error, failure, Page::Settings);
    }
    return error.isEmpty();
}

void SettingsController::fetch(bool tellFailure)
{
    fetchConfigPaths(tellFailure);
    // A read that was sent before a change is answered must not undo it.
    if (!m_busy) {
        m_link.send(ControlRequest::FetchAPIURLConfig);
        m_link.send(ControlRequest::FetchSplitDNS);
    }
}

void SettingsController::fetchConfigPaths(bool tellFailure)
{
    m_tellPathsFailure = m_tellPathsFailure || tellFailure;
    m_link.send(ControlRequest::FetchConfigPaths);
}

void SettingsController::fetchOutdated()
{
    const QString told = m_state.runtime().apiURL;
    if (std::exchange(m_toldAPIURL, told).value_or(told) != told) {
        m_outdated = true;
    }
    if (m_outdated && !m_busy) {
        m_outdated = false;
        fetch(false);
    }
}

void SettingsController::setAPIURL(const QString &apiURL)
{
    change(ControlRequest::SetAPIURL, apiURL);
}

void SettingsController::resetAPIURL()
{
    change(ControlRequest::ResetAPIURL);
}

void SettingsController::setAutoConnect(const QString &value)
{
    change(ControlRequest::SetAutoConnectPreference, value);
}

void SettingsController::setProxyListeners(const QString &socksAddress, const QString &httpAddress)
{
    change(ControlRequest::SetProxyListeners, socksAddress, httpAddress);
}

void SettingsController::setSplitDNSLocal(const QStringList &servers)
{
    change(ControlRequest::SetSplitDNSLocal, servers);
}

void SettingsController::setSplitDNSPolicy(const QString &policy)
{
    change(ControlRequest::SetSplitDNSPolicy, policy);
}

void SettingsController::clearSplitDNSLocal()
{
    change(ControlRequest::ClearSplitDNSLocal);
}

void SettingsController::resetSplitDNS()
{
    change(ControlRequest::ResetSplitDNS);
}

void SettingsController::repair()
{
    change(ControlRequest::RepairDiagnostics);
}

void SettingsController::openLogs()
{
    if (!m_state.configPaths().logDir.trimmed().isEmpty()) {
        Q_EMIT logDirectoryRequested(m_state.configPaths());
        return;
    }
    m_openLogsWhenKnown = true;
    fetchConfigPaths(true);
}

void SettingsController::handleAPIURL(ControlRequest request, const APIURLConfigInfo &info,
                                      const QString &error)
{
    const bool isRead = request == ControlRequest::FetchAPIURLConfig;
    if (!isRead) {
        m_link.forget(ControlRequest::FetchAPIURLConfig);
    }
    if (isRead ? !error.isEmpty() : !finish(error, {})) {
        return;
    }
    // A read finds what was changed elsewhere, or later than anybody waited for.
    const bool changed =
        !isRead || (m_serviceKnown && info.apiURL != m_state.apiURLConfig().apiURL);
    m_serviceKnown = true;
    m_state.setAPIURLConfig(info);
    if (changed) {
        Q_EMIT serviceChanged();
    }
}

void SettingsController::handleAutoConnect(const AutoConnectConfigInfo &info, const QString &error)
{
    if (finish(error, ShellText::tr("Could not update auto connect"))) {
        RuntimeInfo runtime = m_state.runtime();
        runtime.autoConnect = info.autoConnect;
        m_state.setRuntime(runtime);
        Q_EMIT statusOutdated();
    }
}

void SettingsController::handleProxyListen(const ProxyListenResultInfo &info, const QString &error)
{
    if (!finish(error, ShellText::tr("Could not update proxy listen address"))) {
        return;
    }
    // One that waits for the next connection may name none yet.
    if (!info.proxyListeners.isEmpty()) {
        RuntimeInfo runtime = m_state.runtime();
        runtime.proxyListeners = info.proxyListeners;
        m_state.setRuntime(runtime);
    }
    m_notices.show(info.appliesOnReconnect
                       ? ShellText::tr("Proxy listen address saved for reconnect")
                       : ShellText::tr("Proxy listen address updated"),
                   MainWindow::NoticeKind::Success);
    Q_EMIT statusOutdated();
}

void SettingsController::handleSplitDNS(ControlRequest request, const SplitDNSInfo &info,
                                        const QString &error)
{
    if (request == ControlRequest::FetchSplitDNS) {
        if (error.isEmpty()) {
            m_state.setSplitDNS(info);
        }
        return;
    }
    m_link.forget(ControlRequest::FetchSplitDNS);
    if (!finish(error, {})) {
        return;
    }
    m_state.setSplitDNS(info);
    const QString warning = plaintext::singleLine(info.runtimeWarning);
    if (warning.isEmpty()) {
        m_notices.show(ShellText::tr("Split DNS updated"), MainWindow::NoticeKind::Success);
    } else {
        m_notices.show(ShellText::tr("Split DNS updated") + u'\n' + warning,
                       MainWindow::NoticeKind::Warning);
    }
}

void SettingsController::handleRepair(const RepairResultInfo &info, const QString &error)
{
    if (finish(error, ShellText::tr("Repair failed"))) {
        m_notices.show(repairReport(info), MainWindow::NoticeKind::Success);
        m_link.send(ControlRequest::FetchKillSwitch);
        Q_EMIT statusOutdated();
    }
}

void SettingsController::handleConfigPaths(const ConfigPaths &paths, const QString &error)
{
    const bool tell = std::exchange(m_tellPathsFailure, false);
    const bool open = std::exchange(m_openLogsWhenKnown, false);
    if (error.isEmpty()) {
        m_state.setConfigPaths(paths);
        if (open) {
            Q_EMIT logDirectoryRequested(paths);
        }
    } else if (tell) {
        m_notices.error(error, ShellText::tr("Could not load config paths"), Page::Settings);
    }
}
