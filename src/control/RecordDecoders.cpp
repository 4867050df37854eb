#include "RecordDecoders.h"

#include "ControlProtocol.h"
#include "JsonFields.h"
#include "PurchaseURLCheck.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using State = GUIUpdateDownloadInfo::State;

namespace {

/// The object that a body holds; nothing, with an error text, when it holds none.
std::optional<QJsonObject> parseObject(const QByteArray &body, QLatin1StringView failure,
                                       QString &errorText)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject()) {
        errorText = failure;
        return std::nullopt;
    }
    return document.object();
}

template<class Record>
Record decodeBody(const QByteArray &body, Record (*read)(const QJsonObject &),
                  QLatin1StringView failure, QString &errorText)
{
    const std::optional<QJsonObject> object = parseObject(body, failure, errorText);
    return object ? read(*object) : Record{};
}

VersionInfo readVersion(const QJsonObject &o)
{
    const QString apiVersion = json::text(o, "api_version"_L1);
    const bool isCompatible = apiVersion == control::kControlVersion;
    return {true, isCompatible, json::text(o, "version"_L1), apiVersion};
}

APIURLConfigInfo readAPIURLConfig(const QJsonObject &o)
{
    return {json::text(o, "api_url"_L1), json::flag(o, "validated"_L1)};
}

AutoConnectConfigInfo readAutoConnectConfig(const QJsonObject &o)
{
    return {json::text(o, "auto_connect"_L1), json::text(o, "reconnect_source"_L1),
            json::text(o, "reconnect_target"_L1)};
}

SupportedLanguage readSupportedLanguage(const QJsonObject &o)
{
    return {json::text(o, "code"_L1), json::text(o, "name"_L1)};
}

LanguageConfigInfo readLanguageConfig(const QJsonObject &o)
{
    return {json::text(o, "source"_L1), json::text(o, "language"_L1),
            json::text(o, "effective_language"_L1),
            json::list(o, "supported_languages"_L1, readSupportedLanguage)};
}

UpdateInfo readUpdate(const QJsonObject &o)
{
    const QJsonObject latest = json::object(o, "latest"_L1);
    const QJsonObject download = json::object(latest, "download"_L1);
    const QJsonObject artifact = json::object(download, "recommended_artifact"_L1);
    UpdateInfo info;
    info.known = true;
    info.platform = json::text(o, "platform"_L1);
    info.currentVersion = json::text(o, "current_version"_L1);
    info.currentVersionNum = json::real(o, "current_version_num"_L1);
    info.updateAvailable = json::flag(o, "update_available"_L1);
    info.checkedAt = json::text(o, "checked_at"_L1);
    info.versionCode = json::text(latest, "version_code"_L1);
    info.versionNum = json::real(latest, "version_num"_L1);
    info.isForceUpgrade = json::flag(latest, "is_force_upgrade"_L1);
    info.shouldGrayReleaseUpgrade = json::flag(latest, "should_gray_release_upgrade"_L1);
    info.changeLog = json::texts(latest, "change_log"_L1);
    info.recommended = json::text(download, "recommended"_L1);
    info.universalDownloadLink = json::text(download, "universal_download_link"_L1);
    info.arm64DownloadLink = json::text(download, "arm64_download_link"_L1);
    info.amd64DownloadLink = json::text(download, "amd64_download_link"_L1);
    info.artifactURL = json::text(artifact, "url"_L1);
    info.artifactSHA256 = json::text(artifact, "sha256"_L1);
    info.artifactSizeBytes = json::number64(artifact, "size_bytes"_L1);
    return info;
}

/// Unknown for a word that is none of the wire's.
State downloadState(const QString &word)
{
    struct Row
    {
        QLatin1StringView word;
        State state = State::Unknown;
    };
    static constexpr std::array kRows{
        Row{"idle"_L1, State::Idle},
        Row{"checking"_L1, State::Checking},
        Row{"downloading"_L1, State::Downloading},
        Row{"verifying"_L1, State::Verifying},
        Row{"canceling"_L1, State::Canceling},
        Row{"ready"_L1, State::Ready},
        Row{"failed"_L1, State::Failed},
        Row{"canceled"_L1, State::Canceled},
    };
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [&word](const Row &r) { return r.word == word; });
    return row == kRows.end() ? State::Unknown : row->state;
}

