#include "GuiRestartScheduler.h"

#include "CommandLine.h"
#include "VantuAppShell.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto kRestartDelay = 700ms;

bool startNewProcess()
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(),
                                   {commandline::kRestartShowWindow, commandline::kLanguageRestart},
                                   QCoreApplication::applicationDirPath());
}

} // namespace

GuiRestartScheduler::GuiRestartScheduler(QObject *parent)
    : QObject(parent)
{}

void GuiRestartScheduler::schedule(std::chrono::milliseconds delay, std::function<bool()> restart,
                                   std::function<void()> onFailure, std::function<void()> onSuccess)
{
    if (m_pending) {
        return;
    }
    m_pending = true;
    QTimer::singleShot(std::max(delay, 0ms), this,
                       [this, restart = std::move(restart), onFailure = std::move(onFailure),
                        onSuccess = std::move(onSuccess)] {
                           m_restarted = restart();
                           if (m_restarted) {
                               onSuccess();
                           } else {
                               m_pending = false;
                               onFailure();
                           }
                       });
}

void scheduleGUIRestart(GuiRestartScheduler &scheduler, VantuAppShell &shell)
{
    QObject::connect(&shell, &VantuAppShell::restartRequested, &scheduler, [&scheduler, &shell] {
        scheduler.schedule(
            kRestartDelay, startNewProcess,
            [&shell] {
                qWarning("failed to restart Vantu GUI");
                shell.handleGUIRestartFailed();
            },
            [&shell] { shell.quit(); });
    });
}
