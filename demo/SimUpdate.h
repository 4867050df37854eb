#pragma once

#include "SimReply.h"
#include "SimScenario.h"
#include "SimTimeline.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

class SimFiles;

/// Client updates: what is offered, and the download that runs through checking,
/// downloading and verifying to ready. Not thread-safe.
class SimUpdate final
{
public:
    SimUpdate(SimTimeline &timeline, const SimScenario &scenario, const SimFiles &files);

    /// What a client of that version is told. The last number of the version text,
    /// after "+", is its version number.
    QJsonObject checkJson(const QString &clientVersion) const;

    /// Starts the download of the offered release, or goes on with the one running.
    SimReply start(const QString &clientVersion, qint64 expectedNumber);
    void cancel();

    /// A running download breaks off with that text.
    void fail(const QString &text);

    QJsonObject downloadJson() const;

private:
    void enter(const QString &state);
    void receive();
    bool isRunning() const;

    SimTimeline &m_timeline;
    const SimScenario *m_scenario;
    const SimFiles &m_files;
    QString m_state;
    QString m_clientVersion;
    QString m_localPath;
    QString m_errorText;
    QDateTime m_startedAt;
    QDateTime m_updatedAt;
    qint64 m_received = 0;
};
