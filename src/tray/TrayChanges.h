#pragma once

#include "ControlRecords.h"
#include "RequestLink.h"
#include "TrayQuestions.h"

#include <QObject>
#include <QString>

class AppState;
class SharedTheme;
class TrayOperations;
class TrayPoll;

/// The changes that the tray sends by itself: mode and routing, kill switch, local
/// network and system proxy. Each is refused silently unless the daemon is available and
/// nothing is busy, locks the menu until it is answered, and writes the answer into the
/// store. A change that the mode or the kill switch rules out asks the user first.
///
/// Owned by the tray application, which feeds it the workers' answers. What it is given
/// must outlive it.
class TrayChanges final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TrayChanges)

public:
    TrayChanges(AppState &state, RequestLink &link, TrayOperations &operations, TrayPoll &poll,
                SharedTheme &theme, QObject *parent = nullptr);

    bool guardPasses() const;

    void setMode(const ModeInfo &mode, const QString &statusText);
    void setKillSwitchEnabled(bool enabled);
    void setLocalNetwork(const QString &value);
    void setSystemProxy(const QString &value);
    void setProxyDefault(const QString &route);
    void setProxyRegion(const QString &region);
    void setProxyGFWList(bool enabled);
    void setVantuDefault(const QString &route);
    void setVantuRegion(const QString &region);
    void setVantuGFWList(bool enabled);
    void setVantuCustomRules(bool enabled);

    /// Gives up a mode change that runs, without a word.
    void cancelModeChange();
    /// Whether the mode is being changed.
    bool isChangingMode() const { return m_link.isPending(ControlRequest::SetMode); }
    bool isChangingLocalNetwork() const
    {
        return m_link.isPending(ControlRequest::SetLocalNetworkPreference);
    }

    void takeMode(quint64 requestId, const ModeInfo &mode, const QString &errorMessage);
    /// Answers of the poll's read as well as of the change.
    void takeKillSwitch(quint64 requestId, const KillSwitchInfo &info, const QString &errorMessage);

Q_SIGNALS:
    void begun();
    /// A change was answered; `text` tells the user how it went. Empty: it was given up.
    void ended(const QString &text);
    void switchToAutoAndEnableKillSwitchRequested();
    void chooseModeForKillSwitchRequested();
    void openKillSwitchSettingsRequested();

private:
    const ModeInfo &mode() const;
    void begin(ControlRequest request, const QString &progressText, const QString &successText);
    /// A failure is told in the daemon's own words, or as `fallback` where it gave none.
    void end(ControlRequest request, bool succeeded, const QString &errorMessage,
             const QString &fallback);

    AppState &m_state;
    RequestLink &m_link;
    TrayOperations &m_operations;
    TrayPoll &m_poll;
    TrayQuestions m_questions;
    QString m_successText; ///< Of the change under way.
    // What the change under way asked for.
    ModeInfo m_modeRequest;
    KillSwitchInfo m_killSwitchRequest;
};
