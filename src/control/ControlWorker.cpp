#include "ControlWorker.h"

#include "ControlProtocol.h"

#include <QThread>

namespace {

QString socketNameOrDefault(const QString &socketName)
{
    const QString trimmed = socketName.trimmed();
    return trimmed.isEmpty() ? QString(control::kSocketPath) : trimmed;
}

} // namespace

ControlWorker::ControlWorker(const QString &socketName)
    : m_client(socketNameOrDefault(socketName), &m_cancelFlag)
{
    registerControlRecords();
}

void ControlWorker::shutDown()
{
    m_isStopped = true;
    m_cancelFlag = true;
}

bool ControlWorker::isStopped() const
{
    return m_isStopped;
}

void ControlWorker::cancelCurrentRequest()
{
    m_cancelFlag = true;
}

void ControlWorker::cancelRequest(quint64 requestId)
{
    m_cancelTargetId = requestId;
    if (m_inFlightId == requestId) {
        m_cancelFlag = true;
    }
}

/// Starts a slot; false when the worker is shut down.
bool ControlWorker::begin()
{
    Q_ASSERT(QThread::currentThread() == thread());
    // A cancellation aimed at an earlier request ends here. Cleared before the
    // test, so that a shutdown in between is seen by the one or kept by the other.
    m_cancelFlag = false;
    return !m_isStopped;
}

template<class Record, class... Parameters, class... Values>
void ControlWorker::run(Finished<Record> finished, quint64 requestId,
                        Operation<Record, Parameters...> operation, const Values &...values)
{
    if (begin()) {
        perform(finished, requestId, operation, values...);
    }
}

template<class Record, class... Parameters, class... Values>
void ControlWorker::runEndless(Finished<Record> finished, quint64 requestId,
                               Operation<Record, Parameters...> operation, const Values &...values)
{
    if (!begin()) {
        return;
    }
    m_inFlightId = requestId;
    if (m_cancelTargetId == requestId) {
        m_cancelFlag = true;
    }
    perform(finished, requestId, operation, values...);
}

template<class Record, class... Parameters, class... Values>
void ControlWorker::perform(Finished<Record> finished, quint64 requestId,
                            Operation<Record, Parameters...> operation, const Values &...values)
{
    QString errorText;
    const Record record = (m_client.*operation)(values..., errorText);
    // A late cancel of this request must not hit the next request.
    m_inFlightId = kNoRequest;
    Q_EMIT(this->*finished)(requestId, record, errorText);
}

void ControlWorker::fetchStatus(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::statusFinished, requestId, &ControlClient::fetchStatus, timeoutMs);
}

void ControlWorker::fetchVersion(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::versionFinished, requestId, &ControlClient::fetchVersion, timeoutMs);
}

void ControlWorker::fetchAPIURLConfig(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::apiURLFinished, requestId, &ControlClient::fetchAPIURLConfig, timeoutMs);
}

void ControlWorker::setAPIURL(quint64 requestId, const QString &apiURL, int timeoutMs)
{
    run(&ControlWorker::apiURLFinished, requestId, &ControlClient::setAPIURL, apiURL, timeoutMs);
}

void ControlWorker::resetAPIURL(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::apiURLFinished, requestId, &ControlClient::resetAPIURL, timeoutMs);
}

void ControlWorker::setAutoConnectPreference(quint64 requestId, const QString &value, int timeoutMs)
{
    run(&ControlWorker::autoConnectFinished, requestId, &ControlClient::setAutoConnectPreference,
        value, timeoutMs);
}

void ControlWorker::fetchLanguageConfig(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::languageFinished, requestId, &ControlClient::fetchLanguageConfig,
        timeoutMs);
}

void ControlWorker::setLanguage(quint64 requestId, const QString &source, const QString &language,
                                int timeoutMs)
{
    run(&ControlWorker::languageFinished, requestId, &ControlClient::setLanguage, source, language,
        timeoutMs);
}

void ControlWorker::setLanguageIfSource(quint64 requestId, const QString &source,
                                        const QString &language, const QString &ifSource,
                                        int timeoutMs)
{
    run(&ControlWorker::languageFinished, requestId, &ControlClient::setLanguageIfSource, source,
        language, ifSource, timeoutMs);
}

void ControlWorker::checkUpdate(quint64 requestId, const QString &version, int timeoutMs)
{
    run(&ControlWorker::updateFinished, requestId, &ControlClient::checkGUIUpdate, version,
        timeoutMs);
}

void ControlWorker::startGUIUpdateDownload(quint64 requestId, const QString &version,
                                           qint64 expectedVersionNum, int timeoutMs)
{
    run(&ControlWorker::updateDownloadFinished, requestId, &ControlClient::startGUIUpdateDownload,
        version, expectedVersionNum, timeoutMs);
}

void ControlWorker::fetchGUIUpdateDownload(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::updateDownloadFinished, requestId, &ControlClient::fetchGUIUpdateDownload,
        timeoutMs);
}

void ControlWorker::cancelGUIUpdateDownload(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::updateDownloadFinished, requestId, &ControlClient::cancelGUIUpdateDownload,
        timeoutMs);
}

void ControlWorker::fetchUser(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::userFinished, requestId, &ControlClient::fetchUser, timeoutMs);
}

void ControlWorker::fetchPurchaseURL(quint64 requestId, const QString &lang, int timeoutMs)
{
    run(&ControlWorker::purchaseURLFinished, requestId, &ControlClient::fetchPurchaseURL, lang,
        timeoutMs);
}

void ControlWorker::fetchNodes(quint64 requestId, bool refresh, int timeoutMs)
{
    run(&ControlWorker::nodesFinished, requestId,
        refresh ? &ControlClient::refreshNodes : &ControlClient::fetchNodes, timeoutMs);
}

