#pragma once

#include <QDateTime>

#include <algorithm>
#include <chrono>
#include <functional>
#include <list>
#include <optional>

/// What the simulated daemon will do next, and when. Nothing runs by itself:
/// advance() carries out everything that has become due, in order, and while an
/// action runs the timeline's clock stands at the moment that it was due. So the
/// outcome doesn't depend on how often somebody looks. Not thread-safe.
class SimTimeline final
{
public:
    using Clock = std::chrono::steady_clock;

    /// Actions of one track can be called off together.
    enum class Track { Tunnel, Catalog, Ping, Download };

    explicit SimTimeline(double pace = 1.0) { setPace(pace); }

    /// The pace multiplies every duration: 1 is normal, 0.01 makes tests quick. It
    /// never gets so small that a cycle of actions takes no time at all.
    void setPace(double pace) { m_pace = std::max(pace, 0.0001); }
    Clock::duration scaled(int milliseconds) const;

    void after(int milliseconds, Track track, std::function<void()> action);
    void cancel(Track track);
    void clear() { m_entries.clear(); }

    /// Runs what is due at that time; true if anything ran.
    bool advance(Clock::time_point now);

    /// When the next action is due, if there is one.
    std::optional<Clock::time_point> next() const;

    /// The timeline's present as wall-clock time, UTC.
    QDateTime wallTime() const;

private:
    struct Entry
    {
        Clock::time_point due;
        Track track;
        std::function<void()> action;
    };

    std::list<Entry> m_entries; // soonest first
    Clock::time_point m_now = Clock::now();
    double m_pace = 1.0;
};
