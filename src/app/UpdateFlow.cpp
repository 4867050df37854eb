#include "UpdateFlow.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using namespace updateflow;
using Record = GUIUpdateDownloadInfo;
using Request = ControlRequest;

class UpdateText final
{
    Q_DECLARE_TR_FUNCTIONS(UpdateDialog)
};

bool isRunning(const Record &record)
{
    switch (record.state) {
    case Record::State::Checking:
    case Record::State::Downloading:
    case Record::State::Verifying:
    case Record::State::Canceling:
        return true;
    case Record::State::Unknown:
    case Record::State::Idle:
    case Record::State::Ready:
    case Record::State::Failed:
    case Record::State::Canceled:
        break;
    }
    return false;
}

bool isCanceling(const Record &record)
{
    return record.state == Record::State::Canceling;
}

/// What the user is shown where the daemon's own word would mislead.
Record withState(Record record, Record::State state)
{
    record.state = state;
    return record;
}

void show(Step &next, const Record &record)
{
    next.state.record = record;
    next.effects.show = record;
}

void poll(Step &next, Poll when, Note note = Note::None)
{
    next.effects.poll = when;
    next.effects.note = note;
}

/// Nothing is followed any more; `record` is what stays on show.
void end(Step &next, const Record &record, Note note = Note::None)
{
    next.state = State();
    show(next, record);
    next.effects.raise = record.state == Record::State::Failed;
    next.effects.note = note;
}

void begin(Step &next, qint64 offered)
{
    if (offered < 1) {
        next.state.phase = Phase::Idle;
        next.effects.note = Note::UpdateUnknown;
        return;
    }
    next.state.phase = Phase::Starting;
    next.state.versionNum = offered;
    next.state.isOwn = true;
    next.effects.send = Request::StartGUIUpdateDownload;
    // What became of an earlier download is over.
    show(next, withState(Record(), Record::State::Idle));
}

void handle(Step &next, const StartAsked &event)
{
    if (next.state.phase != Phase::Idle) {
        return;
    }
    if (event.checkRuns) {
        next.state.phase = Phase::AwaitingCheck;
        next.effects.note = Note::FinishingCheck;
        return;
    }
    begin(next, event.offered);
}

void handle(Step &next, const CheckEnded &event)
{
    if (next.state.phase == Phase::AwaitingCheck) {
        begin(next, event.offered);
    }
}

void handle(Step &next, CancelAsked)
{
    switch (next.state.phase) {
    case Phase::AwaitingCheck:
        end(next, withState(next.state.record, Record::State::Idle));
        break;
    case Phase::Starting:
    case Phase::Confirming:
    case Phase::Active:
        next.state.phase = Phase::Cancelling;
        next.effects.send = Request::CancelGUIUpdateDownload;
        show(next, withState(next.state.record, Record::State::Canceling));
        break;
    case Phase::Idle:
    case Phase::Cancelling:
    case Phase::Rejecting:
    case Phase::Opening:
        break;
    }
}

void handle(Step &next, PollDue)
{
    switch (next.state.phase) {
    case Phase::Idle:
    case Phase::Confirming:
    case Phase::Active:
    case Phase::Cancelling:
    case Phase::Rejecting:
        next.effects.send = Request::FetchGUIUpdateDownload;
        break;
    case Phase::AwaitingCheck:
    case Phase::Starting:
    case Phase::Opening:
        break;
    }
}

void handle(Step &next, const InstallerTried &event)
{
    if (next.state.phase != Phase::Opening) {
        return;
    }
    if (event.isOpened) {
        next.effects.exit = true;
    } else {
        end(next, withState(next.state.record, Record::State::Idle), Note::NotOpened);
    }
}

