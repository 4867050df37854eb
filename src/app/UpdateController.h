#pragma once

#include "RequestLink.h"
#include "UpdateDownload.h"
#include "UpdateRecords.h"
#include "UpdateSchedule.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class AppState;
class GuiPreferences;
class NoticeSink;

/// The update of the client itself, from the look for a newer release to the opened
/// installer.
///
/// Decides when to ask the daemon for a release, whom to tell of it, and whether a
/// required one stands in the way of connecting; has the daemon download it, and opens
/// what the user asked for in this very process. Lives on the GUI thread.
class UpdateController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateController)

public:
    static constexpr qint64 kFirstCheckDelayMs = 30000;
    /// Timers are armed in slices of at most this, because they stand still while
    /// the machine sleeps.
    static constexpr qint64 kSliceSeconds = 3600;

    /// What it works with; all must outlive the controller.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        GuiPreferences &preferences;
        std::function<qint64()> nowSeconds; ///< The Unix time.
        /// Hands the file to the desktop; false when nothing could open it.
        std::function<bool(const QString &path)> openInstaller;
    };

    explicit UpdateController(Parts parts, QObject *parent = nullptr);

    /// Arms the first check: after 30 s, or at once while an update is required.
    void start();
    /// Checks now if the schedule says so, else arms the timer; nothing while a
    /// check runs or the timer is armed.
    void checkIfDue();
    /// The user's own check, which always tells the outcome.
    void checkNow();

    /// Downloads the offered update, after the check that may run, and opens the
    /// installer. Nothing while a download runs.
    void startDownload();
    void cancelDownload();
    /// Asks for progress, or whether an earlier run's download is still under way.
    void pollDownload();
    /// The update dialog is shown: polls are quicker, and remarks go there.
    void setDialogVisible(bool visible);

    /// The answer to a check that the link still awaited.
    void handleUpdate(const UpdateInfo &info, const QString &error);
    /// The answer to a download request that the link still awaited.
    void handleDownload(ControlRequest request, const GUIUpdateDownloadInfo &info,
                        const QString &error);

    /// The last answer (of this process or an earlier one) demanded an update.
    bool isForced() const { return m_schedule.isForced(); }
    /// Guard of every connect: refuses while an update is required, and says so.
    bool connectAllowed();

    /// Seconds until the next check is due, 0 when it is due now.
    qint64 secondsUntilDue() const { return m_schedule.secondsUntilDue(); }

Q_SIGNALS:
    /// A check is running, the user's or one by the schedule.
    void checkingChanged(bool checking);
    /// The user should see this release: show or raise the dialog.
    void offered(const UpdateInfo &info);
    /// There is no update any more, or none that the user must be held up for: close the
    /// dialog.
    void withdrawn();
    void downloadChanged(const GUIUpdateDownloadInfo &info);
    /// The download came to fail just now: show, raise and activate the dialog.
    void downloadFailed();
    /// A remark for the dialog's status line, only while the dialog is visible.
    void noteChanged(const QString &text, bool error);
    /// A download was asked for, or the installer is being opened, and no answer came.
    void waitingChanged(bool waiting);
    /// The installer was opened: leave the program.
    void exitRequested();

private:
    void check();
    void store(const UpdateInfo &info, bool asked);
    void announce(const UpdateInfo &info, bool asked, bool wasForced);
    void offer(const UpdateInfo &info);
    void tellFailure();

    Parts m_parts;
    UpdateSchedule m_schedule;
    UpdateDownload m_download;
    bool m_asked = false; ///< The check that runs is the user's.
    bool m_firstCheckPending = true;
    bool m_adoptionPending = true;
    QTimer m_timer;
};
