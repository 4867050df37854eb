#include "TrayMenuText.h"

using namespace Qt::StringLiterals;

QString TrayMenuText::status(const QString &state)
{
    return tr("Vantu: %1").arg(state);
}

QString TrayMenuText::location(const QString &label)
{
    return tr("Location: %1").arg(label);
}

QString TrayMenuText::locationSince(const QString &label, const QString &duration)
{
    return tr("Location: %1 \u00b7 %2").arg(label, duration);
}

QString TrayMenuText::current(const QString &label)
{
    return tr("Current: %1").arg(label);
}

QString TrayMenuText::currentStale(const QString &label)
{
    return tr("Current: %1 (stale)").arg(label);
}

QString TrayMenuText::systemProxy(const QString &value)
{
    return tr("System Proxy: %1").arg(value);
}

QString TrayMenuText::systemProxySetTo(const QString &value)
{
    return tr("System proxy set to %1").arg(value);
}

QString TrayMenuText::localNetwork(const QString &value)
{
    return tr("Local Network: %1").arg(value);
}

QString TrayMenuText::killSwitch(const QString &label)
{
    return tr("Kill Switch: %1").arg(label);
}

QString TrayMenuText::account(const QString &label)
{
    return tr("Account: %1").arg(label);
}

QString TrayMenuText::error(const QString &text)
{
    return tr("Error: %1").arg(text);
}

QString TrayMenuText::missing(const QString &item)
{
    return tr("missing %1").arg(item);
}

QString TrayMenuText::doesNotExist(const QString &item, const QString &path)
{
    return tr("%1 does not exist: %2").arg(item, path);
}

QString TrayMenuText::couldNotOpen(const QString &item, const QString &path)
{
    return tr("could not open %1: %2").arg(item, path);
}

QString TrayMenuText::connectingTo(const QString &label)
{
    return tr("Vantu: connecting %1...").arg(label);
}

QString TrayMenuText::proxySplit(const QString &summary)
{
    return tr("Vantu Proxy: Split (%1)").arg(summary);
}

QString TrayMenuText::defaultRoute(const QString &route)
{
    return tr("default %1").arg(route);
}

QString TrayMenuText::splitDefaultRoute(const QString &route)
{
    return tr("split default %1").arg(route);
}

QString TrayMenuText::regionsUse(const QString &route, const QString &regions)
{
    return tr("Regions use %1: %2").arg(route, regions);
}

QString TrayMenuText::regions(const QString &route, const QString &regions)
{
    return tr("regions %1 %2").arg(route, regions);
}

QString TrayMenuText::mode()
{
    return QCoreApplication::translate("NavigationSidebar", "Mode");
}

QString TrayMenuText::locations()
{
    return QCoreApplication::translate("NavigationSidebar", "Locations");
}

QString TrayMenuText::modeLine(const QString &modeLabel)
{
    return u"%1: %2"_s.arg(mode(), modeLabel);
}
