#include "SimRouting.h"

#include <QJsonArray>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

const QStringList &knownPolicies()
{
    static const QStringList words{u"global"_s,        u"split"_s,        u"gfwlist"_s,
                                   u"bypass-region"_s, u"proxy-region"_s, u"direct-region"_s};
    return words;
}

SimRefusal unknownWord(const QString &what, const QString &word)
{
    return SimReply::error(400, u"unknown %1 \"%2\""_s.arg(what, word));
}

SimRefusal lockdownForbids(const QString &what)
{
    return SimReply::error(409, u"Lockdown is on: %1 is not available"_s.arg(what));
}

SimRefusal wrongMember(const QString &name, const QString &wanted)
{
    return SimReply::error(400, u"split profile: \"%1\" must be %2"_s.arg(name, wanted));
}

SimRefusal checkRegions(const QString &name, const QJsonValue &value)
{
    if (!value.isArray()) {
        return wrongMember(name, u"a list of regions"_s);
    }
    const QJsonArray regions = value.toArray();
    for (const auto &region : regions) {
        if (region.toString().size() != 2) {
            return wrongMember(name, u"a list of two-letter regions"_s);
        }
    }
    return {};
}

/// Refuses members that are unknown or of the wrong type.
SimRefusal checkProfile(const QJsonObject &profile, const QString &tunnelWord)
{
    for (auto member = profile.begin(); member != profile.end(); ++member) {
        const QString name = member.key();
        const QJsonValue value = member.value();
        if (name == "default_route"_L1) {
            if (value != tunnelWord && value != "direct"_L1) {
                return wrongMember(name, u"\"%1\" or \"direct\""_s.arg(tunnelWord));
            }
        } else if (name == "direct_regions"_L1 || name == "proxy_regions"_L1) {
            if (SimRefusal refusal = checkRegions(name, value)) {
                return refusal;
            }
        } else if (name == "gfwlist"_L1 || name == "custom_rules"_L1) {
            if (!value.isBool()) {
                return wrongMember(name, u"true or false"_s);
            }
        } else if (name == "lan_routing"_L1) {
            if (!value.isString()) {
                return wrongMember(name, u"a string"_s);
            }
        } else {
            return SimReply::error(400, u"split profile: unknown member \"%1\""_s.arg(name));
        }
    }
    return {};
}

/// A profile as it is stored: every member has a value.
QJsonObject completed(const QJsonObject &profile, const QString &tunnelWord)
{
    return {{u"default_route"_s, profile.value(u"default_route"_s).toString(tunnelWord)},
            {u"direct_regions"_s, profile.value(u"direct_regions"_s).toArray()},
            {u"proxy_regions"_s, profile.value(u"proxy_regions"_s).toArray()},
            {u"gfwlist"_s, profile.value(u"gfwlist"_s).toBool()},
            {u"lan_routing"_s, profile.value(u"lan_routing"_s).toString(u"direct"_s)},
            {u"custom_rules"_s, profile.value(u"custom_rules"_s).toBool()}};
}

} // namespace

SimRouting::SimRouting(const SimScenario &scenario)
    : m_transport(scenario.transport)
    , m_vpnPolicy(scenario.transport == "vantuvpn"_L1 && !scenario.policy.isEmpty()
                      ? scenario.policy
                      : u"global"_s)
    , m_proxyPolicy(scenario.transport == "proxy"_L1 && !scenario.policy.isEmpty() ? scenario.policy
                                                                                   : u"global"_s)
    , m_vpnProfile(completed({{u"direct_regions"_s, QJsonArray{u"CN"_s}},
                              {u"gfwlist"_s, true},
                              {u"custom_rules"_s, true}},
                             u"tunnel"_s))
    , m_proxyProfile(completed({{u"direct_regions"_s, QJsonArray{u"CN"_s, u"RU"_s}}}, u"proxy"_s))
    , m_systemProxy(u"off"_s)
    , m_localNetwork(scenario.killSwitch == "lockdown"_L1 ? u"protected"_s : u"direct"_s)
    , m_killSwitch(scenario.killSwitch)
{}

bool SimRouting::isVpnSplit() const
{
    return m_transport == "vantuvpn"_L1 && m_vpnPolicy != "global"_L1;
}

bool SimRouting::isProxySplit() const
{
    return isProxy() && m_proxyPolicy != "global"_L1;
}

bool SimRouting::sendsChinaDirect() const
{
    return isVpnSplit() && m_vpnProfile.value(u"default_route"_s) == "tunnel"_L1 &&
           m_vpnProfile.value(u"direct_regions"_s).toArray().contains(u"CN"_s);
}

