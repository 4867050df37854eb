#pragma once

#include "RequestLink.h"
#include "UpdateRecords.h"

#include <QString>

#include <optional>
#include <variant>

/// The rules of downloading an update, without timers, requests or windows: what
/// happened goes in, what is to be done comes out.
namespace updateflow {

enum class Phase {
    Idle,          ///< Nothing is downloaded that anybody here follows.
    AwaitingCheck, ///< The user's start waits for the end of a check.
    Starting,      ///< The daemon was asked to download.
    Confirming,    ///< It did not say in time whether it does.
    Active,        ///< The daemon downloads, and is polled.
    Cancelling,    ///< The user called it off.
    Rejecting,     ///< The daemon downloads another release than wanted.
    Opening,       ///< Downloaded; the installer is handed to the desktop.
};

/// Remarks that no download record can make.
enum class Note {
    None,
    NotStarted,
    StartUnconfirmed,
    CancelUnconfirmed,
    ProgressUnread,
    CompletedBeforeCancel,
    AlreadyDownloaded,
    NotOpened,
    UpdateUnknown,
    FinishingCheck,
};

/// What a note says. `error` is the daemon's own word on it, if any.
QString noteText(Note note, const QString &error = {});
/// The note tells of a failure.
bool isError(Note note);

struct State
{
    Phase phase = Phase::Idle;
    qint64 versionNum = 0;        ///< The release that is wanted, 0 for none.
    bool isOwn = false;           ///< The user asked for it in this process.
    int confirmations = 0;        ///< Polls that did not confirm the start.
    GUIUpdateDownloadInfo record; ///< What is shown.
};

/// The user wants the update. `offered` is its offeredVersionNum().
struct StartAsked
{
    qint64 offered = 0;
    bool checkRuns = false;
};

/// A check for updates was answered.
struct CheckEnded
{
    qint64 offered = 0;
};

struct CancelAsked
{};

struct PollDue
{};

enum class Failure {
    None,
    TimedOut,
    Unreadable, ///< The answer came, but nobody can tell what it says.
    Other,
};

/// The daemon answered one of the three download requests; the record counts only
/// without a failure.
struct Answered
{
    ControlRequest request = ControlRequest::FetchGUIUpdateDownload;
    GUIUpdateDownloadInfo record;
    Failure failure = Failure::None;
    qint64 offered = 0;
};

struct InstallerTried
{
    bool isOpened = false;
};

using Event = std::variant<StartAsked, CheckEnded, CancelAsked, PollDue, Answered, InstallerTried>;

enum class Poll {
    Never,
    Soon,   ///< As often as somebody watches.
    Slowly, ///< Something is wrong, or winding down.
};

/// What to do, in the order of the members.
struct Effects
{
    std::optional<ControlRequest> send;
    Poll poll = Poll::Never;
    std::optional<GUIUpdateDownloadInfo> show;
    bool raise = false; ///< It failed just now, so that the user has to be told.
    Note note = Note::None;
    bool open = false; ///< Open the installer of the record shown.
    bool exit = false;
};

struct Step
{
    State state;
    Effects effects;
};

Step step(const State &state, const Event &event);

/// The user waits for a first sign of life.
bool isWaiting(Phase phase);

/// The number of a release that is named well enough to be downloaded, else 0.
qint64 offeredVersionNum(const UpdateInfo &info);

/// A start that timed out counts as failed after this many polls without a download.
inline constexpr int kMaxConfirmations = 5;

} // namespace updateflow
