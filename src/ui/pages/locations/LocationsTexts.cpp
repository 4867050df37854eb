#include "LocationsTexts.h"

using namespace Qt::StringLiterals;

QString LocationsTexts::emptyTab(const QString &code, const QString &label)
{
    if (code == "FAVORITE"_L1) {
        return tr("No favorites yet.");
    }
    if (code == "FREE"_L1) {
        return tr("No free locations available.");
    }
    if (code == "VIP"_L1) {
        return tr("No VIP locations available.");
    }
    if (code == "SVIP"_L1) {
        return tr("No SVIP locations available.");
    }
    if (code == "NODES"_L1) {
        return tr("No nodes available.");
    }
    return label.isEmpty() ? tr("No locations available.") : tr("No locations in %1.").arg(label);
}

QString LocationsTexts::noMatches(const QString &label)
{
    return label.isEmpty() ? tr("No matching locations.") : tr("No matches in %1.").arg(label);
}

QString LocationsTexts::toggleGroups(bool anyExpanded)
{
    return anyExpanded ? tr("Collapse location groups") : tr("Expand location groups");
}

QString LocationsTexts::refresh(int cooldownSeconds, bool refreshing)
{
    if (cooldownSeconds > 0) {
        return tr("Refresh available in %1s").arg(cooldownSeconds);
    }
    return refreshing ? tr("Refreshing locations...") : tr("Refresh locations");
}

QString LocationsTexts::connectNode()
{
    return tr("Connect selected location");
}

QString LocationsTexts::connectSmart(const QString &label)
{
    return label.isEmpty() ? tr("Connect auto-selected server")
                           : tr("Connect auto-selected server in %1").arg(label);
}
