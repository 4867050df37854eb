#include "ControlClient.h"

#include "ControlEndpoints.h"
#include "ControlProtocol.h"
#include "ControlTransport.h"
#include "RecordDecoders.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QUrlQuery>

#include <utility>

using namespace Qt::StringLiterals;
using Op = ControlOperation;

namespace {

/// What POST operations without parameters send.
constexpr char kEmptyObject[] = "{}";

bool isSuccess(int status)
{
    return status >= 200 && status <= 299;
}

bool hasErrorMember(const QByteArray &body)
{
    const QJsonObject object = QJsonDocument::fromJson(body).object();
    return !object.value("error"_L1).toString().trimmed().isEmpty();
}

QByteArray requestBody(ControlEndpoint::Body kind, const QJsonObject &members)
{
    switch (kind) {
    case ControlEndpoint::Body::None:
        return {};
    case ControlEndpoint::Body::EmptyObject:
        return kEmptyObject;
    case ControlEndpoint::Body::Members:
        break;
    }
    return QJsonDocument(members).toJson(QJsonDocument::Compact);
}

void insertText(QJsonObject &object, QLatin1StringView key, const QString &text)
{
    if (!text.isEmpty()) {
        object.insert(key, text);
    }
}

void insertTexts(QJsonObject &object, QLatin1StringView key, const QStringList &texts)
{
    if (!texts.isEmpty()) {
        object.insert(key, QJsonArray::fromStringList(texts));
    }
}

void insertTrue(QJsonObject &object, QLatin1StringView key, bool flag)
{
    if (flag) {
        object.insert(key, true);
    }
}

/// Left out unless the request carries a profile that sets something.
void insertProfile(QJsonObject &object, QLatin1StringView key, const SplitProfile &profile)
{
    if (!profile.present) {
        return;
    }
    QJsonObject members;
    insertText(members, "default_route"_L1, profile.defaultRoute);
    insertTexts(members, "direct_regions"_L1, profile.directRegions);
    insertTexts(members, "proxy_regions"_L1, profile.proxyRegions);
    insertTrue(members, "gfwlist"_L1, profile.gfwList);
    insertText(members, "lan_routing"_L1, profile.lanRouting);
    insertTrue(members, "custom_rules"_L1, profile.customRules);
    if (!members.isEmpty()) {
        object.insert(key, members);
    }
}

void appendListener(QJsonArray &listeners, QLatin1StringView name, QLatin1StringView scheme,
                    const QString &address)
{
    const QString trimmed = address.trimmed();
    if (!trimmed.isEmpty()) {
        listeners.append(
            QJsonObject{{"name"_L1, name}, {"scheme"_L1, scheme}, {"address"_L1, trimmed}});
    }
}

} // namespace

ControlClient::ControlClient(QString socketName, const std::atomic_bool *canceled)
    : m_socketName(std::move(socketName))
    , m_canceled(canceled)
{}

std::optional<HttpResponse> ControlClient::exchange(ControlOperation operation,
                                                    const Parameters &parameters, int timeoutMs,
                                                    QString &errorText) const
{
    const ControlEndpoint &endpoint = controlEndpoint(operation);
    return control::performRequest(m_socketName, endpoint.method, endpoint.path + parameters.query,
                                   requestBody(endpoint.body, parameters.members), timeoutMs,
                                   errorText, m_canceled);
}

template<class Record>
Record ControlClient::perform(ControlOperation operation, Decoder<Record> decode,
                              const Parameters &parameters, int timeoutMs, QString &errorText) const
{
    const std::optional<HttpResponse> response =
        exchange(operation, parameters, timeoutMs, errorText);
    if (!response) {
        return {};
    }
    if (!isSuccess(response->status)) {
        errorText = control::errorTextFromResponse(*response);
        return {};
    }
    return decode(response->body, errorText);
}

VersionInfo ControlClient::fetchVersion(int timeoutMs, QString &errorText) const
{
    const std::optional<HttpResponse> response =
        exchange(Op::FetchVersion, {}, timeoutMs, errorText);
    if (!response) {
        return {};
    }
    if (isSuccess(response->status)) {
        return decode::versionInfo(response->body, errorText);
    }
    errorText = control::errorTextFromResponse(*response);
    VersionInfo info;
    constexpr int kConflict = 409; // The daemon refuses this program's protocol.
    if (response->status == kConflict) {
        info.reachable = true;
        info.compatible = false;
        info.version = QString::fromUtf8(response->headers.value("x-vantu-daemon-version"));
        info.apiVersion = QString::fromUtf8(response->headers.value("x-vantu-control-version"));
    }
    return info;
}

