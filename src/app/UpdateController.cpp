#include "UpdateController.h"

#include "AppState.h"
#include "NoticeSink.h"
#include "ShellText.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <utility>

UpdateController::UpdateController(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
    , m_schedule(m_parts.preferences, m_parts.nowSeconds, QCoreApplication::applicationVersion())
    , m_download({m_parts.link, m_parts.state, m_parts.notices, m_schedule.version(),
                  m_parts.openInstaller})
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
    connect(&m_download, &UpdateDownload::changed, this, &UpdateController::downloadChanged);
    connect(&m_download, &UpdateDownload::failed, this, &UpdateController::tellFailure);
    connect(&m_download, &UpdateDownload::noteChanged, this, &UpdateController::noteChanged);
    connect(&m_download, &UpdateDownload::waitingChanged, this, &UpdateController::waitingChanged);
    connect(&m_download, &UpdateDownload::exitRequested, this, &UpdateController::exitRequested);
}

void UpdateController::start()
{
    m_timer.start(std::chrono::milliseconds(isForced() ? 0 : kFirstCheckDelayMs));
}

void UpdateController::checkIfDue()
{
    if (m_parts.link.isPending(ControlRequest::CheckUpdate) || m_timer.isActive()) {
        return;
    }
    const qint64 seconds = secondsUntilDue();
    if (seconds == 0) {
        check();
    } else {
        m_timer.start(std::chrono::seconds(std::min(seconds, kSliceSeconds)));
    }
}

void UpdateController::checkNow()
{
    m_asked = true;
    check();
}

void UpdateController::check()
{
    m_timer.stop();
    if (m_parts.link.isPending(ControlRequest::CheckUpdate)) {
        return;
    }
    m_firstCheckPending = false;
    m_schedule.noteAttempt();
    m_parts.link.send(ControlRequest::CheckUpdate, m_schedule.version());
    Q_EMIT checkingChanged(true);
}

void UpdateController::handleUpdate(const UpdateInfo &info, const QString &error)
{
    const bool asked = std::exchange(m_asked, false);
    Q_EMIT checkingChanged(false);
    if (error.isEmpty()) {
        store(info, asked);
    } else if (asked) {
        m_parts.notices.error(error, ShellText::tr("Could not check for updates"), Page::Settings);
    }
    m_download.noteCheckEnded();
    checkIfDue();
}

void UpdateController::store(const UpdateInfo &info, bool asked)
{
    const bool wasOffered = m_parts.state.update().updateAvailable;
    const bool wasForced = isForced();
    m_schedule.noteSuccess(info.updateAvailable && info.isForceUpgrade);
    m_parts.state.setUpdate(info);
    if (info.updateAvailable) {
        announce(info, asked, wasForced);
        if (std::exchange(m_adoptionPending, false)) {
            m_download.poll();
        }
        return;
    }
    if (wasOffered) {
        Q_EMIT withdrawn();
    }
    if (asked) {
        m_parts.notices.show(ShellText::tr("Vantu is up to date"), MainWindow::NoticeKind::Success);
    }
}

void UpdateController::announce(const UpdateInfo &info, bool asked, bool wasForced)
{
    if (isForced() && updateflow::offeredVersionNum(info) == 0) {
        // A gate that no download opens would only lock the user out.
        if (asked) {
            m_download.tell(updateflow::Note::UpdateUnknown);
        }
        return;
    }
    if (asked || m_schedule.isNewsworthy(info)) {
        m_schedule.noteAnnounced(info);
        offer(info);
    } else if (wasForced) {
        // The gate must not outlive its reason, though the release is no news.
        Q_EMIT withdrawn();
    }
}

void UpdateController::offer(const UpdateInfo &info)
{
    Q_EMIT offered(info);
    // The dialog may be a new one that knows nothing of a download under way.
    m_download.repeat();
}

void UpdateController::tellFailure()
{
    // A download of an earlier run, which nobody was shown in this one, may fail too.
    if (m_parts.state.update().updateAvailable) {
        offer(m_parts.state.update());
    } else {
        Q_EMIT downloadFailed();
    }
}

void UpdateController::startDownload()
{
    m_download.start();
}

void UpdateController::cancelDownload()
{
    m_download.cancel();
}

void UpdateController::pollDownload()
{
    m_download.poll();
}

void UpdateController::setDialogVisible(bool visible)
{
    m_download.setWatched(visible);
}

void UpdateController::handleDownload(ControlRequest request, const GUIUpdateDownloadInfo &info,
                                      const QString &error)
{
    m_download.handleAnswer(request, info, error);
}

bool UpdateController::connectAllowed()
{
    if (!isForced()) {
        return true;
    }
    Q_EMIT m_parts.notices.attentionRequested();
    const UpdateInfo &info = m_parts.state.update();
    if (info.isForceUpgrade && updateflow::offeredVersionNum(info) > 0) {
        offer(info);
    } else {
        check();
        m_parts.notices.show(
            ShellText::tr("A required Vantu update is being checked before connecting."),
            MainWindow::NoticeKind::Warning);
    }
    return false;
}
