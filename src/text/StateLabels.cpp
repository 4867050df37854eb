#include "StateLabels.h"

#include "ControlProtocol.h"
#include "ModeRequests.h"
#include "PlainText.h"
#include "RuntimeFacts.h"
#include "TrayMenuText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// Labels whose context the caller gives; the translation tools can't see that from
// the calls.
[[maybe_unused]] static constexpr std::array kCallerTexts{
    QT_TRANSLATE_NOOP("TrayMenuText", "Unavailable"),
    QT_TRANSLATE_NOOP("TrayMenuText", "Days left: %1"),
    QT_TRANSLATE_NOOP("SettingsPage", "Unavailable"),
    QT_TRANSLATE_NOOP("SettingsPage", "Lockdown"),
    QT_TRANSLATE_NOOP("SettingsPage", "Lockdown unavailable"),
    QT_TRANSLATE_NOOP("SettingsPage", "On"),
    QT_TRANSLATE_NOOP("SettingsPage", "Off"),
    QT_TRANSLATE_NOOP("AccountPage", "Unavailable"),
    QT_TRANSLATE_NOOP("AccountPage", "Days left: %1"),
};

namespace {

struct StateWord
{
    QLatin1StringView state;
    QString (*text)() = nullptr;
};

constexpr std::array kConnectionWords{
    StateWord{wire::kStateConnected, &TrayMenuText::connected},
    StateWord{wire::kStateDisconnected, &TrayMenuText::disconnected},
    StateWord{wire::kStateConnecting, &TrayMenuText::connecting},
    StateWord{wire::kStateDisconnecting, &TrayMenuText::disconnecting},
    StateWord{wire::kStateReady, &TrayMenuText::ready},
};

constexpr std::array kRouteWords{
    StateWord{wire::kRouteDirect, &TrayMenuText::direct},
    StateWord{wire::kRouteTunnel, &TrayMenuText::tunnel},
    StateWord{wire::kRouteProxy, &TrayMenuText::proxy},
};

/// The text for `state` in `table`, or null.
template<std::size_t Size>
QString findWord(const std::array<StateWord, Size> &table, const QString &state)
{
    const auto word = std::find_if(table.begin(), table.end(), [&state](const StateWord &entry) {
        return state.compare(entry.state, Qt::CaseInsensitive) == 0;
    });
    return word == table.end() ? QString{} : word->text();
}

/// "Global" and "Split" as the tray's menu has them.
QString policyWord(bool split)
{
    return split ? QCoreApplication::translate("VantuTrayApp", "Split")
                 : QCoreApplication::translate("VantuTrayApp", "Global");
}

} // namespace

