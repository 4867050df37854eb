#pragma once

#include "CatalogRecords.h"

#include <QAction>
#include <QMenu>
#include <QStringList>

/// Labels of a menu; submenus in braces, hidden ones too.
inline QString outline(const QMenu &menu)
{
    QStringList parts;
    for (const QAction *action : menu.actions()) {
        const QString text = action->isSeparator() ? QStringLiteral("-") : action->text();
        parts << (action->menu() == nullptr
                      ? text
                      : QStringLiteral("%1{%2}").arg(text, outline(*action->menu())));
    }
    return parts.join(u'|');
}

inline NodeEntry node(const QString &id, const QString &name, const QStringList &tags = {})
{
    NodeEntry entry;
    entry.id = id;
    entry.name = name;
    entry.tags = tags;
    return entry;
}
