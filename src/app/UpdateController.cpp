#include "UpdateController.h"

#include "AppState.h"
#include "GuiPreferences.h"
#include "NoticeSink.h"
#include "RequestLink.h"
#include "ShellText.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// The answer names a release well enough to offer it.
bool isComplete(const UpdateInfo &info)
{
    return info.updateAvailable && qRound64(info.versionNum) >= 1 && !info.versionCode.isEmpty();
}

} // namespace

UpdateController::UpdateController(RequestLink &link, AppState &state, NoticeSink &notices,
                                   GuiPreferences &preferences, std::function<qint64()> nowSeconds,
                                   QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_state(state)
    , m_notices(notices)
    , m_preferences(preferences)
    , m_now(std::move(nowSeconds))
    , m_version(QCoreApplication::applicationVersion())
    , m_forced(preferences.updateBookkeeping(m_version).forceUpgrade)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        // The first check of a process is made whatever the schedule says.
        if (m_firstCheckPending) {
            check();
        } else {
            checkIfDue();
        }
    });
}

void UpdateController::start()
{
    arm(m_forced ? 0 : kFirstCheckDelayMs);
}

qint64 UpdateController::secondsUntilDue() const
{
    const UpdateBookkeeping book = m_preferences.updateBookkeeping(m_version);
    qint64 last = 0;
    qint64 interval = 0;
    if (book.lastAttemptAt >= 1) {
        last = book.lastAttemptAt;
        interval = kRetrySeconds;
    } else if (book.lastSuccessfulCheckAt >= 1) {
        last = book.lastSuccessfulCheckAt;
        interval = kIntervalSeconds;
    }
    const qint64 now = m_now();
    // A stamp from the future means that the clock was wrong once.
    if (last > now) {
        return 0;
    }
    return std::max<qint64>(0, last + interval - now);
}

void UpdateController::checkIfDue()
{
    if (m_link.isPending(ControlRequest::CheckUpdate) || m_timer.isActive()) {
        return;
    }
    const qint64 seconds = secondsUntilDue();
    if (seconds == 0) {
        check();
    } else {
        arm(std::min(seconds, kSliceSeconds) * 1000);
    }
}

void UpdateController::check()
{
    m_timer.stop();
    if (m_link.isPending(ControlRequest::CheckUpdate)) {
        return;
    }
    m_firstCheckPending = false;
    UpdateBookkeeping book = m_preferences.updateBookkeeping(m_version);
    book.lastAttemptAt = m_now();
    m_preferences.setUpdateBookkeeping(m_version, book);
    m_link.send(ControlRequest::CheckUpdate, m_version);
}

void UpdateController::handleUpdate(const UpdateInfo &info, const QString &error)
{
    if (error.isEmpty()) {
        UpdateBookkeeping book = m_preferences.updateBookkeeping(m_version);
        book.lastSuccessfulCheckAt = m_now();
        // Every success is an attempt too; kept, it would hide the daily rule.
        book.lastAttemptAt = 0;
        m_preferences.setUpdateBookkeeping(m_version, book);
        m_state.setUpdate(info);
        setForced(info.updateAvailable && info.isForceUpgrade);
        if (m_forced && isComplete(info)) {
            Q_EMIT requiredUpdateKnown(info);
        }
    }
    checkIfDue();
}

bool UpdateController::connectAllowed()
{
    if (!m_forced) {
        return true;
    }
    Q_EMIT m_notices.attentionRequested();
    if (isComplete(m_state.update())) {
        Q_EMIT requiredUpdateKnown(m_state.update());
    } else {
        check();
        m_notices.show(ShellText::tr("A required Vantu update is being checked before connecting."),
                       MainWindow::NoticeKind::Warning);
    }
    return false;
}

void UpdateController::setForced(bool forced)
{
    m_forced = forced;
    UpdateBookkeeping book = m_preferences.updateBookkeeping(m_version);
    if (book.forceUpgrade != forced) {
        book.forceUpgrade = forced;
        m_preferences.setUpdateBookkeeping(m_version, book);
    }
}

void UpdateController::arm(qint64 delayMs)
{
    m_timer.start(std::chrono::milliseconds(delayMs));
}
