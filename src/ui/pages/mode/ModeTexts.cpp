#include "ModeTexts.h"

#include "ControlProtocol.h"
#include "LabelText.h"
#include "ModeRequests.h"
#include "PlainText.h"
#include "RegionNames.h"
#include "RuntimeFacts.h"
#include "StateLabels.h"
#include "TrayMenuText.h"

using namespace Qt::StringLiterals;

namespace {

bool isWord(const QString &text, QLatin1StringView word)
{
    return text.trimmed().compare(word, Qt::CaseInsensitive) == 0;
}

bool isDirectByDefault(const SplitProfile &profile)
{
    return isWord(profile.defaultRoute, wire::kRouteDirect);
}

} // namespace

QString ModeTexts::regionsRoute(const SplitProfile &profile, bool proxy)
{
    return isDirectByDefault(profile) ? through(proxy) : direct();
}

ModeSummary ModeTexts::summary(const ModeInfo &mode, const RegionNames &regions)
{
    if (!mode.known || mode.transport.trimmed().isEmpty()) {
        return {tr("Unavailable"), modeUnavailable()};
    }
    QString title;
    if (isWord(mode.transport, wire::kTransportAuto)) {
        title = autoMode();
    } else if (isWord(mode.transport, wire::kTransportWireGuard)) {
        title = wireGuard();
    } else if (facts::isVantuVPNMode(mode)) {
        title = vantuVPN();
    } else if (facts::isProxyMode(mode)) {
        title = vantuProxy();
    } else {
        title = plaintext::singleLine(mode.transport);
    }
    return {title, detail(mode, regions)};
}

QString ModeTexts::detail(const ModeInfo &mode, const RegionNames &regions)
{
    if (isWord(mode.transport, wire::kTransportAuto)) {
        return tr("Vantu chooses the best available transport.");
    }
    if (isWord(mode.transport, wire::kTransportWireGuard)) {
        return tr("Standalone VPN transport.");
    }
    const bool split = facts::isSplit(mode);
    if (facts::isVantuVPNMode(mode)) {
        return split
                   ? splitParts(mode, regions)
                   : tr("All non-LAN traffic uses the VPN tunnel. %1.")
                         .arg(TrayMenuText::localNetwork(labels::localNetwork(mode.localNetwork)));
    }
    if (!facts::isProxyMode(mode)) {
        return {};
    }
    if (!split) {
        return tr("All traffic uses the local proxy.");
    }
    // The sentence would be untrue of a proxy that is passed by unless a rule says so.
    const QString parts = splitParts(mode, regions);
    return isDirectByDefault(moderequest::proxyProfile(mode))
               ? parts
               : tr("Default route uses the local proxy. %1.").arg(parts);
}

QString ModeTexts::splitParts(const ModeInfo &mode, const RegionNames &regions)
{
    const bool proxy = facts::isProxyMode(mode);
    const SplitProfile profile =
        proxy ? moderequest::proxyProfile(mode) : moderequest::vantuVPNProfile(mode);
    QStringList names;
    for (const QString &code : moderequest::regionsInForce(profile)) {
        names << regions.name(code);
    }
    names.removeAll(QString());
    QStringList parts{tr("Default: %1").arg(isDirectByDefault(profile) ? direct() : through(proxy)),
                      tr("Regions use %1: %2")
                          .arg(regionsRoute(profile, proxy),
                               names.isEmpty() ? TrayMenuText::none() : plaintext::list(names)),
                      tr("GFWList: %1").arg(profile.gfwList ? through(proxy) : tr("Off"))};
    if (!proxy) {
        parts << tr("Custom rules: %1").arg(profile.customRules ? tr("On") : tr("Off"));
    }
    // Each keeps together, so that in a mirrored line foreign words of two neighbours don't
    // run into one.
    for (QString &part : parts) {
        part = labeltext::embedded(part);
    }
    return parts.join(u" \u00b7 "_s);
}

QString ModeTexts::customRules(const SplitRulesInfo &rules)
{
    if (!rules.known) {
        return tr("Rules unavailable");
    }
    const auto count = [&rules](QLatin1StringView kind) {
        return QString::number(rules.rules.value(kind).size());
    };
    return tr("Tunnel %1 \u00b7 Direct %2 \u00b7 Block %3")
        .arg(count(wire::kRouteTunnel), count(wire::kRouteDirect), count(wire::kRulesBlock));
}
