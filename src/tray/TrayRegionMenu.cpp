#include "TrayRegionMenu.h"

#include "ModeRequests.h"
#include "PlainText.h"
#include "TrayMenuText.h"

#include <QAction>
#include <QLocale>
#include <QMap>
#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using NamesByCode = QMap<QString, QString>;

bool isRegionCode(const QString &code)
{
    return code.size() == 2 && std::all_of(code.begin(), code.end(),
                                           [](QChar character) { return character.isLetter(); });
}

void collect(const QList<NodeGroup> &groups, NamesByCode &names)
{
    for (const NodeGroup &group : groups) {
        const QString code = group.code.trimmed().toUpper();
        if (isRegionCode(code) && !names.contains(code)) {
            names.insert(code, plaintext::singleLine(group.name));
        }
        collect(group.subgroups, names);
    }
}

QString regionName(const QString &code, const NamesByCode &names)
{
    if (QString name = names.value(code.toUpper()); !name.isEmpty()) {
        return name;
    }
    const auto territory = QLocale::codeToTerritory(code);
    return territory == QLocale::AnyTerritory ? plaintext::singleLine(code)
                                              : QLocale::territoryToString(territory);
}

} // namespace

QList<TrayRegion> trayRegions(const SplitProfile &profile, const NodeGroupsInfo &groups)
{
    NamesByCode names;
    for (const NodeGroupTab &tab : groups.tabs) {
        collect(tab.groups, names);
    }
    QList<TrayRegion> regions;
    QStringList configured;
    for (const QString &code : moderequest::regionsInForce(profile)) {
        if (!configured.contains(code, Qt::CaseInsensitive)) {
            configured << code;
            regions << TrayRegion{.code = code, .name = regionName(code, names), .checked = true};
        }
    }
    for (auto entry = names.cbegin(); entry != names.cend(); ++entry) {
        if (!configured.contains(entry.key(), Qt::CaseInsensitive)) {
            regions << TrayRegion{.code = entry.key(), .name = regionName(entry.key(), names)};
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
        QAction *action = m_menu.addAction(plaintext::menuText(region.name));
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