GUIUpdateDownloadInfo readGUIUpdateDownload(const QJsonObject &o)
{
    GUIUpdateDownloadInfo info;
    info.state = downloadState(json::text(o, "state"_L1));
    info.currentVersion = json::text(o, "current_version"_L1);
    info.versionCode = json::text(o, "version_code"_L1);
    info.versionNum = json::number64(o, "version_num"_L1);
    info.bytesDownloaded = json::number64(o, "bytes_downloaded"_L1);
    info.bytesTotal = json::number64(o, "bytes_total"_L1);
    info.egress = json::text(o, "egress"_L1);
    info.localPath = json::text(o, "local_path"_L1);
    info.errorCode = json::text(o, "error_code"_L1);
    info.errorMessage = json::text(o, "error_message"_L1);
    info.startedAt = json::text(o, "started_at"_L1);
    info.updatedAt = json::text(o, "updated_at"_L1);
    return info;
}

UserInfo readUser(const QJsonObject &o)
{
    UserInfo info;
    info.email = json::text(o, "email"_L1);
    info.userNumber = json::text(o, "user_number"_L1);
    info.role = json::text(o, "role"_L1);
    info.emailChecked = json::flag(o, "email_checked"_L1);
    info.leftDays = json::number(o, "left_days"_L1);
    info.maxDeviceCount = json::number(o, "max_device_count"_L1);
    return info;
}

PurchaseURLInfo readPurchaseURL(const QJsonObject &o)
{
    return {json::text(o, "url"_L1)};
}

NodeEntry readNodeEntry(const QJsonObject &o)
{
    NodeEntry node;
    node.id = json::textOrNumber(o, "id"_L1);
    node.name = json::text(o, "name"_L1);
    node.tags = json::texts(o, "tags"_L1);
    node.region = json::text(o, "region"_L1);
    node.type = json::text(o, "type"_L1);
    node.signalLevel = json::number(o, "signalLevel"_L1, -1);
    node.pingMs = json::number(o, "pingMs"_L1, -1);
    return node;
}

NodeReference readNodeReference(const QJsonObject &o)
{
    return {json::textOrNumber(o, "id"_L1), json::text(o, "name"_L1), json::text(o, "region"_L1),
            json::textOrNumber(o, "type"_L1)};
}

NodesInfo readNodes(const QJsonObject &o)
{
    NodesInfo info;
    info.stale = json::flag(o, "stale"_L1);
    info.pingRunning = json::flag(o, "pingRunning"_L1);
    info.nodes = json::list(o, "nodes"_L1, readNodeEntry);
    info.selected = readNodeEntry(json::object(o, "selected"_L1));
    info.connected = readNodeEntry(json::object(o, "connected"_L1));
    return info;
}

/// Recursion is bounded by the JSON parser, which refuses deep nesting.
NodeGroup readNodeGroup(const QJsonObject &o)
{
    NodeGroup group;
    group.name = json::text(o, "name"_L1);
    group.code = json::text(o, "code"_L1);
    group.level = json::number(o, "level"_L1);
    group.rank = json::number(o, "rank"_L1);
    group.nodeIds = json::texts(o, "node_ids"_L1);
    group.subgroups = json::list(o, "subgroups"_L1, readNodeGroup);
    return group;
}

NodeGroupTab readNodeGroupTab(const QJsonObject &o)
{
    return {json::text(o, "group_type"_L1), json::texts(o, "node_ids"_L1),
            json::list(o, "groups"_L1, readNodeGroup)};
}

NodeGroupsInfo readNodeGroups(const QJsonObject &o)
{
    return {json::flag(o, "stale"_L1), json::list(o, "tabs"_L1, readNodeGroupTab)};
}

