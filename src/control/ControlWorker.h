#pragma once

#include "ControlClient.h"
#include "ControlRecords.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <limits>

/// Runs the daemon's operations on a thread of its own, one after another.
///
/// The slots are reached by queued calls; each answers with exactly one signal that
/// repeats the request id, with an error text that is empty after a success. The
/// record of a failed request is at its defaults (`versionFinished`'s is always
/// valid). After `shutDown()` queued slots do nothing and answer nothing. The id is
/// the caller's; the worker only echoes it. Time-outs are milliseconds; below 1 the
/// answer may take for ever. The owner moves the worker to its thread and deletes
/// it when that thread has finished; see ControlWorkerPool.
class ControlWorker final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ControlWorker)

public:
    /// A blank socket name means the daemon's own.
    explicit ControlWorker(const QString &socketName = {});

    // The operations of this section may be called from any thread.

    /// Ends the request that runs and drops all later ones, for good.
    void shutDown();
    bool isStopped() const;

    /// Ends the request that runs, if any, with "control request canceled".
    void cancelCurrentRequest();

    /// Ends the connect or the mode change with this id, whether it runs or is still
    /// queued. Any other request is left alone; it ends by its time-out.
    void cancelRequest(quint64 requestId);

Q_SIGNALS:
    void statusFinished(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void versionFinished(quint64 requestId, const VersionInfo &info, const QString &errorMessage);
    void apiURLFinished(quint64 requestId, const APIURLConfigInfo &info,
                        const QString &errorMessage);
    void autoConnectFinished(quint64 requestId, const AutoConnectConfigInfo &info,
                             const QString &errorMessage);
    void languageFinished(quint64 requestId, const LanguageConfigInfo &info,
                          const QString &errorMessage);
    void updateFinished(quint64 requestId, const UpdateInfo &info, const QString &errorMessage);
    void updateDownloadFinished(quint64 requestId, const GUIUpdateDownloadInfo &info,
                                const QString &errorMessage);
    void userFinished(quint64 requestId, const UserInfo &user, const QString &errorMessage);
    void purchaseURLFinished(quint64 requestId, const PurchaseURLInfo &info,
                             const QString &errorMessage);
    void nodesFinished(quint64 requestId, const NodesInfo &nodes, const QString &errorMessage);
    void nodeGroupsFinished(quint64 requestId, const NodeGroupsInfo &groups,
                            const QString &errorMessage);
    void configPathsFinished(quint64 requestId, const ConfigPaths &paths,
                             const QString &errorMessage);
    void killSwitchFinished(quint64 requestId, const KillSwitchInfo &info,
                            const QString &errorMessage);
    void connectFinished(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void disconnectFinished(quint64 requestId, const RuntimeInfo &info,
                            const QString &errorMessage);
    void loginFinished(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void logoutFinished(quint64 requestId, const RuntimeInfo &info, const QString &errorMessage);
    void modeFinished(quint64 requestId, const ModeInfo &mode, const QString &errorMessage);
    void proxyListenFinished(quint64 requestId, const ProxyListenResultInfo &info,
                             const QString &errorMessage);
    void splitDNSFinished(quint64 requestId, const SplitDNSInfo &info, const QString &errorMessage);
    void splitRulesFinished(quint64 requestId, const SplitRulesInfo &info,
                            const QString &errorMessage);
    void splitRuleImportFinished(quint64 requestId, const SplitRuleMutationInfo &info,
                                 const QString &errorMessage);
    void repairFinished(quint64 requestId, const RepairResultInfo &info,
                        const QString &errorMessage);

public Q_SLOTS:
    // Called by name from RequestLink, whose table lists them in this order.
    void fetchStatus(quint64 requestId, int timeoutMs);
    void fetchVersion(quint64 requestId, int timeoutMs);
    void fetchAPIURLConfig(quint64 requestId, int timeoutMs);
    void setAPIURL(quint64 requestId, const QString &apiURL, int timeoutMs);
    void resetAPIURL(quint64 requestId, int timeoutMs);
    void setAutoConnectPreference(quint64 requestId, const QString &value, int timeoutMs);
    void fetchLanguageConfig(quint64 requestId, int timeoutMs);
    void setLanguage(quint64 requestId, const QString &source, const QString &language,
                     int timeoutMs);
    void setLanguageIfSource(quint64 requestId, const QString &source, const QString &language,
                             const QString &ifSource, int timeoutMs);
    void checkUpdate(quint64 requestId, const QString &version, int timeoutMs);
    void startGUIUpdateDownload(quint64 requestId, const QString &version,
                                qint64 expectedVersionNum, int timeoutMs);
    void fetchGUIUpdateDownload(quint64 requestId, int timeoutMs);
    void cancelGUIUpdateDownload(quint64 requestId, int timeoutMs);
    void fetchUser(quint64 requestId, int timeoutMs);
    void fetchPurchaseURL(quint64 requestId, const QString &lang, int timeoutMs);
    /// With `refresh` the daemon first renews the list from its service.
    void fetchNodes(quint64 requestId, bool refresh, int timeoutMs);
    void setNodeFavorite(quint64 requestId, const QString &node, bool favorite, int timeoutMs);
    void fetchNodeGroups(quint64 requestId, int timeoutMs);
    void fetchConfigPaths(quint64 requestId, int timeoutMs);
    void fetchKillSwitch(quint64 requestId, int timeoutMs);
    void connectRuntime(quint64 requestId, int timeoutMs);
    void connectNode(quint64 requestId, const QString &node, int timeoutMs);
    void connectSmart(quint64 requestId, const QString &selector, int timeoutMs);
    void disconnectRuntime(quint64 requestId, int timeoutMs);
    void login(quint64 requestId, const QString &username, const QString &password, bool rememberMe,
               int timeoutMs);
    void logout(quint64 requestId, int timeoutMs);
    void setMode(quint64 requestId, const ModeInfo &mode, int timeoutMs);
    void setSystemProxyPreference(quint64 requestId, const QString &value, int timeoutMs);
    void setLocalNetworkPreference(quint64 requestId, const QString &value, int timeoutMs);
    void setProxyLANPreference(quint64 requestId, bool enabled, int timeoutMs);
    void setProxyListeners(quint64 requestId, const QString &socksAddress,
                           const QString &httpAddress, int timeoutMs);
    void fetchSplitDNS(quint64 requestId, int timeoutMs);
    void setSplitDNSLocal(quint64 requestId, const QStringList &servers, int timeoutMs);
    void setSplitDNSPolicy(quint64 requestId, const QString &policy, int timeoutMs);
    void clearSplitDNSLocal(quint64 requestId, int timeoutMs);
    void resetSplitDNS(quint64 requestId, int timeoutMs);
    void fetchSplitRules(quint64 requestId, const QString &kind, int timeoutMs);
    void importSplitRules(quint64 requestId, const QString &kind, const QString &content,
                          int timeoutMs);
    void repairDiagnostics(quint64 requestId, int timeoutMs);
    void setKillSwitchEnabled(quint64 requestId, bool enabled, int timeoutMs);
    void setKillSwitchMode(quint64 requestId, const QString &mode, int timeoutMs);
    void setKillSwitchAllowLAN(quint64 requestId, bool enabled, int timeoutMs);

private:
    /// Stands for "none": real ids start at 0.
    static constexpr quint64 kNoRequest = std::numeric_limits<quint64>::max();

    template<class Record>
    using Finished = void (ControlWorker::*)(quint64, const Record &, const QString &);
    template<class Record, class... Parameters>
    using Operation = Record (ControlClient::*)(Parameters...) const;

    /// The body of every slot but the connects; the last of `values` is the time-out.
    template<class Record, class... Parameters, class... Values>
    void run(Finished<Record> finished, quint64 requestId,
             Operation<Record, Parameters...> operation, const Values &...values);

    /// The body of the three connects, which can be canceled by their id.
    template<class Record, class... Parameters, class... Values>
    void runEndless(Finished<Record> finished, quint64 requestId,
                    Operation<Record, Parameters...> operation, const Values &...values);

    template<class Record, class... Parameters, class... Values>
    void perform(Finished<Record> finished, quint64 requestId,
                 Operation<Record, Parameters...> operation, const Values &...values);

    bool begin();

    // Sequentially consistent (the default): shutDown() against begin(), and
    // cancelRequest() against runEndless(), each write one and then read another.
    std::atomic_bool m_cancelFlag = false;
    std::atomic_bool m_isStopped = false;
    std::atomic<quint64> m_inFlightId = kNoRequest; ///< The endless request that runs.
    std::atomic<quint64> m_cancelTargetId = kNoRequest;
    ControlClient m_client; ///< Reads the cancel flag.
};
