#pragma once

#include "UpdateRecords.h"

#include <QDialog>

class MessageArea;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QShowEvent;
class QVBoxLayout;
class Theme;

/// Offers a newer client and shows how its download goes. It only reports what the user
/// wants; the daemon downloads.
///
/// A forced update makes it a gate: modal, and no key and no close button leads past it
/// except to update or to leave the program. Lives on the GUI thread.
class UpdateDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateDialog)

public:
    enum class Tone { Muted, Error };

    explicit UpdateDialog(Theme &theme, QWidget *parent = nullptr);

    /// The release that is offered; its forced flag decides whether this is a gate.
    void setUpdate(const UpdateInfo &update);
    /// The download as the daemon reports it. A default record (state Unknown) is one
    /// that could not be read; an Idle one shows that nothing is downloaded.
    void setDownload(const GUIUpdateDownloadInfo &download);
    /// A line that stands in place of the download's own one until the next setDownload().
    void setNote(const QString &text, Tone tone);
    /// A line that has nothing to do with the download and stands in its place until that
    /// reaches another state.
    void setRemark(const QString &text, Tone tone);
    /// The download was asked for, or the installer is being opened, and no answer has
    /// come: the primary button waits.
    void setWaiting(bool waiting);
    /// The program is leaving: every close is allowed.
    void setExitAllowed(bool allowed);

    bool isForced() const { return m_update.isForceUpgrade; }

public Q_SLOTS:
    /// Escape, the close button and whatever else closes a window end here.
    void reject() override;

Q_SIGNALS:
    void downloadRequested();
    void cancelDownloadRequested();
    void openDownloadPageRequested();
    void exitRequested();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildTexts(QVBoxLayout &column);
    void buildLink(QVBoxLayout &column);
    void buildProgress(QVBoxLayout &column);
    void buildButtons(QVBoxLayout &column);
    void followTheme();
    void reserveButtonWidths();
    void onPrimaryClicked();
    void onSecondaryClicked();
    void setGate(bool gate);
    void renderUpdate();
    void renderStatus();
    void renderButtons();

    const Theme &m_theme;
    UpdateInfo m_update;
    GUIUpdateDownloadInfo m_download;
    QString m_note; ///< Shown in place of the download's own line; empty for none.
    Tone m_noteTone = Tone::Muted;
    bool m_noteIsRemark = false;
    bool m_waiting = false;
    bool m_exitAllowed = false;
    bool m_placed = false; ///< It was shown once, and its size is the user's.

    QLabel *m_title = nullptr;
    QLabel *m_message = nullptr;
    QLabel *m_version = nullptr;
    QPlainTextEdit *m_changelog = nullptr;
    MessageArea *m_status = nullptr;
    QProgressBar *m_progress = nullptr;
    QPushButton *m_primary = nullptr;
    QPushButton *m_secondary = nullptr;
    QPushButton *m_fallback = nullptr;
};