ConfigPaths readConfigPaths(const QJsonObject &o)
{
    ConfigPaths paths;
    paths.configDir = json::text(o, "ConfigDir"_L1);
    paths.runtimeDir = json::text(o, "RuntimeDir"_L1);
    paths.logDir = json::text(o, "LogDir"_L1);
    paths.stateFile = json::text(o, "StateFile"_L1);
    paths.credentialsKeyFile = json::text(o, "CredentialsKeyFile"_L1);
    paths.historyFile = json::text(o, "HistoryFile"_L1);
    paths.profilesDir = json::text(o, "ProfilesDir"_L1);
    paths.socketPath = json::text(o, "SocketPath"_L1);
    paths.pidFile = json::text(o, "PIDFile"_L1);
    paths.controlAddr = json::text(o, "ControlAddr"_L1);
    return paths;
}

KillSwitchInfo readKillSwitch(const QJsonObject &o)
{
    KillSwitchInfo info;
    if (o.isEmpty()) {
        return info;
    }
    info.known = true;
    info.enabled = json::flag(o, "enabled"_L1);
    info.mode = json::text(o, "mode"_L1);
    if (info.mode.isEmpty()) {
        // A daemon that knows only on and off sends no mode.
        info.mode = info.enabled ? wire::kKillSwitchOn : wire::kKillSwitchOff;
    }
    info.guard = json::text(o, "guard"_L1);
    info.platform = json::text(o, "platform"_L1);
    info.blockMode = json::text(o, "block_mode"_L1);
    info.allowLAN = json::flag(o, "allow_lan"_L1);
    info.lanPolicy = json::text(o, "lan_policy"_L1);
    info.lanDiscovery = json::texts(o, "lan_discovery"_L1);
    info.lastError = json::text(o, "last_error"_L1);
    return info;
}

SplitProfile readSplitProfile(const QJsonObject &o)
{
    SplitProfile profile;
    profile.present = !o.isEmpty();
    profile.defaultRoute = json::text(o, "default_route"_L1);
    profile.directRegions = json::texts(o, "direct_regions"_L1);
    profile.proxyRegions = json::texts(o, "proxy_regions"_L1);
    profile.gfwList = json::flag(o, "gfwlist"_L1);
    profile.lanRouting = json::text(o, "lan_routing"_L1);
    profile.customRules = json::flag(o, "custom_rules"_L1);
    return profile;
}

ModeInfo readMode(const QJsonObject &o)
{
    ModeInfo info;
    info.known = !o.isEmpty();
    info.transport = json::text(o, "transport"_L1);
    info.policy = json::text(o, "policy"_L1);
    info.region = json::text(o, "region"_L1);
    info.systemProxy = json::text(o, "system_proxy"_L1);
    info.pacPort = json::number(o, "pac_port"_L1);
    info.pacVersion = json::text(o, "pac_version"_L1);
    info.proxyLAN = json::flag(o, "proxy_lan"_L1);
    info.localNetwork = json::text(o, "local_network"_L1).trimmed();
    if (info.localNetwork.isEmpty()) {
        // A daemon without this setting protects the network while it shares the proxy.
        info.localNetwork =
            info.proxyLAN ? wire::kLocalNetworkProtected : wire::kLocalNetworkDirect;
    }
    info.splitProfile = readSplitProfile(json::object(o, "split_profile"_L1));
    info.lastVantuVPNPolicy = json::text(o, "last_vantuvpn_policy"_L1);
    info.lastVantuVPNSplitProfile =
        readSplitProfile(json::object(o, "last_vantuvpn_split_profile"_L1));
    info.proxySplitProfile = readSplitProfile(json::object(o, "proxy_split_profile"_L1));
    info.lastProxyPolicy = json::text(o, "last_proxy_policy"_L1);
    info.lastProxySplitProfile = readSplitProfile(json::object(o, "last_proxy_split_profile"_L1));
    return info;
}

