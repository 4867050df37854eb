#pragma once

#include "AccessibleObject.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Reads windows out, a line for each object, and counts what can be acted on but says
/// too little about itself: no role, no name, no state, or the same as another one.
class AccessibleReading final
{
    Q_DISABLE_COPY_MOVE(AccessibleReading)

public:
    AccessibleReading() = default;

    /// Reads all that is in sight below this object.
    void read(const AccessibleObject &window);

    /// What Tab has to come to, of what was read last.
    const QList<AccessibleObject> &stops() const { return m_stops; }

    // Since this object was made:
    int actionable() const { return m_actionable; }
    int complaints() const { return m_complaints; }

private:
    struct Line
    {
        QString role;
        QString name;
        QStringList states;
        QString description;
    };

    void readBelow(const AccessibleObject &object, const Line &above, int depth);
    static bool isStop(const Line &line, const Line &above);
    QString complaint(const Line &line);

    QList<AccessibleObject> m_stops;
    QStringList m_seen; ///< Roles with names and descriptions of this window.
    int m_actionable = 0;
    int m_complaints = 0;
};
