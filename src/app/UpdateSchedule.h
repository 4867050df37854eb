#pragma once

#include "GuiPreferences.h"

#include <QString>
#include <QtGlobal>

#include <functional>

struct UpdateInfo;

/// The books about updates: when to look for one, whom it was announced to, and
/// whether one is required. They outlive the process, each client version has its own.
class UpdateSchedule final
{
    Q_DISABLE_COPY_MOVE(UpdateSchedule)

public:
    /// After a check that was not answered.
    static constexpr qint64 kRetrySeconds = 3600;
    /// Between successful checks, and between announcements of the same release.
    static constexpr qint64 kIntervalSeconds = 86400;

    /// `nowSeconds` gives the Unix time, `version` is the running client's.
    UpdateSchedule(GuiPreferences &preferences, std::function<qint64()> nowSeconds,
                   QString version);

    const QString &version() const { return m_version; }

    /// Seconds until the next check is due, 0 when it is due now.
    qint64 secondsUntilDue() const;
    /// The last answer (of this process or an earlier one) demanded an update.
    bool isForced() const { return m_book.forceUpgrade; }
    /// The user should be told of this release though nobody asked for it.
    bool isNewsworthy(const UpdateInfo &info) const;

    void noteAttempt();
    void noteSuccess(bool forced);
    void noteAnnounced(const UpdateInfo &info);

private:
    void save();

    GuiPreferences &m_preferences;
    std::function<qint64()> m_now;
    QString m_version;
    UpdateBookkeeping m_book; // In force also when it can't be saved, lest checks come in a row.
};