ProxyListener readProxyListener(const QJsonObject &o)
{
    return {json::text(o, "name"_L1), json::text(o, "scheme"_L1), json::text(o, "address"_L1)};
}

ProxyListenResultInfo readProxyListenResult(const QJsonObject &o)
{
    return {json::flag(o, "applies_on_reconnect"_L1),
            json::list(o, "proxy_listeners"_L1, readProxyListener)};
}

SplitDNSInfo readSplitDNS(const QJsonObject &o)
{
    const QJsonObject config = json::object(o, "config"_L1);
    const QJsonObject effective = json::object(o, "effective"_L1);
    SplitDNSInfo info;
    info.known = true;
    info.path = json::text(o, "path"_L1);
    info.changed = json::flag(o, "changed"_L1);
    info.runtimeReloaded = json::flag(o, "runtime_reloaded"_L1);
    info.runtimeWarning = json::text(o, "runtime_warning"_L1);
    info.configPolicy = json::text(config, "policy"_L1);
    info.configLocalDirectDNS = json::texts(config, "local_direct_dns"_L1);
    info.fakeIPEnabled = json::flag(config, "fake_ip_enabled"_L1);
    info.effectivePolicy = json::text(effective, "policy"_L1);
    info.effectiveLocalDirectDNS = json::texts(effective, "local_direct_dns"_L1);
    info.localDNSSource = json::text(effective, "local_dns_source"_L1);
    info.autoCNDefault = json::flag(effective, "auto_cn_default"_L1);
    return info;
}

SplitRulesInfo readSplitRules(const QJsonObject &o)
{
    SplitRulesInfo info;
    info.known = true;
    info.dir = json::text(o, "dir"_L1);
    const QJsonObject files = json::object(o, "files"_L1);
    for (auto file = files.begin(); file != files.end(); ++file) {
        info.files.insert(file.key(), file.value().toString());
    }
    const QJsonObject rules = json::object(o, "rules"_L1);
    for (auto rule = rules.begin(); rule != rules.end(); ++rule) {
        info.rules.insert(rule.key(), json::texts(rule.value().toObject(), "items"_L1));
    }
    return info;
}

SplitRuleMutationInfo readSplitRuleMutation(const QJsonObject &o)
{
    return {json::text(o, "kind"_L1), json::flag(o, "changed"_L1), json::number(o, "count"_L1),
            json::text(o, "file"_L1), json::flag(o, "runtime_reloaded"_L1)};
}

RepairStep readRepairStep(const QJsonObject &o)
{
    return {json::text(o, "result"_L1), json::text(o, "state"_L1), json::text(o, "reason"_L1)};
}

ProxyAccessURL readProxyAccessURL(const QJsonObject &o)
{
    return {json::text(o, "kind"_L1), json::text(o, "scheme"_L1), json::text(o, "url"_L1)};
}

RuntimeInfo readRuntime(const QJsonObject &o)
{
    const QJsonObject pac = json::object(o, "pac_status"_L1);

    RuntimeInfo info;
    info.daemonState = json::text(o, "daemon_state"_L1);
    info.daemonVersion = json::text(o, "daemon_version"_L1);
    info.apiURL = json::text(o, "api_url"_L1);
    info.autoConnect = json::text(o, "auto_connect"_L1);
    info.autoConnectState = json::text(o, "auto_connect_state"_L1);
    info.language = json::text(o, "language"_L1);
    info.languageSource = json::text(o, "language_source"_L1);
    info.effectiveLanguage = json::text(o, "effective_language"_L1);
    info.catalogRefresh = json::text(o, "catalog_refresh"_L1);
    info.authState = json::text(o, "auth_state"_L1);
    info.tunnelState = json::text(o, "tunnel_state"_L1);
    info.tunnelKind = json::text(o, "tunnel_kind"_L1);
    info.tunnelReason = json::text(o, "tunnel_reason"_L1);
    info.lastError = json::text(o, "last_error"_L1);
    info.mode = readMode(json::object(o, "mode"_L1));
    info.connectedSource = json::text(o, "connected_source"_L1);
    info.connectedTarget = json::text(o, "connected_target"_L1);
    info.connectedSince = json::text(o, "connected_since"_L1);
    info.selectedNode = readNodeReference(json::object(o, "selected_node"_L1));
    info.connectedNode = readNodeReference(json::object(o, "connected_node"_L1));
    info.killSwitch = readKillSwitch(json::object(o, "kill_switch"_L1));
    info.proxyListeners = json::list(o, "proxy_listeners"_L1, readProxyListener);
    info.proxyAccessURLs = json::list(o, "proxy_access_urls"_L1, readProxyAccessURL);
    info.pacStatus = {json::text(pac, "state"_L1), json::text(pac, "path"_L1)};
    info.proxyAddress = json::text(o, "proxy_address"_L1);
    info.proxyPort = json::number(o, "proxy_port"_L1);
    info.activeListenerAddress = json::text(o, "active_listener_address"_L1);
    info.activeListenerPort = json::number(o, "active_listener_port"_L1);
    info.message = json::text(o, "message"_L1);
    return info;
}

} // namespace

