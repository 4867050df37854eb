#include "UpdateSchedule.h"

#include "GuiPreferences.h"
#include "UpdateFlow.h"

#include <algorithm>
#include <utility>

namespace {

/// A stamp from the future means that the clock was wrong once.
qint64 secondsLeft(qint64 since, qint64 interval, qint64 now)
{
    return since > now ? 0 : std::max<qint64>(0, since + interval - now);
}

} // namespace

UpdateSchedule::UpdateSchedule(GuiPreferences &preferences, std::function<qint64()> nowSeconds,
                               QString version)
    : m_preferences(preferences)
    , m_now(std::move(nowSeconds))
    , m_version(std::move(version))
    , m_forced(book().forceUpgrade)
{}

qint64 UpdateSchedule::secondsUntilDue() const
{
    const UpdateBookkeeping current = book();
    if (current.lastAttemptAt >= 1) {
        return secondsLeft(current.lastAttemptAt, kRetrySeconds, m_now());
    }
    if (current.lastSuccessfulCheckAt >= 1) {
        return secondsLeft(current.lastSuccessfulCheckAt, kIntervalSeconds, m_now());
    }
    return 0;
}

bool UpdateSchedule::isNewsworthy(const UpdateInfo &info) const
{
    const qint64 number = updateflow::offeredVersionNum(info);
    const UpdateBookkeeping current = book();
    // A release without a name is only shown to those who ask.
    return number > 0 && (info.isForceUpgrade || number != current.lastNotifiedVersionNum ||
                          secondsLeft(current.lastNotifiedAt, kIntervalSeconds, m_now()) == 0);
}

void UpdateSchedule::noteAttempt()
{
    UpdateBookkeeping current = book();
    current.lastAttemptAt = m_now();
    write(current);
}

void UpdateSchedule::noteSuccess(bool forced)
{
    m_forced = forced;
    UpdateBookkeeping current = book();
    current.lastSuccessfulCheckAt = m_now();
    // Every success is an attempt too; kept, it would hide the daily rule.
    current.lastAttemptAt = 0;
    current.forceUpgrade = forced;
    write(current);
}

void UpdateSchedule::noteAnnounced(const UpdateInfo &info)
{
    UpdateBookkeeping current = book();
    current.lastNotifiedAt = m_now();
    current.lastNotifiedVersionNum = updateflow::offeredVersionNum(info);
    write(current);
}

UpdateBookkeeping UpdateSchedule::book() const
{
    return m_preferences.updateBookkeeping(m_version);
}

void UpdateSchedule::write(const UpdateBookkeeping &book)
{
    m_preferences.setUpdateBookkeeping(m_version, book);
}
