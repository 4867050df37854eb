#include "ModeRequests.h"

#include "ControlProtocol.h"
#include "RuntimeFacts.h"

#include <algorithm>

namespace {

bool isSameWord(const QString &left, const QString &right)
{
    return left.trimmed().compare(right.trimmed(), Qt::CaseInsensitive) == 0;
}

ModeInfo request(QLatin1StringView transport, QLatin1StringView policy = {})
{
    ModeInfo mode;
    mode.transport = transport;
    mode.policy = policy;
    return mode;
}

/// A profile fit to be sent: the daemon must never have to guess the route.
SplitProfile complete(SplitProfile profile, QLatin1StringView usualRoute)
{
    profile.present = true;
    if (profile.defaultRoute.trimmed().isEmpty()) {
        profile.defaultRoute = usualRoute;
    }
    return profile;
}

QStringList &regionsInForce(SplitProfile &profile)
{
    return isSameWord(profile.defaultRoute, wire::kRouteDirect) ? profile.proxyRegions
                                                                : profile.directRegions;
}

/// The listed spelling of a region, or the upper-case one of a new region.
QString spelling(const QStringList &listed, const QString &region)
{
    const auto known = std::find_if(listed.cbegin(), listed.cend(), [&region](const QString &code) {
        return isSameWord(code, region);
    });
    return known != listed.cend() ? *known : region.trimmed().toUpper();
}

/// Order and case of a region list mean nothing.
QStringList comparable(const QStringList &regions)
{
    QStringList codes;
    codes.reserve(regions.size());
    for (const QString &region : regions) {
        codes.append(region.trimmed().toUpper());
    }
    codes.sort();
    codes.removeDuplicates();
    return codes;
}

/// The list that the default route leaves idle is not compared: nobody can see
/// it, and a daemon may drop it.
bool isShownBy(const SplitProfile &request, const SplitProfile &answer)
{
    return isSameWord(request.defaultRoute, answer.defaultRoute) &&
           request.gfwList == answer.gfwList && request.customRules == answer.customRules &&
           comparable(moderequest::regionsInForce(request)) ==
               comparable(moderequest::regionsInForce(answer));
}

} // namespace

namespace moderequest {

ModeInfo autoMode()
{
    return request(wire::kTransportAuto);
}

ModeInfo wireGuard()
{
    return request(wire::kTransportWireGuard);
}

ModeInfo vantuVPNGlobal()
{
    return request(wire::kTransportVantuVPN, wire::kPolicyGlobal);
}

ModeInfo vantuVPNSplit(const ModeInfo &current)
{
    return vantuVPNSplitWith(vantuVPNProfile(current));
}

ModeInfo proxyGlobal()
{
    return request(wire::kTransportProxy, wire::kPolicyGlobal);
}

ModeInfo proxySplit(const ModeInfo &current)
{
    return proxySplitWith(proxyProfile(current));
}

SplitProfile vantuVPNProfile(const ModeInfo &current)
{
    return complete(current.splitProfile.present ? current.splitProfile
                                                 : current.lastVantuVPNSplitProfile,
                    wire::kRouteTunnel);
}

SplitProfile proxyProfile(const ModeInfo &current)
{
    return complete(current.proxySplitProfile.present ? current.proxySplitProfile
                                                      : current.lastProxySplitProfile,
                    wire::kRouteProxy);
}

ModeInfo vantuVPNSplitWith(const SplitProfile &profile)
{
    ModeInfo mode = request(wire::kTransportVantuVPN, wire::kPolicySplit);
    mode.splitProfile = complete(profile, wire::kRouteTunnel);
    return mode;
}

ModeInfo proxySplitWith(const SplitProfile &profile)
{
    ModeInfo mode = request(wire::kTransportProxy, wire::kPolicySplit);
    mode.proxySplitProfile = complete(profile, wire::kRouteProxy);
    return mode;
}

QStringList regionsInForce(const SplitProfile &profile)
{
    SplitProfile copy = profile;
    return ::regionsInForce(copy);
}

SplitProfile withRegionToggled(SplitProfile profile, const QString &region)
{
    if (region.trimmed().isEmpty()) {
        return profile;
    }
    QStringList &regions = ::regionsInForce(profile);
    const auto removed =
        regions.removeIf([&region](const QString &code) { return isSameWord(code, region); });
    if (removed == 0) {
        regions.append(spelling({}, region));
    }
    return profile;
}

SplitProfile withRegions(SplitProfile profile, const QStringList &regions)
{
    QStringList &inForce = ::regionsInForce(profile);
    QStringList next;
    for (const QString &region : regions) {
        const QString code = spelling(inForce, region);
        if (!code.isEmpty() && !next.contains(code)) {
            next.append(code);
        }
    }
    inForce = next;
    return profile;
}

ModeInfo localNetwork(const QString &value)
{
    ModeInfo mode;
    mode.localNetwork = value;
    return mode;
}

ModeInfo systemProxy(const QString &value)
{
    ModeInfo mode;
    mode.systemProxy = value;
    return mode;
}

bool isShownBy(const ModeInfo &request, const ModeInfo &answer)
{
    const auto isShown = [](const QString &asked, const QString &shown) {
        return asked.isEmpty() || isSameWord(asked, shown);
    };
    // What isn't named is off, or direct, as the menus have it.
    const auto isProxied = [](const QString &asked, const QString &shown) {
        return asked.isEmpty() ||
               facts::systemProxyChoice(asked) == facts::systemProxyChoice(shown);
    };
    const auto isGuarded = [](const QString &asked, const QString &shown) {
        const auto isProtected = [](const QString &value) {
            return facts::isWord(value, wire::kLocalNetworkProtected);
        };
        return asked.isEmpty() || isProtected(asked) == isProtected(shown);
    };
    // The policy is compared by meaning, because a daemon may name a split in
    // its own way.
    return answer.known && isShown(request.transport, answer.transport) &&
           isShown(request.region, answer.region) &&
           isGuarded(request.localNetwork, answer.localNetwork) &&
           isProxied(request.systemProxy, answer.systemProxy) &&
           (request.policy.isEmpty() || facts::isSplit(request) == facts::isSplit(answer)) &&
           (!request.splitProfile.present ||
            ::isShownBy(request.splitProfile, vantuVPNProfile(answer))) &&
           (!request.proxySplitProfile.present ||
            ::isShownBy(request.proxySplitProfile, proxyProfile(answer)));
}

bool isShownBy(const KillSwitchInfo &request, const KillSwitchInfo &answer)
{
    const bool isShown = request.mode.isEmpty() ? facts::isKillSwitchOn(answer) == request.enabled
                                                : isSameWord(request.mode, answer.mode);
    return answer.known && isShown;
}

} // namespace moderequest