void handleFailure(Step &next, const Answered &event)
{
    switch (next.state.phase) {
    case Phase::Starting:
        if (event.failure == Failure::TimedOut) {
            next.state.phase = Phase::Confirming;
            poll(next, Poll::Slowly, Note::StartUnconfirmed);
        } else {
            end(next, withState(next.state.record, Record::State::Idle), Note::NotStarted);
        }
        break;
    case Phase::Confirming:
        poll(next, Poll::Slowly, Note::StartUnconfirmed);
        break;
    case Phase::Active:
        poll(next, Poll::Slowly, Note::ProgressUnread);
        break;
    case Phase::Cancelling:
        poll(next, Poll::Slowly, Note::CancelUnconfirmed);
        break;
    case Phase::Rejecting:
        poll(next, Poll::Slowly,
             event.request == Request::CancelGUIUpdateDownload ? Note::CancelUnconfirmed
                                                               : Note::ProgressUnread);
        break;
    case Phase::Idle:
        if (event.failure == Failure::Unreadable) {
            show(next, Record());
        }
        break;
    case Phase::AwaitingCheck:
    case Phase::Opening:
        break;
    }
}

/// The daemon is busy with another release, or has just ended with it.
bool isOtherRelease(const State &state, const Answered &event)
{
    const qint64 number = event.record.versionNum;
    if (number < 1) {
        return state.phase == Phase::Rejecting;
    }
    const qint64 wanted = state.versionNum > 0 ? state.versionNum : event.offered;
    return wanted > 0 && number != wanted;
}

void reject(Step &next, const Answered &event)
{
    Record record = event.record;
    const bool running = isRunning(record);
    const bool canceling = isCanceling(record);
    record.errorCode = u"release_mismatch"_s;
    if (!running) {
        record.errorMessage = UpdateText::tr(
            "The download belongs to a different update release. Check for updates again.");
        end(next, withState(record, Record::State::Failed));
        return;
    }
    next.state.phase = Phase::Rejecting;
    show(next, withState(record, Record::State::Canceling));
    // Asked again should the daemon go on as if it had not heard.
    if (!canceling && event.request != Request::CancelGUIUpdateDownload) {
        next.effects.send = Request::CancelGUIUpdateDownload;
    } else {
        poll(next, Poll::Slowly);
    }
}

/// The daemon follows the cancellation, or not yet.
void followCancelling(Step &next, const Answered &event)
{
    const Record &record = event.record;
    if (isRunning(record)) {
        show(next, withState(record, Record::State::Canceling));
        // A cancel that got lost shows when the daemon goes on downloading.
        if (!isCanceling(record) && event.request == Request::FetchGUIUpdateDownload) {
            next.effects.send = Request::CancelGUIUpdateDownload;
        } else {
            poll(next, Poll::Slowly);
        }
        return;
    }
    switch (record.state) {
    case Record::State::Ready:
        end(next, withState(record, Record::State::Idle), Note::CompletedBeforeCancel);
        break;
    case Record::State::Failed:
        end(next, record);
        break;
    default:
        end(next, withState(record, Record::State::Canceled));
        break;
    }
}

/// The daemon has no download though one was asked for.
void followMissing(Step &next, const Record &record)
{
    if (next.state.phase == Phase::Confirming && ++next.state.confirmations < kMaxConfirmations) {
        // It may still be busy with the request that it did not answer.
        poll(next, Poll::Slowly, Note::StartUnconfirmed);
    } else if (next.state.phase == Phase::Active) {
        end(next, withState(record, Record::State::Failed));
    } else {
        end(next, record, Note::NotStarted);
    }
}

void followReady(Step &next, const Record &record)
{
    if (!next.state.isOwn) {
        end(next, withState(record, Record::State::Idle), Note::AlreadyDownloaded);
    } else if (record.versionNum != next.state.versionNum) {
        // Without a number it may be anything.
        end(next, withState(record, Record::State::Idle), Note::NotOpened);
    } else {
        next.state.phase = Phase::Opening;
        show(next, record);
        next.effects.open = true;
    }
}

