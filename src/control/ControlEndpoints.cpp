#include "ControlEndpoints.h"

#include <array>
#include <cstddef>

namespace {

using Op = ControlOperation;
using Body = ControlEndpoint::Body;

constexpr const char *kGet = "GET";
constexpr const char *kPost = "POST";
constexpr const char *kDelete = "DELETE";

constexpr ControlEndpoint row(Op operation, const char *method, const char *path, Body body)
{
    return {operation, method, QLatin1StringView(path), body};
}

// clang-format off
/// In the order of ControlOperation. The remark names the body's members and the
/// record that the answer is decoded into.
constexpr std::array kEndpoints{
    row(Op::FetchVersion,              kGet,    "/v1/version",              Body::None),        // VersionInfo
    row(Op::FetchAPIURLConfig,         kGet,    "/v1/config/api-url",       Body::None),        // APIURLConfigInfo
    row(Op::SetAPIURL,                 kPost,   "/v1/config/api-url",       Body::Members),     // api_url → APIURLConfigInfo
    row(Op::ResetAPIURL,               kDelete, "/v1/config/api-url",       Body::None),        // APIURLConfigInfo
    row(Op::SetAutoConnectPreference,  kPost,   "/v1/config/auto-connect",  Body::Members),     // auto_connect → AutoConnectConfigInfo
    row(Op::FetchLanguageConfig,       kGet,    "/v1/config/language",      Body::None),        // LanguageConfigInfo
    row(Op::SetLanguage,               kPost,   "/v1/config/language",      Body::Members),     // source, language → LanguageConfigInfo
    row(Op::SetLanguageIfSource,       kPost,   "/v1/config/language",      Body::Members),     // and if_source, if any → LanguageConfigInfo
    row(Op::CheckGUIUpdate,            kPost,   "/v1/gui/update/check",     Body::Members),     // version → UpdateInfo
    row(Op::StartGUIUpdateDownload,    kPost,   "/v1/gui/update/download",  Body::Members),     // version, expected_version_num → GUIUpdateDownloadInfo
    row(Op::FetchGUIUpdateDownload,    kGet,    "/v1/gui/update/download",  Body::None),        // GUIUpdateDownloadInfo
    row(Op::CancelGUIUpdateDownload,   kDelete, "/v1/gui/update/download",  Body::None),        // GUIUpdateDownloadInfo
    row(Op::FetchStatus,               kGet,    "/v1/status",               Body::None),        // RuntimeInfo
    row(Op::ConnectRuntime,            kPost,   "/v1/connect",              Body::EmptyObject), // RuntimeInfo
    row(Op::ConnectNode,               kPost,   "/v1/connect",              Body::Members),     // node → RuntimeInfo
    row(Op::ConnectSmart,              kPost,   "/v1/connect",              Body::Members),     // smart, and group, if any → RuntimeInfo
    row(Op::DisconnectRuntime,         kPost,   "/v1/disconnect",           Body::EmptyObject), // RuntimeInfo
    row(Op::FetchNodes,                kGet,    "/v1/nodes",                Body::None),        // NodesInfo
    row(Op::RefreshNodes,              kPost,   "/v1/nodes/refresh",        Body::EmptyObject), // NodesInfo
    row(Op::SetNodeFavorite,           kPost,   "/v1/nodes/favorite",       Body::Members),     // node, favorite → NodesInfo
    row(Op::FetchNodeGroups,           kGet,    "/v1/nodes/groups",         Body::None),        // NodeGroupsInfo
    row(Op::FetchUser,                 kGet,    "/v1/user",                 Body::None),        // UserInfo
    row(Op::FetchPurchaseURL,          kGet,    "/v1/account/purchase-url", Body::None),        // query lang, if any → PurchaseURLInfo
    row(Op::Login,                     kPost,   "/v1/session/login",        Body::Members),     // username, password, remember_me → RuntimeInfo
    row(Op::Logout,                    kPost,   "/v1/session/logout",       Body::EmptyObject), // RuntimeInfo
    row(Op::SetMode,                   kPost,   "/v1/mode",                 Body::Members),     // see ControlClient::setMode → ModeInfo
    row(Op::SetSystemProxyPreference,  kPost,   "/v1/proxy/system-proxy",   Body::Members),     // value → ModeInfo
    row(Op::SetLocalNetworkPreference, kPost,   "/v1/local-network",        Body::Members),     // value → ModeInfo
    row(Op::SetProxyLANPreference,     kPost,   "/v1/proxy/proxy-lan",      Body::Members),     // value ("on", "off") → ModeInfo
    row(Op::SetProxyListeners,         kPost,   "/v1/proxy/listen",         Body::Members),     // proxy_listeners → ProxyListenResultInfo
    row(Op::FetchSplitDNS,             kGet,    "/v1/split/dns",            Body::None),        // SplitDNSInfo
    row(Op::SetSplitDNSLocal,          kPost,   "/v1/split/dns/local",      Body::Members),     // local_direct_dns → SplitDNSInfo
    row(Op::SetSplitDNSPolicy,         kPost,   "/v1/split/dns/policy",     Body::Members),     // policy → SplitDNSInfo
    row(Op::ClearSplitDNSLocal,        kDelete, "/v1/split/dns/local",      Body::None),        // SplitDNSInfo
    row(Op::ResetSplitDNS,             kPost,   "/v1/split/dns/reset",      Body::EmptyObject), // SplitDNSInfo
    row(Op::FetchSplitRules,           kGet,    "/v1/split/rules",          Body::None),        // query kind, if any → SplitRulesInfo
    row(Op::ImportSplitRules,          kPost,   "/v1/split/rules/import",   Body::Members),     // kind, content → SplitRuleMutationInfo
    row(Op::RepairKillSwitch,          kPost,   "/v1/kill-switch/repair",   Body::EmptyObject), // RepairResultInfo, first step
    row(Op::RepairProxy,               kPost,   "/v1/proxy/repair",         Body::Members),     // force (false) → second step
    row(Op::RepairVPN,                 kPost,   "/v1/vpn/repair",           Body::EmptyObject), // third step
    row(Op::FetchConfigPaths,          kGet,    "/v1/config/path",          Body::None),        // ConfigPaths
    row(Op::FetchKillSwitch,           kGet,    "/v1/kill-switch",          Body::None),        // KillSwitchInfo
    row(Op::SetKillSwitchEnabled,      kPost,   "/v1/kill-switch",          Body::Members),     // enabled → KillSwitchInfo
    row(Op::SetKillSwitchMode,         kPost,   "/v1/kill-switch/mode",     Body::Members),     // mode → KillSwitchInfo
    row(Op::SetKillSwitchAllowLAN,     kPost,   "/v1/kill-switch/allow-lan", Body::Members),    // enabled → KillSwitchInfo
};
// clang-format on

constexpr bool isInEnumOrder()
{
    for (std::size_t i = 0; i < kEndpoints.size(); ++i) {
        if (static_cast<std::size_t>(kEndpoints[i].operation) != i) {
            return false;
        }
    }
    return static_cast<std::size_t>(Op::SetKillSwitchAllowLAN) + 1 == kEndpoints.size();
}
static_assert(isInEnumOrder(), "the table is looked up by position");

} // namespace

const ControlEndpoint &controlEndpoint(ControlOperation operation)
{
    return kEndpoints[static_cast<std::size_t>(operation)];
}
