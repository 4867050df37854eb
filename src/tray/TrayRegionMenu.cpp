#include "TrayRegionMenu.h"

#include "ModeRequests.h"
#include "PlainText.h"
#include "RegionNames.h"
#include "TrayMenuText.h"
#include "TrayPanelMenu.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <utility>

QList<TrayRegion> trayRegions(const SplitProfile &profile, const NodeGroupsInfo &groups)
{
    const RegionNames names(groups);
    QList<TrayRegion> regions;
    QStringList configured;
    for (const QString &code : moderequest::regionsInForce(profile)) {
        if (!configured.contains(code, Qt::CaseInsensitive)) {
            configured << code;
            regions << TrayRegion{.code = code, .name = names.name(code), .checked = true};
        }
    }
    const QStringList others = names.catalogueCodes();
    for (const QString &code : others) {
        if (!configured.contains(code, Qt::CaseInsensitive)) {
            regions << TrayRegion{.code = code, .name = names.name(code)};
        }
    }
    std::sort(regions.begin(), regions.end(), [](const TrayRegion &one, const TrayRegion &other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    return regions;
}

TrayRegionMenu::TrayRegionMenu(QMenu &menu, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
{
    rebuild();
}

void TrayRegionMenu::show(const QList<TrayRegion> &regions)
{
    if (regions != m_regions) {
        m_regions = regions;
        rebuild();
    }
}

void TrayRegionMenu::release()
{
    show({});
}

void TrayRegionMenu::rebuild()
{
    const QList<QAction *> old = m_menu.actions();
    for (QAction *action : old) {
        m_menu.removeAction(action);
        // One of them may be what led here.
        action->deleteLater();
    }
    for (const TrayRegion &region : std::as_const(m_regions)) {
        QAction *action =
            m_menu.addAction(panelmenu::entryText(m_menu, plaintext::menuText(region.name)));
        action->setCheckable(true);
        action->setChecked(region.checked);
        connect(action, &QAction::triggered, this,
                [this, action, code = region.code, checked = region.checked] {
                    // The click has turned the mark before the daemon agreed.
                    action->setChecked(checked);
                    Q_EMIT regionChosen(code);
                });
    }
    if (m_regions.isEmpty()) {
        m_menu.addAction(TrayMenuText::none())->setEnabled(false);
    }
}
