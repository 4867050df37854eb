#pragma once

#include "TrayNodePlan.h"

#include <QMultiHash>
#include <QObject>

class QAction;
class QMenu;

/// The part of the "Node / Location" submenu that follows the catalogue: the node
/// groups, or all nodes, or a line that says there are none. It stands in front of the
/// fixed entry that it is given.
///
/// The menu and that entry must outlive it.
class TrayNodeMenu final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayNodeMenu)

public:
    TrayNodeMenu(QMenu &menu, QAction &before, QObject *parent = nullptr);

    /// Shows the plan and marks the selected node. Builds anew only when the plan is
    /// another one than shown. A plan without nodes is told as such if they are `held`.
    void show(const TrayNodePlan &plan, const QString &selectedId, bool held);
    /// Empties the group submenus, to give their memory back; show() fills them again.
    void release();

    /// Number of node entries now in the menu.
    qsizetype nodeActionCount() const { return m_actions.size(); }
    /// Number of group submenus that now hold entries.
    int expandedCount() const { return m_expanded; }

Q_SIGNALS:
    void nodeChosen(const QString &nodeID);

private:
    void rebuild();
    void clear();
    QMenu *makeSubmenu(const TrayNodeGroup &group, QMenu &parent);
    QAction *makeNode(const TrayNodeItem &item, QMenu &menu);
    void mark(const QString &id, bool selected);

    QMenu &m_menu;
    QAction &m_before;
    QAction *m_separator = nullptr;
    QAction *m_empty = nullptr;
    TrayNodePlan m_plan;
    bool m_built = false;
    QString m_selectedId;
    int m_expanded = 0;
    QList<QMenu *> m_submenus;                ///< The topmost ones, which own the rest.
    QMultiHash<QString, QAction *> m_actions; ///< By node id.
};
