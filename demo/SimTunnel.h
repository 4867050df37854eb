#pragma once

#include "SimScenario.h"
#include "SimTimeline.h"

#include <QString>

/// The road of a connection: queued, connecting, connected, and the ways in which
/// it fails, is lost or is given up. Every start and stop is an attempt with a
/// number of its own; somebody who waits for one asks whether it is still under
/// way. Not thread-safe.
class SimTunnel final
{
public:
    enum class Phase { Idle, Queued, Connecting, Retrying, Connected, Disconnecting, Failed };

    SimTunnel(SimTimeline &timeline, const SimScenario &scenario);

    /// Back to the scenario's beginning; whoever waits sees the attempt given up.
    void reset(const SimScenario &scenario);

    /// Starts to connect to that node, whatever went on before. `source` says what
    /// asked for it, `target` what was asked for. Returns the attempt.
    quint64 start(const QString &nodeId, const QString &source, const QString &target);

    /// Connects anew to the same node, as after a change of mode. The attempt is a
    /// new one.
    quint64 restart() { return start(m_nodeId, m_source, m_target); }

    quint64 stop();

    /// An established tunnel is lost and looked for again.
    void drop(const QString &reason);

    bool isUnderWay(quint64 attempt) const;
    bool wasGivenUp(quint64 attempt) const { return attempt != m_attempt; }

    Phase phase() const { return m_phase; }
    bool isConnected() const { return m_phase == Phase::Connected; }

    /// Up, or on the way there.
    bool isActive() const;

    /// The phase's word on the wire.
    QString word() const;

    QString nodeId() const { return m_nodeId; }
    QString source() const { return m_source; }
    QString target() const { return m_target; }
    QString reason() const { return m_reason; }
    QString lastError() const { return m_lastError; }
    QDateTime connectedSince() const { return m_since; }

private:
    void connecting(int tries);
    void settle(int tries);

    SimTimeline &m_timeline;
    const SimScenario *m_scenario;
    Phase m_phase = Phase::Idle;
    quint64 m_attempt = 0;
    QString m_nodeId;
    QString m_source;
    QString m_target;
    QString m_reason;
    QString m_lastError;
    QDateTime m_since;
};
