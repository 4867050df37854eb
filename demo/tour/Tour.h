#pragma once

#include "TrayHost.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/// Uses the client as a person with a tray does: a panel on the session bus reads the
/// menu and clicks its entries, while the client runs in a process of its own against
/// the simulated daemon. Prints one line a step with what was seen.
class Tour final
{
    Q_DISABLE_COPY_MOVE(Tour)

public:
    /// `program` is the demonstration to run; pictures go to `pictures`.
    Tour(const QString &program, const QString &pictures);
    ~Tour();

    /// Walks through all steps; true when each showed what it should.
    bool run(const QStringList &arguments);

private:
    using Seen = std::function<QString(const TrayMenuItem &menu)>;

    bool start(const QStringList &arguments);
    /// Clicks the entry `label`, unless that is empty, and waits until `seen` finds in
    /// the menu what it looks for (it returns the words for it, or nothing yet).
    bool step(const QString &name, const QString &label, const Seen &seen);
    bool pickNode();
    bool quit();

    void report(bool ok, const QString &name, const QString &seen, qint64 ms);
    void takePicture(const QString &name);

    QString m_program;
    QString m_pictures;
    TrayHost m_host;
    QProcess m_client;
    int m_steps = 0;
    int m_failures = 0;
};
