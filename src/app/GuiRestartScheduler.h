#pragma once

#include <QObject>

#include <chrono>
#include <functional>

class VantuAppShell;

/// Runs one restart after a short delay, so that the notice which announces it
/// can be read. While one is pending, further requests are dropped.
class GuiRestartScheduler final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GuiRestartScheduler)

public:
    explicit GuiRestartScheduler(QObject *parent = nullptr);

    /// After `delay` (a negative one counts as 0) calls `restart`; when that
    /// returns true, `onSuccess`, else `onFailure`, after which a restart may be
    /// scheduled again.
    void schedule(std::chrono::milliseconds delay, std::function<bool()> restart,
                  std::function<void()> onFailure, std::function<void()> onSuccess);

    /// A new process was started.
    bool hasRestarted() const { return m_restarted; }

private:
    bool m_pending = false;
    bool m_restarted = false;
};

/// Lets `shell` restart the program: 700 ms after it asks, the running executable
/// is started again with the switches of a language restart, and this process
/// leaves through the shell's exit path.
void scheduleGUIRestart(GuiRestartScheduler &scheduler, VantuAppShell &shell);
