#include "SimTimeline.h"

#include <algorithm>
#include <utility>

using namespace std::chrono;

SimTimeline::Clock::duration SimTimeline::scaled(int milliseconds) const
{
    return duration_cast<Clock::duration>(duration<double, std::milli>(milliseconds * m_pace));
}

void SimTimeline::after(int milliseconds, Track track, std::function<void()> action)
{
    const Clock::time_point due = m_now + scaled(milliseconds);
    const auto later = std::find_if(m_entries.cbegin(), m_entries.cend(),
                                    [due](const Entry &entry) { return entry.due > due; });
    m_entries.insert(later, {due, track, std::move(action)});
}

void SimTimeline::cancel(Track track)
{
    m_entries.remove_if([track](const Entry &entry) { return entry.track == track; });
}

bool SimTimeline::advance(Clock::time_point now)
{
    bool ran = false;
    while (!m_entries.empty() && m_entries.front().due <= now) {
        const Entry entry = std::move(m_entries.front());
        m_entries.pop_front();
        m_now = std::max(m_now, entry.due);
        entry.action();
        ran = true;
    }
    m_now = std::max(m_now, now);
    return ran;
}

std::optional<SimTimeline::Clock::time_point> SimTimeline::next() const
{
    if (m_entries.empty()) {
        return std::nullopt;
    }
    return m_entries.front().due;
}

QDateTime SimTimeline::wallTime() const
{
    const auto ago = duration_cast<milliseconds>(Clock::now() - m_now);
    return QDateTime::currentDateTimeUtc().addMSecs(-ago.count());
}
