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

bool WindowController::isWindowVisible() const
{
    return m_window && m_window->isVisible();
}

void WindowController::ensureWindow()
{
    if (m_window) {
        return;
    }
    m_window = new MainWindow(m_state); // Owned here: a window has no parent.
    ++m_windowsCreated;
    m_window->setHideToTray(m_hideToTray);
    setExitAllowed(m_exitAllowed);
    m_window->setDaemonAvailable(m_daemonAvailable, m_unavailableReason);
    m_window->setConnectProgress(m_progress);
    applyTheme();
    connect(&m_theme.get(), &Theme::changed, m_window, [this] { applyTheme(); });
    connectWindow();
}

void WindowController::connectWindow()
{
    MainWindow *window = m_window;
    connect(window, &MainWindow::hiddenToTray, this, &WindowController::handleHiddenToTray);
    connect(window, &MainWindow::connectRuntimeRequested, this,
            &WindowController::connectRuntimeRequested);
    connect(window, &MainWindow::cancelConnectRequested, this,
            &WindowController::cancelConnectRequested);
    connect(window, &MainWindow::disconnectRuntimeRequested, this,
            &WindowController::disconnectRuntimeRequested);
    connect(window, &MainWindow::quitRequested, this, &WindowController::quitRequested);
    connect(window, &MainWindow::visibilityChanged, this,
            &WindowController::windowVisibilityChanged);
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

void WindowController::applyTheme()
{
    if (m_window) {
        m_theme.get().applyTo(*m_window);
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

void WindowController::showAccount()
{
    showOrRaise();
}

void WindowController::showLocations()
{
    showOrRaise();
}

void WindowController::showModePage()
{
    showOrRaise();
}

void WindowController::activateFromApplication()
{
    showOrRaise();
}
