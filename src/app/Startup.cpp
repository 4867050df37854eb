#include "Startup.h"

#include "CommandLine.h"
#include "ControlClient.h"
#include "ControlProtocol.h"
#include "EmbeddedIcon.h"
#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "GuiRestartScheduler.h"
#include "GuiSingleInstance.h"
#include "Language.h"
#include "LaunchToken.h"
#include "MainWindow.h"
#include "SignalQuit.h"
#include "TranslationManager.h"
#include "TrayHostWatch.h"
#include "VantuAppShell.h"
#include "WindowController.h"
#include "X11Session.h"

#include <QApplication>
#include <QEventLoop>
#include <QSessionManager>
#include <QTimer>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A daemon that takes longer to answer at start is not waited for.
constexpr int kLanguageProbeTimeoutMs = 500;
/// How long a login start waits for the panel.
constexpr std::chrono::seconds kPanelWait{10};

struct Switches
{
    bool restartShowWindow = false;
    bool languageRestart = false;
    bool autostart = false;
};

Switches readSwitches(const QStringList &arguments)
{
    return {.restartShowWindow = arguments.contains(commandline::kRestartShowWindow),
            .languageRestart = arguments.contains(commandline::kLanguageRestart),
            .autostart = arguments.contains(commandline::kAutostart)};
}

void reconcileAutostart(const GuiPreferences &preferences)
{
    QString error;
    if (!GuiAutostart().reconcile(preferences.launchAtLogin(), &error)) {
        qWarning("failed to reconcile Vantu login startup: %s", qUtf8Printable(error));
    }
}

/// The language that the daemon uses, normalised; empty when it doesn't say in time.
QString probeLanguage(const QString &socketName)
{
    QString error;
    const ControlClient client(socketName.isEmpty() ? QString(control::kSocketPath) : socketName);
    const RuntimeInfo runtime = client.fetchStatus(kLanguageProbeTimeoutMs, error);
    if (!error.isEmpty()) {
        return {};
    }
    QString code = runtime.effectiveLanguage.trimmed();
    if (code.isEmpty()) {
        code = runtime.language.trimmed();
    }
    return code.isEmpty() ? QString() : language::normalise(code);
}

/// A write waits for the disk, and hardly any start brings another language.
void rememberLanguage(GuiPreferences &preferences, const QString &code)
{
    if (preferences.lastEffectiveLanguage() != code) {
        preferences.setLastEffectiveLanguage(code);
    }
}

QString chooseLanguage(const QString &socketName, GuiPreferences &preferences)
{
    QString probed = probeLanguage(socketName);
    if (!probed.isEmpty()) {
        rememberLanguage(preferences, probed);
        return probed;
    }
    const QString last = preferences.lastEffectiveLanguage();
    return language::normalise(last.isEmpty() ? language::systemCode() : last);
}

void loadLanguage(const QString &code, TranslationManager &translations,
                  GuiPreferences &preferences)
{
    QGuiApplication::setLayoutDirection(language::layoutDirection(code));
    if (!translations.load(code)) {
        translations.load(language::defaultCode());
        // English must not stand in a mirrored window.
        QGuiApplication::setLayoutDirection(language::layoutDirection(translations.currentCode()));
    }
    rememberLanguage(preferences, translations.currentCode());
}

/// The name of this program on the user's desktop, or the exit status without it.
std::optional<int> claimName(GuiSingleInstance &instance, const Switches &switches)
{
    QString error;
    const auto outcome =
        switches.restartShowWindow
            ? instance.claimWithRetry(GuiSingleInstance::kRestartClaimDeadline,
                                      GuiSingleInstance::kRestartClaimInterval, &error)
            : instance.claimOrActivate(&error);
    if (outcome == GuiSingleInstance::Outcome::Activated) {
        return 0;
    }
    if (outcome == GuiSingleInstance::Outcome::Failed) {
        qWarning("failed to start Vantu GUI single-instance server: %s", qUtf8Printable(error));
        return 1;
    }
    return std::nullopt;
}

/// Waits for the panel that a login start may come too early for, since without one and
/// without a window the program leaves. Returns whether the user launched the program,
/// too, in the meantime, which ends the wait: there will be a window.
bool waitForPanel(GuiSingleInstance &instance, SignalQuit &endSignals)
{
    TrayHostWatch hosts;
    if (TrayHostWatch::isHostPresent() || !hosts.start()) {
        return false;
    }
    QEventLoop loop;
    bool isActivated = false;
    QObject::connect(&instance, &GuiSingleInstance::activateRequested, &loop,
                     [&isActivated] { isActivated = true; });
    QObject::connect(&instance, &GuiSingleInstance::activateRequested, &loop, &QEventLoop::quit);
    QObject::connect(&hosts, &TrayHostWatch::hostAppeared, &loop, &QEventLoop::quit);
    QObject::connect(&endSignals, &SignalQuit::requested, &loop, &QEventLoop::quit);
    QTimer::singleShot(kPanelWait, &loop, &QEventLoop::quit);
    loop.exec();
    return isActivated;
}