APIURLConfigInfo ControlClient::fetchAPIURLConfig(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchAPIURLConfig, decode::apiURLConfigInfo, {}, timeoutMs, errorText);
}

APIURLConfigInfo ControlClient::setAPIURL(const QString &apiURL, int timeoutMs,
                                          QString &errorText) const
{
    return perform(Op::SetAPIURL, decode::apiURLConfigInfo, {{{"api_url"_L1, apiURL}}}, timeoutMs,
                   errorText);
}

APIURLConfigInfo ControlClient::resetAPIURL(int timeoutMs, QString &errorText) const
{
    return perform(Op::ResetAPIURL, decode::apiURLConfigInfo, {}, timeoutMs, errorText);
}

AutoConnectConfigInfo ControlClient::setAutoConnectPreference(const QString &value, int timeoutMs,
                                                              QString &errorText) const
{
    return perform(Op::SetAutoConnectPreference, decode::autoConnectConfigInfo,
                   {{{"auto_connect"_L1, value}}}, timeoutMs, errorText);
}

LanguageConfigInfo ControlClient::fetchLanguageConfig(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchLanguageConfig, decode::languageConfigInfo, {}, timeoutMs, errorText);
}

LanguageConfigInfo ControlClient::setLanguage(const QString &source, const QString &language,
                                              int timeoutMs, QString &errorText) const
{
    return perform(Op::SetLanguage, decode::languageConfigInfo,
                   {{{"source"_L1, source}, {"language"_L1, language}}}, timeoutMs, errorText);
}

LanguageConfigInfo ControlClient::setLanguageIfSource(const QString &source,
                                                      const QString &language,
                                                      const QString &ifSource, int timeoutMs,
                                                      QString &errorText) const
{
    QJsonObject members{{"source"_L1, source}, {"language"_L1, language}};
    insertText(members, "if_source"_L1, ifSource);
    return perform(Op::SetLanguageIfSource, decode::languageConfigInfo, {members}, timeoutMs,
                   errorText);
}

UpdateInfo ControlClient::checkGUIUpdate(const QString &version, int timeoutMs,
                                         QString &errorText) const
{
    return perform(Op::CheckGUIUpdate, decode::updateInfo, {{{"version"_L1, version}}}, timeoutMs,
                   errorText);
}

GUIUpdateDownloadInfo ControlClient::startGUIUpdateDownload(const QString &version,
                                                            qint64 expectedVersionNum,
                                                            int timeoutMs, QString &errorText) const
{
    return perform(Op::StartGUIUpdateDownload, decode::guiUpdateDownloadInfo,
                   {{{"version"_L1, version}, {"expected_version_num"_L1, expectedVersionNum}}},
                   timeoutMs, errorText);
}

GUIUpdateDownloadInfo ControlClient::fetchGUIUpdateDownload(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchGUIUpdateDownload, decode::guiUpdateDownloadInfo, {}, timeoutMs,
                   errorText);
}

GUIUpdateDownloadInfo ControlClient::cancelGUIUpdateDownload(int timeoutMs,
                                                             QString &errorText) const
{
    return perform(Op::CancelGUIUpdateDownload, decode::guiUpdateDownloadInfo, {}, timeoutMs,
                   errorText);
}

RuntimeInfo ControlClient::fetchStatus(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchStatus, decode::runtimeInfo, {}, timeoutMs, errorText);
}

RuntimeInfo ControlClient::connectRuntime(int timeoutMs, QString &errorText) const
{
    return perform(Op::ConnectRuntime, decode::runtimeInfo, {}, timeoutMs, errorText);
}

RuntimeInfo ControlClient::connectNode(const QString &node, int timeoutMs, QString &errorText) const
{
    return perform(Op::ConnectNode, decode::runtimeInfo, {{{"node"_L1, node}}}, timeoutMs,
                   errorText);
}

RuntimeInfo ControlClient::connectSmart(const QString &selector, int timeoutMs,
                                        QString &errorText) const
{
    QJsonObject members{{"smart"_L1, true}};
    insertText(members, "group"_L1, selector);
    return perform(Op::ConnectSmart, decode::runtimeInfo, {members}, timeoutMs, errorText);
}

