#include "LocationsTabBar.h"

#include "PlainText.h"
#include "StyleProperty.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

LocationsTabBar::LocationsTabBar(QWidget *parent)
    : QTabBar(parent)
{
    setObjectName(u"VantuLocationsTabs"_s);
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    setStyleProperty(*this, "vantuSearchGlobal", false);
    hide();
}

void LocationsTabBar::setTabs(const QList<Tab> &tabs)
{
    const QString current = keyOf(currentIndex());
    const QSignalBlocker quiet(this);
    while (count() > tabs.size()) {
        removeTab(count() - 1);
    }
    while (count() < tabs.size()) {
        addTab(QString());
    }
    for (int tab = 0; tab < count(); ++tab) {
        setTabText(tab, plaintext::menuText(tabs.at(tab).label));
        setTabData(tab, tabs.at(tab).key.toLower());
    }
    setCurrentIndex(std::max(0, find(current)));
    setVisible(count() > 0);
}

QString LocationsTabBar::keyOf(int tab) const
{
    return tabData(tab).toString();
}

int LocationsTabBar::find(const QString &key) const
{
    for (int tab = 0; tab < count(); ++tab) {
        if (!key.isEmpty() && keyOf(tab) == key) {
            return tab;
        }
    }
    return -1;
}

bool LocationsTabBar::event(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
        type == QEvent::MouseButtonDblClick) {
        const int tab = tabAt(static_cast<QMouseEvent *>(event)->position().toPoint());
        if (tab >= 0 && !isTabEnabled(tab)) {
            return true;
        }
    }
    return QTabBar::event(event);
}
