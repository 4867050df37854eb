#pragma once

#include "UpdateRecords.h"

#include <QObject>
#include <QTimer>

#include <functional>

class AppState;
class GuiPreferences;
class NoticeSink;
class RequestLink;

/// Looks for a newer client: when to ask the daemon, and whether a required
/// update stands in the way of connecting.
class UpdateController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateController)

public:
    static constexpr qint64 kFirstCheckDelayMs = 30000;
    static constexpr qint64 kRetrySeconds = 3600;
    static constexpr qint64 kIntervalSeconds = 86400;
    /// Timers are armed in slices of at most this, because they stand still while
    /// the machine sleeps.
    static constexpr qint64 kSliceSeconds = 3600;

    /// `nowSeconds` gives the Unix time. All arguments must outlive the object.
    UpdateController(RequestLink &link, AppState &state, NoticeSink &notices,
                     GuiPreferences &preferences, std::function<qint64()> nowSeconds,
                     QObject *parent = nullptr);

    /// Arms the first check: after 30 s, or at once while an update is required.
    void start();
    /// Checks now if the schedule says so, else arms the timer; nothing while a
    /// check runs or the timer is armed.
    void checkIfDue();
    /// The answer to a check that the link still awaited.
    void handleUpdate(const UpdateInfo &info, const QString &error);

    /// The last answer (of this process or an earlier one) demanded an update.
    bool isForced() const { return m_forced; }
    /// Guard of every connect: refuses while an update is required, and says so.
    bool connectAllowed();

    /// Seconds until the next check is due, 0 when it is due now.
    qint64 secondsUntilDue() const;

Q_SIGNALS:
    /// A required update stands in the way and is known well enough to be offered.
    void requiredUpdateKnown(const UpdateInfo &info);

private:
    void check();
    void arm(qint64 delayMs);
    void setForced(bool forced);

    RequestLink &m_link;
    AppState &m_state;
    NoticeSink &m_notices;
    GuiPreferences &m_preferences;
    std::function<qint64()> m_now;
    QString m_version;
    bool m_forced = false;
    bool m_firstCheckPending = true;
    QTimer m_timer;
};