SimRefusal SimRouting::checkMode(const QString &transport, const QString &policy,
                                 const QJsonObject &request) const
{
    const bool proxy = transport == "proxy"_L1;
    const bool vantuVpn = transport == "vantuvpn"_L1;
    if (!proxy && !vantuVpn && transport != "auto"_L1 && transport != "wireguard"_L1) {
        return unknownWord(u"mode"_s, transport);
    }
    if (request.contains(u"policy"_s)) {
        if (!knownPolicies().contains(policy)) {
            return unknownWord(u"policy"_s, policy);
        }
        if (!proxy && !vantuVpn) {
            return SimReply::error(400, u"mode \"%1\" has no policy"_s.arg(transport));
        }
    }
    if (request.contains(u"split_profile"_s) && !vantuVpn) {
        return SimReply::error(400, u"\"split_profile\" belongs to mode \"vantuvpn\""_s);
    }
    if (request.contains(u"proxy_split_profile"_s) && !proxy) {
        return SimReply::error(400, u"\"proxy_split_profile\" belongs to mode \"proxy\""_s);
    }
    if (proxy && isLockdown()) {
        return lockdownForbids(u"Vantu Proxy"_s);
    }
    if (proxy && m_killSwitch != "off"_L1) {
        return SimReply::error(409, u"Vantu Proxy needs Kill Switch off"_s);
    }
    if (vantuVpn && isLockdown() && policy != "global"_L1) {
        return lockdownForbids(u"split routing"_s);
    }
    if (SimRefusal refusal =
            checkProfile(request.value(u"split_profile"_s).toObject(), u"tunnel"_s)) {
        return refusal;
    }
    return checkProfile(request.value(u"proxy_split_profile"_s).toObject(), u"proxy"_s);
}

SimRefusal SimRouting::setMode(const QJsonObject &request)
{
    if (request.isEmpty()) {
        return SimReply::error(400, u"the mode request says nothing"_s);
    }
    const QString transport = request.value(u"transport"_s).toString(m_transport);
    const QString stored = transport == "proxy"_L1 ? m_proxyPolicy : m_vpnPolicy;
    const QString policy = request.value(u"policy"_s).toString(stored);
    if (SimRefusal refusal = checkMode(transport, policy, request)) {
        return refusal;
    }
    m_transport = transport;
    m_region = request.value(u"region"_s).toString(m_region);
    if (isProxy()) {
        m_proxyPolicy = policy;
    } else if (m_transport == "vantuvpn"_L1) {
        m_vpnPolicy = policy;
    }
    if (request.contains(u"split_profile"_s)) {
        m_vpnProfile = completed(request.value(u"split_profile"_s).toObject(), u"tunnel"_s);
    }
    if (request.contains(u"proxy_split_profile"_s)) {
        m_proxyProfile = completed(request.value(u"proxy_split_profile"_s).toObject(), u"proxy"_s);
    }
    return {};
}

SimRefusal SimRouting::setKillSwitch(const QString &mode)
{
    if (mode != "off"_L1 && mode != "on"_L1 && mode != "lockdown"_L1) {
        return unknownWord(u"kill switch mode"_s, mode);
    }
    if (mode != "off"_L1 && isProxy()) {
        return SimReply::error(409, u"Kill Switch needs a VPN mode"_s);
    }
    m_killSwitch = mode;
    if (isLockdown()) {
        m_vpnPolicy = u"global"_s;
        m_localNetwork = u"protected"_s;
    }
    return {};
}

SimRefusal SimRouting::setLocalNetwork(const QString &value)
{
    if (value != "direct"_L1 && value != "protected"_L1) {
        return unknownWord(u"local network value"_s, value);
    }
    if (value == "direct"_L1 && isLockdown()) {
        return lockdownForbids(u"direct local network access"_s);
    }
    m_localNetwork = value;
    return {};
}

SimRefusal SimRouting::setSystemProxy(const QString &value)
{
    if (value != "off"_L1 && value != "on"_L1 && value != "lock"_L1) {
        return unknownWord(u"system proxy value"_s, value);
    }
    m_systemProxy = value;
    return {};
}

SimRefusal SimRouting::setProxyLan(const QString &value)
{
    if (value != "off"_L1 && value != "on"_L1) {
        return unknownWord(u"proxy LAN value"_s, value);
    }
    m_proxyLan = value == "on"_L1;
    return {};
}

QJsonObject SimRouting::modeJson() const
{
    QJsonObject mode{{u"transport"_s, m_transport},
                     {u"policy"_s, QString()},
                     {u"region"_s, m_region},
                     {u"system_proxy"_s, m_systemProxy},
                     {u"proxy_lan"_s, m_proxyLan},
                     {u"local_network"_s, m_localNetwork},
                     {u"last_vantuvpn_policy"_s, m_vpnPolicy},
                     {u"last_vantuvpn_split_profile"_s, m_vpnProfile},
                     {u"last_proxy_policy"_s, m_proxyPolicy},
                     {u"last_proxy_split_profile"_s, m_proxyProfile}};
    if (isProxy()) {
        mode.insert(u"policy"_s, m_proxyPolicy);
    } else if (m_transport == "vantuvpn"_L1) {
        mode.insert(u"policy"_s, m_vpnPolicy);
    }
    if (isVpnSplit()) {
        mode.insert(u"split_profile"_s, m_vpnProfile);
    }
    if (isProxySplit()) {
        mode.insert(u"proxy_split_profile"_s, m_proxyProfile);
    }
    return mode;
}

QJsonObject SimRouting::killSwitchJson() const
{
    const bool enabled = m_killSwitch != "off"_L1;
    const bool lan = m_localNetwork == "direct"_L1;
    return {{u"enabled"_s, enabled},
            {u"mode"_s, m_killSwitch},
            {u"guard"_s, enabled ? u"active"_s : u"inactive"_s},
            {u"platform"_s, u"linux"_s},
            {u"block_mode"_s, u"firewall"_s},
            {u"allow_lan"_s, lan},
            {u"lan_policy"_s, lan ? u"allow"_s : u"block"_s},
            {u"lan_discovery"_s, lan ? QJsonArray{u"mdns"_s, u"ssdp"_s} : QJsonArray()},
            {u"last_error"_s, QString()}};
}
