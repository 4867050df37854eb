#pragma once

#include "ConnectProgress.h"
#include "PrimaryAction.h"

#include <QMainWindow>

class AppState;
class QCloseEvent;
class QLabel;
class QPushButton;
class QTimer;

/// The program's window: the connection's state, its place, and the one button.
///
/// Owned by WindowController, on the GUI thread. It reads the store and reports
/// what the user wants by signals; it never talks to the daemon. Closing it hides
/// it, unless hiding to the tray is switched off or the program is leaving.
class MainWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)

public:
    /// How a notice looks.
    enum class NoticeKind { Info, Success, Warning, Error };

    /// `state` must outlive the window.
    explicit MainWindow(AppState &state, QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Off: closing the window asks to leave the program, because without a tray
    /// nothing would be left to bring it back.
    void setHideToTray(bool hide) { m_hideToTray = hide; }
    /// On: the program is leaving, and a close really closes.
    void setExitAllowed(bool allowed) { m_exitAllowed = allowed; }

    /// Whether the daemon answers; `reason` tells the user why not.
    void setDaemonAvailable(bool available, const QString &reason);
    void setConnectProgress(const ConnectProgress &progress);

    /// Shows a notice for `timeoutMs`; 0 leaves it until the next one or until it
    /// is dismissed. An empty message hides what stands there.
    void showNotice(const QString &message, NoticeKind kind, int timeoutMs);

Q_SIGNALS:
    void hiddenToTray();
    void connectRuntimeRequested();
    void cancelConnectRequested();
    void disconnectRuntimeRequested();
    /// Close was asked for while hiding to the tray is off.
    void quitRequested();
    void visibilityChanged(bool visible);

public Q_SLOTS:
    void refreshFromState();

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildContent();
    void activatePrimaryAction();
    void renderDetail();

    AppState &m_state;
    bool m_hideToTray = true;
    bool m_exitAllowed = false;
    bool m_daemonAvailable = false;
    QString m_unavailableReason;
    ConnectProgress m_progress;
    PrimaryAction::Intent m_intent = PrimaryAction::Intent::Connect;

    QLabel *m_statusTitle = nullptr;
    QLabel *m_statusDetail = nullptr;
    QLabel *m_statusDot = nullptr;
    QLabel *m_notice = nullptr;
    QPushButton *m_primary = nullptr;
    QTimer *m_noticeTimer = nullptr;
    QTimer *m_durationTimer = nullptr;
};
