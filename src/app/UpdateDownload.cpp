#include "UpdateDownload.h"

#include "AppState.h"
#include "ControlProtocol.h"
#include "NoticeSink.h"
#include "RecordDecoders.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using updateflow::Note;
using updateflow::Poll;
using Request = ControlRequest;

namespace {

constexpr std::array kRequests{Request::StartGUIUpdateDownload, Request::FetchGUIUpdateDownload,
                               Request::CancelGUIUpdateDownload};

updateflow::Failure failureOf(const QString &error)
{
    using updateflow::Failure;
    if (error.isEmpty()) {
        return Failure::None;
    }
    if (error == decode::kInvalidDownload || error == decode::kInvalidDownloadState) {
        return Failure::Unreadable;
    }
    // The transport's word for an answer that did not come in time. The request may have
    // been heard all the same.
    return error == control::kTimedOut ? Failure::TimedOut : Failure::Other;
}

} // namespace

UpdateDownload::UpdateDownload(Parts parts, QObject *parent)
    : QObject(parent)
    , m_parts(std::move(parts))
    , m_timer(this)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &UpdateDownload::poll);
}

void UpdateDownload::start()
{
    happen(updateflow::StartAsked{offered(), m_parts.link.isPending(Request::CheckUpdate)});
}

void UpdateDownload::cancel()
{
    happen(updateflow::CancelAsked());
}

void UpdateDownload::poll()
{
    const bool isAwaited = std::any_of(kRequests.begin(), kRequests.end(), [this](Request request) {
        return m_parts.link.isPending(request);
    });
    if (!isAwaited) {
        happen(updateflow::PollDue());
    }
}

void UpdateDownload::noteCheckEnded()
{
    happen(updateflow::CheckEnded{offered()});
}

void UpdateDownload::setWatched(bool watched)
{
    if (m_watched == watched) {
        return;
    }
    m_watched = watched;
    if (m_timer.isActive()) {
        m_timer.start(intervalMs(m_poll));
    }
}

void UpdateDownload::repeat()
{
    Q_EMIT waitingChanged(updateflow::isWaiting(m_flow.phase));
    if (m_flow.record.state != GUIUpdateDownloadInfo::State::Unknown) {
        Q_EMIT changed(m_flow.record);
    }
}

void UpdateDownload::handleAnswer(Request request, const GUIUpdateDownloadInfo &info,
                                  const QString &error)
{
    happen(updateflow::Answered{request, info, failureOf(error), offered()}, error);
}

void UpdateDownload::happen(const updateflow::Event &event, const QString &error)
{
    const updateflow::Phase before = m_flow.phase;
    const auto [state, effects] = updateflow::step(m_flow, event);
    m_flow = state;
    if (state.phase != before) {
        m_noticed = Note::None;
    }
    schedule(effects);
    if (updateflow::isWaiting(state.phase) != updateflow::isWaiting(before)) {
        Q_EMIT waitingChanged(updateflow::isWaiting(state.phase));
    }
    if (effects.show) {
        Q_EMIT changed(*effects.show);
    }
    if (effects.raise) {
        Q_EMIT failed();
    }
    tell(effects.note, error);
    if (effects.open) {
        happen(updateflow::InstallerTried{openInstaller()});
    }
    if (effects.exit) {
        Q_EMIT exitRequested();
    }
}

void UpdateDownload::schedule(const updateflow::Effects &effects)
{
    if (effects.send) {
        m_timer.stop();
        send(*effects.send);
    } else if (effects.poll != Poll::Never) {
        m_poll = effects.poll;
        m_timer.start(intervalMs(m_poll));
    } else if (m_flow.phase == updateflow::Phase::Idle) {
        m_timer.stop();
    }
}

void UpdateDownload::send(Request request)
{
    // Answers to what was asked before would tell of a time before this request.
    for (const Request earlier : kRequests) {
        m_parts.link.forget(earlier);
    }
    if (request == Request::StartGUIUpdateDownload) {
        m_parts.link.send(request, m_parts.version, m_flow.versionNum);
    } else {
        m_parts.link.send(request);
    }
}

int UpdateDownload::intervalMs(Poll poll) const
{
    return poll == Poll::Soon && m_watched ? kWatchedPollMs : kPollMs;
}

void UpdateDownload::tell(Note note, const QString &error)
{
    if (note == Note::None) {
        return;
    }
    const QString text = updateflow::noteText(note, error);
    const bool isError = updateflow::isError(note);
    if (m_watched) {
        Q_EMIT noteChanged(text, isError);
    } else if (note != m_noticed || !m_timer.isActive()) {
        // What fails again at every poll is told once, or it would never leave the window.
        m_noticed = note;
        m_parts.notices.show(text, isError ? MainWindow::NoticeKind::Error
                                           : MainWindow::NoticeKind::Info);
    }
}

bool UpdateDownload::openInstaller() const
{
    // The daemon says where it is: never a program of another place by a relative path or
    // a link.
    const QString path = m_flow.record.localPath;
    const QFileInfo file(path);
    return file.isAbsolute() && file.isFile() && !file.isSymLink() && m_parts.openInstaller(path);
}

qint64 UpdateDownload::offered() const
{
    return updateflow::offeredVersionNum(m_parts.state.update());
}