namespace decode {

VersionInfo versionInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readVersion, "invalid version JSON"_L1, errorText);
}

APIURLConfigInfo apiURLConfigInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readAPIURLConfig, "invalid API URL config JSON"_L1, errorText);
}

AutoConnectConfigInfo autoConnectConfigInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readAutoConnectConfig, "invalid auto-connect config JSON"_L1,
                      errorText);
}

LanguageConfigInfo languageConfigInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readLanguageConfig, "invalid language config JSON"_L1, errorText);
}

UpdateInfo updateInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readUpdate, "invalid update JSON"_L1, errorText);
}

GUIUpdateDownloadInfo guiUpdateDownloadInfo(const QByteArray &body, QString &errorText)
{
    GUIUpdateDownloadInfo info =
        decodeBody(body, readGUIUpdateDownload, kInvalidDownload, errorText);
    if (errorText.isEmpty() && info.state == State::Unknown) {
        errorText = kInvalidDownloadState;
        return {};
    }
    return info;
}

UserInfo userInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readUser, "invalid user JSON"_L1, errorText);
}

PurchaseURLInfo purchaseURLInfo(const QByteArray &body, QString &errorText)
{
    PurchaseURLInfo info =
        decodeBody(body, readPurchaseURL, "invalid purchase URL JSON"_L1, errorText);
    if (errorText.isEmpty() && !isPurchaseURL(info.url)) {
        errorText = u"invalid purchase URL"_s;
        return {};
    }
    return info;
}

NodesInfo nodesInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readNodes, "invalid nodes JSON"_L1, errorText);
}

NodeGroupsInfo nodeGroupsInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readNodeGroups, "invalid node groups JSON"_L1, errorText);
}

ConfigPaths configPaths(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readConfigPaths, "invalid config path JSON"_L1, errorText);
}

KillSwitchInfo killSwitchInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readKillSwitch, "invalid kill-switch JSON"_L1, errorText);
}

ModeInfo modeInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readMode, "invalid mode JSON"_L1, errorText);
}

ProxyListenResultInfo proxyListenResultInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readProxyListenResult, "invalid proxy listen JSON"_L1, errorText);
}

SplitDNSInfo splitDNSInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readSplitDNS, "invalid split DNS JSON"_L1, errorText);
}

SplitRulesInfo splitRulesInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readSplitRules, "invalid split rules JSON"_L1, errorText);
}

SplitRuleMutationInfo splitRuleMutationInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readSplitRuleMutation, "invalid split rule mutation JSON"_L1,
                      errorText);
}

RepairStep repairStep(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readRepairStep, "invalid repair JSON"_L1, errorText);
}

RuntimeInfo runtimeInfo(const QByteArray &body, QString &errorText)
{
    return decodeBody(body, readRuntime, "invalid status JSON"_L1, errorText);
}

} // namespace decode
