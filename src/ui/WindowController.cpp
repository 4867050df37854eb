#include "WindowController.h"

#include "AppState.h"
#include "GuiPreferences.h"
#include "MemoryLog.h"
#include "SharedTheme.h"
#include "Theme.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

WindowController::WindowController(AppState &state, GuiPreferences &preferences, SharedTheme &theme,
                                   QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_theme(theme)
    , m_linkOpener(&QDesktopServices::openUrl)
    , m_fileLauncher(
          [](const QString &path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); })
{}

WindowController::~WindowController()
{
    if (m_window) {
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        delete m_window;
    }
}

void WindowController::setHideToTray(bool hide)
{
    m_hideToTray = hide;
    if (m_window) {
        m_window->setHideToTray(hide);
    }
}

void WindowController::setExitAllowed(bool allowed)
{
    m_exitAllowed = allowed;
    if (m_window) {
        m_window->setExitAllowed(allowed);
        m_window->setAttribute(Qt::WA_DeleteOnClose, allowed);
    }
}

void WindowController::ensureWindow()
{
    if (m_window) {
        return;
    }
    m_window = new MainWindow(m_state, m_preferences, m_theme.get()); // Owned: no parent.
    ++m_windowsCreated;
    m_window->setHideToTray(m_hideToTray);
    setExitAllowed(m_exitAllowed);
    m_window->setDaemonAvailable(m_daemonAvailable, m_unavailableReason);
    m_window->setConnectProgress(m_progress);
    m_window->setUnconfirmedFavorites(m_unconfirmedFavorites);
    if (m_catalogReceived) {
        m_window->noteCatalogReceived();
    }
    connectWindow();
}

void WindowController::connectWindow()
{
    using Window = MainWindow;
    using Controller = WindowController;
    Window *window = m_window;
    const auto repeat = [this, window](auto signal, auto own) {
        connect(window, signal, this, own);
    };
    connect(window, &Window::hiddenToTray, this, &Controller::handleHiddenToTray);
    connect(window, &Window::openExternalURLRequested, this, &Controller::openLink);
    repeat(&Window::connectRuntimeRequested, &Controller::connectRuntimeRequested);
    repeat(&Window::cancelConnectRequested, &Controller::cancelConnectRequested);
    repeat(&Window::disconnectRuntimeRequested, &Controller::disconnectRuntimeRequested);
    repeat(&Window::setModeRequested, &Controller::setModeRequested);
    repeat(&Window::splitRulesRequested, &Controller::splitRulesRequested);
    repeat(&Window::importSplitRulesRequested, &Controller::importSplitRulesRequested);
    repeat(&Window::setLocalNetworkRequested, &Controller::setLocalNetworkRequested);
    repeat(&Window::refreshLocationsRequested, &Controller::refreshLocationsRequested);
    repeat(&Window::connectNodeRequested, &Controller::connectNodeRequested);
    repeat(&Window::recentConnectionsCleared, &Controller::recentConnectionsCleared);
    repeat(&Window::connectSmartRequested, &Controller::connectSmartRequested);
    repeat(&Window::setNodeFavoriteRequested, &Controller::setNodeFavoriteRequested);
    repeat(&Window::openLogsRequested, &Controller::openLogsRequested);
    repeat(&Window::settingsVisibleRequested, &Controller::settingsVisibleRequested);
    repeat(&Window::setKillSwitchEnabledRequested, &Controller::setKillSwitchEnabledRequested);
    repeat(&Window::setKillSwitchModeRequested, &Controller::setKillSwitchModeRequested);
    repeat(&Window::switchToAutoAndEnableKillSwitchRequested,
           &Controller::switchToAutoAndEnableKillSwitchRequested);
    repeat(&Window::chooseModeForKillSwitchRequested,
           &Controller::chooseModeForKillSwitchRequested);
    repeat(&Window::modePageLeft, &Controller::modePageLeft);
    repeat(&Window::setSystemProxyRequested, &Controller::setSystemProxyRequested);
    repeat(&Window::setAPIURLRequested, &Controller::setAPIURLRequested);
    repeat(&Window::resetAPIURLRequested, &Controller::resetAPIURLRequested);
    repeat(&Window::setAutoConnectRequested, &Controller::setAutoConnectRequested);
    repeat(&Window::setLanguageRequested, &Controller::setLanguageRequested);
    repeat(&Window::checkUpdateRequested, &Controller::checkUpdateRequested);
    repeat(&Window::setProxyListenersRequested, &Controller::setProxyListenersRequested);
    repeat(&Window::setSplitDNSLocalRequested, &Controller::setSplitDNSLocalRequested);
    repeat(&Window::setSplitDNSPolicyRequested, &Controller::setSplitDNSPolicyRequested);
    repeat(&Window::clearSplitDNSLocalRequested, &Controller::clearSplitDNSLocalRequested);
    repeat(&Window::resetSplitDNSRequested, &Controller::resetSplitDNSRequested);
    repeat(&Window::repairDiagnosticsRequested, &Controller::repairDiagnosticsRequested);
    repeat(&Window::loginRequested, &Controller::loginRequested);
    repeat(&Window::logoutRequested, &Controller::logoutRequested);
    repeat(&Window::purchaseURLRequested, &Controller::purchaseURLRequested);
    repeat(&Window::quitRequested, &Controller::quitRequested);
    repeat(&Window::showingPlacesChanged, &Controller::showingPlacesChanged);
}

