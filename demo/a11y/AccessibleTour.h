#pragma once

#include "AccessibleDesktop.h"

#include <QProcess>
#include <QString>
#include <QStringList>

/// Uses the client's window as a screen reader does: goes from page to page by pressing
/// the sidebar's entries over the accessibility bus, prints what each page offers, and
/// counts what can be acted on but says too little about itself.
class AccessibleTour final
{
    Q_DISABLE_COPY_MOVE(AccessibleTour)

public:
    /// `program` is the demonstration to run.
    explicit AccessibleTour(const QString &program);
    ~AccessibleTour();

    /// Looks at all pages; true when everything that can be acted on has a role, a name
    /// that nothing else on its page has, and a state.
    bool run(const QStringList &arguments);

private:
    bool start(const QStringList &arguments);
    std::optional<AccessibleObject> window() const;
    bool openPage(const QString &name);
    void lookAt(const AccessibleObject &object, int depth);
    QString complaint(const QString &role, const QString &name, const QStringList &states,
                      const QString &description);

    QString m_program;
    AccessibleDesktop m_desktop;
    QProcess m_client;
    QStringList m_seen; ///< Roles with names and descriptions on this page.
    int m_actionable = 0;
    int m_complaints = 0;
};
