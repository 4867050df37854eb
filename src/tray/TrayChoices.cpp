#include "TrayChoices.h"

#include "ControlProtocol.h"
#include "ModeRequests.h"
#include "TrayMenuText.h"
#include "VantuTrayApp.h"

#include <algorithm>
#include <array>

namespace {

struct ModeChoice
{
    TrayEntry entry = TrayEntry::None;
    ModeInfo (*request)(const ModeInfo &current) = nullptr;
    QString (*statusText)() = nullptr;
};

constexpr std::array kModeChoices{
    ModeChoice{TrayEntry::ModeAuto, [](const ModeInfo &) { return moderequest::autoMode(); },
               &TrayMenuText::switchingToAuto},
    ModeChoice{TrayEntry::ModeWireGuard, [](const ModeInfo &) { return moderequest::wireGuard(); },
               &TrayMenuText::switchingToWireGuard},
    ModeChoice{TrayEntry::VpnGlobal, [](const ModeInfo &) { return moderequest::vantuVPNGlobal(); },
               &TrayMenuText::switchingToVantuVPN},
    ModeChoice{TrayEntry::VpnSplit, &moderequest::vantuVPNSplit,
               &TrayMenuText::switchingVantuVPNSplit},
    ModeChoice{TrayEntry::ProxyGlobal, [](const ModeInfo &) { return moderequest::proxyGlobal(); },
               &TrayMenuText::switchingToProxy},
    ModeChoice{TrayEntry::ProxySplit, &moderequest::proxySplit,
               &TrayMenuText::switchingToProxySplit},
};

/// Entries that stand for a plain call.
struct PlainChoice
{
    TrayEntry entry = TrayEntry::None;
    void (VantuTrayApp::*call)() = nullptr;
};

constexpr std::array kPlainChoices{
    PlainChoice{TrayEntry::OpenVantu, &VantuTrayApp::openVantuRequested},
    PlainChoice{TrayEntry::Disconnect, &VantuTrayApp::disconnectRuntime},
    PlainChoice{TrayEntry::RefreshNodes, &VantuTrayApp::refreshNodes},
    PlainChoice{TrayEntry::Locations, &VantuTrayApp::openLocationsRequested},
    PlainChoice{TrayEntry::RefreshStatus, &VantuTrayApp::refreshStatus},
    PlainChoice{TrayEntry::OpenLogs, &VantuTrayApp::openLogs},
    PlainChoice{TrayEntry::Account, &VantuTrayApp::accountRequested},
    PlainChoice{TrayEntry::Logout, &VantuTrayApp::logoutAccount},
    PlainChoice{TrayEntry::Quit, &VantuTrayApp::quitRequested},
};

/// Entries that choose one value of several.
struct ValueChoice
{
    TrayEntry entry = TrayEntry::None;
    void (VantuTrayApp::*call)(const QString &value) = nullptr;
    QLatin1StringView value;
};

constexpr std::array kValueChoices{
    ValueChoice{TrayEntry::VpnDefaultTunnel, &VantuTrayApp::setVantuSplitDefaultRoute,
                wire::kRouteTunnel},
    ValueChoice{TrayEntry::VpnDefaultDirect, &VantuTrayApp::setVantuSplitDefaultRoute,
                wire::kRouteDirect},
    ValueChoice{TrayEntry::ProxyDefaultProxy, &VantuTrayApp::setProxyRoutingDefault,
                wire::kRouteProxy},
    ValueChoice{TrayEntry::ProxyDefaultDirect, &VantuTrayApp::setProxyRoutingDefault,
                wire::kRouteDirect},
    ValueChoice{TrayEntry::SystemProxyOff, &VantuTrayApp::setSystemProxyPreference, wire::kOff},
    ValueChoice{TrayEntry::SystemProxyOn, &VantuTrayApp::setSystemProxyPreference, wire::kOn},
    ValueChoice{TrayEntry::SystemProxyLock, &VantuTrayApp::setSystemProxyPreference,
                wire::kSystemProxyLock},
    ValueChoice{TrayEntry::LocalNetworkDirect, &VantuTrayApp::setLocalNetworkPreference,
                wire::kLocalNetworkDirect},
    ValueChoice{TrayEntry::LocalNetworkProtected, &VantuTrayApp::setLocalNetworkPreference,
                wire::kLocalNetworkProtected},
};

/// Entries that turn something on or off.
struct SwitchChoice
{
    TrayEntry entry = TrayEntry::None;
    void (VantuTrayApp::*call)(bool on) = nullptr;
};

constexpr std::array kSwitchChoices{
    SwitchChoice{TrayEntry::VpnGFWList, &VantuTrayApp::setVantuSplitGFWList},
    SwitchChoice{TrayEntry::VpnCustomRules, &VantuTrayApp::setVantuSplitCustomRules},
    SwitchChoice{TrayEntry::ProxyGFWList, &VantuTrayApp::setProxyRoutingGFWList},
    SwitchChoice{TrayEntry::KillSwitch, &VantuTrayApp::setKillSwitchEnabled},
};

template<class Table>
const typename Table::value_type *findChoice(const Table &table, TrayEntry entry)
{
    const auto row = std::find_if(table.begin(), table.end(),
                                  [entry](const auto &choice) { return choice.entry == entry; });
    return row == table.end() ? nullptr : &*row;
}

} // namespace

void carryOutTrayChoice(VantuTrayApp &app, const ModeInfo &mode, TrayEntry entry, bool checked)
{
    if (const auto *plain = findChoice(kPlainChoices, entry)) {
        (app.*plain->call)();
    } else if (const auto *choice = findChoice(kModeChoices, entry)) {
        app.setMode(choice->request(mode), choice->statusText());
    } else if (const auto *value = findChoice(kValueChoices, entry)) {
        (app.*value->call)(value->value);
    } else if (const auto *onOff = findChoice(kSwitchChoices, entry)) {
        (app.*onOff->call)(checked);
    }
}
