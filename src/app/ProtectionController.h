#pragma once

#include "ModeRecords.h"

#include <QObject>

#include <functional>

class AppState;
class NoticeSink;
class RequestLink;
class ServiceCompatibility;
enum class ControlRequest;

/// Changes of how traffic is carried and held back that come from the window or
/// need more than one step: the mode, the local network, the system proxy and the
/// kill switch. One change at a time.
class ProtectionController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProtectionController)

public:
    /// What the changes need; everything must outlive the object.
    struct Parts
    {
        RequestLink &link;
        AppState &state;
        NoticeSink &notices;
        ServiceCompatibility &compatibility;
        /// No other operation runs anywhere, and the daemon is available.
        std::function<bool()> operationAllowed;
    };

    explicit ProtectionController(Parts parts, QObject *parent = nullptr);

    bool isBusy() const { return m_change.has_value(); }
    /// What runs, if anything.
    std::optional<ControlRequest> change() const { return m_change; }

    void setMode(const ModeInfo &mode);
    void setLocalNetwork(const QString &value);
    void setSystemProxy(const QString &value);
    void setKillSwitchEnabled(bool enabled);
    void setKillSwitchMode(const QString &mode);

    /// Gives up a mode change that runs, and what was to follow it.
    void cancelModeChange();

    /// Leaves the proxy for the automatic mode, then turns the kill switch on.
    void switchToAutoAndEnableKillSwitch();
    /// Lets the user pick a VPN mode; the next change to one turns the kill switch
    /// on.
    void chooseModeForKillSwitch();
    /// The user left without picking. A change that is already under way counts as
    /// picked.
    void cancelPendingKillSwitchEnable();
    /// Carries out a pending wish as soon as nothing stands in its way; to be
    /// called whenever an operation ended.
    void resumePendingKillSwitchEnable();

    /// Answers that the link still awaited.
    void handleMode(ControlRequest request, const ModeInfo &mode, const QString &error);
    void handleKillSwitch(ControlRequest request, const KillSwitchInfo &info, const QString &error);

Q_SIGNALS:
    /// Something else runs now, or nothing.
    void changeChanged();
    void modePageRequested();

private:
    bool changeAllowed();
    void setChange(std::optional<ControlRequest> change);
    void sendMode(const ModeInfo &mode);
    void sendKillSwitchEnabled(bool enabled);

    Parts m_parts;
    std::optional<ControlRequest> m_change;
    bool m_enableAfterMode = false; ///< The running mode change is the first of two steps.
    bool m_enablePending = false;   ///< The user is picking a VPN mode.
    // What the running change asked for.
    ModeInfo m_requestedMode;
    KillSwitchInfo m_requestedKillSwitch;
};
