#pragma once

#include "UpdateFlow.h"

#include <QObject>
#include <QTimer>

#include <functional>

class AppState;
class NoticeSink;

/// Has the daemon download the offered update and opens the installer: carries out what
/// the rules of updateflow say. Lives on the GUI thread.
class UpdateDownload final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateDownload)

public:
    static constexpr int kWatchedPollMs = 500;
    static constexpr int kPollMs = 2000;

    /// What it works with; everything must outlive it.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        QString version; ///< The running client's.
        /// Hands the file to the desktop; false when nothing could open it.
        std::function<bool(const QString &path)> openInstaller;
    };

    explicit UpdateDownload(Parts parts, QObject *parent = nullptr);

    /// Starts the download of the stored update, after the check that may run.
    void start();
    void cancel();
    /// Asks for progress, or whether a download of an earlier run is still under way;
    /// nothing while an answer is awaited.
    void poll();
    /// A check was answered and its outcome stored.
    void noteCheckEnded();
    /// Somebody watches: polls are quicker, and remarks are signals and no notices.
    void setWatched(bool watched);
    /// Tells again how things stand, for a new listener.
    void repeat();
    /// A remark for the user, wherever it is seen.
    void tell(updateflow::Note note, const QString &error = {});

    /// The answer to a download request that the link still awaited.
    void handleAnswer(ControlRequest request, const GUIUpdateDownloadInfo &info,
                      const QString &error);

Q_SIGNALS:
    void changed(const GUIUpdateDownloadInfo &info);
    /// It came to fail just now.
    void failed();
    void noteChanged(const QString &text, bool error);
    void waitingChanged(bool waiting);
    /// The installer was opened.
    void exitRequested();

private:
    void happen(const updateflow::Event &event, const QString &error = {});
    void schedule(const updateflow::Effects &effects);
    void send(ControlRequest request);
    int intervalMs(updateflow::Poll poll) const;
    bool openInstaller() const;
    qint64 offered() const;

    Parts m_parts;
    updateflow::State m_flow;
    updateflow::Poll m_poll = updateflow::Poll::Never;
    updateflow::Note m_noticed = updateflow::Note::None;
    bool m_watched = false;
    QTimer m_timer;
};
