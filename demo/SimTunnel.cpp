#include "SimTunnel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kRetryMs = 2500;
constexpr int kDisconnectMs = 500;
constexpr int kTriesBeforeFailure = 2;
constexpr auto kTrack = SimTimeline::Track::Tunnel;

} // namespace

SimTunnel::SimTunnel(SimTimeline &timeline, const SimScenario &scenario)
    : m_timeline(timeline)
    , m_scenario(&scenario)
{}

void SimTunnel::reset(const SimScenario &scenario)
{
    m_timeline.cancel(kTrack);
    m_scenario = &scenario;
    ++m_attempt;
    m_phase = Phase::Idle;
    m_nodeId.clear();
    m_source.clear();
    m_target.clear();
    m_reason.clear();
    m_lastError.clear();
}

quint64 SimTunnel::start(const QString &nodeId, const QString &source, const QString &target)
{
    m_timeline.cancel(kTrack);
    m_nodeId = nodeId;
    m_source = source;
    m_target = target;
    m_lastError.clear();
    m_reason = u"requested"_s;
    m_phase = Phase::Queued;
    m_timeline.after(m_scenario->queuedMs, kTrack, [this] { connecting(1); });
    return ++m_attempt;
}

void SimTunnel::connecting(int tries)
{
    m_phase = Phase::Connecting;
    m_reason = u"handshake"_s;
    m_timeline.after(m_scenario->connectingMs, kTrack, [this, tries] { settle(tries); });
}

void SimTunnel::settle(int tries)
{
    if (!m_scenario->connectFails) {
        m_phase = Phase::Connected;
        m_reason.clear();
        m_lastError.clear();
        m_since = m_timeline.wallTime();
        if (m_scenario->uptimeMs > 0) {
            m_timeline.after(m_scenario->uptimeMs, kTrack, [this] { drop(u"keepalive lost"_s); });
        }
        return;
    }
    m_lastError = u"No answer from the server (handshake timed out)"_s;
    if (tries < kTriesBeforeFailure) {
        m_phase = Phase::Retrying;
        m_reason = u"handshake timed out"_s;
        m_timeline.after(kRetryMs, kTrack, [this, tries] { connecting(tries + 1); });
        return;
    }
    m_phase = Phase::Failed;
    m_reason = u"gave up"_s;
}

quint64 SimTunnel::stop()
{
    m_timeline.cancel(kTrack);
    m_lastError.clear();
    m_reason.clear();
    if (m_phase == Phase::Idle || m_phase == Phase::Failed) {
        m_phase = Phase::Idle;
    } else {
        m_phase = Phase::Disconnecting;
        m_timeline.after(kDisconnectMs, kTrack, [this] { m_phase = Phase::Idle; });
    }
    return ++m_attempt;
}

void SimTunnel::drop(const QString &reason)
{
    if (!isConnected()) {
        return;
    }
    m_timeline.cancel(kTrack);
    m_phase = Phase::Retrying;
    m_reason = reason;
    m_lastError = u"The connection was lost"_s;
    m_timeline.after(kRetryMs, kTrack, [this] { connecting(1); });
}

bool SimTunnel::isActive() const
{
    return m_phase == Phase::Queued || m_phase == Phase::Connecting || m_phase == Phase::Retrying ||
           m_phase == Phase::Connected;
}

bool SimTunnel::isUnderWay(quint64 attempt) const
{
    return attempt == m_attempt && m_phase != Phase::Idle && m_phase != Phase::Connected &&
           m_phase != Phase::Failed;
}

QString SimTunnel::word() const
{
    switch (m_phase) {
    case Phase::Idle:
        return u"disconnected"_s;
    case Phase::Queued:
        return u"queued"_s;
    case Phase::Connecting:
        return u"connecting"_s;
    case Phase::Retrying:
        return u"retrying"_s;
    case Phase::Connected:
        return u"connected"_s;
    case Phase::Disconnecting:
        return u"disconnecting"_s;
    case Phase::Failed:
        return u"failed"_s;
    }
    return {};
}