void ControlWorker::setNodeFavorite(quint64 requestId, const QString &node, bool favorite,
                                    int timeoutMs)
{
    run(&ControlWorker::nodesFinished, requestId, &ControlClient::setNodeFavorite, node, favorite,
        timeoutMs);
}

void ControlWorker::fetchNodeGroups(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::nodeGroupsFinished, requestId, &ControlClient::fetchNodeGroups, timeoutMs);
}

void ControlWorker::fetchConfigPaths(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::configPathsFinished, requestId, &ControlClient::fetchConfigPaths,
        timeoutMs);
}

void ControlWorker::fetchKillSwitch(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::killSwitchFinished, requestId, &ControlClient::fetchKillSwitch, timeoutMs);
}

void ControlWorker::connectRuntime(quint64 requestId, int timeoutMs)
{
    runEndless(&ControlWorker::connectFinished, requestId, &ControlClient::connectRuntime,
               timeoutMs);
}

void ControlWorker::connectNode(quint64 requestId, const QString &node, int timeoutMs)
{
    runEndless(&ControlWorker::connectFinished, requestId, &ControlClient::connectNode, node,
               timeoutMs);
}

void ControlWorker::connectSmart(quint64 requestId, const QString &selector, int timeoutMs)
{
    runEndless(&ControlWorker::connectFinished, requestId, &ControlClient::connectSmart, selector,
               timeoutMs);
}

void ControlWorker::disconnectRuntime(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::disconnectFinished, requestId, &ControlClient::disconnectRuntime,
        timeoutMs);
}

void ControlWorker::login(quint64 requestId, const QString &username, const QString &password,
                          bool rememberMe, int timeoutMs)
{
    run(&ControlWorker::loginFinished, requestId, &ControlClient::login, username, password,
        rememberMe, timeoutMs);
}

void ControlWorker::logout(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::logoutFinished, requestId, &ControlClient::logout, timeoutMs);
}

void ControlWorker::setMode(quint64 requestId, const ModeInfo &mode, int timeoutMs)
{
    runEndless(&ControlWorker::modeFinished, requestId, &ControlClient::setMode, mode, timeoutMs);
}

void ControlWorker::setSystemProxyPreference(quint64 requestId, const QString &value, int timeoutMs)
{
    run(&ControlWorker::modeFinished, requestId, &ControlClient::setSystemProxyPreference, value,
        timeoutMs);
}

void ControlWorker::setLocalNetworkPreference(quint64 requestId, const QString &value,
                                              int timeoutMs)
{
    run(&ControlWorker::modeFinished, requestId, &ControlClient::setLocalNetworkPreference, value,
        timeoutMs);
}

void ControlWorker::setProxyLANPreference(quint64 requestId, bool enabled, int timeoutMs)
{
    run(&ControlWorker::modeFinished, requestId, &ControlClient::setProxyLANPreference, enabled,
        timeoutMs);
}

void ControlWorker::setProxyListeners(quint64 requestId, const QString &socksAddress,
                                      const QString &httpAddress, int timeoutMs)
{
    run(&ControlWorker::proxyListenFinished, requestId, &ControlClient::setProxyListeners,
        socksAddress, httpAddress, timeoutMs);
}

void ControlWorker::fetchSplitDNS(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::splitDNSFinished, requestId, &ControlClient::fetchSplitDNS, timeoutMs);
}

void ControlWorker::setSplitDNSLocal(quint64 requestId, const QStringList &servers, int timeoutMs)
{
    run(&ControlWorker::splitDNSFinished, requestId, &ControlClient::setSplitDNSLocal, servers,
        timeoutMs);
}

void ControlWorker::setSplitDNSPolicy(quint64 requestId, const QString &policy, int timeoutMs)
{
    run(&ControlWorker::splitDNSFinished, requestId, &ControlClient::setSplitDNSPolicy, policy,
        timeoutMs);
}

void ControlWorker::clearSplitDNSLocal(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::splitDNSFinished, requestId, &ControlClient::clearSplitDNSLocal, timeoutMs);
}

void ControlWorker::resetSplitDNS(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::splitDNSFinished, requestId, &ControlClient::resetSplitDNS, timeoutMs);
}

void ControlWorker::fetchSplitRules(quint64 requestId, const QString &kind, int timeoutMs)
{
    run(&ControlWorker::splitRulesFinished, requestId, &ControlClient::fetchSplitRules, kind,
        timeoutMs);
}

void ControlWorker::importSplitRules(quint64 requestId, const QString &kind, const QString &content,
                                     int timeoutMs)
{
    run(&ControlWorker::splitRuleImportFinished, requestId, &ControlClient::importSplitRules, kind,
        content, timeoutMs);
}

void ControlWorker::repairDiagnostics(quint64 requestId, int timeoutMs)
{
    run(&ControlWorker::repairFinished, requestId, &ControlClient::repairDiagnostics, timeoutMs);
}

void ControlWorker::setKillSwitchEnabled(quint64 requestId, bool enabled, int timeoutMs)
{
    run(&ControlWorker::killSwitchFinished, requestId, &ControlClient::setKillSwitchEnabled,
        enabled, timeoutMs);
}

void ControlWorker::setKillSwitchMode(quint64 requestId, const QString &mode, int timeoutMs)
{
    run(&ControlWorker::killSwitchFinished, requestId, &ControlClient::setKillSwitchMode, mode,
        timeoutMs);
}

void ControlWorker::setKillSwitchAllowLAN(quint64 requestId, bool enabled, int timeoutMs)
{
    run(&ControlWorker::killSwitchFinished, requestId, &ControlClient::setKillSwitchAllowLAN,
        enabled, timeoutMs);
}
