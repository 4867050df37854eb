#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The simulated daemon of a tour: a process of the tour's own, so that it outlives each
/// client, and a second witness of what a click did.
class TourDaemon final
{
    Q_DISABLE_COPY_MOVE(TourDaemon)

public:
    TourDaemon();
    ~TourDaemon();

    /// Starts `program`; false when it doesn't come to listen.
    bool start(const QString &program, const QStringList &arguments);

    /// For a client that is to use this daemon.
    QProcessEnvironment clientEnvironment() const;

    /// Sends a line to the control socket; returns the answer, or nothing without one.
    QString command(const QString &line) const;
    /// What the daemon answers to GET, as any client would get it; empty when it refuses.
    QJsonObject get(const QString &path) const;
    /// A value of the status record by its way there, such as "mode.transport".
    QJsonValue status(const QString &path) const;

private:
    QString file(const QString &name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
    QProcess m_process;
};
