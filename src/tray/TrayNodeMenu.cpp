#include "TrayNodeMenu.h"

#include "NodeMenuModel.h"
#include "TrayMenuText.h"
#include "TrayPanelMenu.h"

#include <QAction>
#include <QMenu>

#include <utility>

TrayNodeMenu::TrayNodeMenu(QMenu &menu, QAction &before, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
    , m_before(before)
    , m_separator(new QAction(this))
    , m_empty(new QAction(TrayMenuText::noCachedNodes(), this))
{
    m_separator->setSeparator(true);
    m_separator->setVisible(false);
    m_empty->setEnabled(false);
    m_empty->setVisible(false);
    m_menu.insertAction(&m_before, m_empty);
    m_menu.insertAction(&m_before, m_separator);
}

void TrayNodeMenu::show(const TrayNodePlan &plan, const QString &selectedId, bool held)
{
    m_empty->setVisible(held && plan.groups.isEmpty());
    if (!m_built || plan != m_plan) {
        clear();
        m_plan = plan;
        m_selectedId = selectedId;
        rebuild();
        return;
    }
    if (selectedId != m_selectedId) {
        mark(m_selectedId, false);
        m_selectedId = selectedId;
        mark(m_selectedId, true);
    }
}

void TrayNodeMenu::release()
{
    if (!m_submenus.isEmpty()) {
        clear();
        m_plan = {};
        m_built = false;
    }
}

void TrayNodeMenu::clear()
{
    m_actions.clear();
    m_expanded = 0;
    for (QMenu *submenu : std::as_const(m_submenus)) {
        m_menu.removeAction(submenu->menuAction());
        // One of its entries may be what led here.
        submenu->deleteLater();
    }
    m_submenus.clear();
}

void TrayNodeMenu::rebuild()
{
    m_built = true;
    for (const TrayNodeGroup &group : std::as_const(m_plan.groups)) {
        // Filled before it is put in: a menu that is already part of an exported one
        // sends a message for every entry added.
        QMenu *submenu = makeSubmenu(group, m_menu);
        submenu->menuAction()->setCheckable(m_plan.allNodes);
        m_menu.insertMenu(m_empty, submenu);
        m_submenus << submenu;
    }
    m_separator->setVisible(true);
    mark(m_selectedId, true);
}

QMenu *TrayNodeMenu::makeSubmenu(const TrayNodeGroup &group, QMenu &parent)
{
    auto *menu = new QMenu(panelmenu::entryText(m_menu, group.title), &parent);
    menu->setToolTipsVisible(true);
    for (const TrayNodeItem &item : group.items) {
        makeNode(item, *menu);
    }
    for (const TrayNodeGroup &inner : group.groups) {
        menu->addMenu(makeSubmenu(inner, *menu));
    }
    if (menu->isEmpty()) {
        menu->addAction(TrayMenuText::noNodes())->setEnabled(false);
    }
    ++m_expanded;
    return menu;
}

QAction *TrayNodeMenu::makeNode(const TrayNodeItem &item, QMenu &menu)
{
    auto *action = new QAction(panelmenu::entryText(m_menu, item.text), &menu);
    action->setData(item.id);
    action->setCheckable(true);
    action->setToolTip(item.toolTip);
    connect(action, &QAction::triggered, this, [this, action, id = item.id] {
        // The click has turned the mark, which belongs to the selected node.
        action->setChecked(id == m_selectedId);
        Q_EMIT nodeChosen(id);
    });
    menu.addAction(action);
    m_actions.insert(item.id, action);
    return action;
}

void TrayNodeMenu::mark(const QString &id, bool selected)
{
    const QList<QAction *> actions = id.isEmpty() ? QList<QAction *>{} : m_actions.values(id);
    const QString suffix = NodeMenuModel::selectedSuffix();
    for (QAction *action : actions) {
        action->setChecked(selected);
        QString text = action->text();
        if (selected) {
            text += suffix;
        } else if (text.endsWith(suffix)) {
            text.chop(suffix.size());
        }
        action->setText(text);
    }
    if (m_plan.allNodes && !m_submenus.isEmpty()) {
        m_submenus.constFirst()->menuAction()->setChecked(selected && !actions.isEmpty());
    }
}
