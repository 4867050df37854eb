#pragma once

#include <QString>
#include <QStringList>

/// The simulated daemon that belongs to one demonstration, as a process of its own,
/// so that it lives on when the client restarts itself for another language.
class DemoDaemon final
{
    Q_DISABLE_COPY_MOVE(DemoDaemon)

public:
    /// Joins the demonstration that the environment names, such as the one that this
    /// process was restarted into, or else makes a private directory for a new one.
    DemoDaemon();

    /// Starts the daemon, unless it runs already, and waits until it listens. False
    /// with a text in `error` when it can't be started or there is no directory.
    bool start(const QString &program, const QStringList &arguments, QString *error);

    /// Ends the daemon and removes the directory, if a demonstration made it.
    void stop();

    QString socketPath() const;
    QString controlPath() const;
    /// Where the client of the demonstration keeps its preferences.
    QString configDirectory() const;

private:
    bool waitUntilListening() const;

    QString m_directory;
    qint64 m_pid = 0;
};