void WindowController::handleHiddenToTray()
{
    if (m_exitAllowed) {
        m_window.clear();
        if (memorylog::isEnabled()) {
            memorylog::log(u"MainWindow QPointer cleared on hide-to-tray (created=%1)"_s.arg(
                m_windowsCreated));
        }
    }
}

void WindowController::closeForExit()
{
    setExitAllowed(true);
    if (m_window) {
        m_window->close();
    }
}

void WindowController::setDaemonAvailable(bool available, const QString &reason)
{
    m_daemonAvailable = available;
    m_unavailableReason = reason;
    if (m_window) {
        m_window->setDaemonAvailable(available, reason);
    }
}

void WindowController::setConnectProgress(const ConnectProgress &progress)
{
    m_progress = progress;
    if (m_window) {
        m_window->setConnectProgress(progress);
    }
}

void WindowController::showNotice(const QString &message, MainWindow::NoticeKind kind,
                                  int timeoutMs)
{
    if (m_window) {
        m_window->showNotice(message, kind, timeoutMs);
    }
}

void WindowController::showError(const QString &message)
{
    const QString text = message.trimmed();
    showNotice(text.isEmpty() ? tr("Operation failed") : text, MainWindow::NoticeKind::Error);
}

void WindowController::openLink(const QUrl &url)
{
    if (url.isValid() && !m_linkOpener(url)) {
        showError(tr("Could not open link"));
    }
}

bool WindowController::launchFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isAbsolute() && file.isFile() && m_fileLauncher(path);
}

void WindowController::openLogDirectory(const ConfigPaths &paths)
{
    const QString directory = paths.logDir.trimmed();
    if (directory.isEmpty()) {
        showError(tr("Log directory is unavailable"));
    } else if (!QDir(directory).exists()) {
        showError(tr("Log directory does not exist: %1").arg(directory));
    } else if (!m_linkOpener(QUrl::fromLocalFile(directory))) {
        showError(tr("Could not open log directory: %1").arg(directory));
    }
}

void WindowController::showOrRaise()
{
    ensureWindow();
    if (m_window->isMinimized()) {
        m_window->showNormal();
    } else {
        m_window->show();
    }
    m_window->raise();
    m_window->activateWindow();
}

void WindowController::showPage(Page page)
{
    showOrRaise();
    m_window->showPage(static_cast<int>(page));
}

void WindowController::showAccount()
{
    showPage(Page::Account);
}

void WindowController::showLocations()
{
    showPage(Page::Locations);
}

void WindowController::showModePage()
{
    showPage(Page::Mode);
}

void WindowController::showSettings()
{
    showPage(Page::Settings);
}

void WindowController::activateFromApplication()
{
    showOrRaise();
}

void WindowController::setUnconfirmedFavorites(const QHash<QString, bool> &favorites)
{
    m_unconfirmedFavorites = favorites;
    if (m_window) {
        m_window->setUnconfirmedFavorites(favorites);
    }
}

void WindowController::showLocationsError(const QString &message)
{
    if (m_window) {
        m_window->showLocationsError(message);
    }
}

void WindowController::clearLocationsError()
{
    if (m_window) {
        m_window->clearLocationsError();
    }
}

void WindowController::noteCatalogReceived()
{
    m_catalogReceived = true;
    if (m_window) {
        m_window->noteCatalogReceived();
    }
}

void WindowController::setRefreshing(bool refreshing)
{
    if (m_window) {
        m_window->setRefreshing(refreshing);
    }
}