namespace labels {

QString connectionState(const QString &state)
{
    const QString trimmed = state.trimmed();
    if (trimmed.isEmpty()) {
        return TrayMenuText::ready();
    }
    const QString known = findWord(kConnectionWords, trimmed);
    return known.isNull() ? plaintext::singleLine(trimmed) : known;
}

QString connectionState(const RuntimeInfo &runtime)
{
    if (facts::isConnected(runtime)) {
        return TrayMenuText::connected();
    }
    if (facts::isPending(runtime)) {
        return connectionState(facts::isPendingState(runtime.tunnelState) ? runtime.tunnelState
                                                                          : runtime.daemonState);
    }
    return connectionState(runtime.tunnelState.trimmed().isEmpty() ? runtime.daemonState
                                                                   : runtime.tunnelState);
}

QString route(const QString &route)
{
    const QString known = findWord(kRouteWords, route);
    return known.isNull() ? route : known;
}

QString systemProxy(const QString &value)
{
    const QLatin1StringView choice = facts::systemProxyChoice(value);
    if (choice == wire::kSystemProxyLock) {
        return TrayMenuText::lock();
    }
    return choice == wire::kOn ? TrayMenuText::on() : TrayMenuText::off();
}

QString localNetwork(const QString &value)
{
    return value == wire::kLocalNetworkProtected ? TrayMenuText::protectedWord()
                                                 : TrayMenuText::direct();
}

QString killSwitch(const KillSwitchInfo &killSwitch, const char *context)
{
    if (!killSwitch.known) {
        return QCoreApplication::translate(context, "Unavailable");
    }
    if (facts::isLockdown(killSwitch)) {
        return killSwitch.guard.trimmed() == wire::kGuardActive
                   ? QCoreApplication::translate(context, "Lockdown")
                   : QCoreApplication::translate(context, "Lockdown unavailable");
    }
    return killSwitch.enabled ? QCoreApplication::translate(context, "On")
                              : QCoreApplication::translate(context, "Off");
}

QString account(const UserInfo &user, const char *context)
{
    for (const QString &name : {user.email, user.userNumber}) {
        if (QString line = plaintext::singleLine(name); !line.isEmpty()) {
            return line;
        }
    }
    if (user == UserInfo{}) {
        return QCoreApplication::translate(context, "Unavailable");
    }
    const QString role = plaintext::singleLine(user.role);
    const QString days =
        user.leftDays == 0
            ? QString{}
            : QCoreApplication::translate(context, "Days left: %1").arg(user.leftDays);
    return days.isEmpty() ? role : u"%1 %2"_s.arg(role, days).trimmed();
}

QStringList splitParts(const ModeInfo &mode)
{
    if (!facts::isSplit(mode)) {
        return {};
    }
    const bool proxy = facts::isProxyMode(mode);
    const SplitProfile profile =
        proxy ? moderequest::proxyProfile(mode) : moderequest::vantuVPNProfile(mode);
    const QString defaultRoute = plaintext::singleLine(labels::route(profile.defaultRoute));
    QStringList parts{proxy ? TrayMenuText::defaultRoute(defaultRoute)
                            : TrayMenuText::splitDefaultRoute(defaultRoute)};
    if (const QStringList regions = moderequest::regionsInForce(profile); !regions.isEmpty()) {
        const bool direct =
            profile.defaultRoute.compare(wire::kRouteDirect, Qt::CaseInsensitive) == 0;
        const QString through = proxy ? TrayMenuText::proxy() : TrayMenuText::tunnel();
        parts << TrayMenuText::regions(direct ? through : TrayMenuText::direct(),
                                       plaintext::singleLine(plaintext::list(regions)));
    }
    if (profile.gfwList) {
        parts << (proxy ? TrayMenuText::gfwListProxy() : TrayMenuText::gfwListTunnel());
    }
    if (!proxy) {
        parts << (profile.customRules ? TrayMenuText::customRules()
                                      : TrayMenuText::customRulesOff());
    }
    return parts;
}

QString mode(const ModeInfo &mode)
{
    const QString transport = mode.transport.trimmed();
    if (transport.isEmpty()) {
        return TrayMenuText::none();
    }
    if (transport.compare(wire::kTransportAuto, Qt::CaseInsensitive) == 0) {
        return QCoreApplication::translate("VantuTrayApp", "Auto");
    }
    if (transport.compare(wire::kTransportWireGuard, Qt::CaseInsensitive) == 0) {
        return QCoreApplication::translate("VantuTrayApp", "WireGuard");
    }
    const QString options = plaintext::list(splitParts(mode));
    if (facts::isProxyMode(mode)) {
        return facts::isSplit(mode) ? TrayMenuText::proxySplit(options)
                                    : TrayMenuText::proxyGlobal();
    }
    if (facts::isVantuVPNMode(mode)) {
        const bool split = facts::isSplit(mode);
        const QString policy =
            split ? u"%1 (%2)"_s.arg(policyWord(true), options) : policyWord(false);
        return u"%1: %2"_s.arg(u"VantuVPN"_s, policy);
    }
    return plaintext::singleLine(transport);
}

QString withCount(const QString &label, int count, const QString &fallback)
{
    const QString base = label.isEmpty() ? fallback : label;
    const QString suffix = u"+%1"_s.arg(count);
    return count > 0 && !base.trimmed().endsWith(suffix) ? base + suffix : base;
}

} // namespace labels