RuntimeInfo ControlClient::disconnectRuntime(int timeoutMs, QString &errorText) const
{
    return perform(Op::DisconnectRuntime, decode::runtimeInfo, {}, timeoutMs, errorText);
}

NodesInfo ControlClient::fetchNodes(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchNodes, decode::nodesInfo, {}, timeoutMs, errorText);
}

NodesInfo ControlClient::refreshNodes(int timeoutMs, QString &errorText) const
{
    return perform(Op::RefreshNodes, decode::nodesInfo, {}, timeoutMs, errorText);
}

NodesInfo ControlClient::setNodeFavorite(const QString &node, bool favorite, int timeoutMs,
                                         QString &errorText) const
{
    return perform(Op::SetNodeFavorite, decode::nodesInfo,
                   {{{"node"_L1, node}, {"favorite"_L1, favorite}}}, timeoutMs, errorText);
}

NodeGroupsInfo ControlClient::fetchNodeGroups(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchNodeGroups, decode::nodeGroupsInfo, {}, timeoutMs, errorText);
}

UserInfo ControlClient::fetchUser(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchUser, decode::userInfo, {}, timeoutMs, errorText);
}

PurchaseURLInfo ControlClient::fetchPurchaseURL(const QString &lang, int timeoutMs,
                                                QString &errorText) const
{
    Parameters parameters;
    const QString trimmed = lang.trimmed();
    if (!trimmed.isEmpty()) {
        const QUrlQuery query{{u"lang"_s, trimmed}};
        parameters.query = u'?' + query.toString(QUrl::FullyEncoded);
    }
    return perform(Op::FetchPurchaseURL, decode::purchaseURLInfo, parameters, timeoutMs, errorText);
}

RuntimeInfo ControlClient::login(const QString &username, const QString &password, bool rememberMe,
                                 int timeoutMs, QString &errorText) const
{
    return perform(
        Op::Login, decode::runtimeInfo,
        {{{"username"_L1, username}, {"password"_L1, password}, {"remember_me"_L1, rememberMe}}},
        timeoutMs, errorText);
}

RuntimeInfo ControlClient::logout(int timeoutMs, QString &errorText) const
{
    return perform(Op::Logout, decode::runtimeInfo, {}, timeoutMs, errorText);
}

ModeInfo ControlClient::setMode(const ModeInfo &mode, int timeoutMs, QString &errorText) const
{
    QJsonObject members;
    insertText(members, "transport"_L1, mode.transport);
    insertText(members, "policy"_L1, mode.policy);
    insertText(members, "region"_L1, mode.region);
    insertProfile(members, "split_profile"_L1, mode.splitProfile);
    insertProfile(members, "proxy_split_profile"_L1, mode.proxySplitProfile);
    return perform(Op::SetMode, decode::modeInfo, {members}, timeoutMs, errorText);
}

ModeInfo ControlClient::setSystemProxyPreference(const QString &value, int timeoutMs,
                                                 QString &errorText) const
{
    return perform(Op::SetSystemProxyPreference, decode::modeInfo, {{{"value"_L1, value}}},
                   timeoutMs, errorText);
}

ModeInfo ControlClient::setLocalNetworkPreference(const QString &value, int timeoutMs,
                                                  QString &errorText) const
{
    return perform(Op::SetLocalNetworkPreference, decode::modeInfo, {{{"value"_L1, value}}},
                   timeoutMs, errorText);
}

ModeInfo ControlClient::setProxyLANPreference(bool enabled, int timeoutMs, QString &errorText) const
{
    return perform(Op::SetProxyLANPreference, decode::modeInfo,
                   {{{"value"_L1, enabled ? wire::kOn : wire::kOff}}}, timeoutMs, errorText);
}

ProxyListenResultInfo ControlClient::setProxyListeners(const QString &socksAddress,
                                                       const QString &httpAddress, int timeoutMs,
                                                       QString &errorText) const
{
    QJsonArray listeners;
    appendListener(listeners, wire::kListenerSocks, wire::kSchemeSocks5, socksAddress);
    appendListener(listeners, wire::kListenerHttp, wire::kSchemeHttp, httpAddress);
    return perform(Op::SetProxyListeners, decode::proxyListenResultInfo,
                   {{{"proxy_listeners"_L1, listeners}}}, timeoutMs, errorText);
}

SplitDNSInfo ControlClient::fetchSplitDNS(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchSplitDNS, decode::splitDNSInfo, {}, timeoutMs, errorText);
}

