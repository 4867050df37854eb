#pragma once

#include "ControlRecords.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>

enum class ControlOperation;
struct HttpResponse;

/// The daemon's operations as blocking functions, one for each.
///
/// Every function ends with the time-out in milliseconds (below 1: the answer may
/// take for ever, see control::performRequest) and the error text, which is empty
/// after a success. After a failure the returned record is at its defaults, save
/// that of `fetchVersion`. Nothing is retried. Belongs on a worker's thread; only
/// start-up may call it on the GUI thread, before the event loop runs.
class ControlClient final
{
public:
    /// `canceled` may be null; else it must outlive the client, and any thread may
    /// set it to end the call that runs.
    explicit ControlClient(QString socketName, const std::atomic_bool *canceled = nullptr);

    /// Also the compatibility check. The record is valid whatever the error text:
    /// a daemon that refuses this client is reachable and not compatible, and a
    /// mere failure never counts as incompatible.
    VersionInfo fetchVersion(int timeoutMs, QString &errorText) const;

    APIURLConfigInfo fetchAPIURLConfig(int timeoutMs, QString &errorText) const;
    APIURLConfigInfo setAPIURL(const QString &apiURL, int timeoutMs, QString &errorText) const;
    APIURLConfigInfo resetAPIURL(int timeoutMs, QString &errorText) const;
    AutoConnectConfigInfo setAutoConnectPreference(const QString &value, int timeoutMs,
                                                   QString &errorText) const;
    LanguageConfigInfo fetchLanguageConfig(int timeoutMs, QString &errorText) const;
    LanguageConfigInfo setLanguage(const QString &source, const QString &language, int timeoutMs,
                                   QString &errorText) const;
    /// The daemon changes its language only while its source is `ifSource`; an
    /// empty one sets no condition.
    LanguageConfigInfo setLanguageIfSource(const QString &source, const QString &language,
                                           const QString &ifSource, int timeoutMs,
                                           QString &errorText) const;

    UpdateInfo checkGUIUpdate(const QString &version, int timeoutMs, QString &errorText) const;
    GUIUpdateDownloadInfo startGUIUpdateDownload(const QString &version, qint64 expectedVersionNum,
                                                 int timeoutMs, QString &errorText) const;
    GUIUpdateDownloadInfo fetchGUIUpdateDownload(int timeoutMs, QString &errorText) const;
    GUIUpdateDownloadInfo cancelGUIUpdateDownload(int timeoutMs, QString &errorText) const;

    RuntimeInfo fetchStatus(int timeoutMs, QString &errorText) const;
    RuntimeInfo connectRuntime(int timeoutMs, QString &errorText) const;
    RuntimeInfo connectNode(const QString &node, int timeoutMs, QString &errorText) const;
    /// The daemon picks the node, within the group `selector` if it is not empty.
    RuntimeInfo connectSmart(const QString &selector, int timeoutMs, QString &errorText) const;
    RuntimeInfo disconnectRuntime(int timeoutMs, QString &errorText) const;

    NodesInfo fetchNodes(int timeoutMs, QString &errorText) const;
    NodesInfo refreshNodes(int timeoutMs, QString &errorText) const;
    NodesInfo setNodeFavorite(const QString &node, bool favorite, int timeoutMs,
                              QString &errorText) const;
    NodeGroupsInfo fetchNodeGroups(int timeoutMs, QString &errorText) const;

    UserInfo fetchUser(int timeoutMs, QString &errorText) const;
    /// The answer's URL carries an access token; see PurchaseURLInfo.
    PurchaseURLInfo fetchPurchaseURL(const QString &lang, int timeoutMs, QString &errorText) const;
    RuntimeInfo login(const QString &username, const QString &password, bool rememberMe,
                      int timeoutMs, QString &errorText) const;
    RuntimeInfo logout(int timeoutMs, QString &errorText) const;

    /// Sends the members that are set: transport, policy, region and the two split
    /// profiles. The daemon keeps its values of the others.
    ModeInfo setMode(const ModeInfo &mode, int timeoutMs, QString &errorText) const;
    ModeInfo setSystemProxyPreference(const QString &value, int timeoutMs,
                                      QString &errorText) const;
    ModeInfo setLocalNetworkPreference(const QString &value, int timeoutMs,
                                       QString &errorText) const;
    ModeInfo setProxyLANPreference(bool enabled, int timeoutMs, QString &errorText) const;
    /// A blank address closes its listener.
    ProxyListenResultInfo setProxyListeners(const QString &socksAddress, const QString &httpAddress,
                                            int timeoutMs, QString &errorText) const;

    SplitDNSInfo fetchSplitDNS(int timeoutMs, QString &errorText) const;
    SplitDNSInfo setSplitDNSLocal(const QStringList &servers, int timeoutMs,
                                  QString &errorText) const;
    SplitDNSInfo setSplitDNSPolicy(const QString &policy, int timeoutMs, QString &errorText) const;
    SplitDNSInfo clearSplitDNSLocal(int timeoutMs, QString &errorText) const;
    SplitDNSInfo resetSplitDNS(int timeoutMs, QString &errorText) const;
    /// A blank kind fetches all kinds. The kind goes into the path as it is.
    SplitRulesInfo fetchSplitRules(const QString &kind, int timeoutMs, QString &errorText) const;
    SplitRuleMutationInfo importSplitRules(const QString &kind, const QString &content,
                                           int timeoutMs, QString &errorText) const;

    /// Three requests (kill switch, proxy, VPN), each with the whole time-out. The
    /// first failure ends the sequence.
    RepairResultInfo repairDiagnostics(int timeoutMs, QString &errorText) const;
    ConfigPaths fetchConfigPaths(int timeoutMs, QString &errorText) const;

    KillSwitchInfo fetchKillSwitch(int timeoutMs, QString &errorText) const;
    KillSwitchInfo setKillSwitchEnabled(bool enabled, int timeoutMs, QString &errorText) const;
    KillSwitchInfo setKillSwitchMode(const QString &mode, int timeoutMs, QString &errorText) const;
    KillSwitchInfo setKillSwitchAllowLAN(bool enabled, int timeoutMs, QString &errorText) const;

private:
    /// What varies between the requests of one operation.
    struct Parameters
    {
        QJsonObject members = {}; ///< For operations whose body has members.
        QString query = {};       ///< With its question mark, or empty.
    };

    /// Any response, whatever its status; nothing when the transport failed.
    std::optional<HttpResponse> exchange(ControlOperation operation, const Parameters &parameters,
                                         int timeoutMs, QString &errorText) const;

    template<class Record>
    using Decoder = Record (*)(const QByteArray &body, QString &errorText);

    /// The whole of a plain operation: exchange, then decode or explain.
    template<class Record>
    Record perform(ControlOperation operation, Decoder<Record> decode, const Parameters &parameters,
                   int timeoutMs, QString &errorText) const;

    QString m_socketName;
    const std::atomic_bool *m_canceled;
};
