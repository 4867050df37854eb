#include "TrayPanelMenu.h"

#include <QMenu>

namespace {

constexpr QChar kLowMacron{0x02CD};

} // namespace

bool panelmenu::isExported(QMenu &menu)
{
    return menu.platformMenu() != nullptr;
}

QString panelmenu::entryText(QMenu &menu, const QString &popupText)
{
    return isExported(menu) ? QString(popupText).replace(u'_', kLowMacron) : popupText;
}