SplitDNSInfo ControlClient::setSplitDNSLocal(const QStringList &servers, int timeoutMs,
                                             QString &errorText) const
{
    return perform(Op::SetSplitDNSLocal, decode::splitDNSInfo,
                   {{{"local_direct_dns"_L1, QJsonArray::fromStringList(servers)}}}, timeoutMs,
                   errorText);
}

SplitDNSInfo ControlClient::setSplitDNSPolicy(const QString &policy, int timeoutMs,
                                              QString &errorText) const
{
    return perform(Op::SetSplitDNSPolicy, decode::splitDNSInfo, {{{"policy"_L1, policy}}},
                   timeoutMs, errorText);
}

SplitDNSInfo ControlClient::clearSplitDNSLocal(int timeoutMs, QString &errorText) const
{
    return perform(Op::ClearSplitDNSLocal, decode::splitDNSInfo, {}, timeoutMs, errorText);
}

SplitDNSInfo ControlClient::resetSplitDNS(int timeoutMs, QString &errorText) const
{
    return perform(Op::ResetSplitDNS, decode::splitDNSInfo, {}, timeoutMs, errorText);
}

SplitRulesInfo ControlClient::fetchSplitRules(const QString &kind, int timeoutMs,
                                              QString &errorText) const
{
    Parameters parameters;
    const QString trimmed = kind.trimmed();
    if (!trimmed.isEmpty()) {
        parameters.query = "?kind="_L1 + trimmed;
    }
    return perform(Op::FetchSplitRules, decode::splitRulesInfo, parameters, timeoutMs, errorText);
}

SplitRuleMutationInfo ControlClient::importSplitRules(const QString &kind, const QString &content,
                                                      int timeoutMs, QString &errorText) const
{
    return perform(Op::ImportSplitRules, decode::splitRuleMutationInfo,
                   {{{"kind"_L1, kind}, {"content"_L1, content}}}, timeoutMs, errorText);
}

RepairResultInfo ControlClient::repairDiagnostics(int timeoutMs, QString &errorText) const
{
    RepairResultInfo info;
    info.killSwitch = perform(Op::RepairKillSwitch, decode::repairStep, {}, timeoutMs, errorText);
    if (errorText.isEmpty()) {
        info.proxy = perform(Op::RepairProxy, decode::repairStep, {{{"force"_L1, false}}},
                             timeoutMs, errorText);
    }
    if (errorText.isEmpty()) {
        info.vpn = perform(Op::RepairVPN, decode::repairStep, {}, timeoutMs, errorText);
    }
    return errorText.isEmpty() ? info : RepairResultInfo{};
}

ConfigPaths ControlClient::fetchConfigPaths(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchConfigPaths, decode::configPaths, {}, timeoutMs, errorText);
}

KillSwitchInfo ControlClient::fetchKillSwitch(int timeoutMs, QString &errorText) const
{
    return perform(Op::FetchKillSwitch, decode::killSwitchInfo, {}, timeoutMs, errorText);
}

KillSwitchInfo ControlClient::setKillSwitchEnabled(bool enabled, int timeoutMs,
                                                   QString &errorText) const
{
    return perform(Op::SetKillSwitchEnabled, decode::killSwitchInfo, {{{"enabled"_L1, enabled}}},
                   timeoutMs, errorText);
}

KillSwitchInfo ControlClient::setKillSwitchMode(const QString &mode, int timeoutMs,
                                                QString &errorText) const
{
    const std::optional<HttpResponse> response =
        exchange(Op::SetKillSwitchMode, {{{"mode"_L1, mode}}}, timeoutMs, errorText);
    if (!response) {
        return {};
    }
    if (isSuccess(response->status)) {
        return decode::killSwitchInfo(response->body, errorText);
    }
    constexpr int kNotFound = 404;
    // A daemon that knows the route explains itself; an older one has only the status.
    if (response->status == kNotFound && !hasErrorMember(response->body)) {
        errorText = QCoreApplication::translate(
            "ControlClient", "Vantu daemon is too old for Kill Switch modes. Update Vantu.");
    } else {
        errorText = control::errorTextFromResponse(*response);
    }
    return {};
}

KillSwitchInfo ControlClient::setKillSwitchAllowLAN(bool enabled, int timeoutMs,
                                                    QString &errorText) const
{
    return perform(Op::SetKillSwitchAllowLAN, decode::killSwitchInfo, {{{"enabled"_L1, enabled}}},
                   timeoutMs, errorText);
}
