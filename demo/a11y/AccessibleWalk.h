#pragma once

#include "AccessibleDesktop.h"

#include <QList>
#include <QString>

/// Goes round the window that has the keyboard by pressing Tab, and looks from outside
/// where that leads.
class AccessibleWalk final
{
    Q_DISABLE_COPY_MOVE(AccessibleWalk)

public:
    /// `stops` are what Tab has to come to. The desktop must outlive this.
    AccessibleWalk(const AccessibleDesktop &desktop, const QList<AccessibleObject> &stops);

    /// What is wrong with the round: a stop that isn't reached, or one that isn't left
    /// again. Empty when nothing is.
    QString complaint() const;

private:
    /// Which stop has the keyboard, looking from `from` on; -1 when none has.
    qsizetype focused(qsizetype from) const;
    /// The same after one Tab; `before` when it doesn't move on.
    qsizetype tab(qsizetype before) const;

    const AccessibleDesktop &m_desktop;
    QList<AccessibleObject> m_stops;
};