void follow(Step &next, const Record &record)
{
    if (isRunning(record)) {
        next.state.phase = Phase::Active;
        show(next, record);
        poll(next, isCanceling(record) ? Poll::Slowly : Poll::Soon);
        return;
    }
    switch (record.state) {
    case Record::State::Ready:
        followReady(next, record);
        break;
    case Record::State::Failed:
        end(next, record);
        break;
    case Record::State::Canceled:
        if (next.state.phase != Phase::Confirming) {
            end(next, record);
            break;
        }
        [[fallthrough]]; // That was an earlier download.
    default:
        followMissing(next, record);
        break;
    }
}

void handle(Step &next, const Answered &event)
{
    if (event.failure != Failure::None) {
        handleFailure(next, event);
        return;
    }
    const bool isUnclaimed = next.state.phase == Phase::Idle;
    if (next.state.phase == Phase::AwaitingCheck || next.state.phase == Phase::Opening ||
        (isUnclaimed && !isRunning(event.record))) {
        // What an earlier run left behind is nobody's concern.
        return;
    }
    if (isUnclaimed) {
        next.state.versionNum = event.offered;
    }
    if (isOtherRelease(next.state, event)) {
        reject(next, event);
    } else if (next.state.phase == Phase::Cancelling) {
        followCancelling(next, event);
    } else {
        follow(next, event.record);
    }
}

} // namespace

namespace updateflow {

Step step(const State &state, const Event &event)
{
    Step next{state, {}};
    std::visit([&next](const auto &happened) { handle(next, happened); }, event);
    return next;
}

bool isWaiting(Phase phase)
{
    return phase == Phase::AwaitingCheck || phase == Phase::Starting ||
           phase == Phase::Confirming || phase == Phase::Opening;
}

qint64 offeredVersionNum(const UpdateInfo &info)
{
    // Doubles count in ones up to 2^53; what lies beyond numbers no release.
    constexpr double kLast = 9007199254740992.0;
    const bool counts = info.versionNum >= 0 && info.versionNum <= kLast;
    const bool isNamed = info.updateAvailable && counts && !info.versionCode.isEmpty();
    return isNamed ? qRound64(info.versionNum) : 0;
}

QString noteText(Note note, const QString &error)
{
    switch (note) {
    case Note::None:
        break;
    case Note::NotStarted: {
        const QString reason = error.trimmed();
        return reason.isEmpty() ? UpdateText::tr("Could not start the update download") : reason;
    }
    case Note::StartUnconfirmed:
        return UpdateText::tr(
            "Could not confirm that the download started. Checking its status...");
    case Note::CancelUnconfirmed:
        return UpdateText::tr("Could not confirm cancellation. Retrying...");
    case Note::ProgressUnread:
        return UpdateText::tr("Could not read download progress. Retrying...");
    case Note::CompletedBeforeCancel:
        return UpdateText::tr("The download completed before it could be canceled. The installer "
                              "was not opened.");
    case Note::AlreadyDownloaded:
        return UpdateText::tr("The update is downloaded and ready to install.");
    case Note::NotOpened:
        return UpdateText::tr("The update was downloaded, but the installer could not be opened.");
    case Note::UpdateUnknown:
        return UpdateText::tr("Update information is unavailable. Check for updates again.");
    case Note::FinishingCheck:
        return UpdateText::tr("Finishing the latest update check before starting the download...");
    }
    return {};
}

bool isError(Note note)
{
    switch (note) {
    case Note::NotStarted:
    case Note::StartUnconfirmed:
    case Note::CancelUnconfirmed:
    case Note::ProgressUnread:
    case Note::NotOpened:
    case Note::UpdateUnknown:
        return true;
    case Note::None:
    case Note::CompletedBeforeCancel:
    case Note::AlreadyDownloaded:
    case Note::FinishingCheck:
        break;
    }
    return false;
}

} // namespace updateflow
