#include "Startup.h"

#include "CommandLine.h"
#include "ControlClient.h"
#include "ControlProtocol.h"
#include "GuiAutostart.h"
#include "GuiPreferences.h"
#include "GuiRestartScheduler.h"
#include "GuiSingleInstance.h"
#include "Language.h"
#include "TranslationManager.h"
#include "TrayHostProbe.h"
#include "VantuAppShell.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A daemon that takes longer to answer at start is not waited for.
constexpr int kLanguageProbeTimeoutMs = 500;

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

void setIdentity()
{
    QCoreApplication::setApplicationName(u"Vantu"_s);
    QCoreApplication::setApplicationVersion(u"10.4.0+26101701"_s);
    QCoreApplication::setOrganizationName(u"Vantu"_s);
    QGuiApplication::setDesktopFileName(u"com.vantuvpn.vantu"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/icons/app.png"_s));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Remembered from the first call on: after an upgrade in place the running file
    // no longer has the name that a restart needs.
    QCoreApplication::applicationFilePath();
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

QString chooseLanguage(const QString &socketName, GuiPreferences &preferences)
{
    QString probed = probeLanguage(socketName);
    if (!probed.isEmpty()) {
        preferences.setLastEffectiveLanguage(probed);
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
    preferences.setLastEffectiveLanguage(translations.currentCode());
}

/// Waits for the panel that a login start may come too early for. Before the shell is
/// made, since Qt keeps its answer to the icon's first question about the tray. Returns
/// whether the user launched the program, too, in the meantime.
bool waitForPanel(GuiSingleInstance &instance)
{
    bool isActivated = false;
    const auto listening = QObject::connect(&instance, &GuiSingleInstance::activateRequested,
                                            &instance, [&isActivated] { isActivated = true; });
    trayhost::waitUntilRegistered(trayhost::kLoginWait);
    QObject::disconnect(listening);
    return isActivated;
}

} // namespace

StartupResult runVantu(int argc, char **argv, const StartupOptions &options)
{
    // One look on every desktop; set before the application so that no other style is
    // loaded first.
    QApplication::setStyle(u"Fusion"_s);
    const QApplication application(argc, argv);
    setIdentity();
    const Switches switches = readSwitches(QCoreApplication::arguments());
    GuiPreferences preferences;
    reconcileAutostart(preferences);
    if (switches.autostart && !preferences.launchAtLogin()) {
        return {};
    }

    GuiSingleInstance instance(options.instanceName.arg(getuid()));
    QString error;
    const auto outcome =
        switches.restartShowWindow
            ? instance.claimWithRetry(GuiSingleInstance::kRestartClaimDeadline,
                                      GuiSingleInstance::kRestartClaimInterval, &error)
            : instance.claimOrActivate(&error);
    if (outcome == GuiSingleInstance::Outcome::Activated) {
        return {};
    }
    if (outcome == GuiSingleInstance::Outcome::Failed) {
        qWarning("failed to start Vantu GUI single-instance server: %s", qUtf8Printable(error));
        return {.exitStatus = 1};
    }

    TranslationManager translations;
    loadLanguage(chooseLanguage(options.socketName, preferences), translations, preferences);

    const bool isActivated = switches.autostart && waitForPanel(instance);
    VantuAppShell shell(options.socketName);
    shell.setLoadedLanguage(translations.currentCode());
    shell.setLanguageRestartAllowed(!switches.languageRestart);
    shell.setLoginStartup(switches.autostart && !isActivated);
    GuiRestartScheduler scheduler;
    QObject::connect(&instance, &GuiSingleInstance::activateRequested, &shell,
                     &VantuAppShell::activateFromSecondary);
    scheduleGUIRestart(scheduler, shell);
    QObject::connect(&shell, &VantuAppShell::exitRequested, &application, &QCoreApplication::quit);

    shell.start();
    if (switches.restartShowWindow || isActivated) {
        QTimer::singleShot(0, &shell, &VantuAppShell::activateFromSecondary);
    }
    if (switches.restartShowWindow) {
        QTimer::singleShot(0, &shell, &VantuAppShell::refreshLocationsAfterGUIRestart);
    }
    const int exitStatus = QApplication::exec();
    return {.exitStatus = exitStatus, .restarted = scheduler.hasRestarted()};
}
