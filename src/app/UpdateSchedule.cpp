#include "UpdateSchedule.h"

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
    , m_book(m_preferences.updateBookkeeping(m_version))
{}

qint64 UpdateSchedule::secondsUntilDue() const
{
    if (m_book.lastAttemptAt >= 1) {
        return secondsLeft(m_book.lastAttemptAt, kRetrySeconds, m_now());
    }
    if (m_book.lastSuccessfulCheckAt >= 1) {
        return secondsLeft(m_book.lastSuccessfulCheckAt, kIntervalSeconds, m_now());
    }
    return 0;
}

bool UpdateSchedule::isNewsworthy(const UpdateInfo &info) const
{
    const qint64 number = updateflow::offeredVersionNum(info);
    // A release without a name is only shown to those who ask.
    return number > 0 && (info.isForceUpgrade || number != m_book.lastNotifiedVersionNum ||
                          secondsLeft(m_book.lastNotifiedAt, kIntervalSeconds, m_now()) == 0);
}

void UpdateSchedule::noteAttempt()
{
    m_book.lastAttemptAt = m_now();
    save();
}

void UpdateSchedule::noteSuccess(bool forced)
{
    m_book.lastSuccessfulCheckAt = m_now();
    // Every success is an attempt too; kept, it would hide the daily rule.
    m_book.lastAttemptAt = 0;
    m_book.forceUpgrade = forced;
    save();
}

void UpdateSchedule::noteAnnounced(const UpdateInfo &info)
{
    m_book.lastNotifiedAt = m_now();
    m_book.lastNotifiedVersionNum = updateflow::offeredVersionNum(info);
    save();
}

void UpdateSchedule::save()
{
    m_preferences.setUpdateBookkeeping(m_version, m_book);
}