/// What stands in front of all else of the program.
const QWidget *frontWindow()
{
    if (const QWidget *modal = QApplication::activeModalWidget()) {
        return modal;
    }
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto window = std::find_if(all.begin(), all.end(), [](const QWidget *widget) {
        return widget->isVisible() && qobject_cast<const MainWindow *>(widget) != nullptr;
    });
    return window == all.end() ? nullptr : *window;
}

/// Whoever launches the program again wants its window, and left that launch's token.
void comeForward(VantuAppShell &shell, const QString &tokenPath)
{
    const LaunchToken token = LaunchToken::take(tokenPath);
    token.useForNextWindow();
    shell.activateFromSecondary();
    if (const QWidget *window = frontWindow()) {
        x11session::activate(window->winId(), token.startupId());
    }
}

/// The login entry alone decides whether the next session starts the program: one that
/// the session manager starts as well would bring the window forward.
void stayOutOfSavedSessions(const QApplication &application)
{
    const auto never = [](QSessionManager &manager) {
        manager.setRestartHint(QSessionManager::RestartNever);
    };
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, never);
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &application, never);
}

} // namespace

void setProgramIdentity()
{
    QCoreApplication::setApplicationName(u"Vantu"_s);
    QCoreApplication::setApplicationVersion(u"10.4.0+26101701"_s);
    QCoreApplication::setOrganizationName(u"Vantu"_s);
    QGuiApplication::setDesktopFileName(u"com.vantuvpn.vantu"_s);
    QGuiApplication::setWindowIcon(embeddedIcon(u":/icons/app.png"_s));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Remembered from the first call on: after an upgrade in place the running file
    // no longer has the name that a restart needs.
    QCoreApplication::applicationFilePath();
}

StartupResult runVantu(int argc, char **argv, const StartupOptions &options)
{
    const LaunchToken ownToken = LaunchToken::fromEnvironment();
    // One look on every desktop; set before the application so that no other style is
    // loaded first.
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    setProgramIdentity();
    stayOutOfSavedSessions(application);
    const Switches switches = readSwitches(QCoreApplication::arguments());
    GuiPreferences preferences;
    reconcileAutostart(preferences);
    if (switches.autostart && !preferences.launchAtLogin()) {
        return {};
    }

    const QString name = options.instanceName.arg(getuid());
    const QString tokenPath = LaunchToken::filePath(name);
    GuiSingleInstance instance(name);
    QObject::connect(&instance, &GuiSingleInstance::aboutToKnock, &instance,
                     [&] { ownToken.leave(tokenPath); });
    if (const auto exitStatus = claimName(instance, switches)) {
        return {.exitStatus = *exitStatus};
    }
    SignalQuit endSignals;

    TranslationManager translations;
    loadLanguage(chooseLanguage(options.socketName, preferences), translations, preferences);

    const bool isActivated =
        switches.autostart && !preferences.showOnLaunch() && waitForPanel(instance, endSignals);
    if (endSignals.isRequested()) {
        return {};
    }
    VantuAppShell shell(options.socketName);
    shell.setLoadedLanguage(translations.currentCode());
    shell.setLanguageRestartAllowed(!switches.languageRestart);
    shell.setLoginStartup(switches.autostart && !isActivated);
    GuiRestartScheduler scheduler;
    const auto activate = [&shell, tokenPath] { comeForward(shell, tokenPath); };
    QObject::connect(&instance, &GuiSingleInstance::activateRequested, &shell, activate);
    scheduleGUIRestart(scheduler, shell);
    QObject::connect(&shell, &VantuAppShell::exitRequested, &application, &QCoreApplication::quit);
    QObject::connect(&endSignals, &SignalQuit::requested, &shell, &VantuAppShell::quit);

    shell.start();
    if (shell.windows().windowsCreated() == 0) {
        LaunchToken::forgetOwn(); // It is too old by the time that a window comes.
    }
    if (switches.restartShowWindow || isActivated) {
        QTimer::singleShot(0, &shell, activate);
    }
    if (switches.restartShowWindow) {
        QTimer::singleShot(0, &shell, &VantuAppShell::refreshLocationsAfterGUIRestart);
    }
    const int exitStatus = QApplication::exec();
    return {.exitStatus = exitStatus, .restarted = scheduler.hasRestarted()};
}
