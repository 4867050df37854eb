#include "WindowController.h"

#include "AppState.h"
#include "GuiPreferences.h"
#include "MemoryLog.h"
#include "PlainText.h"
#include "SharedTheme.h"
#include "Theme.h"
#include "UpdateDialog.h"
#include "UpdateLink.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>

using namespace Qt::StringLiterals;

WindowController::WindowController(AppState &state, GuiPreferences &preferences, SharedTheme &theme,
                                   QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_preferences(preferences)
    , m_theme(theme)
    , m_linkOpener(&QDesktopServices::openUrl)
    , m_privateLink(QDBusConnection::sessionBus())
    , m_fileLauncher(
          [](const QString &path) { return QDesktopServices::openUrl(QUrl::fromLocalFile(path)); })
{}

WindowController::~WindowController()
{
    delete m_updateDialog;
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
    if (m_updateDialog) {
        m_updateDialog->setExitAllowed(allowed);
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
    m_window->setTrayProbe(m_trayProbe);
    setExitAllowed(m_exitAllowed);
    m_window->setDaemonAvailable(m_daemonAvailable, m_unavailableReason);
    m_window->setConnectProgress(m_progress);
    m_window->setActivity(m_activity);
    m_window->setUnconfirmedFavorites(m_unconfirmedFavorites, m_awaitedFavorites);
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
    repeat(&Window::connectRefused, &Controller::connectRefused);
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
    if (m_updateDialog) {
        m_updateDialog->close();
    }
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

void WindowController::showError(const QString &message, std::optional<Page> page)
{
    QString text = message.trimmed();
    if (text.isEmpty() && page == Page::Mode) {
        text = QCoreApplication::translate("ModePage", "Mode operation failed");
    } else if (text.isEmpty() && page == Page::Settings) {
        text = QCoreApplication::translate("SettingsPage", "Settings operation failed");
    } else if (text.isEmpty()) {
        text = tr("Operation failed");
    }
    showNotice(text, MainWindow::NoticeKind::Error);
    if (m_window && page) {
        m_window->showPageError(*page, text);
    }
}

void WindowController::openLink(const QUrl &url)
{
    if (url.isValid() && !m_linkOpener(url)) {
        showError(tr("Could not open link"));
    }
}

void WindowController::openPrivateLink(const QUrl &url)
{
    if (url.isValid()) {
        m_privateLink.open(url, [this, url] { openLink(url); });
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
    const QString shown = plaintext::singleLine(directory);
    if (directory.isEmpty()) {
        showError(tr("Log directory is unavailable"));
    } else if (!QDir(directory).exists()) {
        showError(tr("Log directory does not exist: %1").arg(shown));
    } else if (!m_linkOpener(QUrl::fromLocalFile(directory))) {
        showError(tr("Could not open log directory: %1").arg(shown));
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
    // What waits for an answer must not end up below.
    if (QWidget *question = QApplication::activeModalWidget()) {
        question->raise();
        question->activateWindow();
    }
    // Nothing gets past a required update.
    if (m_updateDialog && m_updateDialog->isForced()) {
        raiseUpdateDialog();
    }
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

void WindowController::showKillSwitchSettings()
{
    showOrRaise();
    m_window->showKillSwitchSettings();
}

void WindowController::activateFromApplication()
{
    showOrRaise();
}

void WindowController::setUnconfirmedFavorites(const QHash<QString, bool> &favorites,
                                               const QSet<QString> &awaited)
{
    m_unconfirmedFavorites = favorites;
    m_awaitedFavorites = awaited;
    if (m_window) {
        m_window->setUnconfirmedFavorites(favorites, awaited);
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

void WindowController::setActivity(const OperationActivity &activity)
{
    if (m_activity == activity) {
        return;
    }
    m_activity = activity;
    if (m_window) {
        m_window->setActivity(activity);
    }
}

void WindowController::showSplitRulesError(const QString &message)
{
    if (m_window) {
        m_window->showSplitRulesError(message);
    }
}

void WindowController::finishSplitRulesImport(const QString &failure)
{
    if (m_window) {
        m_window->finishSplitRulesImport(failure);
    }
}

void WindowController::ensureUpdateDialog()
{
    if (m_updateDialog) {
        return;
    }
    m_updateDialog = new UpdateDialog(m_theme.get()); // Owned: no parent.
    m_updateDialog->setExitAllowed(m_exitAllowed);
    m_updateDialog->installEventFilter(this);
    connect(m_updateDialog, &UpdateDialog::downloadRequested, this,
            &WindowController::updateDownloadRequested);
    connect(m_updateDialog, &UpdateDialog::cancelDownloadRequested, this,
            &WindowController::updateDownloadCancelRequested);
    connect(m_updateDialog, &UpdateDialog::openDownloadPageRequested, this,
            &WindowController::openDownloadPage);
    connect(m_updateDialog, &UpdateDialog::exitRequested, this,
            &WindowController::forceUpdateExitRequested);
}

bool WindowController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        Q_EMIT updateDialogVisibleChanged(event->type() == QEvent::Show);
    }
    return QObject::eventFilter(watched, event);
}

void WindowController::showUpdate(const UpdateInfo &update)
{
    ensureUpdateDialog();
    m_update = update;
    m_updateDialog->setUpdate(update);
    raiseUpdateDialog();
}

void WindowController::raiseUpdateDialog()
{
    if (m_updateDialog && !m_exitAllowed) {
        m_updateDialog->show();
        m_updateDialog->raise();
        m_updateDialog->activateWindow();
    }
}

void WindowController::withdrawUpdate()
{
    // Deleted rather than hidden: a gate that is no longer one can't be closed.
    if (m_updateDialog) {
        m_updateDialog->setExitAllowed(true);
        m_updateDialog->close();
        m_updateDialog->deleteLater();
        m_updateDialog.clear();
    }
}

void WindowController::setUpdateDownload(const GUIUpdateDownloadInfo &download)
{
    if (m_updateDialog) {
        m_updateDialog->setDownload(download);
    }
}

void WindowController::setUpdateNote(const QString &text, bool error)
{
    if (m_updateDialog) {
        m_updateDialog->setNote(text,
                                error ? UpdateDialog::Tone::Error : UpdateDialog::Tone::Muted);
    }
}

void WindowController::setUpdateWaiting(bool waiting)
{
    if (m_updateDialog) {
        m_updateDialog->setWaiting(waiting);
    }
}

void WindowController::openDownloadPage()
{
    if (!m_updateDialog) {
        return;
    }
    using enum UpdateDialog::Tone;
    const QUrl link = updatelink::downloadLink(m_update);
    if (!link.isValid()) {
        m_updateDialog->setRemark(
            QCoreApplication::translate("UpdateDialog", "The download link is unavailable."),
            Error);
    } else if (!m_linkOpener(link)) {
        m_updateDialog->setRemark(
            QCoreApplication::translate("UpdateDialog", "Could not open the update download link."),
            Error);
    } else {
        m_updateDialog->setRemark(
            QCoreApplication::translate("UpdateDialog",
                                        "The download link opened in your browser. Vantu will "
                                        "not run the installer automatically."),
            Muted);
    }
}
