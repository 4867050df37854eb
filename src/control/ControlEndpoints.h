#pragma once

#include <QLatin1StringView>

/// Every request that this program sends. Repairing is one operation of three
/// requests; each of the others is one request.
enum class ControlOperation {
    FetchVersion,
    FetchAPIURLConfig,
    SetAPIURL,
    ResetAPIURL,
    SetAutoConnectPreference,
    FetchLanguageConfig,
    SetLanguage,
    SetLanguageIfSource,
    CheckGUIUpdate,
    StartGUIUpdateDownload,
    FetchGUIUpdateDownload,
    CancelGUIUpdateDownload,
    FetchStatus,
    ConnectRuntime,
    ConnectNode,
    ConnectSmart,
    DisconnectRuntime,
    FetchNodes,
    RefreshNodes,
    SetNodeFavorite,
    FetchNodeGroups,
    FetchUser,
    FetchPurchaseURL,
    Login,
    Logout,
    SetMode,
    SetSystemProxyPreference,
    SetLocalNetworkPreference,
    SetProxyLANPreference,
    SetProxyListeners,
    FetchSplitDNS,
    SetSplitDNSLocal,
    SetSplitDNSPolicy,
    ClearSplitDNSLocal,
    ResetSplitDNS,
    FetchSplitRules,
    ImportSplitRules,
    RepairKillSwitch,
    RepairProxy,
    RepairVPN,
    FetchConfigPaths,
    FetchKillSwitch,
    SetKillSwitchEnabled,
    SetKillSwitchMode,
    SetKillSwitchAllowLAN,
};

/// How one operation is asked for over HTTP.
struct ControlEndpoint
{
    enum class Body {
        None,        ///< GET and DELETE.
        EmptyObject, ///< Always "{}".
        Members,     ///< An object of the operation's own members.
    };

    ControlOperation operation = {};
    const char *method = nullptr;
    QLatin1StringView path; ///< Without a query.
    Body body = Body::None;
};

const ControlEndpoint &controlEndpoint(ControlOperation operation);
