#pragma once

#include "ModeRecords.h"
#include "SplitRecords.h"

#include <QCoreApplication>
#include <QString>

class RegionNames;

/// The mode in two lines: its name, and what happens to traffic.
struct ModeSummary
{
    QString title;
    QString detail;

    bool operator==(const ModeSummary &) const = default;
};

/// The Mode page's texts that depend on something or are used in several places, in the
/// page's translation context. All are plain.
class ModeTexts final
{
    Q_DECLARE_TR_FUNCTIONS(ModePage)

public:
    static QString autoMode() { return tr("Auto"); }
    static QString wireGuard() { return tr("WireGuard"); }
    static QString vantuVPN() { return tr("VantuVPN"); }
    static QString vantuProxy() { return tr("Vantu Proxy"); }
    static QString direct() { return tr("Direct"); }
    static QString modeUnavailable() { return tr("Daemon mode is not available."); }
    static QString lockdownBlocksMode() { return tr("Turn off Lockdown to change this mode."); }

    /// "Tunnel", or "Proxy" in the proxy.
    static QString through(bool proxy) { return proxy ? tr("Proxy") : tr("Tunnel"); }
    /// The name of the route that the regions of a profile use; it is the one that the
    /// profile's default is not.
    static QString regionsRoute(const SplitProfile &profile, bool proxy);
    static QString regionsUse(const QString &route) { return tr("Regions use %1").arg(route); }

    static ModeSummary summary(const ModeInfo &mode, const RegionNames &regions);
    /// How many custom rules there are; `rules` are unavailable as long as they are empty.
    static QString customRules(const SplitRulesInfo &rules);

private:
    static QString detail(const ModeInfo &mode, const RegionNames &regions);
    static QString splitParts(const ModeInfo &mode, const RegionNames &regions);
};
